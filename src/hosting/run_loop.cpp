#include "hosting/run_loop.h"

#include <QTime>
#include <chrono>

#include "universe/host_surface.h"
#include "universe/universe_run.h"

namespace starfolds {
namespace {

/// A window manager takes some ten milliseconds to show a window.
constexpr Long kLongestShowMs = 250;

/// From `begin` to `now`, also where the count has wrapped in between.
Long TicksBetween(Long begin, Long now) {
  return static_cast<Long>(static_cast<std::uint32_t>(now) - static_cast<std::uint32_t>(begin));
}

}  // namespace

std::uint64_t ClockSeed() {
  return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
}

double SecondsSinceMidnight() { return QTime::currentTime().msecsSinceStartOfDay() / 1000.0; }

void WaitUntilShown(Saver& saver, const WindowSurface& surface) {
  const Long begin = saver.Events->TickCount();
  Long passed = 0;
  while (!saver.StopRun && !surface.IsExposed() && passed < kLongestShowMs) {
    saver.Events->WaitForEvents(kLongestShowMs - passed);
    passed = TicksBetween(begin, saver.Events->TickCount());
  }
}

void RunEffect(Saver& saver, Surface& surface, bool smallPreview) {
  while (!saver.StopRun) {
    if (!smallPreview) EnsureBodies(saver);
    ReadUniverseSettings(saver, smallPreview);
    ResetSurface(surface);
    UniverseRun(saver);
  }
}

}  // namespace starfolds
