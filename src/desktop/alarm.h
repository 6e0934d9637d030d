// A timer that wakes the sleeping event loop.
#pragma once

#include <chrono>
#include <memory>

namespace starfolds {

/// Only wakes the event loop; the caller then checks the clock.
class Alarm {
 public:
  virtual ~Alarm() = default;

  /// Fires once, `fromNow` later. Replaces an earlier setting.
  virtual void Arm(std::chrono::nanoseconds fromNow) = 0;
  virtual void Disarm() = 0;
};

/// The most precise timer of the system: on Linux exact to some microseconds, elsewhere Qt's.
std::unique_ptr<Alarm> MakeAlarm();

/// Qt's timer, up to a millisecond off. Available on all systems.
std::unique_ptr<Alarm> MakeToolkitAlarm();

}  // namespace starfolds
