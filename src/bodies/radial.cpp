#include "bodies/radial.h"

#include <cmath>

#include "numbers/conversions.h"
#include "numbers/elementary.h"

namespace starfolds {
namespace {

constexpr double kBulge = 2.8559999465942383;  // the Single nearest to 2.856

double Root(double value) { return std::sqrt(std::abs(value)); }
double Square(double value) { return value * value; }

/// A bulge at the core, a dip, and a rim.
double StandardHeight(double r, double R, double Rsq) {
  const double c = Rsq * 0.12259806;
  const double m = R * 0.5;
  if (r <= R * 0.25) return Root(c - r * r) * kBulge;
  if (r <= m) return R * 1.4 - Root(c - Square(m - r)) * kBulge;
  return Root(Rsq * 0.25 - Square(r - m)) * 0.8;
}

/// A spinning top: a knob, a cone, and a rounded rim.
double TopHeight(double r, double R, double Rsq) {
  const double t = R * 0.1;
  const double u = R * 0.75;
  if (r < t) return (10 / R * 0.25 * Root(Rsq * 0.01 - r * r) + 0.75) * R;
  if (r < u) {
    return (1 - Root(Rsq * 0.4225 - Square(R * 0.85 - r - t)) / (R * 0.65)) * (R * 0.5) + R * 0.25;
  }
  return Root(Rsq * 0.0625 - Square(r - u));
}

}  // namespace

double ShapeProfile(Integer shape, double r, double R, double Rsq) {
  const double o = R - r;
  switch (shape) {
    case 0: return StandardHeight(r, R, Rsq);
    case 1: return TopHeight(r, R, Rsq);
    case 2: return Root(Rsq - r * r);      // spherical
    case 3: return o;                      // conical
    case 4: return R - Root(Rsq - o * o);  // hyperbolic
    case 5: return R - Root(Rsq - r * r);  // outer-hyperbolic
    case 6: return Root(Rsq - o * o);      // inner-hyperbolic
    default: return 0;
  }
}

Single ShapeHeight(Integer shape, double r, double R, double Rsq, Rnd& random) {
  const double height = ShapeProfile(shape, r, R, Rsq);
  return static_cast<Single>(height * Sign(random() - 0.5));
}

void SeedRadial(SeedPoint& point, const Body& body, Single rate, Single phase) {
  const StarfoldProfile& set = body.Profile;
  const PreparedProfile& run = body.Prepared;
  Rnd& random = body.Random;
  const double bands = std::max<Integer>(set.Starfold_RadBands, 1);

  const int level = DrawBelow(random, run.RunLevels);
  const double a = random();
  const double b = random();
  const double f =
      Power(a / bands * run.RunBandFill + std::floor(b * bands) / bands, set.Starfold_RadiusExp);

  // Either the level is pushed outward at the disc's own height, or it is a whole disc of its own
  // radius.
  const double step = level * static_cast<double>(run.RunLevelStep);
  const bool ownShape = set.Starfold_StdLevB_HS != 0;
  const double R = ownShape ? step + run.RunRadius : run.RunRadius;
  const double Rsq = ownShape ? R * R : run.RunRadiusSq;
  double r = f * R + 1e-09;
  const double height = ShapeHeight(set.Starfold_Profile, r, R, Rsq, random);
  const double lift = Power(static_cast<double>(random()), set.Starfold_HeightExp);
  double y = lift * height * set.Starfold_GHW_Ratio;
  if (!ownShape) r += step;
  if (run.RunLevels > 1) {
    y += (set.Starfold_StdLevHSca * y - y) * (static_cast<double>(level) / (run.RunLevels - 1));
  }

  const double c = random();
  const double d = random();
  const double theta = std::floor(set.Starfold_RadSegs * c) * run.RunSegAngle +
                       d * run.RunSegAngle * run.RunSegFill + phase;
  const double spin = std::min(std::sqrt(1 / std::abs(r + 1e-09)) * kTwoPi * rate / (level + 1),
                               static_cast<double>(kHalfPi));

  point.Level = static_cast<Integer>(level);
  point.RotationStep = static_cast<Single>(spin);
  point.SpinCos = static_cast<Single>(Cosine(spin));
  point.SpinSin = static_cast<Single>(Sine(spin));
  point.X = static_cast<Single>(Cosine(theta) * r);
  point.Y = static_cast<Single>(y);
  point.Z = static_cast<Single>(Sine(theta) * r);
}

}  // namespace starfolds
