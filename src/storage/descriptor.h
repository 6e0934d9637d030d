// Open files of the system, and the reasons why they cannot be opened.
#pragma once

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include "platform/user_text.h"

namespace starfolds {

/// The text of an `errno` for the user. 0 means an unknown reason.
inline std::string Reason(int error) {
  return std::generic_category().message(error == 0 ? EIO : error);
}

#ifndef _WIN32
/// Why a file of this kind is not a regular file; nullopt for a regular one.
inline std::optional<std::string> FaultOfKind(mode_t mode) {
  if (S_ISREG(mode)) return std::nullopt;
  return S_ISDIR(mode) ? Reason(EISDIR) : STARFOLDS_TEXT("Not a plain file");
}
#endif

/// An open file, or the reason why it could not be opened.
class Descriptor {
 public:
  Descriptor() = default;
#ifdef _WIN32
  /// Takes over a descriptor of the C library; a negative number and an `errno` for none.
  Descriptor(int number, int error) : number_(number), error_(error) {}
#else
  /// Takes over an open file.
  static Descriptor Owning(int number) {
    Descriptor file;
    file.number_ = number;
    return file;
  }
  Descriptor(const std::string& path, int flags, mode_t rights = 0)
      : number_(open(path.c_str(), flags | O_CLOEXEC, rights)), error_(number_ < 0 ? errno : 0) {}
#endif
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

}  // namespace starfolds
