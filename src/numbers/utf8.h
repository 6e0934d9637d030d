// Text as UTF-8, which is what the whole system speaks, and its way there from older files.
#pragma once

#include <string>
#include <string_view>

namespace starfolds {

/// Whether all of the text is well-formed UTF-8 (RFC 3629: no surrogates, no overlong forms).
bool IsUtf8(std::string_view text);

/// Text of the code page that Windows used in Western Europe. The five bytes that it leaves
/// undefined become the control characters of the same number.
std::string FromWindows1252(std::string_view text);

}  // namespace starfolds
