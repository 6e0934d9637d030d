// The syntax of template files ("sfd"): sections "[name]" of lines "key=value", ended by CR LF.
// Their contents are defined in templates.h.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/files.h"

namespace starfolds {

/// The size of the largest file that is read as a template, in bytes; four times that of a template
/// with all lists full.
inline constexpr std::size_t kLargestTemplate = std::size_t{1} << 20;

/// The text of a template, searched for the first occurrence of a section or key. A key is
/// therefore also found inside an earlier value or at the end of a longer key, a "[" anywhere ends
/// a section, and a last line without a line break is ignored.
///
/// Values that could not be found again are escaped with a backslash: "\(" is "[", "\)" is "]",
/// "\:" is "=", "\\" is a backslash, and any other backslash is itself. A reader without escapes
/// finds all keys, and shows "\(" for a bracket. Escapes are decoded only in files with the section
/// "Escapes".
///
/// An index of brackets and equals signs makes a load linear in the file's size; the result is that
/// of a search.
class TemplateText {
 public:
  /// If the text has no CR LF at all, as from an editor of another system, LF ends a line.
  explicit TemplateText(std::string text);
  TemplateText(const TemplateText&) = delete;
  TemplateText& operator=(const TemplateText&) = delete;

  /// The value, as UTF-8; invalid UTF-8 is read as Windows-1252. nullopt if the section, the key or
  /// the line's end is not found. Section and key must not contain "[", "]" or "=".
  std::optional<std::string> Find(std::string_view section, std::string_view key) const;

  /// Whether at least one section is one that templates have.
  bool HasTemplateSection() const;

 private:
  void EnterSection(std::string_view section) const;

  std::string text_;
  std::unordered_map<std::string, std::size_t> sections_;  // where the first of each begins
  // The section of the last lookup: keys are looked up section by section.
  bool escaped_ = false;
  mutable std::string entered_;
  mutable std::string_view section_;
  mutable std::vector<std::size_t> equals_;
};

/// A template file that is read or written.
class TemplateFile {
 public:
  explicit TemplateFile(Files& files) : files_(files) {}

  /// The path for reads and writes without a path argument.
  std::string TemplateFileName;
  /// The path that "Save" uses again; empty until the user has chosen one.
  std::string CurrentTemplate;

  /// Reads the file, unless it was read already. Returns a reason for the user if it cannot be read
  /// or is not a template; `TemplateRead` then returns the fallbacks.
  std::optional<std::string> Load(const std::string& path = {});

  /// The value of a key, or `fallback`. Loads the file on the first call.
  std::string TemplateRead(std::string_view section, std::string_view key,
                           std::string_view fallback, const std::string& path = {});
  std::optional<std::string> TemplateFind(std::string_view section, std::string_view key,
                                          const std::string& path = {});

  /// Ends a load: the next one reads the file again.
  void ClearBuffer();

  /// Appends a line to the file that `CloseTemplate` will write.
  void TemplateWrite(std::string_view section, std::string_view key, std::string_view value,
                     const std::string& path = {});

  /// Replaces the file. Returns a reason for the user if that fails; then the former file is
  /// unchanged. Does nothing if nothing was written.
  std::optional<std::string> CloseTemplate();

 private:
  const std::string& PathOr(const std::string& path) const {
    return path.empty() ? TemplateFileName : path;
  }

  Files& files_;
  std::optional<TemplateText> buffer_;  // TemplateBuffer
  std::optional<std::string> refused_;  // the path that could not be read
  bool writing_ = false;                // TemplateHandle
  std::string outputPath_;
  std::string output_;
  std::string escapedOutput_;  // the same with escapes
  bool misleads_ = false;      // some value has to be escaped
  std::string section_;        // TemplateSection: of the last value written
};

}  // namespace starfolds
