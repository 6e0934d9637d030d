// An alarm that wakes the sleeping event loop at a time.
#pragma once

#include <chrono>
#include <memory>

namespace starfolds {

/// Waking is all it does: whoever sleeps looks at the clock himself.
class Alarm {
 public:
  virtual ~Alarm() = default;

  /// Goes off once, this far from now. What was set before is forgotten.
  virtual void Arm(std::chrono::nanoseconds fromNow) = 0;
  virtual void Disarm() = 0;
};

/// The best of this system: on Linux exact to some microseconds, elsewhere the toolkit's.
std::unique_ptr<Alarm> MakeAlarm();

/// The toolkit's own timer, a millisecond off at worst. It works everywhere.
std::unique_ptr<Alarm> MakeToolkitAlarm();

}  // namespace starfolds
