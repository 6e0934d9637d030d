#include "prepared/prepared.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "process/prepare_run.h"
#include "settings/stored_records.h"

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

  void Randomize(Integer magnitude, Integer exponent) {
    AdvancedSettings advanced;
    advanced.Adv_Randomize = true;
    advanced.Adv_RandomMag = magnitude;
    advanced.Adv_RandomExp = exponent;
    SaveAdvancedToRegistry(Tree, advanced);
  }
};

TEST_F(Prepared, UnitsAreConvertedOnce) {
  First().Starfold_Radius = 250;
  First().Starfold_Rotation = 2000;
  First().Starfold_RadSegs = 8;
  PrepareRun(*Process);
  EXPECT_FLOAT_EQ(Run().RunRadius, 2.5F);
  EXPECT_FLOAT_EQ(Run().RunRadiusSq, 6.25F);
  EXPECT_FLOAT_EQ(Run().RunRadiusTenth, 0.025F);
  EXPECT_FLOAT_EQ(Run().RunSpin, 0.002F);
  EXPECT_FLOAT_EQ(Run().RunSpin8, 0.016F);
  EXPECT_NEAR(Run().RunCoreSpin, std::sqrt(1 / 2.5) * 2 * std::numbers::pi * 0.002, 1e-7);
  EXPECT_NEAR(Run().RunSegAngle, std::numbers::pi / 4, 1e-6);
  EXPECT_NEAR(Run().RunTilt, -170 * kDegree, 1e-5);
}

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

TEST_F(Prepared, TiltStepsTaperAndAlternate) {
  First().Starfold_StdLevels = 4;
  First().Starfold_AngleTInc = 8;
  First().Starfold_StdLevB_A1 = 1;
  First().Starfold_StdLevB_A0 = 1;
  PrepareRun(*Process);
  const double expected[] = {8, -6, 4, -2};
  for (int i = 0; i < 4; ++i) EXPECT_NEAR(Run().LevelTiltStep[i], expected[i] * kDegree, 1e-5) << i;
}

TEST_F(Prepared, ATiltBeyondHalfATurnTapersBackward) {
  First().Starfold_StdLevels = 2;
  First().Starfold_AngleTInc = 352;
  First().Starfold_StdLevB_A1 = 1;
  PrepareRun(*Process);
  EXPECT_NEAR(Run().LevelTiltStep[0], 352 * kDegree, 1e-5);
  EXPECT_NEAR(Run().LevelTiltStep[1], 356 * kDegree, 1e-5) << "half of eight degrees back";
}

TEST_F(Prepared, ARandomFactorMultipliesOrDivides) {
  Randomize(5, 2);
  // Profile 0: size times 1 + 0.25 * 4, speed by 1 + 1/16 * 4.
  const std::array<Single, 4> draws{0.5F, 0.1F, 0.25F, 0.9F};
  Process->Random.Script(draws);
  PrepareRun(*Process);
  EXPECT_FLOAT_EQ(Run().RunRadius, 3.0F * 2);
  EXPECT_FLOAT_EQ(Run().RunDistance, 4.0F * 2);
  EXPECT_FLOAT_EQ(Run().RunSpin, 0.0005F / 1.25F);
  EXPECT_FLOAT_EQ(Run().RunCometOrbit, 0.001F / 1.25F);
  EXPECT_FLOAT_EQ(Run().Star.WaveAmplitude, 0.3F * 3.0F) << "the wave's height keeps its size";
}

TEST_F(Prepared, RecordsAreMeasuredFromTheirCentreInTenthsOfTheRadius) {
  First().Starfold_Radius = 1000;
  First().Starfold_FoldStyle = 8;
  First().Starfold_IFS_Points = 2;
  First().IFS.IFS_CenterX = 500;
  First().IFS.Points[0].IFS_LocX = 1500;
  First().IFS.Points[0].IFS_Scale = 33;
  First().IFS.Points[0].IFS_RelPct = 4;
  First().IFS.Points[1].IFS_RelPct = 2;
  PrepareRun(*Process);
  EXPECT_FLOAT_EQ(Run().RunIfs[0].X, 10.0F) << "(15 - 5) tenths of 10";
  EXPECT_FLOAT_EQ(Run().RunIfs[1].X, -5.0F);
  EXPECT_FLOAT_EQ(Run().RunIfs[0].Scale, 0.33F);
  EXPECT_EQ(Run().RunIfs[1].Sum, 6);
}

TEST_F(Prepared, AnglesAdvanceAndComeRound) {
  First().Starfold_AngleTilt = 359;
  First().Starfold_AngleTInc = 2;
  First().Starfold_HueStart = 359;
  First().Starfold_HWheelInc = 1.5F;
  PrepareRun(*Process);
  ResetAngles(Run(), First());
  EXPECT_NEAR(Run().Star.LevelCos[0], std::cos(359 * kDegree), 1e-5);
  AdvanceAngles(Process->Prepared);
  EXPECT_NEAR(Run().LevelTilt[0], 1 * kDegree, 1e-5);
  EXPECT_NEAR(Run().Star.LevelSin[0], std::sin(1 * kDegree), 1e-5);
  EXPECT_NEAR(Run().HueWheel, 0.5, 1e-4);
  EXPECT_NEAR(Run().SweepCos, std::cos(Run().SweepPhase), 1e-6);
  EXPECT_GT(Run().SweepPhase, 0);
}

TEST(PreparedUniverse, HasTheUnitsOfTheRun) {
  UniverseSettings universe;
  universe.Universe_Expand = -3;
  universe.Universe_Damping = 0.5F;
  universe.Universe_NewPctStEx = 34.5F;
  universe.Universe_AmMaxExt = 20000;
  universe.Universe_GravForce = 1e9F;
  ClampUniverse(universe);
  const PreparedUniverse run = PrepareUniverse(universe);
  EXPECT_EQ(run.RunExpand, 0);
  EXPECT_FLOAT_EQ(run.RunDamping, 0.75F);
  EXPECT_FLOAT_EQ(run.RunNewShare, 0.34F) << "34.5 rounds to even";
  EXPECT_FLOAT_EQ(run.RunAmMaxExt, 99.99F);
  EXPECT_NEAR(run.RunGravForce, 0.0999999, 1e-8);
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
