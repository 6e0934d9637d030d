// Time and window events, as the engine sees them.
#pragma once

#include <functional>

#include "numbers/words.h"

namespace starfolds {

/// The clock and the event pump. Window events are processed only inside the calls of this
/// interface, so the run sees a flag that an event handler sets between two frames.
class Pump {
 public:
  virtual ~Pump() = default;

  /// Milliseconds, never decreasing until they wrap.
  virtual Long TickCount() = 0;

  /// Processes all pending window events and returns.
  virtual void PumpEvents() = 0;

  /// Waits until a window event arrives (and processes it) or `milliseconds` have passed. May
  /// return early; the caller checks the clock.
  virtual void WaitForEvents(Long milliseconds) = 0;

  /// Waits, processing events, until the screen can show the next frame. Returns at once if the
  /// surface is not visible.
  virtual void WaitForRefresh() = 0;
};

/// A pump with a counted clock: time passes only while the run waits, so that a run with a fixed
/// seed is always the same. `OnPump`, if set, is called in place of window events.
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
