// What the generators of the bodies share: the point that they make, and the body as they see it.
#pragma once

#include "bodies/body_slots.h"
#include "numbers/conversions.h"
#include "numbers/half_turn.h"
#include "process/process_state.h"

namespace starfolds {

/// One star as a generator places it. A generator writes what its style has; the rest stays as the
/// star had it.
struct SeedPoint {
  Single X = 0, Y = 0, Z = 0;
  Single VX = 0, VY = 0, VZ = 0;
  Single SpinCos = 1, SpinSin = 0;
  Integer Level = 0;
  Single RotationStep = 0;  // `rv`: radians per frame
  Single Span = 0;          // place along a ribbon, for its colour
  Single RibbonPos = 0;     // place along a ribbon in control points, for a comet
  int HueOffset = 0;        // degrees that a molecule adds to the wheel
};

/// One profile with its prepared values.
struct Body {
  const StarfoldProfile& Profile;
  PreparedProfile& Prepared;
  Rnd& Random;

  Body(ProcessState& process, int prof)
      : Profile(process.Profiles[prof]), Prepared(process.Prepared[prof]), Random(process.Random) {}
};

/// floor(draw * count), a whole number from 0 to count - 1.
inline int DrawBelow(Rnd& random, int count) {
  return static_cast<int>(random() * static_cast<double>(count));
}

/// A random vector of length `speed`. Two draws for the direction and one for the side.
inline void ScatterDirection(Single& vx, Single& vy, Single& vz, double speed, Rnd& random) {
  const auto a = static_cast<std::size_t>(RoundHalfEven(random() * 1000.0));
  const auto b = static_cast<std::size_t>(RoundHalfEven(random() * 1000.0));
  const int side = Sign(random() - 0.5);
  vx = static_cast<Single>(speed * kHalfTurn.Cos[b] * kHalfTurn.Sin[a]);
  vy = static_cast<Single>(speed * kHalfTurn.Sin[b] * kHalfTurn.Sin[a] * side);
  vz = static_cast<Single>(speed * kHalfTurn.Cos[a]);
}

/// Turns the point with the body, by the running phase of its rigid rotation.
inline void SweepWithBody(SeedPoint& point, const PreparedProfile& run, double x, double z) {
  point.X = static_cast<Single>(x * run.SweepCos - z * run.SweepSin);
  point.Z = static_cast<Single>(x * run.SweepSin + z * run.SweepCos);
}

/// All stars of a rigid body turn together, at eight times the rate of `Starfold_Rotation`.
inline void SpinRigidly(SeedPoint& point, const PreparedProfile& run) {
  point.RotationStep = run.RunSpin8;
  point.SpinCos = run.RunSpin8Cos;
  point.SpinSin = run.RunSpin8Sin;
}

}  // namespace starfolds
