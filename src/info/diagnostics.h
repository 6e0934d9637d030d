// What the diagnostics dialog finds out, without its widgets.
#pragma once

#include <cstdint>
#include <string>

#include "platform/desktop_services.h"
#include "platform/key_value_tree.h"
#include "platform/surface.h"

namespace starfolds {

inline constexpr char kWriteTestPassed[] = "OK";
inline constexpr char kWriteTestFailed[] = "No Access";

/// Writes a value into the user's tree and reads it back. What came back, or `kWriteTestFailed` if
/// it could not be written: it may still be there from an earlier test. The value stays.
std::string TestRegistryAccess(KeyValueTree& tree);

/// A circle in the middle of `surface`, plotted as the effect plots its stars.
void PlotTestCircle(Surface& surface);

/// A number with commas between its thousands; "0" for 0.
std::string Grouped(std::uint64_t number);

/// The colours that a display of `depth` bits a pixel shows; 0 where the depth is unknown.
std::uint64_t ColoursOf(int depth);

/// What a frame costs on this machine.
struct FrameCost {
  int Frames = 0;
  double Seconds = 0;
  double ProcessorSeconds = 0;
  int Stars = 0;
  int Width = 0;
  int Height = 0;
};

/// Runs the universe that is stored in `tree` on a surface in memory, without any pause, for as
/// long as it is told. No events are run meanwhile.
FrameCost MeasureFrames(KeyValueTree& tree, DesktopServices& desktop, int width, int height,
                        double seconds);

}  // namespace starfolds
