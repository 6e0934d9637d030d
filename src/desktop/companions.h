// Further processes of this program that end when this one ends, however it ends.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace starfolds {

/// The owner's side. A companion's standard input is a pipe that is never written to: it closes
/// when the owner ends for any reason. Where the system supports it, the companion is also killed
/// then.
class Companions {
 public:
  /// `left` is called from inside the pump when a companion has exited with code 0. A companion
  /// that fails or is killed is started again, but not for ever.
  explicit Companions(std::function<void()> left);
  /// Ends all companions.
  ~Companions();

  /// Starts one more process of this program.
  void Start(const std::vector<std::string>& arguments);

  /// Asks all companions to end, and waits until they have ended.
  void EndAll();

 private:
  struct Companion;
  void Watch(Companion& companion);

  std::function<void()> left_;
  std::vector<std::unique_ptr<Companion>> companions_;
};

/// The companion's side.
class OwnerWatch {
 public:
  /// Calls `gone` from inside the pump when the owner has ended or asks the companion to end.
  explicit OwnerWatch(std::function<void()> gone);
  ~OwnerWatch();

 private:
  class Pipe;
  std::unique_ptr<Pipe> pipe_;
};

}  // namespace starfolds
