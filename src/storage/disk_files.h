// Files on the disk.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace starfolds {

/// A file is replaced by a temporary one beside it, which takes its name when it is whole and on
/// the disk. It keeps the rights of the old one; a symbolic link goes on pointing where it did.
/// What a killed process leaves behind ("NAME.part-1") is removed by the next one that replaces the
/// file.
class DiskFiles : public Files {
 public:
  FileContents Read(const std::string& path, std::size_t limit) override;
  bool Exists(const std::string& path) override;
  std::optional<std::string> Replace(const std::string& path, std::string_view bytes) override;
  bool CanWriteFolder(const std::string& folder) override;
};

}  // namespace starfolds
