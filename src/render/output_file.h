// A file that is written completely or not at all.
#pragma once

#include <cstdint>
#include <cstdio>
#include <span>
#include <string>

#include "command_line/fault.h"

namespace starfolds {

/// Writes a temporary file beside the target and renames it at the end, so that a full disk or a
/// killed process leaves no partial file under the target's name. Standard output ("-"), pipes and
/// devices are written directly.
class OutputFile {
 public:
  OutputFile() = default;
  ~OutputFile();
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  Fault Open(const std::string& path);

  std::FILE* Handle() const { return file_; }

  Fault Write(std::span<const std::uint8_t> bytes);

  /// Completes the file. Without a fault everything has been written.
  Fault Commit();

  /// The message for an `errno` of writing this file; 0 means an unknown reason.
  std::string CannotWrite(int error) const;

 private:
  std::string path_;
  std::string partPath_;  // empty: written directly
  std::FILE* file_ = nullptr;
};

}  // namespace starfolds
