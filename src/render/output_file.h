// A file of the renderer, with messages that name it.
#pragma once

#include <cstdint>
#include <cstdio>
#include <span>
#include <string>

#include "command_line/fault.h"
#include "storage/file_writer.h"

namespace starfolds {

/// Whether an output of the command line is the standard output: "-" or "/dev/stdout".
bool IsStandardOutput(const std::string& path);

/// A file that is complete or unchanged. The standard output, pipes and devices are written
/// directly.
class OutputFile {
 public:
  Fault Open(const std::string& path);

  /// Null before `Open`.
  std::FILE* Stream() const { return writer_.Stream(); }

  Fault Write(std::span<const std::uint8_t> bytes);

  /// Completes the file. Without a fault everything has been written.
  Fault Commit();

  /// The message for a failure to write this file.
  std::string CannotWrite(const std::string& reason) const;

 private:
  Fault WithName(const Fault& reason) const;

  std::string path_;
  FileWriter writer_;
};

}  // namespace starfolds
