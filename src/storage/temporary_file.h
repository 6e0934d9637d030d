// A file without a name, or with a random one, until it is complete.
#pragma once

#include <string>

#include "storage/descriptor.h"

namespace starfolds {

/// A new file for writing, which is removed unless it takes a name.
///
/// Where the system and the file system support it, the file has no name until then, so nothing is
/// left behind even if the process is killed. Otherwise it has a random name ("starfolds-*.part"),
/// which is created exclusively: no existing file or link is ever opened. Windows removes the file
/// when the process ends, however it ends.
class TemporaryFile {
 public:
  TemporaryFile() = default;
  ~TemporaryFile();
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  /// Creates the file in `folder` with the permissions that the umask leaves of `rights`. Returns 0
  /// or an `errno`.
  int Create(const std::string& folder, mode_t rights);

  bool IsOpen() const { return file_.IsOpen(); }
  int Number() const { return file_.Number(); }

  /// A path under which other programs can open the file while this process has it open.
  std::string PathForOthers() const;

  /// Gives the file the name `target`, of its own folder, and replaces a file of that name. Returns
  /// 0 or an `errno`.
  int TakeName(const std::string& target);

 private:
#ifndef _WIN32
  int LinkTo(const std::string& path) const;
  int GiveRandomName();
#endif

  std::string folder_;
  Descriptor file_;
  std::string path_;  // empty: the file has no name, or its final one
};

/// From now on a signal that ends the process (SIGINT, SIGTERM, SIGHUP, SIGPIPE) removes the named
/// temporary files first. Signals that the parent process has set to be ignored stay ignored. Does
/// nothing on Windows, where the system removes them.
void RemoveTemporaryFilesOnSignals();

}  // namespace starfolds
