#include "numbers/text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "numbers/plain_decimal.h"

namespace starfolds {
namespace {

constexpr bool IsBlank(char c) { return c == ' ' || c == '\t'; }
constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// Matches the grammar sign? digits* (point digits*)? (exponent sign? digits+)? at the start of
/// `text` and returns the number of characters; 0 if there is no digit. The sign may be a plus.
std::size_t NumberLength(std::string_view text) {
  std::size_t at = 0;
  auto skipDigits = [&] {
    const std::size_t from = at;
    while (at < text.size() && IsDigit(text[at])) ++at;
    return at - from;
  };
  if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
  std::size_t digits = skipDigits();
  if (at < text.size() && text[at] == '.') {
    ++at;
    digits += skipDigits();
  }
  if (digits == 0) return 0;
  const std::size_t mantissaEnd = at;
  if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
    ++at;
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
    if (skipDigits() == 0) return mantissaEnd;
  }
  return at;
}

/// The power of ten of the first non-zero digit: 0 for "7.5", -2 for "0.05", 3 for "2e3". `text` is
/// an unsigned number of the grammar above with at least one such digit. Exponents beyond the
/// 64-bit range are clamped to a quarter of that range.
std::int64_t PowerOfTen(std::string_view text) {
  const std::size_t mark = text.find_first_of("eE");
  const std::string_view mantissa = text.substr(0, mark);
  const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
  const std::size_t first = mantissa.find_first_of("123456789");
  const auto digits = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(first);
  const std::int64_t power = digits > 0 ? digits - 1 : digits;
  if (mark == std::string_view::npos) return power;
  std::string_view exponent = text.substr(mark + 1);
  if (exponent.front() == '+') exponent.remove_prefix(1);
  constexpr std::int64_t limit = std::numeric_limits<std::int64_t>::max() / 4;
  std::int64_t shift = exponent.front() == '-' ? -limit : limit;
  std::from_chars(exponent.data(), exponent.data() + exponent.size(), shift);
  return power + std::clamp(shift, -limit, limit);
}

#ifdef __cpp_lib_to_chars

/// The number of a text of the grammar above without a plus; nullopt outside of the range of
/// double.
std::optional<double> ParsedNumber(std::string_view text) {
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error == std::errc::result_out_of_range) return std::nullopt;
  return value;
}

/// The shortest text of a finite number without an exponent; empty if it is longer than 63
/// characters.
std::string FixedText(Single value) {
  char text[64];
  const auto [end, error] =
      std::to_chars(text, text + sizeof text, value, std::chars_format::fixed);
  return error == std::errc() ? std::string(text, end) : std::string();
}

/// The shortest text of a finite number.
std::string ShortestText(Single value) {
  char text[64];
  return {text, std::to_chars(text, text + sizeof text, value).ptr};
}

#else

std::optional<double> ParsedNumber(std::string_view text) {
  const double value = plain_decimal::Parse(text);
  const bool isZero = text.find_first_of("123456789") >= text.find_first_of("eE");
  if (std::isinf(value) || (value == 0 && !isZero)) return std::nullopt;
  return value;
}

std::string FixedText(Single value) { return plain_decimal::FixedText(value); }

/// Of numbers with more than 15 digits, the text with an exponent is the shorter one.
std::string ShortestText(Single value) { return plain_decimal::ExponentText(value); }

#endif

/// The value of a text that matches the grammar above as a whole. Magnitudes above the range of
/// double give the largest double, those below it 0.
double NumberValue(std::string_view text) {
  if (text.front() == '+') text.remove_prefix(1);
  if (const auto value = ParsedNumber(text)) return *value;
  const bool negative = text.front() == '-';
  if (PowerOfTen(text.substr(negative ? 1 : 0)) < 0) return 0;
  const double largest = std::numeric_limits<double>::max();
  return negative ? -largest : largest;
}

}  // namespace

std::string_view Trimmed(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

double LenientNumber(std::string_view text) {
  std::string packed;
  for (const char c : text) {
    if (!IsBlank(c)) packed.push_back(c);
  }
  const std::size_t length = NumberLength(packed);
  return length == 0 ? 0 : NumberValue(std::string_view(packed).substr(0, length));
}

bool IsNumeric(std::string_view text) {
  const std::string_view core = Trimmed(text);
  return !core.empty() && NumberLength(core) == core.size();
}

std::string NumberText(Single value) {
  if (std::isnan(value)) return "0";
  if (std::isinf(value)) value = std::copysign(std::numeric_limits<Single>::max(), value);
  const std::string text = FixedText(value);
  const auto digits = std::count_if(text.begin(), text.end(), IsDigit);
  return digits > 0 && digits <= 15 ? text : ShortestText(value);
}

std::string NumberText(Long value) { return std::to_string(value); }

std::string Quoted(std::string_view text) { return "\"" + std::string(text) + "\""; }

}  // namespace starfolds
