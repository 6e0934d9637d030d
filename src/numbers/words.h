// The number words of the system. Every stored setting and every array of a run has one of these
// types; arithmetic runs in double and is stored as the type that the array names.
#pragma once

#include <cstdint>

namespace starfolds {

using Integer = std::int16_t;
using Long = std::int32_t;
using Single = float;

static_assert(sizeof(Single) == 4);

// The circle constants that the pictures depend on: Singles, and two products that were made in
// double from the Single. Do not replace them with std::numbers: hues and phases would drift.
inline constexpr Single kPi = 3.1415927F;
inline constexpr Single kHalfPi = 1.5707964F;
inline constexpr Single kTwoPi = 6.2831855F;
inline constexpr double kTwoPiWide = 6.283185482025146;

}  // namespace starfolds
