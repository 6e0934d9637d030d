// The clock and the message pump of a process with windows.
#pragma once

#include <chrono>
#include <memory>

#include "desktop/alarm.h"
#include "platform/pump.h"

namespace starfolds {

/// Sleeps in the toolkit's event loop, so a waiting saver takes no processor time and input still
/// arrives at once. The loop is only ever entered for one round (`processEvents`): a loop that was
/// entered for good (`exec`) would end by itself, for good, when the last window closes.
class QtPump : public Pump {
 public:
  /// The application object exists already; without it the alarm would never be heard.
  explicit QtPump(std::unique_ptr<Alarm> alarm = MakeAlarm());

  Long TickCount() override;
  void PumpEvents() override;
  void WaitForEvents(Long milliseconds) override;
  void WaitForRefresh() override;

 private:
  using Clock = std::chrono::steady_clock;

  void SleepUntil(Clock::time_point end);

  std::unique_ptr<Alarm> alarm_;
  Clock::time_point lastRefresh_;
};

}  // namespace starfolds
