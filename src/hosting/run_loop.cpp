#include "hosting/run_loop.h"

#include <QTime>
#include <chrono>

#include "universe/host_surface.h"
#include "universe/universe_run.h"

namespace starfolds {
namespace {

/// A window manager needs about ten milliseconds to show a window.
constexpr Long kLongestShowMs = 250;

/// From `begin` to `now`, correct if the tick count has wrapped in between.
Long TicksBetween(Long begin, Long now) {
  return static_cast<Long>(static_cast<std::uint32_t>(now) - static_cast<std::uint32_t>(begin));
}

}  // namespace

std::uint64_t ClockSeed() {
  return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
}

double SecondsSinceMidnight() { return QTime::currentTime().msecsSinceStartOfDay() / 1000.0; }

void WaitUntilShown(ProcessState& process, const WindowSurface& surface) {
  const Long begin = process.Events->TickCount();
  Long passed = 0;
  while (!process.Requests.StopRun() && !surface.IsExposed() && passed < kLongestShowMs) {
    process.Events->WaitForEvents(kLongestShowMs - passed);
    passed = TicksBetween(begin, process.Events->TickCount());
  }
}

void RunEffect(ProcessState& process, Surface& surface, bool smallPreview) {
  while (!process.Requests.StopRun()) {
    if (!smallPreview) EnsureBodies(process);
    ReadUniverseSettings(process, smallPreview);
    ResetSurface(surface);
    UniverseRun(process);
  }
}

}  // namespace starfolds
