#include <fcntl.h>
#include <io.h>

#include <array>
#include <cstdio>
#include <random>

#include "storage/temporary_file.h"
#include "storage/windows_path.h"

namespace starfolds {
namespace {

constexpr int kMostNames = 100;  // tried; a second one is hardly ever needed

/// A name that nobody can predict: random_device asks the system.
std::string RandomName(const std::string& folder) {
  std::random_device random;
  std::array<char, 60> name{};
  std::snprintf(name.data(), name.size(), "starfolds-%08x%08x%08x%08x.part", random(), random(),
                random(), random());
  return folder + "/" + name.data();
}

/// Whether the system removes the file when its last handle is closed.
bool SetRemoved(HANDLE file, bool removed) {
  FILE_DISPOSITION_INFO disposition{removed};
  return SetFileInformationByHandle(file, FileDispositionInfo, &disposition, sizeof disposition) !=
         0;
}

HANDLE HandleOf(const Descriptor& file) {
  return reinterpret_cast<HANDLE>(_get_osfhandle(file.Number()));
}

/// Creates a file that is removed unless that is revoked. Returns 0 or an `errno`.
int CreateRemoved(const std::string& path, Descriptor& file) {
  const auto wide = WidePath(path);
  if (!wide) return EINVAL;
  Handle handle(*wide, GENERIC_WRITE | DELETE, FILE_SHARE_READ | FILE_SHARE_DELETE, CREATE_NEW);
  if (!handle.IsOpen()) return ErrnoOf(GetLastError());
  if (!SetRemoved(handle.Get(), true)) return ErrnoOf(GetLastError());
  const int number =
      _open_osfhandle(reinterpret_cast<std::intptr_t>(handle.Get()), _O_BINARY | _O_NOINHERIT);
  if (number < 0) return errno;
  handle.Release();
  file = Descriptor(number, 0);
  return 0;
}

}  // namespace

TemporaryFile::~TemporaryFile() = default;

int TemporaryFile::Create(const std::string& folder, [[maybe_unused]] mode_t rights) {
  folder_ = folder;
  int error = EEXIST;
  for (int i = 0; i < kMostNames && error == EEXIST; ++i) {
    path_ = RandomName(folder);
    error = CreateRemoved(path_, file_);
  }
  return error;
}

std::string TemporaryFile::PathForOthers() const { return path_; }

/// Other handles of the file, such as a stream, must be closed before: the system renames no file
/// that others have open for writing.
int TemporaryFile::TakeName(const std::string& target) {
  const auto from = WidePath(path_);
  const auto to = WidePath(target);
  if (!from || !to) return EINVAL;
  if (!SetRemoved(HandleOf(file_), false)) return ErrnoOf(GetLastError());
  file_ = Descriptor();
  if (MoveFileExW(from->c_str(), to->c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
    return 0;
  }
  const int error = ErrnoOf(GetLastError());
  DeleteFileW(from->c_str());
  return error;
}

void RemoveTemporaryFilesOnSignals() {}

}  // namespace starfolds
