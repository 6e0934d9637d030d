#include "bodies/ribbon.h"

#include <cmath>

#include "numbers/b_spline.h"
#include "numbers/conversions.h"
#include "numbers/elementary.h"

namespace starfolds {
namespace {

/// Control points of the profile and the three that overlap them.
int PointsWithOverlap(const Body& body) { return body.Profile.Starfold_CP_Points + 3; }

/// Whether point `i` has keys of its own: all of an open ribbon's, but not the three copies that
/// close a loop.
bool HasKeys(const Body& body, int i) {
  return body.Profile.Starfold_CP_Close == 0 || i < body.Profile.Starfold_CP_Points;
}

/// A random place in a box of twice the radius, flattened by the height to width ratio.
Point3 DrawKey(const Body& body) {
  const double width = static_cast<double>(body.Prepared.RunRadius) + body.Prepared.RunRadius;
  const double x = body.Random() - 0.5;
  const double y = body.Random() - 0.5;
  const double z = body.Random() - 0.5;
  return {static_cast<Single>(x * width),
          static_cast<Single>(y * width * body.Profile.Starfold_GHW_Ratio),
          static_cast<Single>(z * width)};
}

Point3 SplineOf(double f, const Point3& p0, const Point3& p1, const Point3& p2, const Point3& p3) {
  return {static_cast<Single>(BSpline(f, p0.X, p1.X, p2.X, p3.X)),
          static_cast<Single>(BSpline(f, p0.Y, p1.Y, p2.Y, p3.Y)),
          static_cast<Single>(BSpline(f, p0.Z, p1.Z, p2.Z, p3.Z))};
}

/// Places the control points of `slot` between the keys of `keys`, and closes the loop.
void PlacePoints(RibbonSlot& slot, const RibbonSlot& keys, const Body& body, double f) {
  const auto& key = keys.RibbonKey;
  for (int i = 0; i < PointsWithOverlap(body); ++i) {
    slot.Ribbon[i] = HasKeys(body, i) ? SplineOf(f, key[0][i], key[1][i], key[2][i], key[3][i])
                                      : slot.Ribbon[i - body.Profile.Starfold_CP_Points];
  }
}

/// Every control point reaches its next key; a new last key is drawn.
void ShiftKeys(RibbonSlot& slot, const Body& body) {
  for (int i = 0; i < PointsWithOverlap(body); ++i) {
    for (int k = 0; k + 1 < kRibbonKeys; ++k) slot.RibbonKey[k][i] = slot.RibbonKey[k + 1][i];
    slot.RibbonKey[kRibbonKeys - 1][i] = DrawKey(body);
  }
}

/// Turns all keys by one frame's spin, in the X-Z or the Y-Z plane.
void TurnKeys(RibbonSlot& slot, const Body& body) {
  const double c = body.Prepared.RunSpinCos;
  const double s = body.Prepared.RunSpinSin;
  for (auto& keys : slot.RibbonKey) {
    for (int i = 0; i < PointsWithOverlap(body); ++i) {
      Single& first = body.Profile.Starfold_AxisPlane == 0 ? keys[i].X : keys[i].Y;
      const double a = first;
      const double z = keys[i].Z;
      first = static_cast<Single>(a * c - z * s);
      keys[i].Z = static_cast<Single>(a * s + z * c);
    }
  }
}

}  // namespace

void SetUpRibbon(std::vector<RibbonSlot>& slots, std::size_t index, const Body& body) {
  RibbonSlot& slot = slots[index];
  for (int i = 0; i < PointsWithOverlap(body); ++i) {
    if (!HasKeys(body, i)) continue;
    for (int k = 0; k < kRibbonKeys; ++k) slot.RibbonKey[k][i] = DrawKey(body);
  }
  PlacePoints(slot, slots.front(), body, 0);
}

void SetUpStillRibbon(RibbonSlot& slot, const Body& body) {
  for (int i = 0; i < PointsWithOverlap(body); ++i) {
    slot.Ribbon[i] =
        HasKeys(body, i) ? DrawKey(body) : slot.Ribbon[i - body.Profile.Starfold_CP_Points];
  }
}

void MorphRibbon(RibbonSlot& slot, const Body& body) {
  const Integer steps = body.Profile.Starfold_CP_Steps;
  if (steps > 0) slot.RibbonMorph = static_cast<Single>(slot.RibbonMorph + 1.0 / steps);
  if (slot.RibbonMorph >= 1) {
    slot.RibbonMorph -= 1;
    ShiftKeys(slot, body);
  }
  TurnKeys(slot, body);
  PlacePoints(slot, slot, body, slot.RibbonMorph);
}

Point3 RibbonPoint(const RibbonSlot& slot, int controlPoints, double place) {
  const double whole = std::floor(place);
  const auto i = static_cast<std::size_t>(WrapIndex(FloorToWhole(place), controlPoints));
  return SplineOf(place - whole, slot.Ribbon[i], slot.Ribbon[i + 1], slot.Ribbon[i + 2],
                  slot.Ribbon[i + 3]);
}

void SeedRibbon(SeedPoint& point, const Body& body, const RibbonSlot& slot) {
  PreparedProfile& run = body.Prepared;
  const int points = body.Profile.Starfold_CP_Points;
  const double biases = std::max<Integer>(body.Profile.Starfold_CP_B_Pts, 1);
  const double phase = static_cast<double>(run.RibbonPhase) + run.RunBiasSpeed;
  run.RibbonPhase = static_cast<Single>(phase >= points ? phase - points : phase);

  const double a = body.Random();
  const double b = body.Random();
  const double c = body.Random();
  const double e = Power(a, run.RunBiasExp);
  const double band = std::floor(c * biases);
  const double u = (Sign(b - 0.5) * ((1 - e) * 0.5) + band + 0.5) / biases;
  const double s = points * u + run.RibbonPhase;

  const Point3 place = RibbonPoint(slot, points, s);
  ScatterDirection(point.VX, point.VY, point.VZ, body.Profile.Starfold_RadiusExp * 0.001,
                   body.Random);
  point.X = place.X;
  point.Y = place.Y;
  point.Z = place.Z;
  point.VX = static_cast<Single>(point.VX + place.X * static_cast<double>(run.RunHeightExp));
  point.VY = static_cast<Single>(point.VY + place.Y * static_cast<double>(run.RunHeightExp));
  point.VZ = static_cast<Single>(point.VZ + place.Z * static_cast<double>(run.RunHeightExp));
  point.Span = static_cast<Single>(s / points);
  const double whole = std::floor(s);
  point.RibbonPos =
      static_cast<Single>(static_cast<double>(WrapIndex(FloorToWhole(s), points)) + (s - whole));
}

}  // namespace starfolds
