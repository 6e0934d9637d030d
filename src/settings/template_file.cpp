#include "settings/template_file.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "numbers/utf8.h"
#include "platform/user_text.h"
#include "settings/packing.h"
#include "settings/records.h"

namespace starfolds {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

std::string WithLineEnds(std::string text) {
  if (text.find(kLineEnd) != std::string::npos) return text;
  std::string ended;
  for (const char c : text) {
    if (c == '\n') {
      ended += kLineEnd;
    } else {
      ended += c;
    }
  }
  return ended;
}

/// Replaces line breaks, which would end the value, by blanks. Texts of one line have none.
std::string InOneLine(std::string_view value) {
  std::string text(value);
  for (char& c : text) {
    if (c == '\r' || c == '\n' || c == '\0') c = ' ';
  }
  return text;
}

constexpr std::string_view kEscapesSection = "Escapes";
constexpr char kEscape = '\\';

/// The character that stands for `c` after a backslash.
struct EscapedAs {
  char Plain;
  char Written;
};
constexpr EscapedAs kEscapes[] = {{'[', '('}, {']', ')'}, {'=', ':'}, {kEscape, kEscape}};

/// The shortest key of a template, "IFS_P0".
constexpr std::size_t kShortestKey = 6;

bool IsKeyLetter(char c) {
  return c == '_' || (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

/// Whether the text before the equals sign at `at` may end in a key, which a reader would find
/// there.
bool MayEndKey(std::string_view text, std::size_t at) {
  std::size_t begin = at;
  while (begin > 0 && IsKeyLetter(text[begin - 1])) --begin;
  return at - begin >= kShortestKey;
}

/// Whether the character must be escaped. A backslash must be only if it would form an escape with
/// the next character.
bool NeedsEscape(std::string_view text, std::size_t at) {
  switch (text[at]) {
    case '[':
    case ']': return true;
    case '=': return MayEndKey(text, at);
    case kEscape:
      if (at + 1 == text.size()) return false;
      return std::any_of(std::begin(kEscapes), std::end(kEscapes),
                         [&](EscapedAs each) { return each.Written == text[at + 1]; }) ||
             NeedsEscape(text, at + 1);
    default: return false;
  }
}

/// Whether the text has other characters than backslashes to escape. If no text of the file has, it
/// is written without escapes.
bool Misleads(std::string_view text) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != kEscape && NeedsEscape(text, at)) return true;
  }
  return false;
}

std::string Escaped(std::string_view text) {
  std::string escaped;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (!NeedsEscape(text, at)) {
      escaped += text[at];
      continue;
    }
    const auto* const as = std::find_if(std::begin(kEscapes), std::end(kEscapes),
                                        [&](EscapedAs each) { return each.Plain == text[at]; });
    escaped += kEscape;
    escaped += as->Written;
  }
  return escaped;
}

std::string Unescaped(std::string_view text) {
  std::string plain;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const auto* const as =
        text[at] != kEscape || at + 1 == text.size()
            ? std::end(kEscapes)
            : std::find_if(std::begin(kEscapes), std::end(kEscapes),
                           [&](EscapedAs each) { return each.Written == text[at + 1]; });
    plain += as == std::end(kEscapes) ? text[at] : as->Plain;
    if (as != std::end(kEscapes)) ++at;
  }
  return plain;
}

/// Whether the text is `prefix` and a number below `count` without leading zeros.
bool IsNumbered(std::string_view text, std::string_view prefix, int count) {
  for (int i = 0; i < count; ++i) {
    if (text == std::string(prefix) + std::to_string(i)) return true;
  }
  return false;
}

bool IsTemplateSection(std::string_view name) {
  for (const char* plain : {"Admin", "General", "Advanced", "Universe"}) {
    if (name == plain) return true;
  }
  const std::string_view record = name.substr(0, name.find('\\'));
  const std::string_view below = name.substr(record.size());
  const bool hasRoomBelow = below.empty() || below == kIfsSection || below == kAtomSection;
  return (hasRoomBelow && IsNumbered(record, "UniFold", kProfileCount)) ||
         IsNumbered(name, "CompFold", kCompositeCount);
}

}  // namespace

