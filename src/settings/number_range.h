// The numbers that a setting can be edited to: whole or not, and their range.
#pragma once

#include <string>

namespace starfolds {

/// What can be typed: digits only for the whole kinds, one point as well for `AsSingle`.
enum class NumberKind { AsInteger = 0, AsSingle = 1, AsLong = 2 };

constexpr bool IsWhole(NumberKind kind) { return kind != NumberKind::AsSingle; }

struct NumberRange {
  NumberKind Kind = NumberKind::AsInteger;
  double Low = 0;
  double High = 0;
};

/// The shortest text of a number; rounded to a whole number for the whole kinds.
std::string TextOf(double number, NumberKind kind);

/// The typed text as a number: parsed leniently, rounded for the whole kinds, clamped to the range.
std::string ClampedText(const std::string& text, const NumberRange& range);

}  // namespace starfolds
