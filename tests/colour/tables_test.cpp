#include "colour/tables.h"

#include <gtest/gtest.h>

#include "process/prepare_run.h"

namespace starfolds {
namespace {

class FlareTables : public ::testing::Test {
 protected:
  FlareTables() { Process->Tree = &Tree; }

  MemoryTree Tree;
  std::unique_ptr<ProcessState> Process = std::make_unique<ProcessState>();
  StarfoldProfile& First() { return Process->Profiles[0]; }
  ProfileColours& Colours() { return Process->Colours.Profile[0]; }
  void Drift() { DriftCometHues(Process->Colours, Process->Prepared, Process->Profiles); }
};

TEST_F(FlareTables, CometHuesDriftOnlyWhereTheyAreTold) {
  First().Starfold_HWC_Inc = 0.5F;
  First().Starfold_HWC_Start = 20;
  First().Starfold_HWC_End = 60;
  PrepareRun(*Process);
  BuildFlareTables(Process->Colours, Process->Profiles, 0, 0);
  const FlareTable before = Colours().NovaRamp;
  const FlareTable other = Process->Colours.Profile[1].NovaRamp;
  for (int frame = 0; frame < 2; ++frame) Drift();
  EXPECT_EQ(Colours().NovaRamp, before) << "a sum of exactly 1 is not beyond it";
  Drift();
  FlareTable shifted{};
  BuildFlareTable(shifted, 21, 61);
  EXPECT_EQ(Colours().NovaRamp, shifted);
  EXPECT_EQ(Process->Colours.Profile[1].NovaRamp, other);
}

class SeedColorTest : public FlareTables {
 protected:
  /// The hue of a star at (x, 0, 0) of a body of radius 3, the wheel standing at 240.
  Single HueAt(Integer rule, double x, Single rv = 0, Single span = 0) {
    First().Starfold_ColorComp = rule;
    First().Starfold_ColorMult = 1800;
    PrepareRun(*Process);
    BuildHueWheels(Process->Colours, Process->Profiles);
    Process->Prepared[0].HueWheel = 240;
    return SeedColor(First(), Process->Prepared[0], Colours(), {x, 0, 0, rv, span, 0, {7, 99}},
                     Process->Random)
        .StarHue;
  }
};

TEST_F(SeedColorTest, EachRuleHasItsHue) {
  EXPECT_EQ(HueAt(0, 1, 0.01F), 258) << "0.01 * 180 * 10";
  EXPECT_EQ(HueAt(1, 1, 0.02F), 300) << "the root of 0.02 * 180 * 1000 is 60";
  EXPECT_EQ(HueAt(2, 1.5), 330) << "half way to the rim: 0.5 * 180";
  EXPECT_EQ(HueAt(3, 1.5), 285) << "0.25 * 180";
  EXPECT_EQ(HueAt(3, 0), 60) << "at the core, once round: 240 + 180";
  EXPECT_EQ(HueAt(5, 0, 0, 0.25F), 42) << "0.25 * 1.8 * 360 = 162";
  EXPECT_EQ(HueAt(2, 30), 60) << "nine radii beyond the rim, 1620 degrees on";
}

TEST_F(SeedColorTest, ABodyOfRadiusZeroKeepsTheFormerHue) {
  First().Starfold_Radius = 300;
  First().Starfold_StdLevels = 3;
  First().Starfold_StdLevDRad = -150;
  for (const Integer rule : {Integer{2}, Integer{3}}) EXPECT_EQ(HueAt(rule, 1), 7);
}

}  // namespace
}  // namespace starfolds
