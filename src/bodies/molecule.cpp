#include "bodies/molecule.h"

#include "numbers/conversions.h"
#include "numbers/elementary.h"
#include "settings/elements.h"

namespace starfolds {
namespace {

// Close packing: layers lie sqrt(2/3) apart, rows sqrt(3)/2.
constexpr double kLayerStep = 0.8164966;
constexpr double kStackCentre = 0.5443311;  // two thirds of a layer's step
constexpr double kRowStep = 0.8660254;
constexpr double kRowCentre = 0.57735026;  // 1 / sqrt(3)

/// The corners of a hexagon; the seventh is the first again.
struct HexCorners {
  Single Cos[7];
  Single Sin[7];
  HexCorners() {
    for (int i = 0; i < 7; ++i) {
      Cos[i] = static_cast<Single>(Cosine(i * kTwoPiWide / 6));
      Sin[i] = static_cast<Single>(Sine(i * kTwoPiWide / 6));
    }
  }
};
const HexCorners kHex;

/// A point while it is put together, in double.
struct Place {
  double X, Y, Z;
};

/// One axis of a structure's point: which of its lengths, with which sign.
enum Length : signed char { O, R, H, C, E, T };  // none, radius, half, cube, edge, third

struct PointGroup {
  Length X, Y, Z;
};

double LengthOf(const RunAtom& atom, Length length) {
  switch (length) {
    case O: return 0;
    case R: return atom.Radius;
    case H: return atom.RadiusHalf;
    case C: return atom.RadiusCube;
    case E: return atom.RadiusEdge;
    case T: return atom.RadiusThird;
  }
  return 0;
}

// Each group has one point for each combination of signs of its lengths that are not 0.
constexpr PointGroup kSixPoint[] = {{R, O, O}, {O, R, O}, {O, O, R}};
constexpr PointGroup kEightPoint[] = {{R, R, R}};
constexpr PointGroup k18Points[] = {{R, O, O}, {O, R, O}, {O, O, R},
                                    {E, E, O}, {E, O, E}, {O, E, E}};
constexpr PointGroup k26Points[] = {{R, O, O}, {O, R, O}, {O, O, R}, {E, E, O},
                                    {E, O, E}, {O, E, E}, {C, C, C}};
constexpr PointGroup k38Points[] = {{R, O, O}, {O, R, O}, {O, O, R}, {C, C, C}, {T, H, O},
                                    {H, T, O}, {T, O, H}, {H, O, T}, {O, T, H}, {O, H, T}};

std::span<const PointGroup> GroupsOf(Integer structure) {
  switch (structure) {
    case 1: return kSixPoint;
    case 2: return kEightPoint;
    case 3: return k18Points;
    case 4: return k26Points;
    case 5: return k38Points;
    default: return {};
  }
}

/// Adds point number `pick` of a shell: the groups in order, and in a group the signs as the bits
/// of a count.
void AddGroupPoint(Place& place, const RunAtom& atom, std::span<const PointGroup> groups,
                   int pick) {
  for (const PointGroup& group : groups) {
    const int axes = (group.X != O) + (group.Y != O) + (group.Z != O);
    const int points = 1 << axes;
    if (pick >= points) {
      pick -= points;
      continue;
    }
    const auto signedLength = [&](Length length) {
      if (length == O) return 0.0;
      const double sign = pick % 2 == 0 ? 1 : -1;
      pick /= 2;
      return sign * LengthOf(atom, length);
    };
    place.X += signedLength(group.X);
    place.Y += signedLength(group.Y);
    place.Z += signedLength(group.Z);
    return;
  }
}

/// A place on one axis of a grid of `edge` points, centred.
double GridStep(Rnd& random, int edge, double spacing) {
  return (DrawBelow(random, edge) - (edge - 1) * 0.5) * spacing;
}

/// Adds a point of a triangle of `n` rows.
void AddTrianglePoint(Place& place, int n, double spacing, Rnd& random) {
  const int draw = DrawBelow(random, TriangleNumber(n));
  int sum = 0;
  for (int row = 1; row <= n; ++row) {
    sum += row;
    if (draw >= sum) continue;
    place.X += (DrawBelow(random, row) - (row - 1) * 0.5) * spacing;
    place.Z += ((n - 1) * kRowCentre - (row - 1) * kRowStep) * spacing;
    return;
  }
}

/// Adds a point of the centre and the n - 1 rings of a hexagon.
void AddHexagonPoint(Place& place, int n, double spacing, Rnd& random) {
  const int draw = DrawBelow(random, HexNumber(n));
  int sum = 1;
  if (draw < sum) return;
  for (int ring = 1; ring < n; ++ring) {
    sum += 6 * ring;
    if (draw >= sum) continue;
    const int side = DrawBelow(random, 6);
    const double d = ring * spacing;
    const double step = DrawBelow(random, ring) / static_cast<double>(ring);
    const double ax = d * kHex.Cos[side];
    const double az = d * kHex.Sin[side];
    place.X += ax + (d * kHex.Cos[side + 1] - ax) * step;
    place.Z += az + (d * kHex.Sin[side + 1] - az) * step;
    return;
  }
}

void AddCubePoint(Place& place, int edge, double spacing, Rnd& random) {
  place.X += GridStep(random, edge, spacing);
  place.Z += GridStep(random, edge, spacing);
  place.Y += GridStep(random, edge, spacing);
}

/// A stack of triangles of 0 to `edge` rows.
void AddTetramatrixPoint(Place& place, int edge, double spacing, Rnd& random) {
  int total = 0;
  for (int k = 0; k <= edge; ++k) total += TriangleNumber(k);
  const int draw = DrawBelow(random, total);
  int sum = 0;
  for (int k = 0; k <= edge; ++k) {
    sum += TriangleNumber(k);
    if (draw >= sum) continue;
    place.Y += (edge * kStackCentre - k * kLayerStep) * spacing;
    return AddTrianglePoint(place, k, spacing, random);
  }
}

/// Two such stacks, base to base.
void AddOctamatrixPoint(Place& place, int edge, double spacing, Rnd& random) {
  int total = TriangleNumber(edge);
  for (int k = 0; k < edge; ++k) total += 2 * TriangleNumber(k);
  const int draw = DrawBelow(random, total);
  int sum = 0;
  for (int layer = 0; layer <= 2 * edge; ++layer) {
    const int k = layer > edge ? 2 * edge - layer : layer;
    sum += TriangleNumber(k);
    if (draw >= sum) continue;
    place.Y += (layer - edge) * spacing * kLayerStep;
    return AddTrianglePoint(place, k, spacing, random);
  }
}

/// A prism of hexagons with tapered ends.
void AddHexamatrixPoint(Place& place, int edge, double spacing, Rnd& random) {
  const auto start = static_cast<int>(RoundHalfEven(edge / 2.0));
  int total = HexNumber(edge) * edge;
  for (int k = start; k < edge; ++k) total += 2 * HexNumber(k);
  const int draw = DrawBelow(random, total);
  int sum = 0;
  for (int layer = start; layer <= 3 * edge - 2; ++layer) {
    const int k = layer >= 2 * edge ? 3 * edge - layer - 1 : std::min(layer, edge);
    sum += HexNumber(k);
    if (draw >= sum) continue;
    place.Y += ((layer - 1) - (3 * edge - 3) * 0.5) * spacing;
    return AddHexagonPoint(place, k, spacing, random);
  }
}

void AddStructurePoint(Place& place, const RunAtom& atom, const AtomPoint& set, Rnd& random) {
  const int edge = ClampTo<int>(set.Atom_LocX, 1, 99);
  const double spacing = atom.Radius;
  switch (set.Atom_Structure) {
    case 0:
      place.X += atom.X;
      place.Y += atom.Y;
      place.Z += atom.Z;
      return;
    case 6:
      place.X += GridStep(random, edge, spacing);
      place.Z += GridStep(random, edge, spacing);
      return;
    case 7: return AddHexagonPoint(place, edge, spacing, random);
    case 8: return AddCubePoint(place, edge, spacing, random);
    case 9: return AddTetramatrixPoint(place, edge, spacing, random);
    case 10: return AddOctamatrixPoint(place, edge, spacing, random);
    case 11: return AddHexamatrixPoint(place, edge, spacing, random);
    default: {
      const auto shell = GroupsOf(set.Atom_Structure);
      if (shell.empty()) return;
      return AddGroupPoint(place, atom, shell, DrawBelow(random, atom.RunAtomStars));
    }
  }
}

}  // namespace

int TriangleNumber(int n) { return n * (n + 1) / 2; }

int HexNumber(int n) { return 1 + 3 * n * (n - 1); }

void SeedMolecule(SeedPoint& point, const Body& body, bool jitter) {
  const int atoms = ClampTo<int>(body.Profile.Starfold_Atoms, 0, kMaxAtoms);
  if (atoms == 0) return;
  const auto& prepared = body.Prepared.RunAtoms;
  const int draw = DrawBelow(body.Random, prepared[atoms - 1].Sum);
  int pick = 0;
  while (pick + 1 < atoms && draw >= prepared[pick].Sum) ++pick;
  const RunAtom& atom = prepared[pick];
  const AtomPoint& set = body.Profile.Atom.Atoms[pick];

  Point3 cloud;
  if (atom.Offset > 0 && jitter) {
    ScatterDirection(cloud.X, cloud.Y, cloud.Z, atom.Offset, body.Random);
  }
  Place place{cloud.X, cloud.Y, cloud.Z};
  AddStructurePoint(place, atom, set, body.Random);

  point.HueOffset = ElementInfo(set.Atom_Element).Color;
  point.Y = static_cast<Single>(place.Y);
  SpinRigidly(point, body.Prepared);
  SweepWithBody(point, body.Prepared, place.X, place.Z);
}

}  // namespace starfolds
