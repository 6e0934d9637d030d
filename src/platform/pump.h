// Time and window events, as the engine sees them.
#pragma once

#include <functional>

#include "numbers/words.h"

namespace starfolds {

/// The clock and the message pump. Window events run only inside the calls of this interface, so a
/// flag that an event handler sets is seen by the run between two frames.
class Pump {
 public:
  virtual ~Pump() = default;

  /// A millisecond count that only goes up, and wraps.
  virtual Long TickCount() = 0;

  /// Runs all pending window events and returns.
  virtual void PumpEvents() = 0;

  /// Sleeps until a window event arrives (and runs it) or `milliseconds` have passed. May return
  /// early; the caller looks at the clock.
  virtual void WaitForEvents(Long milliseconds) = 0;

  /// Sleeps, running events, until the screen can show another frame than the last one. Where
  /// nobody looks at the surface it returns at once.
  virtual void WaitForRefresh() = 0;
};

/// A pump with a counted clock: time passes only while the run waits, so that a run with a fixed
/// seed is the same every time. `OnPump`, if set, runs in place of window events.
class CountedPump : public Pump {
 public:
  std::function<void()> OnPump;

  Long TickCount() override { return ticks_; }
  void PumpEvents() override {
    if (OnPump) OnPump();
  }
  void WaitForEvents(Long milliseconds) override { ticks_ += milliseconds; }
  void WaitForRefresh() override {}

 private:
  Long ticks_ = 0;
};

}  // namespace starfolds
