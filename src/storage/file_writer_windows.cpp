#include "platform/user_text.h"
#include "storage/file_writer.h"

#include <fcntl.h>
#include <io.h>

#include <utility>

#include "storage/windows_path.h"

namespace starfolds {
namespace {

bool IsFileOfDisk(const std::wstring& path) {
  const Handle file(path, 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
  return file.IsOpen() && GetFileType(file.Get()) == FILE_TYPE_DISK;
}

}  // namespace

FileWriter::Fault FileWriter::Open(const std::string& path, Targets targets) {
  const auto given = WidePath(path);
  if (!given) return Reason(EINVAL);
  target_ = TargetOfLinks(path);
  const std::wstring wide = WidePath(target_).value_or(*given);
  const DWORD attributes = GetFileAttributesW(wide.c_str());
  if (attributes != INVALID_FILE_ATTRIBUTES) {
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return Reason(EISDIR);
    if (!IsFileOfDisk(wide)) {  // such as NUL or a pipe
      if (targets == Targets::Files) return STARFOLDS_TEXT("Not a plain file");
      return UseStream(_wopen(wide.c_str(), _O_WRONLY | _O_BINARY | _O_NOINHERIT));
    }
    if ((attributes & FILE_ATTRIBUTE_READONLY) != 0) return Reason(EACCES);
  }
  constexpr mode_t rights = 0;  // the folder decides
  if (const int error = temporary_.Create(ParentOf(target_), rights)) return Reason(error);
  return UseStream(_dup(temporary_.Number()));
}

FileWriter::Fault FileWriter::Commit() {
  errno = 0;
  if (std::ferror(stream_) != 0 || std::fflush(stream_) != 0) return Reason(errno);
  if (temporary_.IsOpen() && _commit(temporary_.Number()) != 0) return Reason(errno);
  if (!Close()) return Reason(errno);
  if (!temporary_.IsOpen()) return std::nullopt;
  const int error = temporary_.TakeName(target_);
  return error == 0 ? std::nullopt : Fault(Reason(error));
}

}  // namespace starfolds
