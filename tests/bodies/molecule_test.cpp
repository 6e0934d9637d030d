#include "bodies/molecule.h"

#include <algorithm>
#include <map>
#include <numbers>
#include <set>
#include <tuple>

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

class Lattice : public Molecule {
 protected:
  /// The places of a structure, all of which are equally likely.
  Spots PlacesOf(Integer structure, Integer edge, int points) {
    Atom(0).Atom_Structure = structure;
    Atom(0).Atom_LocX = edge;
    SetUpSlots();
    Spots places;
    for (const auto& [spot, count] : Draw(400 * points)) {
      places.insert(spot);
      EXPECT_NEAR(count, 400, FiveSigma(400 * points, 1.0 / points));
    }
    EXPECT_EQ(places.size(), static_cast<std::size_t>(points));
    return places;
  }
};

TEST_F(Lattice, ShellsAndStacksLieEvenlyAboutTheAxis) {
  const double layer = std::sqrt(2.0 / 3);  // of close packing
  const double degree = std::numbers::pi / 180;
  struct Case {
    Integer Structure, Edge;
    int Points;
    double Top, Nearest;  // the highest place and the least distance, in spacings
  };
  for (const Case& c : {
           Case{1, 0, 6, 1, std::sqrt(2)},
           Case{2, 0, 8, 1, 2},
           Case{3, 0, 18, 1, 2 * std::sin(22.5 * degree)},
           Case{4, 0, 26, 1, std::hypot(std::sqrt(2) * (std::sqrt(0.5) - 0.594603), 0.594603)},
           Case{5, 0, 38, 1, 2 * std::sin(15 * degree)},
           Case{6, 2, 4, 0, 1},
           Case{6, 4, 16, 0, 1},
           Case{7, 2, 7, 0, 1},
           Case{7, 4, 37, 0, 1},
           Case{8, 2, 8, 0.5, 1},
           Case{8, 4, 64, 1.5, 1},
           Case{9, 2, 4, layer / 3, 1},
           Case{9, 3, 10, layer, 1},
           Case{10, 2, 5, layer, 1},
           Case{10, 3, 14, 2 * layer, 1},
           Case{11, 2, 16, 1.5, 1},
           Case{11, 3, 71, 2, 1},
           Case{11, 4, 200, 3.5, 1},
       }) {
    SCOPED_TRACE(testing::Message() << "structure " << c.Structure << ", edge " << c.Edge);
    const Spots places = PlacesOf(c.Structure, c.Edge, c.Points);
    double sumX = 0, sumZ = 0, top = -99, nearest = 99;
    for (auto a = places.begin(); a != places.end(); ++a) {
      const auto [x, y, z] = *a;
      sumX += x / 1000.0;
      sumZ += z / 1000.0;
      top = std::max(top, y / 1000.0);
      for (auto b = places.begin(); b != a; ++b) {
        const auto [bx, by, bz] = *b;
        nearest = std::min(nearest, Length(x - bx, y - by, z - bz) / 1000);
      }
    }
    EXPECT_NEAR(sumX / c.Points, 0, 0.001);
    EXPECT_NEAR(sumZ / c.Points, 0, 0.001);
    EXPECT_NEAR(top, c.Top * kSpacing, 0.001);
    EXPECT_NEAR(nearest, c.Nearest * kSpacing, 0.002);
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
  EXPECT_EQ(Draw(10), (std::map<Spot, int>{{SpotAt(2, -2.5, 3), 10}}));
  Atom(0).Atom_Structure = 12;
  EXPECT_EQ(Draw(10), (std::map<Spot, int>{{SpotAt(0, 0, 0), 10}})) << "there is no such structure";
}

TEST_F(Molecule, AtomsAreDrawnByTheirPointsAndLatticesAsOne) {
  struct Case {
    Integer Structure, Element;
    int Hue;  // of the element
    double Weight;
  };
  const std::array cases{Case{4, 6, 210, 26}, Case{0, 1, 180, 1}, Case{8, 16, 60, 1},
                         Case{1, 2, 330, 6}};
  for (std::size_t i = 0; i < cases.size(); ++i) {
    Atom(i).Atom_Structure = cases[i].Structure;
    Atom(i).Atom_Element = cases[i].Element;
    Atom(i).Atom_LocX = 50;
  }
  SetUpSlots();
  constexpr int stars = 34000;
  std::map<int, int> hits;
  for (int i = 0; i < stars; ++i) ++hits[Seed().HueOffset];
  for (const Case& c : cases) {
    EXPECT_NEAR(hits[c.Hue], stars * c.Weight / 34, FiveSigma(stars, c.Weight / 34)) << c.Hue;
  }
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
  ExpectPoint(PlaceOf(nucleus), {3, 0, 0});
}

TEST_F(Molecule, WithoutAtomsAStarStaysAsItIs) {
  SetUpSlots();
  SeedPoint star;
  star.X = star.Y = star.Z = 5;
  Draws({0.5F});
  SeedAsStar(star);
  EXPECT_EQ(Random().ScriptedDrawsLeft(), 1U);
  ExpectPoint(PlaceOf(star), {5, 5, 5}, 0);
}

TEST_F(Molecule, EdgesAreHeldBetweenOneAndNinetyNinePoints) {
  Atom(0).Atom_Structure = 6;
  for (const auto& [edge, reach] : {std::pair{0, 0.0}, std::pair{500, 49 * kSpacing}}) {
    Atom(0).Atom_LocX = static_cast<Integer>(edge);
    SetUpSlots();
    double farthest = 0;
    for (int i = 0; i < 5000; ++i) farthest = std::max(farthest, std::abs(double{Seed().X}));
    EXPECT_NEAR(farthest, reach, 1e-4) << edge;
  }
}

}  // namespace
}  // namespace starfolds
