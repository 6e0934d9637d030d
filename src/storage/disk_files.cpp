#include "storage/disk_files.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

namespace starfolds {
namespace {

namespace fs = std::filesystem;

using Fault = std::optional<std::string>;

constexpr const char* kNoPlainFile = "Not a plain file";
constexpr mode_t kRights = 0666;  // before the umask
constexpr mode_t kRightsMask = 0777;
constexpr int kMostLinks = 40;       // the limit of the Linux kernel
constexpr int kMostTemporaries = 8;  // for processes that replace one file at the same time
constexpr std::size_t kReadAtOnce = std::size_t{64} * 1024;

std::string Reason(int error) { return std::generic_category().message(error); }

/// An open file, or the reason why it could not be opened.
class Descriptor {
 public:
  Descriptor() = default;
  Descriptor(const std::string& path, int flags, mode_t rights = 0)
      : number_(open(path.c_str(), flags | O_CLOEXEC, rights)), error_(number_ < 0 ? errno : 0) {}
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }
  Descriptor(Descriptor&& other) noexcept
      : number_(std::exchange(other.number_, -1)), error_(other.error_) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    error_ = other.error_;
    return *this;
  }

  bool IsOpen() const { return number_ >= 0; }
  int Number() const { return number_; }
  int Error() const { return error_; }

 private:
  int number_ = -1;
  int error_ = 0;
};

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

Fault WriteAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = write(file, bytes.data(), bytes.size());
    if (count < 0 && errno != EINTR) return Reason(errno);
    if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return std::nullopt;
}

/// The reason for the user why a path is not a regular file.
Fault FaultOfKind(mode_t mode) {
  if (S_ISREG(mode)) return std::nullopt;
  return S_ISDIR(mode) ? Reason(EISDIR) : kNoPlainFile;
}

/// The final target of a path, which may not exist. nullopt for a cycle of links.
std::optional<fs::path> TargetOf(fs::path path) {
  std::error_code error;
  for (int i = 0; i < kMostLinks; ++i) {
    const fs::path link = fs::read_symlink(path, error);
    if (error) return path;
    path = path.parent_path() / link;  // replaces the whole path if the link is absolute
  }
  return std::nullopt;
}

std::string FolderOf(const fs::path& path) {
  return path.has_parent_path() ? path.parent_path().string() : ".";
}

/// A temporary file beside the target. It is locked while it is written, so an unlocked one is
/// known to be left behind by a killed process.
class TemporaryFile {
 public:
  ~TemporaryFile() {
    if (!path_.empty()) unlink(path_.c_str());
  }
  TemporaryFile() = default;
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  Fault OpenBeside(const std::string& target) {
    int error = EBUSY;
    for (int i = 1; i <= kMostTemporaries && path_.empty(); ++i) {
      const std::string path = target + ".part-" + std::to_string(i);
      RemoveIfLeftBehind(path);
      Descriptor file(path, O_WRONLY | O_CREAT | O_EXCL, kRights);
      if (!file.IsOpen()) {
        error = file.Error();
        if (error != EEXIST) break;
        continue;
      }
      // On a file system without locks writing continues, and left-behind files are not removed.
      if (flock(file.Number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) continue;
      if (!HasName(file, path)) continue;  // removed as left behind before it was locked
      file_ = std::move(file);
      path_ = path;
    }
    if (path_.empty()) return Reason(error);
    return std::nullopt;
  }

  int Number() const { return file_.Number(); }

  Fault TakeNameOf(const std::string& target) {
    if (rename(path_.c_str(), target.c_str()) != 0) return Reason(errno);
    path_.clear();
    return std::nullopt;
  }

 private:
  static void RemoveIfLeftBehind(const std::string& path) {
    const Descriptor file(path, O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY);
    if (!file.IsOpen() || flock(file.Number(), LOCK_EX | LOCK_NB) != 0) return;
    // Its writer may have renamed it meanwhile, and another process may have created the name
    // again.
    if (HasName(file, path)) unlink(path.c_str());
  }

  /// Whether this file has that name, and is a regular file of this user.
  static bool HasName(const Descriptor& file, const std::string& path) {
    struct stat opened {};
    struct stat named {};
    return fstat(file.Number(), &opened) == 0 && lstat(path.c_str(), &named) == 0 &&
           opened.st_dev == named.st_dev && opened.st_ino == named.st_ino &&
           S_ISREG(named.st_mode) && named.st_uid == geteuid();
  }

  Descriptor file_;
  std::string path_;  // empty: nothing to remove on destruction
};

/// Makes the rename durable. It has happened by now, so a failure to flush the folder is not
/// reported.
void WriteOutFolder(const std::string& folder) {
  const Descriptor file(folder, O_RDONLY | O_DIRECTORY);
  if (file.IsOpen()) fsync(file.Number());
}

/// Replaces a file that is not a symbolic link.
Fault ReplaceTarget(const std::string& target, std::string_view bytes) {
  struct stat old {};
  const bool exists = lstat(target.c_str(), &old) == 0;
  if (exists) {
    if (Fault fault = FaultOfKind(old.st_mode)) return fault;
    // The folder's permissions would allow it, but a read-only file must not be replaced.
    if (faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) return Reason(errno);
  }
  TemporaryFile temporary;
  if (Fault fault = temporary.OpenBeside(target)) return fault;
  if (exists && fchmod(temporary.Number(), old.st_mode & kRightsMask) != 0) return Reason(errno);
  if (Fault fault = WriteAll(temporary.Number(), bytes)) return fault;
  if (fsync(temporary.Number()) != 0) return Reason(errno);
  if (Fault fault = temporary.TakeNameOf(target)) return fault;
  WriteOutFolder(FolderOf(target));
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

std::optional<std::string> DiskFiles::Replace(const std::string& path, std::string_view bytes) {
  const std::optional<fs::path> target = TargetOf(path);
  if (!target) return Reason(ELOOP);
  return ReplaceTarget(target->string(), bytes);
}

bool DiskFiles::CanWriteFolder(const std::string& folder) {
  struct stat status {};
  return stat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
         faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

}  // namespace starfolds
