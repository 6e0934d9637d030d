#include "numbers/utf8.h"

#include <array>
#include <cstdint>

namespace starfolds {
namespace {

constexpr bool Continues(char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80; }

/// Length of the well-formed character at the start of `text`; 0 if there is none.
std::size_t CharacterLength(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = byte(0);
  if (lead < 0x80) return 1;
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || text.size() < length) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if (!Continues(text[i])) return 0;
  }
  // Overlong forms, surrogates, and code points beyond the last plane.
  const unsigned char second = byte(1);
  const bool overlong = (lead == 0xE0 && second < 0xA0) || (lead == 0xF0 && second < 0x90);
  const bool forbidden = (lead == 0xED && second > 0x9F) || (lead == 0xF4 && second > 0x8F);
  return overlong || forbidden ? 0 : length;
}

/// Bytes 0x80 to 0x9F of Windows-1252; all others are the code point of the same number.
constexpr std::array<std::uint16_t, 32> kWindows1252{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// For code points below 0x10000.
void AppendUtf8(std::string& text, std::uint16_t character) {
  const auto add = [&](unsigned byte) { text.push_back(static_cast<char>(byte)); };
  if (character < 0x80) {
    add(character);
  } else if (character < 0x800) {
    add(0xC0U | character >> 6U);
    add(0x80U | (character & 0x3FU));
  } else {
    add(0xE0U | character >> 12U);
    add(0x80U | (character >> 6U & 0x3FU));
    add(0x80U | (character & 0x3FU));
  }
}

}  // namespace

bool IsUtf8(std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = CharacterLength(text);
    if (length == 0) return false;
    text.remove_prefix(length);
  }
  return true;
}

std::string FromWindows1252(std::string_view text) {
  std::string utf8;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    const bool special = byte >= 0x80 && byte < 0xA0;
    AppendUtf8(utf8, special ? kWindows1252[byte - 0x80U] : byte);
  }
  return utf8;
}

}  // namespace starfolds
