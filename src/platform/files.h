// Files by their path, each read or replaced as a whole.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace starfolds {

/// The bytes of a file, or the reason why it could not be read.
struct FileContents {
  std::optional<std::string> Bytes;
  std::string Fault;  // a reason for the user, without the path: "No such file or directory"
};

/// Paths are UTF-8.
class Files {
 public:
  virtual ~Files() = default;

  /// Reads a regular file of at most `limit` bytes. Fails for larger files, without reading them,
  /// and for anything that is not a regular file, because a device or a pipe might never end.
  virtual FileContents Read(const std::string& path, std::size_t limit) = 0;

  /// Whether the name exists, even as a dangling symbolic link.
  virtual bool Exists(const std::string& path) = 0;

  /// Replaces the file, or creates it. nullopt on success, else the reason; the file is then
  /// unchanged, even if the disk was full. A process that is killed meanwhile leaves the old or the
  /// new file.
  virtual std::optional<std::string> Replace(const std::string& path, std::string_view bytes) = 0;

  /// Whether files can be created in `folder`.
  virtual bool CanWriteFolder(const std::string& folder) = 0;
};

/// Files in memory, set by a test.
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
