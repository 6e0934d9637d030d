// A file that is written in parts and is complete or unchanged.
#pragma once

#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

#include "storage/temporary_file.h"

namespace starfolds {

/// Where a file may be written to.
enum class Targets {
  Files,           // regular files, and names that do not exist yet
  FilesAndStreams  // also pipes and devices, which are written directly
};

/// Writes a temporary file beside the target, flushes it to disk, and renames it. A full disk, a
/// killed process, or a power failure leaves the old file or the new one; of several writers of one
/// file the last one wins. The new file has the permissions of the old one, and its owner if this
/// process may set it; a file without write permission is not replaced. Symbolic links are
/// followed.
///
/// All functions return nullopt on success, else a reason for the user, without the path.
class FileWriter {
 public:
  using Fault = std::optional<std::string>;

  FileWriter() = default;
  /// Discards a file that was not committed.
  ~FileWriter();
  FileWriter(const FileWriter&) = delete;
  FileWriter& operator=(const FileWriter&) = delete;

  /// Opens a target once. A pipe without a reader blocks until there is one, if streams are
  /// allowed.
  Fault Open(const std::string& path, Targets targets);

  /// Writes to the standard output instead of a file.
  void OpenStandardOutput() { stream_ = stdout; }

  /// For the libraries that write to a stream themselves; null before `Open`.
  std::FILE* Stream() const { return stream_; }

  Fault Write(std::string_view bytes);

  /// A path under which another program can write the file instead, until `Commit`. Only after
  /// `Open` with `Targets::Files`.
  std::string PathForOthers() const { return temporary_.PathForOthers(); }

  /// Completes the file. Nothing may be written afterwards.
  Fault Commit();

 private:
  Fault UseStream(int file);
  bool Close();

  std::string target_;
  TemporaryFile temporary_;  // not open: written directly
  std::FILE* stream_ = nullptr;
};

}  // namespace starfolds
