// Comets: nuclei that orbit unseen inside the visited starfold and shed short-lived stars.
#pragma once

#include "bodies/flares.h"

namespace starfolds {

/// One frame of all comets, by profile `prof`, at the starfold `fold`. From tour step 3 on comets
/// are launched; before it all nuclei go to dying.
void CometStep(const FrameScene& scene, std::size_t fold, Integer prof, Integer segIdx);

/// Begins a visit: from the second visit on live stars are erased and their slots cleared; then the
/// number of comets that the pool holds is taken from the profile and all nuclei are cleared.
void ResetComets(ProcessState& process, CometArrays& comets, Integer visitIdx, Integer prof);

/// Comets that the pool has room for.
Integer CometRoom(Integer starsPerComet);

}  // namespace starfolds
