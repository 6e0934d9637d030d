#include "bodies/seed_star.h"

#include "bodies/emitters.h"
#include "bodies/ifs.h"
#include "bodies/molecule.h"
#include "bodies/radial.h"
#include "bodies/ribbon.h"

namespace starfolds {
namespace {

SeedPoint PointOf(const StarState& star) {
  SeedPoint point;
  point.X = star.StarX;
  point.Y = star.StarY;
  point.Z = star.StarZ;
  point.VX = star.StarVX;
  point.VY = star.StarVY;
  point.VZ = star.StarVZ;
  point.SpinCos = star.StarSpinCos;
  point.SpinSin = star.StarSpinSin;
  return point;
}

void StorePoint(StarState& star, const SeedPoint& point) {
  star.StarX = point.X;
  star.StarY = point.Y;
  star.StarZ = point.Z;
  star.StarVX = point.VX;
  star.StarVY = point.VY;
  star.StarVZ = point.VZ;
  star.StarSpinCos = point.SpinCos;
  star.StarSpinSin = point.SpinSin;
  star.StarLevel = point.Level;
}

}  // namespace

void SeedByStyle(SeedPoint& point, const Body& body, BodySlots& slots, std::size_t slot) {
  switch (body.Set.Style()) {
    case FoldStyle::Standard: return SeedRadial(point, body, body.Run.RunSpin, body.Run.SpinPhase);
    case FoldStyle::IfsPoint:
    case FoldStyle::IfsWireframe:
    case FoldStyle::IfsFractal:
    case FoldStyle::UserIfs: return SeedIfs(point, body, slots.Ifs[slot]);
    case FoldStyle::Nebula: return SeedRibbon(point, body, slots.Ribbon[slot]);
    case FoldStyle::Quasar: return SeedQuasar(point, body);
    case FoldStyle::Graviton: return SeedGraviton(point, body);
    case FoldStyle::Starwave: return SeedStarwave(point, body);
    case FoldStyle::Molecule: return SeedMolecule(point, body, true);
  }
}

void SeedStar(Saver& saver, StarArrays& stars, BodySlots& slots, std::size_t i) {
  StarState& star = stars.Star[i];
  star.StarAge = 0;
  star.StarWait = 0;
  star.StarNewLeft = 0;
  star.StarNovaLeft = 0;
  star.StarPulsarLeft = 0;
  star.StarFrame = 0;

  const int prof = star.StarProf;
  SeedPoint point = PointOf(star);
  SeedByStyle(point, Body(saver, prof), slots, static_cast<std::size_t>(star.StarHome));
  StorePoint(star, point);

  const StarTint tint = SeedColor(saver, prof, point.X, point.Y, point.Z, point.RotationStep,
                                  point.Span, point.HueOffset, {star.StarHue, star.StarColor});
  star.StarHue = tint.StarHue;
  star.StarColor = tint.StarColor;
}

}  // namespace starfolds