TemplateText::TemplateText(std::string text) : text_(WithLineEnds(std::move(text)) + "[") {
  for (std::size_t open = text_.find('['); open != std::string::npos;
       open = text_.find('[', open + 1)) {
    const std::size_t close = text_.find_first_of("[]", open + 1);
    if (close == std::string::npos || text_[close] == '[') continue;
    sections_.emplace(text_.substr(open + 1, close - open - 1), open);
  }
  escaped_ = sections_.contains(std::string(kEscapesSection));
}

bool TemplateText::HasTemplateSection() const {
  return std::any_of(sections_.begin(), sections_.end(),
                     [](const auto& section) { return IsTemplateSection(section.first); });
}

void TemplateText::EnterSection(std::string_view section) const {
  if (entered_ == section && !section_.empty()) return;
  entered_ = section;
  equals_.clear();
  section_ = {};
  const auto found = sections_.find(entered_);
  if (found == sections_.end()) return;
  const std::size_t begin = found->second;
  section_ = std::string_view(text_).substr(begin, text_.find('[', begin + 1) - begin);
  for (std::size_t at = section_.find('='); at != std::string_view::npos;
       at = section_.find('=', at + 1)) {
    equals_.push_back(at);
  }
}

std::optional<std::string> TemplateText::Find(std::string_view section,
                                              std::string_view key) const {
  EnterSection(section);
  const auto equals = std::find_if(equals_.begin(), equals_.end(), [&](std::size_t at) {
    return section_.substr(0, at).ends_with(key);
  });
  if (equals == equals_.end()) return std::nullopt;
  const std::size_t begin = *equals + 1;
  const std::size_t end = section_.find(kLineEnd, begin);
  if (end == std::string_view::npos) return std::nullopt;
  const std::string_view value = section_.substr(begin, end - begin);
  std::string text = IsUtf8(value) ? std::string(value) : FromWindows1252(value);
  return escaped_ ? Unescaped(text) : text;
}

std::optional<std::string> TemplateFile::Load(const std::string& path) {
  if (buffer_) return std::nullopt;
  const std::string& name = PathOr(path);
  FileContents contents = files_.Read(name, kLargestTemplate);
  refused_ = name;
  if (!contents.Bytes) return contents.Fault;
  buffer_.emplace(*std::move(contents.Bytes));
  if (!buffer_->HasTemplateSection()) {
    buffer_.reset();
    return STARFOLDS_TEXT("It holds no settings of a universe");
  }
  refused_.reset();
  return std::nullopt;
}

std::optional<std::string> TemplateFile::TemplateFind(std::string_view section,
                                                      std::string_view key,
                                                      const std::string& path) {
  if (!buffer_ && refused_ != PathOr(path)) Load(path);
  return buffer_ ? buffer_->Find(section, key) : std::nullopt;
}

std::string TemplateFile::TemplateRead(std::string_view section, std::string_view key,
                                       std::string_view fallback, const std::string& path) {
  return TemplateFind(section, key, path).value_or(std::string(fallback));
}

void TemplateFile::ClearBuffer() {
  buffer_.reset();
  refused_.reset();
}

void TemplateFile::TemplateWrite(std::string_view section, std::string_view key,
                                 std::string_view value, const std::string& path) {
  if (!writing_) {
    writing_ = true;
    outputPath_ = PathOr(path);
    output_.clear();
    escapedOutput_.clear();
    misleads_ = false;
  }
  std::string head;
  if (section != section_) {
    head.append(kLineEnd).append("[").append(section).append("]").append(kLineEnd);
    section_ = section;
  }
  head.append(key).append("=");
  const std::string text = InOneLine(value);
  misleads_ = misleads_ || Misleads(text);
  output_.append(head).append(text).append(kLineEnd);
  escapedOutput_.append(head).append(Escaped(text)).append(kLineEnd);
}

std::optional<std::string> TemplateFile::CloseTemplate() {
  if (!writing_) return std::nullopt;
  if (misleads_) {
    TemplateWrite(kEscapesSection, "Character", "backslash");
    std::swap(output_, escapedOutput_);
  }
  writing_ = false;
  escapedOutput_.clear();
  return files_.Replace(outputPath_, std::exchange(output_, {}));
}

}  // namespace starfolds
