#include "universe/pacing.h"

#include <cstdint>
#include <cstdlib>

namespace starfolds {
namespace {

/// The distance of two ticks, whichever way the count has wrapped.
std::int64_t TickDistance(Long a, Long b) { return std::abs(static_cast<std::int64_t>(a) - b); }

/// True: stop.
bool FrameWait(Saver& saver) {
  Pump& events = *saver.Events;
  bool waited = false;
  while (true) {
    events.PumpEvents();
    if (saver.StopRun) return true;
    const std::int64_t passed = TickDistance(events.TickCount(), saver.Screen.FrameStartTick);
    if (passed >= saver.Screen.FrameDelayMs) break;
    events.WaitForEvents(static_cast<Long>(saver.Screen.FrameDelayMs - passed));
    waited = true;
  }
  if (!waited) events.WaitForRefresh();
  return saver.StopRun;
}

}  // namespace

bool FramePace(Saver& saver) {
  saver.Screen.hDCDraw->Present();
  const bool stop = FrameWait(saver);
  if (saver.Mode == RunMode::Preview && !saver.Desktop->IsWindow(saver.PreviewParent)) {
    saver.StopRun = true;
    return true;
  }
  return stop;
}

void StampFrame(Saver& saver) { saver.Screen.FrameStartTick = saver.Events->TickCount(); }

void PumpOneTick(Saver& saver) {
  const Long begin = saver.Events->TickCount();
  do {
    saver.Events->PumpEvents();
    if (saver.Events->TickCount() == begin) saver.Events->WaitForEvents(1);
  } while (!saver.StopRun && saver.Events->TickCount() == begin);
}

}  // namespace starfolds
