#include "bodies/molecule.h"

#include <algorithm>
#include <map>
#include <numbers>
#include <set>
#include <tuple>

#include "bodies/star_motion.h"
#include "one_body.h"

namespace starfolds {
namespace {

/// Coordinates in thousandths, so that places can be compared.
using Spot = std::tuple<long, long, long>;
using Spots = std::set<Spot>;

Spot SpotAt(double x, double y, double z) {
  return {std::lround(x * 1000), std::lround(y * 1000), std::lround(z * 1000)};
}

constexpr double kSpacing = 2;

/// A body whose atoms have the symmetry radius 2.
class Molecule : public OneBody {
 protected:
  Molecule() : OneBody(FoldStyle::Molecule) { Set().Starfold_Radius = 1000; }

  AtomPoint& Atom(std::size_t i) {
    Set().Starfold_Atoms = std::max(Set().Starfold_Atoms, static_cast<Integer>(i + 1));
    AtomPoint& atom = Set().Atom.Atoms[i];
    atom.Atom_Radius = 200;
    return atom;
  }

  std::map<Spot, int> Draw(int stars) {
    std::map<Spot, int> hits;
    for (int i = 0; i < stars; ++i) {
      const SeedPoint star = Seed();
      ++hits[SpotAt(star.X, star.Y, star.Z)];
    }
    return hits;
  }
};

/// All places whose coordinates have the given amounts, in any order and with any signs.
void AddShell(Spots& spots, std::array<double, 3> amounts) {
  std::sort(amounts.begin(), amounts.end());
  do {
    for (int signs = 0; signs < 8; ++signs) {
      spots.insert(SpotAt((signs & 1 ? -1 : 1) * amounts[0] * kSpacing,
                          (signs & 2 ? -1 : 1) * amounts[1] * kSpacing,
                          (signs & 4 ? -1 : 1) * amounts[2] * kSpacing));
    }
  } while (std::next_permutation(amounts.begin(), amounts.end()));
}

Spots Shells(std::initializer_list<std::array<double, 3>> shells) {
  Spots spots;
  for (const auto& amounts : shells) AddShell(spots, amounts);
  return spots;
}

/// A grid of `edge` places on each of the axes that extend, about the centre.
Spots Grid(int edge, int layers) {
  Spots spots;
  const double half = (edge - 1) / 2.0;
  for (int x = 0; x < edge; ++x) {
    for (int z = 0; z < edge; ++z) {
      for (int y = 0; y < layers; ++y) {
        spots.insert(SpotAt((x - half) * kSpacing, (y - (layers - 1) / 2.0) * kSpacing,
                            (z - half) * kSpacing));
      }
    }
  }
  return spots;
}

/// The places of a hexagonal lattice less than `rings` steps from the centre.
void AddHexagon(Spots& spots, int rings, double y) {
  for (int q = -rings; q <= rings; ++q) {
    for (int r = -rings; r <= rings; ++r) {
      if (std::max({std::abs(q), std::abs(r), std::abs(q + r)}) >= rings) continue;
      spots.insert(SpotAt((q + r * 0.5) * kSpacing, y, r * std::sqrt(0.75) * kSpacing));
    }
  }
}

Spots Hexagon(int rings) {
  Spots spots;
  AddHexagon(spots, rings, 0);
  return spots;
}

const double kLayer = std::sqrt(2.0 / 3);

/// A tetrahedron of `edge` places to a side, tip up: weighted sums of its four corners with whole
/// weights. `lift` is the height of its tip.
Spots Tetrahedron(int edge, double lift, bool mirrored = false) {
  const double corners[4][3] = {{0, 0, 0},
                                {0, -kLayer, 1 / std::sqrt(3)},
                                {0.5, -kLayer, -0.5 / std::sqrt(3)},
                                {-0.5, -kLayer, -0.5 / std::sqrt(3)}};
  Spots spots;
  for (int a = 0; a < edge; ++a) {
    for (int b = 0; a + b < edge; ++b) {
      for (int c = 0; a + b + c < edge; ++c) {
        double place[3];
        for (int axis = 0; axis < 3; ++axis) {
          place[axis] = a * corners[1][axis] + b * corners[2][axis] + c * corners[3][axis];
        }
        const double y = place[1] + lift;
        spots.insert(
            SpotAt(place[0] * kSpacing, (mirrored ? -y : y) * kSpacing, place[2] * kSpacing));
      }
    }
  }
  return spots;
}

/// The tip of a stack of `edge` layers, had it one layer more there, lies at two thirds of its
/// height.
Spots Tetramatrix(int edge) { return Tetrahedron(edge, (edge * 2.0 / 3 - 1) * kLayer); }

/// Two stacks base to base at height 0.
Spots Octamatrix(int edge) {
  Spots spots = Tetrahedron(edge, (edge - 1) * kLayer);
  spots.merge(Tetrahedron(edge, (edge - 1) * kLayer, true));
  return spots;
}

/// A column of hexagons, one spacing apart, that widen from half of the rings to all of them and
/// narrow again.
Spots Hexamatrix(int edge) {
  const int tip = edge == 3 ? 2 : edge / 2;  // half, to the even number
  const int layers = edge + 2 * (edge - tip);
  Spots spots;
  for (int layer = 0; layer < layers; ++layer) {
    const int fromEnd = std::min(layer, layers - 1 - layer);
    AddHexagon(spots, std::min(edge, tip + fromEnd), (layer - (layers - 1) / 2.0) * kSpacing);
  }
  return spots;
}

TEST_F(Molecule, EveryPointOfAStructureIsThereAndEquallyLikely) {
  const double cube = std::pow(2, -0.75);
  const double half = std::sqrt(0.5);
  const double third = std::sqrt(0.75);
  struct Case {
    Integer Structure;
    Integer Edge;
    Spots Expected;
  };
  std::vector<Case> cases{
      {1, 0, Shells({{1, 0, 0}})},
      {2, 0, Shells({{1, 1, 1}})},
      {3, 0, Shells({{1, 0, 0}, {half, half, 0}})},
      {4, 0, Shells({{1, 0, 0}, {half, half, 0}, {cube, cube, cube}})},
      {5, 0, Shells({{1, 0, 0}, {cube, cube, cube}, {third, 0.5, 0}})},
  };
  for (Integer edge = 1; edge <= 4; ++edge) {
    cases.push_back({6, edge, Grid(edge, 1)});
    cases.push_back({7, edge, Hexagon(edge)});
    cases.push_back({8, edge, Grid(edge, edge)});
    cases.push_back({9, edge, Tetramatrix(edge)});
    cases.push_back({10, edge, Octamatrix(edge)});
    if (edge > 1) cases.push_back({11, edge, Hexamatrix(edge)});
  }
  for (const Case& c : cases) {
    Atom(0).Atom_Structure = c.Structure;
    Atom(0).Atom_LocX = c.Edge;
    SetUpSlots();
    SCOPED_TRACE(testing::Message() << "structure " << c.Structure << ", edge " << c.Edge);
    const auto points = static_cast<int>(c.Expected.size());
    const int stars = 400 * points;
    const std::map<Spot, int> hits = Draw(stars);
    Spots seen;
    for (const auto& [spot, count] : hits) {
      seen.insert(spot);
      EXPECT_NEAR(count, 400, FiveSigma(stars, 1.0 / points));
    }
    EXPECT_EQ(seen, c.Expected);
    if (c.Structure <= 5) {
      EXPECT_EQ(Run().RunAtoms[0].RunAtomStars, points) << "a shell's weight";
    }
  }
}

/// The least distance between two of the places.
double NearestNeighbours(const std::map<Spot, int>& spots) {
  double least = 1e9;
  for (auto a = spots.begin(); a != spots.end(); ++a) {
    for (auto b = spots.begin(); b != a; ++b) {
      const auto [ax, ay, az] = a->first;
      const auto [bx, by, bz] = b->first;
      least = std::min(least, Length(ax - bx, ay - by, az - bz) / 1000);
    }
  }
  return least;
}

TEST_F(Molecule, StacksAreClosePacked) {
  for (const Integer structure : {6, 7, 8, 9, 10, 11}) {
    Atom(0).Atom_Structure = structure;
    Atom(0).Atom_LocX = 4;
    SetUpSlots();
    EXPECT_NEAR(NearestNeighbours(Draw(20000)), kSpacing, 0.002) << int{structure};
  }
}

TEST_F(Molecule, TheSmallestHexamatrixIsLopsided) {
  Atom(0).Atom_Structure = 11;
  Atom(0).Atom_LocX = 1;
  SetUpSlots();
  constexpr int stars = 3000;
  const std::map<Spot, int> hits = Draw(stars);
  ASSERT_EQ(hits.size(), 2U);
  EXPECT_NEAR(hits.at(SpotAt(0, -kSpacing, 0)), stars / 3.0, FiveSigma(stars, 1.0 / 3));
  EXPECT_NEAR(hits.at(SpotAt(0, 0, 0)), stars * 2 / 3.0, FiveSigma(stars, 1.0 / 3));
}

TEST_F(Molecule, ASingleAtomIsADotAtItsLocation) {
  Atom(0).Atom_LocX = 700;
  Atom(0).Atom_LocY = 150;
  Atom(0).Atom_LocZ = 300;
  Set().Atom.Atom_CenterX = 500;
  Set().Atom.Atom_CenterY = 400;
  SetUpSlots();
  EXPECT_EQ(Draw(100), (std::map<Spot, int>{{SpotAt(2, -2.5, 3), 100}}));
}

TEST_F(Molecule, AtomsAreDrawnByTheirPointsAndLatticesAsOne) {
  Atom(0).Atom_Structure = 4;
  Atom(0).Atom_Element = 6;
  Atom(1).Atom_Structure = 0;
  Atom(1).Atom_Element = 1;
  Atom(2).Atom_Structure = 8;
  Atom(2).Atom_LocX = 50;
  Atom(2).Atom_Element = 16;
  Atom(3).Atom_Structure = 1;
  Atom(3).Atom_Element = 2;
  SetUpSlots();
  constexpr int stars = 34000;
  std::map<int, int> hits;  // by the element's hue
  for (int i = 0; i < stars; ++i) ++hits[Seed().HueOffset];
  struct Case {
    int Hue;
    double Weight;
  };
  for (const Case& c : {Case{210, 26}, Case{180, 1}, Case{60, 1}, Case{330, 6}}) {
    EXPECT_NEAR(hits[c.Hue], stars * c.Weight / 34, FiveSigma(stars, c.Weight / 34)) << c.Hue;
  }
  EXPECT_EQ(hits.size(), 4U);
}

TEST_F(Molecule, AStarShowsTheHueOfItsElement) {
  Atom(0).Atom_Element = 7;  // nitrogen, 240
  Set().Starfold_ColorComp = 6;
  Set().Starfold_ColorMult = 0;
  Set().Starfold_HueStart = 200;
  SetUpSlots();
  BuildHueWheels(Process());
  StarArrays stars(1, 1);
  SeedStar(Process(), stars, Slots, 0);
  EXPECT_NEAR(stars.Star[0].StarHue, 80, 1e-3);
}

TEST_F(Molecule, TheOffsetSpreadsStarsOverASphereAboutEachPoint) {
  Atom(0).Atom_LocX = 300;
  Atom(0).Atom_Size = 50;
  SetUpSlots();
  constexpr int stars = 16000;
  std::array<int, 8> octants{};
  for (int i = 0; i < stars; ++i) {
    const SeedPoint star = Seed();
    ASSERT_NEAR(Length(star.X - 3, star.Y, star.Z), 0.5, 1e-5);
    ++octants[static_cast<std::size_t>((star.X > 3) + 2 * (star.Y > 0) + 4 * (star.Z > 0))];
  }
  for (const int count : octants) EXPECT_NEAR(count, stars / 8, FiveSigma(stars, 0.125));
  SeedPoint nucleus;
  SeedMolecule(nucleus, TheBody(), false);
  EXPECT_EQ(SpotAt(nucleus.X, nucleus.Y, nucleus.Z), SpotAt(3, 0, 0)) << "on the point itself";
}

TEST_F(Molecule, WithoutAtomsAStarStaysAsItIs) {
  Set().Starfold_ColorComp = 4;
  SetUpSlots();
  StarArrays stars(1, 1);
  stars.Star[0].StarX = 5;
  stars.Star[0].StarY = 6;
  stars.Star[0].StarZ = 7;
  stars.Star[0].StarSpinSin = 0.5F;
  Draws({0.5F});
  SeedStar(Process(), stars, Slots, 0);
  EXPECT_EQ(Random().ScriptedDrawsLeft(), 1U);
  EXPECT_EQ(stars.Star[0].StarX, 5);
  EXPECT_EQ(stars.Star[0].StarY, 6);
  EXPECT_EQ(stars.Star[0].StarZ, 7);
  EXPECT_EQ(stars.Star[0].StarSpinSin, 0.5F);
}

TEST_F(Molecule, EdgesAreHeldBetweenOneAndNinetyNinePoints) {
  Atom(0).Atom_Structure = 6;
  struct Case {
    Integer Edge;
    double Reach;
  };
  for (const Case& c :
       {Case{0, 0}, Case{1, 0}, Case{99, 49 * kSpacing}, Case{500, 49 * kSpacing}}) {
    Atom(0).Atom_LocX = c.Edge;
    SetUpSlots();
    double reach = 0;
    for (int i = 0; i < 5000; ++i) reach = std::max(reach, std::abs(double{Seed().X}));
    EXPECT_NEAR(reach, c.Reach, 1e-4) << c.Edge;
  }
}

TEST_F(Molecule, UnknownStructuresHaveNoPoint) {
  for (const Integer structure : {12, 13}) {
    Atom(0).Atom_Structure = structure;
    Atom(0).Atom_LocX = 900;
    SetUpSlots();
    EXPECT_EQ(Draw(10), (std::map<Spot, int>{{SpotAt(0, 0, 0), 10}})) << structure;
  }
}

TEST_F(Molecule, AStarComesInWhereTheTurningBodyStands) {
  Atom(0).Atom_LocX = 300;
  Atom(0).Atom_LocZ = 400;
  Set().Starfold_Rotation = 10000;
  SetUpSlots();
  const SeedPoint early = Seed();
  StarState carried;
  carried.StarX = early.X;
  carried.StarZ = early.Z;
  carried.StarSpinCos = early.SpinCos;
  carried.StarSpinSin = early.SpinSin;
  for (int frame = 0; frame < 100; ++frame) {
    AdvanceAngles(Process());
    RotateStar(carried);
  }
  const SeedPoint late = Seed();
  EXPECT_NEAR(late.X, carried.StarX, 1e-3);
  EXPECT_NEAR(late.Z, carried.StarZ, 1e-3);
  EXPECT_NEAR(std::atan2(late.Z, late.X), std::atan2(4, 3) + 100 * 0.08 - 2 * std::numbers::pi,
              1e-3);
}

}  // namespace
}  // namespace starfolds
