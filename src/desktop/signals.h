// A polite end when the system asks the process to stop.
#pragma once

#include <functional>
#include <memory>

namespace starfolds {

/// From its making on, the requests to end (SIGTERM, SIGINT, SIGHUP) are caught instead of killing
/// the process; screen-saver hosts stop their saver so, and count anything but exit code 0 as a
/// crash. At most one of these lives at a time. On systems without such signals it does nothing.
class StopSignals {
 public:
  StopSignals();
  ~StopSignals();
  StopSignals(const StopSignals&) = delete;
  StopSignals& operator=(const StopSignals&) = delete;

  /// Calls `stop` from inside the pump when a request comes, and for one that has come already.
  /// Needs the application object.
  void Watch(std::function<void()> stop);

  /// Whether a request has come that `Watch` has not reported yet.
  bool Asked() const;

 private:
  class Catcher;
  std::unique_ptr<Catcher> catcher_;
};

}  // namespace starfolds
