// The flares: fixed constellations of pixels about a projected centre. Each is drawn with the
// frame's colour and, on the next frame, once more with the same arguments in black, so nothing
// here may depend on anything but the arguments.
#pragma once

#include "process/process_state.h"

namespace starfolds {

/// Depths at or below this are at or behind the eye: neither drawn nor erased.
inline constexpr double kNearDepth = 0.0001;

/// A star that flares at full size in its first frame and shrinks to a point: `left` of `frames`
/// frames are left. (x, y) is on the screen.
void PlotNew(const Display& screen, Long x, Long y, Single depth, Integer left, Integer frames,
             Single extent, Colour colour);

/// A shell that grows by a power law, in five slices of depth. (viewX, viewY, depth) is to the eye;
/// `depth` lies in front of it.
void PlotNova(const Display& screen, Single viewX, Single viewY, Single depth, Integer left,
              Integer frames, Single extent, Colour colour);

/// One phase of a pulsar of `shape` (`Starfold_PulsarShape`; any other value is a lone pixel), with
/// its slices spread by `pulsarDepth` (`RunPulsarDepth`).
void PlotPulsar(const Display& screen, Single viewX, Single viewY, Single depth, Single extent,
                Integer shape, Single pulsarDepth, Colour colour);

}  // namespace starfolds
