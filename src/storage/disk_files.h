// Files on the disk.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace starfolds {

/// A file is replaced by a temporary one beside it, which is renamed when it is complete and
/// flushed to disk. The new file has the permissions of the old one; a symbolic link is followed. A
/// temporary file that a killed process left behind ("NAME.part-1") is removed by the next process
/// that replaces the file.
class DiskFiles : public Files {
 public:
  FileContents Read(const std::string& path, std::size_t limit) override;
  bool Exists(const std::string& path) override;
  std::optional<std::string> Replace(const std::string& path, std::string_view bytes) override;
  bool CanWriteFolder(const std::string& folder) override;
};

}  // namespace starfolds
