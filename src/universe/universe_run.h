// `UniverseRun`: the one routine that owns a run of the effect.
#pragma once

#include <cstdint>

#include "process/process_state.h"

namespace starfolds {

/// Runs universes, one after the other, on `Screen.hDCDraw` until a flag says stop. The settings of
/// the run must have been read (`ReadUniverseSettings`); they are clamped in place. `NewRun` is
/// cleared if it ended the run; `StopRun` stays set.
void UniverseRun(ProcessState& process);

/// The number of frames of each universe of a run with these settings, which need not be clamped,
/// from the blast to the end of the pull-out. At most about 10^15.
std::int64_t FramesOfUniverse(UniverseSettings universe);

}  // namespace starfolds
