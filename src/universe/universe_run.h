// `UniverseRun`: the one routine that owns a run of the effect.
#pragma once

#include "colour/saver.h"

namespace starfolds {

/// Runs universes, one after the other, on `Screen.hDCDraw` until a flag says stop. The settings of
/// the run must have been read (`ReadUniverseSettings`); they are clamped and scaled in place, so
/// every run needs a fresh read. `NewRun` is cleared where it ended the run; `StopRun` stays set.
void UniverseRun(Saver& saver);

/// The clamps and unit conversions at the start of a run.
void EnterUniverseSettings(UniverseSettings& universe);

}  // namespace starfolds
