// The radial generator: discs and shells of rings cut into arms. The Standard, Quasar and Graviton
// styles share it.
#pragma once

#include "bodies/seed_point.h"

namespace starfolds {

/// Places a star in a band, an arm and at a height of the shape, and gives it the rotation step of
/// a Keplerian disc. `rate` in radians per frame at radius (2 pi)^2, `phase` the body's running
/// angle in radians. Draws: level, two for the radius, side of the plane, height, two for the
/// angle.
void SeedRadial(SeedPoint& point, const Body& body, Single rate, Single phase);

/// The height of a body of radius `R` at radius `r`, with a random sign (one draw). `shape` is
/// `Starfold_Profile`; any other shape has height 0.
Single ShapeHeight(Integer shape, double r, double R, double Rsq, Rnd& random);

/// The same without the sign, and without a draw.
double ShapeProfile(Integer shape, double r, double R, double Rsq);

}  // namespace starfolds
