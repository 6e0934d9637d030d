// Conversions between numbers and decimal text for standard libraries without `std::from_chars` and
// `std::to_chars` of floating-point numbers. The results are the same to the last character; a test
// compares them. None of them depends on the locale where these are used: a C library that has
// only the C locale, and programs that never set `LC_NUMERIC`.
#pragma once

#include <string>
#include <string_view>

#include "numbers/words.h"

namespace starfolds::plain_decimal {

/// The number of a text of digits, with an optional minus, point and exponent. Infinite beyond the
/// range of double, 0 below it.
double Parse(std::string_view text);

/// The shortest digits that parse to the same finite number, without an exponent. From 2^24 on, all
/// digits of the whole number.
std::string FixedText(Single value);

/// The same with an exponent of at least two digits: "1.5e-20".
std::string ExponentText(Single value);

}  // namespace starfolds::plain_decimal
