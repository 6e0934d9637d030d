// Numbers in text: the lenient scan, the numeric test and the shortest text of a number. All of
// them are free of the locale: a point is always the decimal mark.
#pragma once

#include <string>
#include <string_view>

#include "numbers/words.h"

namespace starfolds {

/// The value of the longest number at the start of the text; blanks anywhere before or inside it
/// do not count ("1 2.5x" is 12.5). Text that starts with no number gives 0. Magnitudes above
/// double's range give the largest double, those below it 0.
double LenientNumber(std::string_view text);

/// Whether the whole text is one number: optional blanks around it, a sign, digits, a point, an
/// exponent. Empty text is none.
bool IsNumeric(std::string_view text);

/// The shortest decimal text that reads back as the same number, without an exponent wherever 15
/// digits or fewer will do.
std::string NumberText(Single value);
std::string NumberText(Long value);

/// The text without blanks (spaces and tabs) at both ends.
std::string_view Trimmed(std::string_view text);

}  // namespace starfolds
