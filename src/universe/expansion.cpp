#include "universe/expansion.h"

#include "bodies/styles.h"
#include "numbers/elementary.h"

namespace starfolds {

void SetUpExpansion(ProcessState& process, BodySlots& shape, Integer prof) {
  shape.Ifs.assign(1, {});
  shape.Ribbon.assign(1, {});
  const Body body(process, prof);
  RoutinesOf(body.Profile.Style()).SetUpBlast(shape, 0, body);
}

ExpansionVector SeedExpansionVector(ProcessState& process, BodySlots& shape, Integer prof,
                                    Single scale, Single ratio, ExpansionMode mode) {
  const Body body(process, prof);
  SeedPoint raw;
  RoutinesOf(body.Profile.Style()).SeedBlast(raw, body, shape, 0);
  const double f = process.RunUniverse.RunExpand / static_cast<double>(body.Prepared.RunRadius);
  const double x = static_cast<Single>(raw.X * f);
  const double y = static_cast<Single>(raw.Y * f);
  const double z = static_cast<Single>(raw.Z * f);

  const double tilt = -static_cast<double>(body.Prepared.RunTilt);
  const double c = Cosine(tilt);
  const double s = Sine(tilt);
  const double u = s * z - c * y;
  const bool plane = body.Prepared.Star.AxisPlane;
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
