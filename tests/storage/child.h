// A second process for a test, and machines with faults to run it on.
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <functional>
#include <string>

namespace starfolds {

/// Runs a part of a test in a process of its own.
class Child {
 public:
  explicit Child(const std::function<void()>& part);
  ~Child();  // ends it, if it still runs
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;

  void Kill();

  /// Waits for its end. Whether all its expectations held.
  bool Succeeded();

 private:
  pid_t process_;
};

/// Waits until there is such a file, for a while that no working child exceeds. Whether it came.
bool WaitForFile(const std::string& path);

/// Runs a part of a test in a child as a user whose rights count; root has all of them.
bool SucceedsAsOrdinaryUser(const std::function<void()>& part);

// For use in a child.

/// Puts a disk of that size over a folder, for this process only. False: the system forbids it.
bool MountSmallDisk(const char* folder, std::size_t bytes);

/// Lets no file become longer from now on.
void LimitFileSize(std::size_t bytes);

}  // namespace starfolds
