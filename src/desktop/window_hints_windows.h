// The mark of windows that other processes must not find by their caption.
#pragma once

namespace starfolds {

/// Name of a window property, which all processes can read.
inline constexpr wchar_t kUnlistedMark[] = L"starfolds_unlisted";

}  // namespace starfolds
