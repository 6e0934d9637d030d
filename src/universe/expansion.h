// The shape of the blast: points of the body of the tour's profile, thrown outward. The stars of a
// creation and the ambient stars come from it.
#pragma once

#include "bodies/body_slots.h"
#include "bodies/seed_point.h"

namespace starfolds {

/// How a point of the shape becomes a place and a velocity.
enum class ExpansionMode : Integer {
  Burst = 0,     // from the core, at `scale` times the point
  Growing = 1,   // at `scale` times the point, moving on at `ratio` times its place
  Finished = 2,  // the same place, at rest
};

/// Prepares the one slot of `shape`, the generators' state for the blast, for the style of profile
/// `prof`.
void SetUpExpansion(ProcessState& process, BodySlots& shape, Integer prof);

struct ExpansionVector {
  Single X = 0, Y = 0, Z = 0;
  Single VX = 0, VY = 0, VZ = 0;
};

/// One point of the shape, normalised so that the rim of the body has the length of the universe's
/// expansion, and tilted by the profile's first tilt.
ExpansionVector SeedExpansionVector(ProcessState& process, BodySlots& shape, Integer prof,
                                    Single scale, Single ratio, ExpansionMode mode);

}  // namespace starfolds
