// The iterated function systems: the chaos game, one iterate per star.
#pragma once

#include "bodies/body_slots.h"
#include "bodies/seed_point.h"

namespace starfolds {

/// Prepares the slot of a single point attractor: one point of the body's shape as vertex 0 (four
/// draws).
void SetUpIfsPoint(IfsSlot& slot, const Body& body);

/// Prepares the slot of the other styles: the vertices of the figure that has
/// `Starfold_RadSegs` of them.
void SetUpIfsFigure(IfsSlot& slot, const Body& body);

// Each runs one iteration and places the star there.
void SeedIfsPoint(SeedPoint& point, const Body& body, IfsSlot& slot);
void SeedIfsWireframe(SeedPoint& point, const Body& body, IfsSlot& slot);
void SeedIfsFractal(SeedPoint& point, const Body& body, IfsSlot& slot);
/// Without points of its own, the body is a space-filling fractal.
void SeedUserIfs(SeedPoint& point, const Body& body, IfsSlot& slot);

}  // namespace starfolds
