#include "numbers/plain_decimal.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace starfolds::plain_decimal {

double Parse(std::string_view text) { return std::strtod(std::string(text).c_str(), nullptr); }

namespace {

/// Digits that determine any Single.
constexpr int kMostDigits = 9;

/// From here on every Single is a whole number.
constexpr Single kWhole = 0x1p24F;

std::string Printed(const char* format, int precision, double value) {
  char text[64];
  const int length = std::snprintf(text, sizeof text, format, precision, value);
  return {text, static_cast<std::size_t>(length)};
}

bool IsTextOf(const std::string& text, Single value) {
  return std::strtof(text.c_str(), nullptr) == value;
}

int ExponentOf(const std::string& text) { return std::atoi(text.c_str() + text.find('e') + 1); }

/// The text with an exponent and so many digits that parses to `value`, which is not negative;
/// empty if there is none.
std::string TextWithDigits(int digits, Single value) {
  std::string nearest = Printed("%.*e", digits - 1, static_cast<double>(value));
  if (digits == kMostDigits || IsTextOf(nearest, value)) return nearest;
  // The numbers next to a power of two are twice as far above as below, so that the next text above
  // may parse to it although it is farther away.
  const double unit = Parse("1e" + std::to_string(ExponentOf(nearest) - digits + 1));
  std::string above = Printed("%.*e", digits - 1, Parse(nearest) + unit);
  return IsTextOf(above, value) ? above : std::string();
}

}  // namespace

std::string ExponentText(Single value) {
  std::string text;
  for (int digits = 1; text.empty(); ++digits) text = TextWithDigits(digits, std::abs(value));
  return std::signbit(value) ? "-" + text : text;
}

std::string FixedText(Single value) {
  if (std::abs(value) >= kWhole) return Printed("%.*f", 0, static_cast<double>(value));
  const std::string shortest = ExponentText(value);
  const std::size_t mark = shortest.find('e');
  const int exponent = ExponentOf(shortest);
  const std::size_t sign = shortest.front() == '-' ? 1 : 0;
  std::string digits = shortest.substr(sign, 1);
  if (mark > sign + 2) digits += shortest.substr(sign + 2, mark - sign - 2);
  if (exponent < 0) {
    digits.insert(0, static_cast<std::size_t>(-exponent), '0');
    digits.insert(1, ".");
  } else {
    const auto whole = static_cast<std::size_t>(exponent) + 1;
    if (digits.size() < whole) digits.append(whole - digits.size(), '0');
    if (digits.size() > whole) digits.insert(whole, ".");
  }
  return shortest.substr(0, sign) + digits;
}

}  // namespace starfolds::plain_decimal
