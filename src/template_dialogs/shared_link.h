// Links to the page that shows a universe in a browser.
#pragma once

#include <QString>
#include <string>

namespace starfolds {

/// The longest fragment that the page opens, in characters.
inline constexpr qsizetype kLongestLinkFragment = qsizetype{1} << 17;

/// The text of a link (`LinkText`), packed as the page reads it: raw deflate, then base64 with "-"
/// and "_".
QString LinkFragment(const std::string& text);

}  // namespace starfolds
