// Sine, cosine and power. C libraries differ in the last bits of these functions; the pictures must
// be the same on every system, so the engine has its own, made of exactly defined operations.
#pragma once

namespace starfolds {

/// Of an angle in radians; NaN for an infinite one or NaN. The error is below one unit in the
/// last place up to 1.6 million radians. A larger angle is first reduced by the double value of 2
/// pi, whose own error grows with the number of turns.
double Sine(double angle);
double Cosine(double angle);

/// `base` to the power of `exponent`, with an error below one unit in the last place, for special
/// values as std::pow: 1 for an exponent of 0, NaN for a negative base with a broken exponent,
/// infinity if it is too large.
double Power(double base, double exponent);

}  // namespace starfolds
