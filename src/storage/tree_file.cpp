#include "storage/tree_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <thread>

namespace starfolds {
namespace {

namespace fs = std::filesystem;

/// The bytes that SQLite locks, as defined by its file format: a process that holds all of them is
/// the only one that uses the file.
constexpr off_t kLockBytes = 0x40000000;
constexpr off_t kLockByteCount = 512;

constexpr int kMostSetAside = 999;
constexpr std::chrono::milliseconds kLockPause{5};

/// Files that belong to a database. They are renamed first: a new database must not find the old
/// one's journal.
constexpr const char* kCompanions[] = {"-journal", "-wal", "-shm"};

FileIdentity IdentityOf(const struct stat& status) {
  return {static_cast<std::uint64_t>(status.st_dev), static_cast<std::uint64_t>(status.st_ino)};
}

/// Locks a file exclusively during its lifetime.
class LockedFile {
 public:
  LockedFile(const std::string& path, std::chrono::milliseconds patience)
      : file_(open(path.c_str(), O_RDWR | O_CLOEXEC | O_NONBLOCK | O_NOCTTY)) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (file_ >= 0 && !(locked_ = Lock()) && std::chrono::steady_clock::now() < deadline) {
      std::this_thread::sleep_for(kLockPause);
    }
  }
  ~LockedFile() {
    if (file_ >= 0) close(file_);
  }
  LockedFile(const LockedFile&) = delete;
  LockedFile& operator=(const LockedFile&) = delete;

  bool IsLocked() const { return locked_; }

 private:
  bool Lock() const {
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    lock.l_start = kLockBytes;
    lock.l_len = kLockByteCount;
    return fcntl(file_, F_SETLK, &lock) == 0;
  }

  int file_;
  bool locked_ = false;
};

/// Renames a file if it exists. False if it is still there.
bool Moved(const std::string& from, const std::string& to) {
  return rename(from.c_str(), to.c_str()) == 0 || errno == ENOENT;
}

std::optional<std::string> FreeName(const std::string& path) {
  for (int i = 1; i <= kMostSetAside; ++i) {
    std::string name = path + ".damaged-" + std::to_string(i);
    struct stat status {};
    if (lstat(name.c_str(), &status) != 0) {
      if (errno != ENOENT) return std::nullopt;
      return name;
    }
  }
  return std::nullopt;
}

}  // namespace

bool IsAbsolutePath(const std::string& path) { return path.starts_with('/'); }

std::string FolderOf(const std::string& path) { return path.substr(0, path.find_last_of('/')); }

FoundFile LookAtFile(const std::string& path) {
  using enum FoundFile::State;
  struct stat status {};
  if (stat(path.c_str(), &status) != 0) {
    return {errno == ENOENT || errno == ENOTDIR ? Missing : OutOfReach, {}};
  }
  return {S_ISREG(status.st_mode) ? Plain : OutOfReach, IdentityOf(status)};
}

bool MakeFolders(const std::string& folder, unsigned rights) {
  if (mkdir(folder.c_str(), rights) == 0 || errno == EEXIST) return true;
  const std::size_t slash = folder.find_last_of('/');
  if (errno != ENOENT || slash == std::string::npos || slash == 0) return false;
  return MakeFolders(folder.substr(0, slash), rights) &&
         (mkdir(folder.c_str(), rights) == 0 || errno == EEXIST);
}

bool CanMakeFilesBeside(const std::string& path) {
  std::error_code missing;
  const fs::path target = fs::canonical(path, missing);
  const fs::path folder = (missing ? fs::path(path) : target).parent_path();
  return faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

std::optional<std::string> SetAside(const std::string& path, const FileIdentity& identity,
                                    std::chrono::milliseconds patience) {
  std::error_code error;
  const std::string target = fs::canonical(path, error).string();  // not a link to it
  if (error) return std::nullopt;
  const LockedFile file(target, patience);
  if (!file.IsLocked()) return std::nullopt;
  // Another process may have set it aside under this lock, so the path is checked under it.
  if (LookAtFile(target).Identity != identity) return std::nullopt;
  std::optional<std::string> name = FreeName(target);
  if (!name) return std::nullopt;
  for (const char* companion : kCompanions) {
    if (!Moved(target + companion, *name + companion)) return std::nullopt;
  }
  if (rename(target.c_str(), name->c_str()) != 0) return std::nullopt;
  return name;
}

}  // namespace starfolds
