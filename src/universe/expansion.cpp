#include "universe/expansion.h"

#include <cmath>

#include "bodies/ifs.h"
#include "bodies/molecule.h"
#include "bodies/radial.h"
#include "bodies/ribbon.h"

namespace starfolds {
namespace {

SeedPoint RawPoint(const Body& body, ExpansionShape& shape) {
  SeedPoint point;
  switch (body.Set.Style()) {
    case FoldStyle::Standard:
    case FoldStyle::Quasar:
    case FoldStyle::Graviton:
    case FoldStyle::Starwave: SeedRadial(point, body, body.Run.RunSpin, 0); break;
    case FoldStyle::IfsPoint:
    case FoldStyle::IfsWireframe:
    case FoldStyle::IfsFractal:
    case FoldStyle::UserIfs: SeedIfs(point, body, shape.Ifs); break;
    case FoldStyle::Nebula: SeedRibbon(point, body, shape.Ribbon); break;
    case FoldStyle::Molecule: SeedMolecule(point, body, true); break;
  }
  return point;
}

}  // namespace

void SetUpExpansion(Saver& saver, ExpansionShape& shape, Integer prof) {
  shape = {};
  const Body body(saver, prof);
  switch (body.Set.Style()) {
    case FoldStyle::IfsPoint:
    case FoldStyle::IfsWireframe:
    case FoldStyle::IfsFractal:
    case FoldStyle::UserIfs: return SetUpIfsBody(shape.Ifs, body);
    case FoldStyle::Nebula: return SetUpStillRibbon(shape.Ribbon, body);
    case FoldStyle::Standard:
    case FoldStyle::Quasar:
    case FoldStyle::Graviton:
    case FoldStyle::Starwave:
    case FoldStyle::Molecule: return;
  }
}

ExpansionVector SeedExpansionVector(Saver& saver, ExpansionShape& shape, Integer prof, Single scale,
                                    Single ratio, ExpansionMode mode) {
  const Body body(saver, prof);
  const SeedPoint raw = RawPoint(body, shape);
  const double f = saver.Universe.Universe_Expand / static_cast<double>(body.Run.RunRadius);
  const double x = static_cast<Single>(raw.X * f);
  const double y = static_cast<Single>(raw.Y * f);
  const double z = static_cast<Single>(raw.Z * f);

  const double tilt = -static_cast<double>(body.Run.RunTilt);
  const double c = std::cos(tilt);
  const double s = std::sin(tilt);
  const double u = s * z - c * y;
  const bool plane = body.Run.Star.AxisPlane;
  ExpansionVector point;
  point.VX = static_cast<Single>(plane ? u : x);
  point.VY = static_cast<Single>(plane ? x : u);
  point.VZ = static_cast<Single>(c * z + s * y);

  if (mode == ExpansionMode::Burst) {
    point.VX *= scale;
    point.VY *= scale;
    point.VZ *= scale;
    return point;
  }
  point.X = scale * point.VX;
  point.Y = scale * point.VY;
  point.Z = scale * point.VZ;
  const Single speed = mode == ExpansionMode::Growing ? ratio : Single{0};
  point.VX = speed * point.X;
  point.VY = speed * point.Y;
  point.VZ = speed * point.Z;
  return point;
}

}  // namespace starfolds
