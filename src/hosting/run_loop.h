// What the windows that host the effect have in common.
#pragma once

#include <cstdint>
#include <functional>

#include "desktop/window_surface.h"
#include "process/process_state.h"

namespace starfolds {

/// Gives a seed for each run that a window sets up.
using SeedSource = std::function<std::uint64_t()>;

/// Another seed every time, so that each window opens on another universe.
std::uint64_t ClockSeed();

/// By the local clock, with fractions.
double SecondsSinceMidnight();

/// Runs events until the desktop shows the window, so that it has its final size and the first
/// stars are seen. Where nothing is ever shown (a screen that sleeps) it does not wait for long.
void WaitUntilShown(ProcessState& process, const WindowSurface& surface);

/// Bodies to show, where there are none yet; then universes, run after run with freshly read
/// settings, until `StopRun`. A small preview shows fewer stars, and stores nothing.
void RunEffect(ProcessState& process, Surface& surface, bool smallPreview = false);

}  // namespace starfolds
