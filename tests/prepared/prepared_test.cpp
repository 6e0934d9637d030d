#include "prepared/prepared.h"

#include <gtest/gtest.h>

#include <array>
#include <numbers>

#include "process/prepare_run.h"
#include "settings/fields.h"

namespace starfolds {
namespace {

constexpr double kDegree = std::numbers::pi / 180;

class Prepared : public ::testing::Test {
 protected:
  Prepared() { Process->Tree = &Tree; }

  MemoryTree Tree;
  std::unique_ptr<ProcessState> Process = std::make_unique<ProcessState>();
  StarfoldProfile& First() { return Process->Profiles[0]; }
  PreparedProfile& Run() { return Process->Prepared[0]; }
};

TEST_F(Prepared, OnlyTheStandardStyleHasLevels) {
  First().Starfold_StdLevels = 4;
  First().Starfold_StdLevDRad = 200;
  Process->Profiles[1].Starfold_StdLevels = 4;
  Process->Profiles[1].Starfold_FoldStyle = 5;
  PrepareRun(*Process);
  EXPECT_EQ(Run().RunLevels, 4);
  EXPECT_FLOAT_EQ(Run().RunMaxRadius, 9.0F) << "three steps of 2 beyond the radius of 3";
  EXPECT_EQ(Process->Prepared[1].RunLevels, 1);
  EXPECT_EQ(Process->Profiles[1].Starfold_StdLevels, 1) << "written back to the record";
}

TEST_F(Prepared, TiltStepsTaperAlternateAndBeyondHalfATurnRunBackward) {
  First().Starfold_StdLevels = 2;
  First().Starfold_AngleTInc = 352;
  First().Starfold_StdLevB_A1 = 1;
  First().Starfold_StdLevB_A0 = 1;
  PrepareRun(*Process);
  EXPECT_NEAR(Run().LevelTiltStep[0], 352 * kDegree, 1e-5);
  EXPECT_NEAR(Run().LevelTiltStep[1], -356 * kDegree, 1e-5)
      << "half of eight degrees back, and turned";
}

TEST_F(Prepared, AtomsAreMeasuredFromTheirCentreInTenthsOfTheRadius) {
  First().Starfold_Radius = 1000;
  First().Starfold_Atoms = 1;
  First().Atom.Atom_CenterX = 500;
  First().Atom.Atom_CenterY = 400;
  First().Atom.Atoms[0] = {.Atom_LocX = 700, .Atom_LocY = 150, .Atom_LocZ = 300};
  PrepareRun(*Process);
  const RunAtom& atom = Run().RunAtoms[0];
  EXPECT_EQ((std::array<Single, 3>{atom.X, atom.Y, atom.Z}), (std::array<Single, 3>{2, -2.5F, 3}));
}

TEST(PreparedUniverse, TheTrailsOfAllStarsFitSixteenBits) {
  for (const auto& [stars, trail] :
       {std::pair{30000, 1}, std::pair{10000, 3}, std::pair{400, 75}}) {
    UniverseSettings universe;
    universe.Universe_Stars = static_cast<Integer>(stars);
    universe.Universe_STrail = 99;
    EXPECT_EQ(PrepareUniverse(universe).RunTrail, trail) << stars;
  }
}

}  // namespace
}  // namespace starfolds
