#include "universe/pacing.h"

#include <cstdint>
#include <cstdlib>

namespace starfolds {
namespace {

/// The distance of two ticks, whichever way the count has wrapped.
std::int64_t TickDistance(Long a, Long b) { return std::abs(static_cast<std::int64_t>(a) - b); }

/// True: stop.
bool FrameWait(ProcessState& process) {
  Pump& events = *process.Events;
  bool waited = false;
  while (true) {
    events.PumpEvents();
    if (process.Requests.StopRun()) return true;
    const std::int64_t passed = TickDistance(events.TickCount(), process.Screen.FrameStartTick);
    if (passed >= process.Screen.FrameDelayMs) break;
    events.WaitForEvents(static_cast<Long>(process.Screen.FrameDelayMs - passed));
    waited = true;
  }
  if (!waited) events.WaitForRefresh();
  return process.Requests.StopRun();
}

}  // namespace

bool FramePace(ProcessState& process) {
  process.Screen.hDCDraw->Present();
  const bool stop = FrameWait(process);
  if (process.Mode == RunMode::Preview && !process.Desktop->IsWindow(process.PreviewParent)) {
    process.Requests.AskStop();
    return true;
  }
  return stop;
}

void StampFrame(ProcessState& process) {
  process.Screen.FrameStartTick = process.Events->TickCount();
}

void PumpOneTick(ProcessState& process) {
  const Long begin = process.Events->TickCount();
  do {
    process.Events->PumpEvents();
    if (process.Events->TickCount() == begin) process.Events->WaitForEvents(1);
  } while (!process.Requests.StopRun() && process.Events->TickCount() == begin);
}

}  // namespace starfolds
