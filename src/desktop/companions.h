// Further processes of this program that live no longer than this one, however it ends.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

class QProcess;

namespace starfolds {

/// The owner's side. A companion's standard input is a pipe that nothing is ever written to: it
/// ends with the owner, whatever happens to him. Where the system can, it is told to kill the
/// companion then as well.
class Companions {
 public:
  /// `left` is called from inside the pump when a companion has ended by itself, in good order. One
  /// that fails is not heard of.
  explicit Companions(std::function<void()> left);
  /// Ends them all.
  ~Companions();

  /// Starts this program once more.
  void Start(const std::vector<std::string>& arguments);

  /// Lets all of them end, and waits until they have.
  void EndAll();

 private:
  void Watch(QProcess& process);

  std::function<void()> left_;
  std::vector<std::unique_ptr<QProcess>> processes_;
};

/// A companion's side.
class OwnerWatch {
 public:
  /// Calls `gone` from inside the pump when the owner has ended, or wants the companion to end.
  explicit OwnerWatch(std::function<void()> gone);
  ~OwnerWatch();

 private:
  class Pipe;
  std::unique_ptr<Pipe> pipe_;
};

}  // namespace starfolds
