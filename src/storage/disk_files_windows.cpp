#include <algorithm>

#include "platform/user_text.h"
#include "storage/disk_files.h"
#include "storage/file_writer.h"
#include "storage/windows_path.h"

namespace starfolds {
namespace {

using Fault = std::optional<std::string>;

constexpr std::size_t kReadAtOnce = std::size_t{64} * 1024;
constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// Reads to the end, but `most` bytes at most.
Fault ReadAll(HANDLE file, std::size_t most, std::string& bytes) {
  while (bytes.size() < most) {
    const std::size_t size = bytes.size();
    const std::size_t room = std::min(kReadAtOnce, most - size);
    bytes.resize(size + room);
    DWORD count = 0;
    const bool isRead =
        ReadFile(file, bytes.data() + size, static_cast<DWORD>(room), &count, nullptr) != 0;
    bytes.resize(size + count);
    if (!isRead) return Reason(ErrnoOf(GetLastError()));
    if (count == 0) break;
  }
  return std::nullopt;
}

}  // namespace

FileContents DiskFiles::Read(const std::string& path, std::size_t limit) {
  const auto wide = WidePath(path);
  if (!wide) return {std::nullopt, Reason(EINVAL)};
  const DWORD attributes = GetFileAttributesW(wide->c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) {
    return {std::nullopt, Reason(ErrnoOf(GetLastError()))};
  }
  if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return {std::nullopt, Reason(EISDIR)};
  const Handle file(*wide, GENERIC_READ, kShareAll);
  if (!file.IsOpen()) return {std::nullopt, Reason(ErrnoOf(GetLastError()))};
  if (GetFileType(file.Get()) != FILE_TYPE_DISK)
    return {std::nullopt, STARFOLDS_TEXT("Not a plain file")};
  LARGE_INTEGER size{};
  if (!GetFileSizeEx(file.Get(), &size)) return {std::nullopt, Reason(ErrnoOf(GetLastError()))};
  if (std::cmp_greater(size.QuadPart, limit)) return {std::nullopt, Reason(EFBIG)};
  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(size.QuadPart));
  const std::size_t most = std::max(limit, limit + 1);  // no overflow without a limit
  if (Fault fault = ReadAll(file.Get(), most, bytes)) return {std::nullopt, *fault};
  if (bytes.size() > limit) return {std::nullopt, Reason(EFBIG)};  // it has grown meanwhile
  return {std::move(bytes), {}};
}

bool DiskFiles::Exists(const std::string& path) {
  const auto wide = WidePath(path);
  return wide && GetFileAttributesW(wide->c_str()) != INVALID_FILE_ATTRIBUTES;
}

/// By trial: permissions, shares and media all have a say.
bool DiskFiles::CanWriteFolder(const std::string& folder) {
  TemporaryFile probe;
  return probe.Create(folder, 0) == 0;
}

}  // namespace starfolds
