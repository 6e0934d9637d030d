#include "platform/files.h"

namespace starfolds {

FileContents MemoryFiles::Read(const std::string& path, std::size_t limit) {
  const auto found = Contents.find(path);
  if (found == Contents.end()) return {std::nullopt, "No such file or directory"};
  if (found->second.size() > limit) return {std::nullopt, "File too large"};
  return {found->second, {}};
}

std::optional<std::string> MemoryFiles::Replace(const std::string& path, std::string_view bytes) {
  if (Full) return "No space left on device";
  const std::size_t slash = path.rfind('/');
  if (slash != std::string::npos && !CanWriteFolder(path.substr(0, slash))) {
    return "Permission denied";
  }
  Contents[path] = std::string(bytes);
  return std::nullopt;
}

bool MemoryFiles::CanWriteFolder(const std::string& folder) {
  return !ReadOnlyFolders.contains(folder);
}

}  // namespace starfolds
