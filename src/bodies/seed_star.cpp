#include "bodies/seed_star.h"

#include "bodies/emitters.h"
#include "bodies/ifs.h"
#include "bodies/molecule.h"
#include "bodies/radial.h"
#include "bodies/ribbon.h"

namespace starfolds {
namespace {

SeedPoint PointOf(const StarArrays& stars, std::size_t i) {
  SeedPoint point;
  point.X = stars.StarX[i];
  point.Y = stars.StarY[i];
  point.Z = stars.StarZ[i];
  point.VX = stars.StarVX[i];
  point.VY = stars.StarVY[i];
  point.VZ = stars.StarVZ[i];
  point.SpinCos = stars.StarSpinCos[i];
  point.SpinSin = stars.StarSpinSin[i];
  return point;
}

void StorePoint(StarArrays& stars, std::size_t i, const SeedPoint& point) {
  stars.StarX[i] = point.X;
  stars.StarY[i] = point.Y;
  stars.StarZ[i] = point.Z;
  stars.StarVX[i] = point.VX;
  stars.StarVY[i] = point.VY;
  stars.StarVZ[i] = point.VZ;
  stars.StarSpinCos[i] = point.SpinCos;
  stars.StarSpinSin[i] = point.SpinSin;
  stars.StarLevel[i] = point.Level;
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
  stars.StarAge[i] = 0;
  stars.StarWait[i] = 0;
  stars.StarNewLeft[i] = 0;
  stars.StarNovaLeft[i] = 0;
  stars.StarPulsarLeft[i] = 0;

  const int prof = stars.StarProf[i];
  SeedPoint point = PointOf(stars, i);
  SeedByStyle(point, Body(saver, prof), slots, static_cast<std::size_t>(stars.StarHome[i]));
  StorePoint(stars, i, point);

  const StarTint tint =
      SeedColor(saver, prof, point.X, point.Y, point.Z, point.RotationStep, point.Span,
                point.HueOffset, {stars.StarHue[i], stars.StarColor[i]});
  stars.StarHue[i] = tint.StarHue;
  stars.StarColor[i] = tint.StarColor;
}

}  // namespace starfolds
