// The opening act of a universe: the blast.
#pragma once

#include "bodies/run_arrays.h"
#include "universe/expansion.h"

namespace starfolds {

/// The growth of a universe.
struct Expansion {
  Single ExpandStep = 0;   // per frame
  Single ExpandTotal = 0;  // the universe's size so far
};

/// What creation, tour and pull-out of one run share.
struct UniverseScene {
  ProcessState& Process;
  RunArrays& Arrays;
  BodySlots Shape = {};
  Expansion Growth = {};
  Integer TourProfile = -1;  // the profile that shapes the blast; -1 before the first universe
};

/// Throws all stars out of the core, lets them go out and be reborn inside starfolds that ride
/// outward, and brings everything to rest, in `Universe_ESteps` frames. Returns early, with stars
/// unsettled, if the run must stop; the caller tests `StopRun` and `NewRun`.
void CreateUniverse(UniverseScene& scene);

}  // namespace starfolds
