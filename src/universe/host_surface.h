// What every host does before it runs the effect: reads the settings and measures the surface.
#pragma once

#include "process/process_state.h"

namespace starfolds {

/// Reads the advanced values from the stored tree into the process. A host calls it before its
/// window is shown, because the window's form depends on them.
const AdvancedSettings& ReadAdvancedSettings(ProcessState& process);

/// Measures `target` and takes focal length and frame delay from the advanced values. Seeds the
/// random numbers with `seed`; a host passes the clock.
void SetupDisplay(ProcessState& process, Surface& target, std::uint64_t seed);

/// The same for a picture box of a dialog. A fixed view has focal length 1 and a delay of 32 ms;
/// otherwise both stay as they are. `zoom` magnifies positions, not flares.
void SetupPreviewSurface(ProcessState& process, Surface& target, bool fixedView, Single zoom,
                         std::uint64_t seed);

/// Black, before each run.
void ResetSurface(Surface& target);

/// Stores the factory's bodies if none are stored.
void EnsureBodies(ProcessState& process);

/// Reads every record of the run from the stored tree, and prepares the colours. A small preview
/// takes 0.65 of the stars and half of the ambient stars.
void ReadUniverseSettings(ProcessState& process, bool smallPreview);

/// The same with records that are at hand.
void TakeUniverseSettings(ProcessState& process, const SettingsRecords& records, bool smallPreview);

}  // namespace starfolds
