// A second process for a test.
#pragma once

#include <sys/types.h>

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

}  // namespace starfolds
