// Template files ("sfd"): sections "[name]" of lines "key=value", ended by CR LF. Here is how they
// are read and written; their contents are defined in templates.h.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/files.h"

namespace starfolds {

/// The largest file that is taken for a template. One with every list filled has a quarter of it.
inline constexpr std::size_t kLargestTemplate = std::size_t{1} << 20;

/// The text of a template, and the reader's way of finding values in it: by the first place where
/// the wanted text stands. So a key is also found inside an earlier value or at the end of a longer
/// key, a "[" anywhere ends a section, and a last line without a line break does not count.
///
/// Values that would not survive that are escaped, with a backslash: "\(" is "[", "\)" is "]", "\:"
/// is "=", "\\" is a backslash, and any other backslash is itself. So a reader that knows
/// nothing of it finds all keys, and shows "\(" where a bracket was. Only a file with the section
/// "Escapes" has any: others keep every backslash.
///
/// Sections and keys are looked up in an index of their brackets and equals signs, so that a load
/// does not search the file once for every key; what is found is the same.
class TemplateText {
 public:
  /// A text without a single CR LF was saved by an editor of another system; its line feeds count
  /// as line ends then.
  explicit TemplateText(std::string text);
  TemplateText(const TemplateText&) = delete;
  TemplateText& operator=(const TemplateText&) = delete;

  /// The value, as UTF-8: bytes that are none are taken as Windows-1252. Nothing where the section,
  /// the key or the line's end is not found. Section and key hold no "[", "]" and "=".
  std::optional<std::string> Find(std::string_view section, std::string_view key) const;

  /// Whether there is any section that templates have, be it a single one.
  bool HasTemplateSection() const;

 private:
  void EnterSection(std::string_view section) const;

  std::string text_;
  std::unordered_map<std::string, std::size_t> sections_;  // where the first of each begins
  // The section of the last lookup, as keys are asked for section by section.
  bool escaped_ = false;
  mutable std::string entered_;
  mutable std::string_view section_;
  mutable std::vector<std::size_t> equals_;
};

/// The one template that is read or written at a time.
class TemplateFile {
 public:
  explicit TemplateFile(Files& files) : files_(files) {}

  /// The path used by a read or write that gets none of its own.
  std::string TemplateFileName;
  /// The path that "Save" reuses; empty until one was chosen.
  std::string CurrentTemplate;

  /// Reads the file into the buffer, if it is not there yet. Gives a reason for the user where it
  /// cannot be read or is no template; then reads give their defaults.
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

  /// Writes the file, in place of the one that was there. Gives a reason for the user where it
  /// cannot; then the former file is unchanged. Does nothing if nothing was written.
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
