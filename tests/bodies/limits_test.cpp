// The limits that keep products, pools and lattices in their types.
#include "bodies/comets.h"

#include <gtest/gtest.h>

#include <cmath>

#include "bodies/flares.h"
#include "bodies/molecule.h"
#include "scenes/scenes.h"

namespace starfolds {
namespace {

TEST(NovaRowTest, StaysWhereTheProductWouldOverflow) {
  EXPECT_EQ(NovaRow(30, 30), 0);
  EXPECT_EQ(NovaRow(30, 15), 40);
  EXPECT_EQ(NovaRow(30, 1), 77);
  EXPECT_EQ(NovaRow(999, 590), 33) << "409 frames old: 409 * 80 just fits";
  EXPECT_EQ(NovaRow(999, 1), 33) << "and there it stays";
}

TEST(Comets, ThePoolHoldsAsManyAsTheirStarsFitIn) {
  for (const auto& [stars, comets] : {std::pair{0, 100}, std::pair{25, 100}, std::pair{26, 96},
                                      std::pair{2500, 1}, std::pair{2501, 0}}) {
    EXPECT_EQ(CometRoom(static_cast<Integer>(stars)), comets) << stars;
  }
}

/// Also in a record that was not clamped.
TEST(Molecule, TheEdgeOfALatticeHasAtMost99Points) {
  scenes::Stage stage;
  StarfoldProfile& profile = stage.Process->Profiles[0];
  profile.Starfold_Radius = 1000;
  profile.Starfold_Atoms = 1;
  profile.Atom.Atoms[0] = {.Atom_LocX = 500, .Atom_Structure = 6, .Atom_Radius = 200};
  PrepareRun(*stage.Process);
  for (int i = 0; i < 5000; ++i) {
    SeedPoint star;
    SeedMolecule(star, {*stage.Process, 0}, false);
    ASSERT_LE(std::abs(star.X), 49 * 2 + 1e-4) << "the points lie 2 apart";
  }
}

}  // namespace
}  // namespace starfolds
