// Conversions between the number types. A value that does not fit the target type is never
// undefined behaviour: the target keeps its former value, a rule of the whole program.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "numbers/words.h"

namespace starfolds {

/// Nearest whole number, halves to even (the default rounding mode of the processor). For NaN and
/// values outside of the 64-bit range the lowest 64-bit number, which fits no narrower type. The
/// range is tested first, because the result of `llrint` outside of it differs between processors,
/// and between constants and variables.
inline std::int64_t RoundHalfEven(double value) {
  if (!(std::abs(value) < 0x1p63)) return std::numeric_limits<std::int64_t>::min();
#ifdef __wasm__
  return static_cast<std::int64_t>(std::rint(value));  // two instructions; llrint is a call
#else
  return std::llrint(value);
#endif
}

/// Largest whole number not above `value`; the lowest 64-bit number for NaN and values that do not
/// fit.
inline std::int64_t FloorToWhole(double value) { return RoundHalfEven(std::floor(value)); }

template <class Word>
constexpr bool Fits(std::int64_t value) {
  return value >= std::numeric_limits<Word>::min() && value <= std::numeric_limits<Word>::max();
}

/// Stores the rounded value if the target's type can hold it; otherwise the target is unchanged.
/// Returns whether it was stored.
template <class Word>
inline bool AssignRounded(Word& target, double value) {
  const std::int64_t whole = RoundHalfEven(value);
  if (!Fits<Word>(whole)) return false;
  target = static_cast<Word>(whole);
  return true;
}

/// The rounded value, or `former` if it does not fit the type.
template <class Word>
inline Word RoundedOr(Word former, double value) {
  AssignRounded(former, value);
  return former;
}

/// Rounds and clamps to the limits of the type, for values that are clamped further afterwards.
template <class Word>
inline Word RoundedToLimits(double value) {
  if (std::isnan(value)) return 0;
  const double low = std::numeric_limits<Word>::min();
  const double high = std::numeric_limits<Word>::max();
  return static_cast<Word>(RoundHalfEven(std::clamp(value, low, high)));
}

/// The product of two 16-bit numbers as a 16-bit number; `former` if it overflows.
inline Integer ProductOr(Integer former, Integer a, Integer b) {
  const std::int32_t product = static_cast<std::int32_t>(a) * b;
  return Fits<Integer>(product) ? static_cast<Integer>(product) : former;
}

/// Remainder with the sign of the divisor, so an index computed by it is never negative.
constexpr std::int64_t WrapIndex(std::int64_t value, std::int64_t size) {
  const std::int64_t rest = value % size;
  return rest < 0 ? rest + size : rest;
}

/// A number clamped to two limits; NaN becomes the low limit.
template <class Word>
constexpr Word ClampTo(Word value, Word low, Word high) {
  return value >= low ? std::min(value, high) : low;
}

/// -1, 0 or 1.
constexpr int Sign(double value) { return (value > 0) - (value < 0); }

}  // namespace starfolds
