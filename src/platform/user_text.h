// Texts for the user in layers without Qt: plain English, translated where they are shown.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Marks a literal for translation; it stays English. The list of all texts is extracted from the
/// source by this name.
#define STARFOLDS_TEXT(text) text

namespace starfolds {

/// A marked text, in which %1 to %9 stand for values, and these values, which are shown as they
/// are. Any other text converts to it and is shown as it is.
struct UserText {
  // NOLINTBEGIN(google-explicit-constructor): conversions are meant
  UserText(std::string text, std::vector<std::string> values = {}, std::string reason = {})
      : Text(std::move(text)), Values(std::move(values)), Reason(std::move(reason)) {}
  UserText(std::string_view text) : Text(text) {}
  UserText(const char* text) : Text(text) {}
  // NOLINTEND(google-explicit-constructor)
  std::string Text;
  std::vector<std::string> Values;
  std::string Reason;   // a marked text, or one of the system; shown as a paragraph at the end
  std::string Subject;  // shown as it is, with a colon, in front of the text
};

/// The text with its values inserted. A place without a value stays as it is; so does what looks
/// like a place in a value.
inline std::string Filled(std::string_view text, const std::vector<std::string>& values) {
  std::string filled;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isPlace = text[i] == '%' && i + 1 < text.size() && text[i + 1] >= '1' &&
                         static_cast<std::size_t>(text[i + 1] - '1') < values.size();
    if (isPlace) {
      filled += values[static_cast<std::size_t>(text[++i] - '1')];
    } else {
      filled += text[i];
    }
  }
  return filled;
}

inline std::string WithSubject(std::string_view subject, const std::string& text) {
  return subject.empty() ? text : std::string(subject) + ": " + text;
}

inline std::string WithReason(std::string text, std::string_view reason) {
  if (!reason.empty()) text.append("\n\n").append(reason);
  return text;
}

inline std::string InEnglish(const UserText& text) {
  return WithReason(WithSubject(text.Subject, Filled(text.Text, text.Values)), text.Reason);
}

/// Gives a text in the language in which it is shown.
using ShownText = std::function<std::string(const UserText&)>;

/// The text for one line of a terminal: the reason follows behind a colon.
inline std::string InOneLine(UserText text, const ShownText& shown = InEnglish) {
  const std::string reason = std::exchange(text.Reason, {});
  return shown(text) + (reason.empty() ? "" : ": " + shown(reason));
}

}  // namespace starfolds
