#include "storage/file_writer.h"

#include <fcntl.h>
#include <sys/stat.h>
#ifdef __linux__
#include <linux/magic.h>
#include <sys/vfs.h>
#endif

#include <filesystem>
#include <system_error>
#include <utility>

namespace starfolds {
namespace {

namespace fs = std::filesystem;

constexpr mode_t kRights = 0666;         // of a new file, before the umask
constexpr mode_t kRightsAtFirst = 0600;  // of a replacement, until it has those of the old file
constexpr mode_t kRightsMask = 0777;
constexpr mode_t kGroupRights = 0070;
constexpr mode_t kOthersRights = 0007;
constexpr int kMostLinks = 40;  // the limit of the Linux kernel

std::string FolderOf(const fs::path& path) {
  return path.has_parent_path() ? path.parent_path().string() : ".";
}

/// Whether the links of a folder lead to open files, not to paths, like those of /proc/self/fd.
bool LeadsToOpenFiles([[maybe_unused]] const std::string& folder) {
#ifdef __linux__
  struct statfs status {};
  return statfs(folder.c_str(), &status) == 0 && status.f_type == PROC_SUPER_MAGIC;
#else
  return false;
#endif
}

/// The final target of a path, which may not exist. nullopt for a cycle of links.
std::optional<fs::path> TargetOf(fs::path path) {
  std::error_code error;
  for (int i = 0; i < kMostLinks; ++i) {
    const fs::path link = fs::read_symlink(path, error);
    if (error || LeadsToOpenFiles(FolderOf(path))) return path;
    path = path.parent_path() / link;  // replaces the whole path if the link is absolute
  }
  return std::nullopt;
}

/// Gives a new file the owner and the permissions of the one that it replaces. If the group cannot
/// be kept, the new group gets no more than others have. Returns 0 or an `errno`.
int TakeOver(int file, const struct stat& old) {
  struct stat now {};
  if (fstat(file, &now) != 0) return errno;
  mode_t rights = old.st_mode & kRightsMask;
  // Only a privileged process may do this; else the file belongs to the user who has written it.
  [[maybe_unused]] const int ignored = fchown(file, old.st_uid, now.st_gid);
  constexpr auto sameUser = static_cast<uid_t>(-1);
  if (now.st_gid != old.st_gid && fchown(file, sameUser, old.st_gid) != 0) {
    rights &= ~kGroupRights | (rights & kOthersRights) << 3U;
  }
  // Some file systems have fixed permissions and refuse to set them.
  if ((now.st_mode & kRightsMask) == rights) return 0;
  return fchmod(file, rights) == 0 ? 0 : errno;
}

/// Makes the rename durable. It has happened by now, so a failure to flush the folder is not
/// reported.
void FlushFolder(const std::string& folder) {
  const Descriptor file(folder, O_RDONLY | O_DIRECTORY);
  if (file.IsOpen()) fsync(file.Number());
}

}  // namespace

FileWriter::Fault FileWriter::Open(const std::string& path, Targets targets) {
  const std::optional<fs::path> target = TargetOf(path);
  if (!target) return Reason(ELOOP);
  target_ = target->string();
  struct stat old {};
  const bool exists = lstat(target_.c_str(), &old) == 0;
  const bool isFile = !exists || S_ISREG(old.st_mode);
  if (!isFile && targets == Targets::FilesAndStreams) {
    return UseStream(open(target_.c_str(), O_WRONLY | O_TRUNC | O_NOCTTY | O_CLOEXEC));
  }
  if (exists) {
    if (Fault fault = FaultOfKind(old.st_mode)) return fault;
    // The folder's permissions would allow it, but a read-only file must not be replaced.
    if (faccessat(AT_FDCWD, target_.c_str(), W_OK, AT_EACCESS) != 0) return Reason(errno);
  }
  int error = temporary_.Create(FolderOf(target_), exists ? kRightsAtFirst : kRights);
  if (error != 0) return Reason(error);
  if (exists) error = TakeOver(temporary_.Number(), old);
  return error == 0 ? UseStream(fcntl(temporary_.Number(), F_DUPFD_CLOEXEC, 0)) : Reason(error);
}

FileWriter::Fault FileWriter::Commit() {
  errno = 0;
  if (std::ferror(stream_) != 0 || std::fflush(stream_) != 0) return Reason(errno);
  if (temporary_.IsOpen()) {
    if (fsync(temporary_.Number()) != 0) return Reason(errno);
    if (const int error = temporary_.TakeName(target_)) return Reason(error);
    FlushFolder(FolderOf(target_));
  }
  if (!Close()) return Reason(errno);
  return std::nullopt;
}

}  // namespace starfolds
