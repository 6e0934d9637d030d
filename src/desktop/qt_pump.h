// The clock and the event pump of a process with windows.
#pragma once

#include <chrono>
#include <memory>

#include "desktop/alarm.h"
#include "platform/pump.h"

namespace starfolds {

/// Waits in Qt's event loop, so that a waiting saver uses no processor time and input arrives at
/// once. It only processes single rounds (`processEvents`), because a loop started with `exec` ends
/// for good when the last window closes.
class QtPump : public Pump {
 public:
  /// The application object must exist; without it the alarm is not delivered.
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
  bool hasWaited_ = false;  // since the last `PumpEvents`
};

}  // namespace starfolds
