// A disk that fails at a chosen moment, under SQLite.
#pragma once

#include <string>

namespace starfolds {

/// While this lives, all files of SQLite in this process are on such a disk. One at a time.
class FailingDisk {
 public:
  FailingDisk();
  ~FailingDisk();
  FailingDisk(const FailingDisk&) = delete;
  FailingDisk& operator=(const FailingDisk&) = delete;

  enum class Fault { Once, FromThenOn };

  /// That many more accesses (reading, writing, writing out, shortening, deleting) will succeed.
  void FailAfter(int accesses, Fault fault);

  /// Succeeds again. Whether there was a fault since `FailAfter`.
  bool Heal();
};

}  // namespace starfolds
