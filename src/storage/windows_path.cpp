#include "storage/windows_path.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace starfolds {

namespace fs = std::filesystem;

std::optional<std::wstring> WidePath(const std::string& path) {
  if (path.find('\0') != std::string::npos) return std::nullopt;
  const int size = static_cast<int>(path.size());
  const int count =
      MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, path.data(), size, nullptr, 0);
  if (count == 0 && !path.empty()) return std::nullopt;
  std::wstring wide(static_cast<std::size_t>(count), L'\0');
  MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, path.data(), size, wide.data(), count);
  return wide;
}

std::string NarrowText(const std::wstring& text) {
  const int size = static_cast<int>(text.size());
  const int count = WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, text.data(), size, nullptr,
                                        0, nullptr, nullptr);
  std::string narrow(static_cast<std::size_t>(count), '\0');
  WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, text.data(), size, narrow.data(), count,
                      nullptr, nullptr);
  return narrow;
}

std::string ParentOf(const std::string& path) {
  const auto wide = WidePath(path);
  const std::string folder = NarrowText(fs::path(wide.value_or(L"")).parent_path().wstring());
  return folder.empty() ? "." : folder;
}

std::string TargetOfLinks(const std::string& path) {
  const auto wide = WidePath(path);
  if (!wide) return path;
  std::error_code error;
  const fs::path target = fs::canonical(*wide, error);
  return error ? path : NarrowText(target.wstring());
}

int ErrnoOf(DWORD error) {
  if (error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION) return EACCES;
  const std::error_condition condition =
      std::system_category().default_error_condition(static_cast<int>(error));
  const bool isKnown = condition.category() == std::generic_category() && condition.value() != 0;
  return isKnown ? condition.value() : EIO;
}

}  // namespace starfolds
