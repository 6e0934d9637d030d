#include "bodies/body_slots.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "bodies/molecule.h"
#include "scenes/scenes.h"

namespace starfolds {
namespace {

constexpr Integer kComposite = kFirstComposite + 4;

TEST(BodySlots, APlainEntryStandsForItselfWithoutADraw) {
  scenes::Stage stage;
  ProcessState& process = *stage.Process;
  const auto initComposite = [&](const std::vector<Integer>& members) {
    CompositeProfile& composite = process.Composites[kComposite - kFirstComposite];
    composite.CompFold_Count = static_cast<Integer>(members.size());
    std::ranges::copy(members, composite.CompFold_Type.begin());
    PrepareRun(process);
    BodySlots slots;
    InitBodies(process, slots, std::vector<Integer>{kComposite});
  };
  initComposite({12, 6});
  const std::vector<Single> draws{0.99F};
  process.Random.Script(draws);
  EXPECT_EQ(PickProfile(process, 49), 49);
  EXPECT_EQ(ResolveProfile(process, kComposite), 12);
  EXPECT_EQ(PickProfile(process, kComposite), 6) << "and this draws";
  initComposite({});
  EXPECT_EQ(PickProfile(process, kComposite), 0) << "an empty one is the first profile";
}

/// However the record came to be: stored ones are clamped before.
TEST(Molecule, TheEdgeOfALatticeHasAtMost99Points) {
  scenes::Stage stage;
  StarfoldProfile& profile = stage.Process->Profiles[0];
  profile.Starfold_Radius = 1000;
  profile.Starfold_Atoms = 1;
  profile.Atom.Atoms[0] = {.Atom_LocX = 500, .Atom_Structure = 6, .Atom_Radius = 200};
  PrepareRun(*stage.Process);
  Single farthest = 0;
  for (int i = 0; i < 5000; ++i) {
    SeedPoint star;
    SeedMolecule(star, {*stage.Process, 0}, false);
    farthest = std::max(farthest, std::abs(star.X));
  }
  EXPECT_NEAR(farthest, 49 * 2, 1e-4) << "the points lie 2 apart";
}

}  // namespace
}  // namespace starfolds
