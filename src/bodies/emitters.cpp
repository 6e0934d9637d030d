#include "bodies/emitters.h"

#include <cmath>

#include "bodies/radial.h"
#include "numbers/elementary.h"

namespace starfolds {

void SeedQuasar(SeedPoint& point, const Body& body) {
  SeedRadial(point, body, body.Prepared.RunSpin, body.Prepared.SweepPhase);
  const double force = body.Prepared.Star.RunForce;
  point.VX = static_cast<Single>(force * point.X);
  point.VY = static_cast<Single>(force * point.Y);
  point.VZ = static_cast<Single>(force * point.Z);
}

void SeedGraviton(SeedPoint& point, const Body& body) {
  SeedRadial(point, body, body.Prepared.RunSpin, body.Prepared.SweepPhase);
  point.VX = point.VY = point.VZ = 0;
}

void SeedStarwave(SeedPoint& point, const Body& body) {
  const StarfoldProfile& set = body.Profile;
  const PreparedProfile& run = body.Prepared;
  const double waves = std::max<Integer>(set.Starfold_RadBands, 1);
  const double a = body.Random();
  const double b = body.Random();
  const double theta = std::floor(set.Starfold_RadSegs * a) * run.RunSegAngle +
                       b * run.RunSegAngle * run.RunSegFill + run.SweepPhase;
  point.X = point.Y = point.Z = 0;
  point.VX = static_cast<Single>(run.RunRadiusTenth * Cosine(theta));
  const double wave = std::floor(body.Random() * waves);
  point.VY = static_cast<Single>(kTwoPi / waves * wave);
  point.VZ = static_cast<Single>(run.RunRadiusTenth * Sine(theta));
}

}  // namespace starfolds
