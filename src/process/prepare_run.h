// What a run derives from its records before the first frame.
#pragma once

#include "process/process_state.h"

namespace starfolds {

/// Derives the prepared values and the colour tables from the records of `process`, which must be
/// within their ranges. `PrepareProfiles` draws a random variation of the bodies, so each call
/// makes another.
void PrepareRun(ProcessState& process);

}  // namespace starfolds
