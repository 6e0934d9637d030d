// What the windows that host the effect share.
#pragma once

#include <cstdint>
#include <functional>

#include "desktop/window_surface.h"
#include "process/process_state.h"

namespace starfolds {

/// Returns a seed for each run of a window.
using SeedSource = std::function<std::uint64_t()>;

/// A seed from the clock, so that each window shows another universe.
std::uint64_t ClockSeed();

/// Local time, with fractions of a second.
double SecondsSinceMidnight();

/// Processes events until the window system shows the window, so that it has its final size and the
/// first stars are visible. Gives up after a short time if it is never shown (the screen is off).
void WaitUntilShown(ProcessState& process, const WindowSurface& surface);

/// Stores the factory's bodies if there are none yet, then runs universes, each with settings read
/// anew, until `StopRun`. A small preview shows fewer stars, and stores nothing.
void RunEffect(ProcessState& process, Surface& surface, bool smallPreview = false);

}  // namespace starfolds
