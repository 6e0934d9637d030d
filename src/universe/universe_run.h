// `UniverseRun`: the one routine that owns a run of the effect.
#pragma once

#include "process/process_state.h"

namespace starfolds {

/// Runs universes, one after the other, on `Screen.hDCDraw` until a flag says stop. The settings of
/// the run must have been read (`ReadUniverseSettings`); they are clamped in place. `NewRun` is
/// cleared if it ended the run; `StopRun` stays set.
void UniverseRun(ProcessState& process);

}  // namespace starfolds
