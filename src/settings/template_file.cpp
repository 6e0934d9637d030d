#include "settings/template_file.h"

#include <algorithm>
#include <utility>

#include "numbers/utf8.h"
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

/// The format quotes nothing: a bracket in a value would hide all that stands behind it in its
/// section, and a line break would cut it.
std::string Writable(std::string_view value) {
  std::string text(value);
  for (char& c : text) {
    if (c == '[') c = '(';
    if (c == ']') c = ')';
    if (c == '\r' || c == '\n' || c == '\0') c = ' ';
  }
  return text;
}

/// Whether the text is `prefix` and a number below `count`, written as templates have it.
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
  return IsUtf8(value) ? std::string(value) : FromWindows1252(value);
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
    return "It holds no settings of a universe";
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
  }
  const auto line = [&](std::string_view text) { output_.append(text).append(kLineEnd); };
  if (section != section_) {
    line({});
    line("[" + std::string(section) + "]");
    section_ = section;
  }
  line(std::string(key) + "=" + Writable(value));
}

std::optional<std::string> TemplateFile::CloseTemplate() {
  if (!writing_) return std::nullopt;
  writing_ = false;
  return files_.Replace(outputPath_, std::exchange(output_, {}));
}

}  // namespace starfolds
