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
