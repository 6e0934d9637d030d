// The parts of `DiskFiles` that are the same on all systems.
#include "storage/disk_files.h"

#include "storage/file_writer.h"

namespace starfolds {

std::optional<std::string> DiskFiles::Replace(const std::string& path, std::string_view bytes) {
  FileWriter file;
  if (auto fault = file.Open(path, Targets::Files)) return fault;
  if (auto fault = file.Write(bytes)) return fault;
  return file.Commit();
}

}  // namespace starfolds
