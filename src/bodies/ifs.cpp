#include "bodies/ifs.h"

#include "bodies/radial.h"
#include "numbers/conversions.h"
#include "numbers/elementary.h"

namespace starfolds {
namespace {

/// Stores x, y and z, made in double, as the Singles of a point.
Point3 MakePoint(double x, double y, double z) {
  return {static_cast<Single>(x), static_cast<Single>(y), static_cast<Single>(z)};
}

/// Moves `from` by the fraction `f` of the way to `to`.
Point3 Toward(const Point3& from, const Point3& to, double f) {
  return MakePoint(from.X + (static_cast<double>(to.X) - from.X) * f,
                   from.Y + (static_cast<double>(to.Y) - from.Y) * f,
                   from.Z + (static_cast<double>(to.Z) - from.Z) * f);
}

/// A fresh point of the single point attractor: on the body's shape, at any angle.
Point3 FreshPoint(const Body& body) {
  const StarfoldProfile& set = body.Profile;
  const PreparedProfile& run = body.Prepared;
  Rnd& random = body.Random;
  const double fraction = Power(static_cast<double>(random()), set.Starfold_RadiusExp);
  const double r = fraction * run.RunRadius + 1e-09;
  const double height =
      ShapeHeight(set.Starfold_Profile, r, run.RunRadius, run.RunRadiusSq, random);
  const double lift = Power(static_cast<double>(random()), set.Starfold_HeightExp);
  const double theta = random() * static_cast<double>(kTwoPi);
  return MakePoint(Cosine(theta) * r, lift * set.Starfold_GHW_Ratio * height, Sine(theta) * r);
}

void Pyramid(IfsSlot& slot, int vertices, double R, double G) {
  slot.IfsVertex[0] = MakePoint(0, -R * G, 0);
  for (int i = 1; i < vertices; ++i) {
    const double angle = (i - 1) * static_cast<double>(kTwoPi) / (vertices - 1);
    slot.IfsVertex[i] = MakePoint(Cosine(angle) * R, R * G * 0.5, Sine(angle) * R);
  }
}

/// Six to ten vertices, as multiples of the radius R on X and Z, and of R * G on Y, so that a
/// height to width ratio flattens each figure.
struct Figure {
  int Count;
  double Place[kMaxVertices][3];
};
constexpr Figure kFigures[] = {
    {6, {{0, 1, 0}, {0, -1, 0}, {-1, 0, 0}, {1, 0, 0}, {0, 0, -1}, {0, 0, 1}}},
    {7, {{0, 1, 0}, {0, -1, 0}, {-1, 0, 0}, {1, 0, 0}, {0, 0, -1}, {0, 0, 1}, {0, 0, 0}}},
    {8,
     {{1, -0.5, 1},
      {1, -0.5, -1},
      {-1, -0.5, 1},
      {-1, -0.5, -1},
      {1, 0.5, 1},
      {1, 0.5, -1},
      {-1, 0.5, 1},
      {-1, 0.5, -1}}},
    {9,
     {{-0.6, 1, -0.36},
      {0.6, 1, -0.36},
      {0, 1, 0.72},
      {-0.6, -1, -0.36},
      {0.6, -1, -0.36},
      {0, -1, 0.72},
      {-1.25, 0, 0.75},
      {1.25, 0, 0.75},
      {0, 0, -1.5}}},
    {10,
     {{0, -1, 0},
      {1, -0.5, 1},
      {1, -0.5, -1},
      {-1, -0.5, 1},
      {-1, -0.5, -1},
      {1, 0.5, 0},
      {-1, 0.5, 0},
      {0, 0.5, 1},
      {0, 0.5, -1},
      {0, 1, 0}}},
};

void IteratePoint(IfsSlot& slot, const Body& body) {
  Point3& p = slot.IfsPoint;
  const PreparedProfile& run = body.Prepared;
  if (slot.IfsStep == 0) {
    p = FreshPoint(body);
  } else {
    const double x = p.X * static_cast<double>(run.RunSegFill);
    const double z = p.Z * static_cast<double>(run.RunSegFill);
    p = MakePoint(x * run.RunBandCos - z * run.RunBandSin,
                  p.Y * static_cast<double>(run.RunSegFill),
                  x * run.RunBandSin + z * run.RunBandCos);
  }
  const int cycle = std::max<int>(body.Profile.Starfold_RadSegs, 1);
  slot.IfsStep = static_cast<Integer>((slot.IfsStep + 1) % cycle);
}

void IterateWireframe(IfsSlot& slot, const Body& body) {
  const int n = body.Prepared.IfsVertexCount;
  Point3 before;  // the origin, if there is no iteration at all
  Point3 q = slot.IfsVertex[DrawBelow(body.Random, n)];
  for (int i = 0; i < body.Profile.Starfold_RadBands; ++i) {
    before = q;
    q = Toward(q, slot.IfsVertex[DrawBelow(body.Random, n)], body.Prepared.RunSegFill);
  }
  const double t = body.Random();
  slot.IfsPoint = Toward(before, q, t + t);
}

void IterateFractal(IfsSlot& slot, const Body& body) {
  const int pick = DrawBelow(body.Random, body.Prepared.IfsVertexCount);
  slot.IfsPoint = Toward(slot.IfsPoint, slot.IfsVertex[pick], body.Prepared.RunSegFill);
}

/// Turns the offset of a point from its attractor about one axis.
Point3 TurnAbout(const Point3& d, Integer axis, double c, double s) {
  switch (axis) {
    case 0: return MakePoint(d.X, d.Y * c - d.Z * s, d.Z * c + d.Y * s);
    case 1: return MakePoint(d.X * c - d.Z * s, d.Y, d.Z * c + d.X * s);
    case 2: return MakePoint(d.X * c - d.Y * s, d.Y * c + d.X * s, d.Z);
    default: return d;
  }
}

void IterateRecords(IfsSlot& slot, const Body& body) {
  const int count = ClampTo<int>(body.Profile.Starfold_IFS_Points, 0, kMaxIfsPoints);
  const int draw = DrawBelow(body.Random, body.Prepared.RunIfs[count - 1].Sum);
  int pick = 0;
  while (pick < count && draw >= body.Prepared.RunIfs[pick].Sum) ++pick;
  if (pick == count) return;
  const RunIfsPoint& record = body.Prepared.RunIfs[pick];
  const Point3 target{record.X, record.Y, record.Z};
  Point3& p = slot.IfsPoint;
  p = Toward(p, target, record.Scale);
  if (body.Profile.IFS.Points[pick].IFS_Angle <= 0) return;
  const Point3 offset =
      MakePoint(p.X - static_cast<double>(target.X), p.Y - static_cast<double>(target.Y),
                p.Z - static_cast<double>(target.Z));
  const Point3 turned =
      TurnAbout(offset, body.Profile.IFS.Points[pick].IFS_Axis, record.Cos, record.Sin);
  p = MakePoint(turned.X + static_cast<double>(target.X), turned.Y + static_cast<double>(target.Y),
                turned.Z + static_cast<double>(target.Z));
}

/// Places a star at the running iterate.
void PlaceAtIterate(SeedPoint& point, const Body& body, const IfsSlot& slot) {
  SpinRigidly(point, body.Prepared);
  SweepWithBody(point, body.Prepared, slot.IfsPoint.X, slot.IfsPoint.Z);
  point.Y = slot.IfsPoint.Y;
}

}  // namespace

void SetUpIfsPoint(IfsSlot& slot, const Body& body) { slot.IfsVertex[0] = FreshPoint(body); }

void SetUpIfsFigure(IfsSlot& slot, const Body& body) {
  slot.IfsVertex.fill({});
  const double R = body.Prepared.RunRadius;
  const double G = body.Profile.Starfold_GHW_Ratio;
  const int count = body.Prepared.IfsVertexCount;
  if (count >= 2 && count <= 5) return Pyramid(slot, count, R, G);
  for (const Figure& figure : kFigures) {
    if (figure.Count != count) continue;
    for (int i = 0; i < count; ++i) {
      const auto& place = figure.Place[i];
      slot.IfsVertex[i] = MakePoint(place[0] * R, place[1] * R * G, place[2] * R);
    }
  }
}

void SeedIfsPoint(SeedPoint& point, const Body& body, IfsSlot& slot) {
  IteratePoint(slot, body);
  PlaceAtIterate(point, body, slot);
}

void SeedIfsWireframe(SeedPoint& point, const Body& body, IfsSlot& slot) {
  IterateWireframe(slot, body);
  PlaceAtIterate(point, body, slot);
}

void SeedIfsFractal(SeedPoint& point, const Body& body, IfsSlot& slot) {
  IterateFractal(slot, body);
  PlaceAtIterate(point, body, slot);
}

void SeedUserIfs(SeedPoint& point, const Body& body, IfsSlot& slot) {
  if (body.Profile.Starfold_IFS_Points == 0) return SeedIfsFractal(point, body, slot);
  IterateRecords(slot, body);
  PlaceAtIterate(point, body, slot);
}

}  // namespace starfolds
