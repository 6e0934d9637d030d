#include "bodies/molecule.h"

#include <algorithm>

#include "one_body.h"

namespace starfolds {
namespace {

class Molecule : public OneBody {
 protected:
  Molecule() : OneBody(FoldStyle::Molecule) { Set().Starfold_Radius = 1000; }
};

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
  constexpr double spacing = 2;
  AtomPoint& atom = Set().Atom.Atoms[0];
  atom.Atom_Structure = 6;
  atom.Atom_Radius = 200;
  Set().Starfold_Atoms = 1;
  for (const auto& [edge, reach] : {std::pair{0, 0.0}, std::pair{500, 49 * spacing}}) {
    atom.Atom_LocX = static_cast<Integer>(edge);
    SetUpSlots();
    double farthest = 0;
    for (int i = 0; i < 5000; ++i) farthest = std::max(farthest, std::abs(double{Seed().X}));
    EXPECT_NEAR(farthest, reach, 1e-4) << edge;
  }
}

}  // namespace
}  // namespace starfolds
