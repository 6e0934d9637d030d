#include "storage/disk_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "storage/descriptor.h"
#include "storage/file_writer.h"

namespace starfolds {
namespace {

using Fault = std::optional<std::string>;

constexpr std::size_t kReadAtOnce = std::size_t{64} * 1024;

/// Reads to the end, but `most` bytes at most.
Fault ReadAll(int file, std::size_t most, std::string& bytes) {
  while (bytes.size() < most) {
    const std::size_t size = bytes.size();
    const std::size_t room = std::min(kReadAtOnce, most - size);
    bytes.resize(size + room);
    const ssize_t count = read(file, bytes.data() + size, room);
    bytes.resize(size + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    if (count == 0) break;
    if (count < 0 && errno != EINTR) return Reason(errno);
  }
  return std::nullopt;
}

}  // namespace

FileContents DiskFiles::Read(const std::string& path, std::size_t limit) {
  struct stat status {};
  if (stat(path.c_str(), &status) != 0) return {std::nullopt, Reason(errno)};
  if (Fault fault = FaultOfKind(status.st_mode)) return {std::nullopt, *fault};
  const Descriptor file(path, O_RDONLY | O_NONBLOCK | O_NOCTTY);
  if (!file.IsOpen()) return {std::nullopt, Reason(file.Error())};
  if (fstat(file.Number(), &status) != 0) return {std::nullopt, Reason(errno)};
  if (Fault fault = FaultOfKind(status.st_mode)) return {std::nullopt, *fault};
  if (std::cmp_greater(status.st_size, limit)) return {std::nullopt, Reason(EFBIG)};
  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(status.st_size));
  const std::size_t most = std::max(limit, limit + 1);  // no overflow without a limit
  if (Fault fault = ReadAll(file.Number(), most, bytes)) return {std::nullopt, *fault};
  if (bytes.size() > limit) return {std::nullopt, Reason(EFBIG)};  // it has grown meanwhile
  return {std::move(bytes), {}};
}

bool DiskFiles::Exists(const std::string& path) {
  struct stat status {};
  return lstat(path.c_str(), &status) == 0;
}

bool DiskFiles::CanWriteFolder(const std::string& folder) {
  struct stat status {};
  return stat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
         faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

}  // namespace starfolds
