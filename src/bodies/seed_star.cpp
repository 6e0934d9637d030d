#include "bodies/seed_star.h"

#include "bodies/styles.h"

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

void SeedStar(ProcessState& process, StarArrays& stars, BodySlots& slots, std::size_t i) {
  StarState& star = stars.Star[i];
  star.StarAge = 0;
  star.StarWait = 0;
  star.StarFlare = FlareKind::None;
  star.StarFlareLeft = 0;
  star.StarFrame = 0;

  const int prof = star.StarProf;
  SeedPoint point = PointOf(star);
  const Body body(process, prof);
  RoutinesOf(body.Profile.Style())
      .SeedStar(point, body, slots, static_cast<std::size_t>(star.StarHome));
  StorePoint(star, point);

  const StarTint tint = SeedColor(body.Profile, body.Prepared, process.Colours.Profile[prof],
                                  {.X = point.X,
                                   .Y = point.Y,
                                   .Z = point.Z,
                                   .RotationStep = point.RotationStep,
                                   .Span = point.Span,
                                   .HueOffset = point.HueOffset,
                                   .Former = {star.StarHue, star.StarColor}},
                                  process.Random);
  star.StarHue = tint.StarHue;
  star.StarColor = tint.StarColor;
}

}  // namespace starfolds
