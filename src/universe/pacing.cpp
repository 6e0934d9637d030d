#include "universe/pacing.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace starfolds {
namespace {

/// The distance of two ticks, whichever way the count has wrapped.
std::int64_t TickDistance(Long a, Long b) { return std::abs(static_cast<std::int64_t>(a) - b); }

/// `tick`, later by the time from `begin` to `end`. Ticks wrap.
Long TickAfter(Long tick, Long begin, Long end) {
  return static_cast<Long>(static_cast<std::uint32_t>(tick) + static_cast<std::uint32_t>(end) -
                           static_cast<std::uint32_t>(begin));
}

/// Without a delay, frames are computed ahead for so long: a quarter of the time between two
/// refreshes of most screens.
constexpr Long kUsualTimeAheadMs = 4;

/// While a frame is shown, further ones are computed for half of its delay. The rest is for a frame
/// that takes longer than those before it.
bool MayComputeAhead(ProcessState& process) {
  const Display& screen = process.Screen;
  if (screen.hDCDraw->KeptFrameCount() >= Surface::kMostKeptFrames) return false;
  return TickDistance(process.Events->TickCount(), screen.FrameShownTick) <
         std::max<Long>(screen.FrameDelayMs / 2, kUsualTimeAheadMs);
}

/// Waits until the frame has lasted its delay since `begin`. True: stop.
bool FrameWait(ProcessState& process, Long begin) {
  Pump& events = *process.Events;
  bool waited = false;
  while (true) {
    events.PumpEvents();
    if (process.Requests.StopRun()) return true;
    const std::int64_t passed = TickDistance(events.TickCount(), begin);
    if (passed >= process.Screen.FrameDelayMs) break;
    events.WaitForEvents(static_cast<Long>(process.Screen.FrameDelayMs - passed));
    waited = true;
  }
  if (!waited) events.WaitForRefresh();
  return process.Requests.StopRun();
}

/// True, and a request to stop, if the window of another program that a preview runs in is gone.
bool HostIsGone(ProcessState& process) {
  if (process.Mode != RunMode::Preview) return false;
  if (process.Desktop->IsWindow(process.PreviewParent)) return false;
  process.Requests.AskStop();
  return true;
}

void Show(ProcessState& process) {
  process.Screen.FrameShownTick = process.Events->TickCount();
  process.Screen.hDCDraw->Present();
}

/// Waits until the frame that is shown has lasted its delay. Events are processed by the wait; only
/// without one they are pumped. True: stop.
bool WaitForNext(ProcessState& process) {
  const Display& screen = process.Screen;
  const auto timeLeft = [&] {
    return screen.FrameDelayMs - TickDistance(process.Events->TickCount(), screen.FrameShownTick);
  };
  std::int64_t left = timeLeft();
  if (left <= 0) return FrameWait(process, screen.FrameShownTick);
  while (!process.Requests.StopRun() && left > 0) {
    process.Events->WaitForEvents(static_cast<Long>(left));
    left = timeLeft();
  }
  return process.Requests.StopRun();
}

/// Shows each kept frame when the one before it has lasted its delay. The last one has all of its
/// delay before it, in which the next frames are computed. Frames of a universe that is about to be
/// abandoned are not shown. True: stop.
bool ShowKeptFrames(ProcessState& process) {
  while (process.Screen.hDCDraw->KeptFrameCount() > 0 && !process.Requests.NewRun()) {
    if (WaitForNext(process) || HostIsGone(process)) return true;
    Show(process);
  }
  return process.Requests.StopRun();
}

}  // namespace

bool FramePace(ProcessState& process) {
  if (process.Screen.hDCDraw->KeptFrameCount() > 0) {
    const Long begin = process.Events->TickCount();
    if (ShowKeptFrames(process) || WaitForNext(process)) return true;
    // That time was not this frame's.
    process.Screen.FrameStartTick =
        TickAfter(process.Screen.FrameStartTick, begin, process.Events->TickCount());
  }
  Show(process);
  return FrameWait(process, process.Screen.FrameStartTick) || HostIsGone(process);
}

bool FramePaceAhead(ProcessState& process) {
  if (!process.Screen.hDCDraw->KeepFrame()) return FramePace(process);
  return MayComputeAhead(process) ? process.Requests.StopRun() : ShowKeptFrames(process);
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
