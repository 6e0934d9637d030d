// A file that appears whole or not at all.
#pragma once

#include <cstdint>
#include <cstdio>
#include <span>
#include <string>

#include "command_line/fault.h"

namespace starfolds {

/// Writes beside the wanted file and takes its name at the end, so that a full disk or a killed
/// process leaves no half picture under a good name. The standard output ("-"), pipes and devices
/// are written directly.
class OutputFile {
 public:
  OutputFile() = default;
  ~OutputFile();
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  Fault Open(const std::string& path);

  std::FILE* Handle() const { return file_; }

  Fault Write(std::span<const std::uint8_t> bytes);

  /// Ends the file. All that was written has arrived if there is no fault.
  Fault Commit();

  /// The message for an `errno` of writing this file; 0 is an unknown reason.
  std::string CannotWrite(int error) const;

 private:
  std::string path_;
  std::string partPath_;  // empty: written directly
  std::FILE* file_ = nullptr;
};

}  // namespace starfolds
