// How the routines of the renderer say that something went wrong.
#pragma once

#include <optional>
#include <string>

namespace starfolds {

/// A message for the person at the keyboard, without a final stop; nothing where all went well.
using Fault = std::optional<std::string>;

}  // namespace starfolds
