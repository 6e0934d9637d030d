// Waits in the event loop for a limited time.
#pragma once

#include <chrono>
#include <memory>

namespace starfolds {

class Alarm {
 public:
  virtual ~Alarm() = default;

  /// Waits until events have come, and processes them, or until `time` has passed. May return
  /// earlier; the caller checks the clock.
  virtual void Wait(std::chrono::nanoseconds time) = 0;
};

/// With the most precise timer of the system: on Linux exact to some microseconds, on Windows to
/// half a millisecond, elsewhere Qt's.
std::unique_ptr<Alarm> MakeAlarm();

/// With Qt's timer, up to a millisecond off. Available on all systems.
std::unique_ptr<Alarm> MakeToolkitAlarm();

}  // namespace starfolds
