// The three styles whose stars do not orbit: Quasar, Graviton and Starwave.
#pragma once

#include "bodies/seed_point.h"

namespace starfolds {

/// A radial star that leaves its place outward, at a speed that grows with its distance.
void SeedQuasar(SeedPoint& point, const Body& body);

/// A radial star at rest, which then falls through the core.
void SeedGraviton(SeedPoint& point, const Body& body);

/// A star in the core that runs straight out; VY is the phase of its wave in radians.
void SeedStarwave(SeedPoint& point, const Body& body);

}  // namespace starfolds
