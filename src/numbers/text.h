// Numbers in text: lenient parsing, the test for a number, and the shortest text of a number. None
// of them depends on the locale: the decimal mark is always a point.
#pragma once

#include <string>
#include <string_view>

#include "numbers/words.h"

namespace starfolds {

/// The value of the longest number at the start of the text; blanks before and inside it are
/// ignored
/// ("1 2.5x" is 12.5). 0 if the text does not start with a number. Magnitudes above the range of
/// double give the largest double, those below it 0.
double LenientNumber(std::string_view text);

/// Whether the whole text is one number: optional blanks around it, sign, digits, point, exponent.
/// False for empty text.
bool IsNumeric(std::string_view text);

/// The shortest decimal text that parses to the same number, without an exponent if 15 digits or
/// fewer suffice.
std::string NumberText(Single value);
std::string NumberText(Long value);

/// The text without blanks (spaces and tabs) at both ends.
std::string_view Trimmed(std::string_view text);

/// The text in double quotes, for messages.
std::string Quoted(std::string_view text);

}  // namespace starfolds
