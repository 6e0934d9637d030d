// The surface whose changes the page draws, and the pump that hands the time over to it.
#pragma once

#include <functional>

#include "platform/pump.h"
#include "platform/surface.h"

namespace starfolds::web {

/// Hands the changes of each frame to the page.
class WebSurface : public Surface {
 public:
  WebSurface() : Surface(0, 0, kJournalCapacity) {}

  void Present() override;

  /// Frames shown since the beginning of the run.
  int Frames() const { return frames_; }
  void BeginRun() { frames_ = 0; }

  /// The same number as that of a `MemorySurface` with the same pixels.
  std::uint64_t Hash() const;

 private:
  /// Writes in a frame; a universe of 30000 stars stays below.
  static constexpr std::size_t kJournalCapacity = std::size_t{128} * 1024;

  int frames_ = 0;
};

/// Lets the page wait. The program's stack is stored away meanwhile, so that the worker can receive
/// messages.
class WebPump : public Pump {
 public:
  Long TickCount() override { return ticks_; }
  /// Messages arrive only while the run waits, so there are none.
  void PumpEvents() override {}
  void WaitForEvents(Long milliseconds) override;
  void WaitForRefresh() override;

 private:
  Long ticks_ = 0;
};

}  // namespace starfolds::web
