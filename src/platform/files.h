// Files by their path, each read or replaced as a whole.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace starfolds {

/// Bytes, or why there are none.
struct FileContents {
  std::optional<std::string> Bytes;
  std::string Fault;  // a reason for the user, without the path: "No such file or directory"
};

/// Paths are UTF-8.
class Files {
 public:
  virtual ~Files() = default;

  /// Reads a plain file of at most `limit` bytes. Larger ones are refused unread; so is what is no
  /// plain file, as a device or a pipe might never end.
  virtual FileContents Read(const std::string& path, std::size_t limit) = 0;

  /// Whether there is anything of that name, even a link that leads nowhere.
  virtual bool Exists(const std::string& path) = 0;

  /// Replaces the file, or makes it. Gives the reason where it cannot, and then what was there is
  /// untouched, even if the disk is full or the process is killed meanwhile.
  virtual std::optional<std::string> Replace(const std::string& path, std::string_view bytes) = 0;

  /// Whether files can be made in `folder`.
  virtual bool CanWriteFolder(const std::string& folder) = 0;
};

/// Files that a test has put there.
class MemoryFiles : public Files {
 public:
  std::map<std::string, std::string> Contents;
  std::set<std::string> ReadOnlyFolders;
  bool Full = false;

  FileContents Read(const std::string& path, std::size_t limit) override;
  bool Exists(const std::string& path) override { return Contents.contains(path); }
  std::optional<std::string> Replace(const std::string& path, std::string_view bytes) override;
  bool CanWriteFolder(const std::string& folder) override;
};

}  // namespace starfolds
