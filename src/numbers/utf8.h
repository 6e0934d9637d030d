// UTF-8, the encoding of all texts in the program, and the conversion of older files to it.
#pragma once

#include <string>
#include <string_view>

namespace starfolds {

/// Whether all of the text is well-formed UTF-8 (RFC 3629: no surrogates, no overlong forms).
bool IsUtf8(std::string_view text);

/// Converts Windows-1252 to UTF-8. The five bytes that it leaves undefined become the control
/// characters of the same number.
std::string FromWindows1252(std::string_view text);

}  // namespace starfolds
