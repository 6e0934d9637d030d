// The iterated function systems: the chaos game, one iterate per star.
#pragma once

#include "bodies/body_slots.h"
#include "bodies/seed_point.h"

namespace starfolds {

/// Builds the vertices of a slot for styles 1, 2, 3 and 8. Style 1 places a seed point (four draws)
/// as vertex 0 instead.
void SetUpIfsBody(IfsSlot& slot, const Body& body);

/// Runs one iteration of the body's style and places the star there.
void SeedIfs(SeedPoint& point, const Body& body, IfsSlot& slot);

}  // namespace starfolds
