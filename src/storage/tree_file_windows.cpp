#include <cstdint>
#include <filesystem>
#include <system_error>
#include <thread>

#include "storage/temporary_file.h"
#include "storage/tree_file.h"
#include "storage/windows_path.h"

namespace starfolds {
namespace {

namespace fs = std::filesystem;

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr int kMostSetAside = 999;
constexpr std::chrono::milliseconds kPause{5};

/// Files that belong to a database. They are renamed first: a new database must not find the old
/// one's journal.
constexpr const char* kCompanions[] = {"-journal", "-wal", "-shm"};

bool IsMissing(DWORD error) {
  return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

/// Opens a file that no other process has open, and keeps them from opening it. A file that this
/// process may rename stays.
class LonelyFile {
 public:
  LonelyFile(const std::wstring& path, std::chrono::milliseconds patience) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (!Open(path) && GetLastError() == ERROR_SHARING_VIOLATION &&
           std::chrono::steady_clock::now() < deadline) {
      std::this_thread::sleep_for(kPause);
    }
  }
  ~LonelyFile() {
    if (IsOpen()) CloseHandle(file_);
  }
  LonelyFile(const LonelyFile&) = delete;
  LonelyFile& operator=(const LonelyFile&) = delete;

  bool IsOpen() const { return file_ != INVALID_HANDLE_VALUE; }

 private:
  bool Open(const std::wstring& path) {
    file_ = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                        FILE_ATTRIBUTE_NORMAL, nullptr);
    return IsOpen();
  }

  HANDLE file_ = INVALID_HANDLE_VALUE;
};

/// Renames a file if it exists. False if it is still there.
bool Moved(const std::string& from, const std::string& to) {
  const auto wideFrom = WidePath(from);
  const auto wideTo = WidePath(to);
  return wideFrom && wideTo &&
         (MoveFileExW(wideFrom->c_str(), wideTo->c_str(), MOVEFILE_WRITE_THROUGH) ||
          IsMissing(GetLastError()));
}

std::optional<std::string> FreeName(const std::string& path) {
  for (int i = 1; i <= kMostSetAside; ++i) {
    std::string name = path + ".damaged-" + std::to_string(i);
    const auto wide = WidePath(name);
    if (!wide) return std::nullopt;
    if (GetFileAttributesW(wide->c_str()) != INVALID_FILE_ATTRIBUTES) continue;
    if (!IsMissing(GetLastError())) return std::nullopt;
    return name;
  }
  return std::nullopt;
}

}  // namespace

bool IsAbsolutePath(const std::string& path) {
  const auto wide = WidePath(path);
  return wide && fs::path(*wide).is_absolute();
}

std::string FolderOf(const std::string& path) { return ParentOf(path); }

FoundFile LookAtFile(const std::string& path) {
  using enum FoundFile::State;
  const auto wide = WidePath(path);
  if (!wide) return {OutOfReach, {}};
  const Handle file(*wide, FILE_READ_ATTRIBUTES, kShareAll);
  if (!file.IsOpen()) return {IsMissing(GetLastError()) ? Missing : OutOfReach, {}};
  BY_HANDLE_FILE_INFORMATION found{};
  const bool isPlain = GetFileType(file.Get()) == FILE_TYPE_DISK &&
                       GetFileInformationByHandle(file.Get(), &found) != 0 &&
                       (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
  if (!isPlain) return {OutOfReach, {}};
  const std::uint64_t number = std::uint64_t{found.nFileIndexHigh} << 32U | found.nFileIndexLow;
  return {Plain, {found.dwVolumeSerialNumber, number}};
}

/// The permissions are those of the folder above.
bool MakeFolders(const std::string& folder, [[maybe_unused]] unsigned rights) {
  const auto wide = WidePath(folder);
  if (!wide) return false;
  std::error_code error;
  fs::create_directories(*wide, error);
  return fs::is_directory(*wide, error);
}

bool CanMakeFilesBeside(const std::string& path) {
  TemporaryFile probe;
  return probe.Create(ParentOf(TargetOfLinks(path)), 0) == 0;
}

std::optional<std::string> SetAside(const std::string& path, const FileIdentity& identity,
                                    std::chrono::milliseconds patience) {
  const std::string target = TargetOfLinks(path);  // not a link to it
  const auto wide = WidePath(target);
  if (!wide) return std::nullopt;
  const LonelyFile file(*wide, patience);
  if (!file.IsOpen()) return std::nullopt;
  if (LookAtFile(target).Identity != identity) return std::nullopt;
  std::optional<std::string> name = FreeName(target);
  if (!name) return std::nullopt;
  for (const char* companion : kCompanions) {
    if (!Moved(target + companion, *name + companion)) return std::nullopt;
  }
  if (!Moved(target, *name)) return std::nullopt;
  return name;
}

}  // namespace starfolds
