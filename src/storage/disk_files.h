// Files on the disk.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace starfolds {

/// Files are replaced by a `FileWriter`.
class DiskFiles : public Files {
 public:
  FileContents Read(const std::string& path, std::size_t limit) override;
  bool Exists(const std::string& path) override;
  std::optional<std::string> Replace(const std::string& path, std::string_view bytes) override;
  bool CanWriteFolder(const std::string& folder) override;
};

}  // namespace starfolds
