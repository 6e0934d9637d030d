// Paths and errors of Windows in the terms of the interfaces, which have UTF-8 and English reasons.
#pragma once

#include <cerrno>
#include <optional>
#include <string>
#include <utility>

#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX  // the C++ library of MinGW-w64 has defined it
#define NOMINMAX
#endif
#include <windows.h>

namespace starfolds {

/// A path for the system; nullopt if it is not UTF-8 or contains a NUL.
std::optional<std::wstring> WidePath(const std::string& path);

/// UTF-8; empty for a text that is not UTF-16.
std::string NarrowText(const std::wstring& text);

/// The folder of a file; "." for a name without a folder.
std::string ParentOf(const std::string& path);

/// The file that a path leads to by links; the path itself if that does not exist.
std::string TargetOfLinks(const std::string& path);

/// The `errno` that is nearest to a code of GetLastError(); EIO if there is none.
int ErrnoOf(DWORD error);

/// An open handle, or an invalid one.
class Handle {
 public:
  Handle() = default;
  /// Opens an existing file, or creates one with CREATE_NEW. Folders can be opened, too.
  Handle(const std::wstring& path, DWORD access, DWORD share, DWORD disposition = OPEN_EXISTING)
      : handle_(CreateFileW(path.c_str(), access, share, nullptr, disposition,
                            FILE_ATTRIBUTE_NORMAL | FILE_FLAG_BACKUP_SEMANTICS, nullptr)) {}
  ~Handle() {
    if (IsOpen()) CloseHandle(handle_);
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE Get() const { return handle_; }
  /// The caller closes it.
  HANDLE Release() { return std::exchange(handle_, INVALID_HANDLE_VALUE); }

 private:
  HANDLE handle_ = INVALID_HANDLE_VALUE;
};

}  // namespace starfolds
