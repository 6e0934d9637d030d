#include "render/output_file.h"

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include "render/standard_streams.h"

namespace starfolds {
namespace {

namespace fs = std::filesystem;

/// Whether a path can be replaced by renaming: it does not exist, or is a regular file.
bool CanBeReplaced(const std::string& path) {
  std::error_code ignored;
  const fs::file_status status = fs::symlink_status(path, ignored);
  return !fs::exists(status) || fs::is_regular_file(status);
}

}  // namespace

OutputFile::~OutputFile() {
  if (!file_ || file_ == stdout) return;
  std::fclose(file_);
  std::error_code ignored;
  if (!partPath_.empty()) fs::remove(partPath_, ignored);
}

Fault OutputFile::Open(const std::string& path) {
  path_ = path;
  if (path == "-") {
    MakeOutputBinary();
    file_ = stdout;
    return std::nullopt;
  }
  if (CanBeReplaced(path)) partPath_ = path + ".part";
  errno = 0;
  file_ = std::fopen((partPath_.empty() ? path_ : partPath_).c_str(), "wb");
  if (!file_) return CannotWrite(errno);
  return std::nullopt;
}

Fault OutputFile::Write(std::span<const std::uint8_t> bytes) {
  errno = 0;
  if (std::fwrite(bytes.data(), 1, bytes.size(), file_) != bytes.size()) return CannotWrite(errno);
  return std::nullopt;
}

Fault OutputFile::Commit() {
  errno = 0;
  if (std::ferror(file_) != 0 || std::fflush(file_) != 0) return CannotWrite(errno);
  std::FILE* file = std::exchange(file_, nullptr);
  if (file != stdout && std::fclose(file) != 0) return CannotWrite(errno);
  std::error_code error;
  if (!partPath_.empty()) fs::rename(partPath_, path_, error);
  if (error) return CannotWrite(error.value());
  return std::nullopt;
}

std::string OutputFile::CannotWrite(int error) const {
  const std::string name = path_ == "-" ? "the standard output" : "\"" + path_ + "\"";
  const std::string reason = error == 0 ? "" : ": " + std::generic_category().message(error);
  return "cannot write " + name + reason;
}

}  // namespace starfolds
