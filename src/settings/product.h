// Names of the program.
#pragma once

#include <string_view>

namespace starfolds {

inline constexpr std::string_view kProductName = "Starfolds";
inline constexpr std::string_view kProductVersion = "4.1a";
inline constexpr std::string_view kCopyright = "Copyright (C) 2026 the Starfolds authors";

}  // namespace starfolds
