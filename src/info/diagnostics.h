// The measurements of the diagnostics dialog, without widgets.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>

#include "platform/desktop_services.h"
#include "platform/key_value_tree.h"
#include "platform/surface.h"
#include "platform/user_text.h"

namespace starfolds {

inline constexpr char kWriteTestPassed[] = "OK";
inline constexpr char kWriteTestFailed[] = STARFOLDS_TEXT("No Access");

/// Writes a value into the user's tree and reads it back. Returns what was read, or
/// `kWriteTestFailed` if it could not be written (an earlier test may have left the value there).
/// The value stays.
std::string TestRegistryAccess(KeyValueTree& tree);

/// Plots a circle in the middle of `surface`, with the same calls as the effect.
void PlotTestCircle(Surface& surface);

/// A number with commas between groups of three digits; "0" for 0.
std::string Grouped(std::uint64_t number);

/// The number of colours of a display with `depth` bits per pixel; 0 if the depth is unknown.
std::uint64_t ColoursOf(int depth);

/// The cost of a frame on this machine.
struct FrameCost {
  int Frames = 0;
  double Seconds = 0;
  double ProcessorSeconds = 0;
  int Stars = 0;
  int Width = 0;
  int Height = 0;
};

/// The processor time that this process has used since some moment.
using ProcessorClock = std::function<std::chrono::nanoseconds()>;

/// Runs the universe that is stored in `tree` on a surface in memory, without delays, for the given
/// time. No events are processed meanwhile.
FrameCost MeasureFrames(KeyValueTree& tree, DesktopServices& desktop,
                        const ProcessorClock& processorTime, int width, int height, double seconds);

}  // namespace starfolds
