// The number types of the program. Every stored setting and every array of a run has one of these
// types; arithmetic is done in double and its result stored as the type of the array.
#pragma once

#include <cstdint>

namespace starfolds {

using Integer = std::int16_t;
using Long = std::int32_t;
using Single = float;

static_assert(sizeof(Single) == 4);

// The circle constants that the pictures depend on: Singles, and two products computed in double
// from the Single. Replacing them with std::numbers would change hues and phases.
inline constexpr Single kPi = 3.1415927F;
inline constexpr Single kHalfPi = 1.5707964F;
inline constexpr Single kTwoPi = 6.2831855F;
inline constexpr double kTwoPiWide = 6.283185482025146;

}  // namespace starfolds
