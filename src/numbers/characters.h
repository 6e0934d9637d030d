// Characters as users count them (grapheme clusters).
#pragma once

#include <cstddef>
#include <limits>
#include <string_view>

namespace starfolds {

/// The first `count` characters of UTF-8 text, or fewer if the text or `bytes` bytes hold no more.
/// A letter with its accents and vowel signs is one character, and so is an emoji of several parts
/// or a flag. A single character of more than `bytes` bytes is left out.
std::string_view FirstCharacters(std::string_view text, std::size_t count,
                                 std::size_t bytes = std::numeric_limits<std::size_t>::max());

}  // namespace starfolds
