#include "colour/tables.h"

#include <gtest/gtest.h>

#include "process/prepare_run.h"

namespace starfolds {
namespace {

struct Channels {
  int Red, Green, Blue;
  bool operator==(const Channels&) const = default;
};

Channels ChannelsOf(Colour colour) {
  return {static_cast<int>(colour & 0xFFU), static_cast<int>(colour >> 8U & 0xFFU),
          static_cast<int>(colour >> 16U & 0xFFU)};
}

std::ostream& operator<<(std::ostream& out, const Channels& c) {
  return out << c.Red << "," << c.Green << "," << c.Blue;
}

TEST(HueToRgb, SectorsMeetAtThePrimaries) {
  struct Case {
    int Hue;
    Channels Expected;
  };
  for (const Case& c :
       {Case{0, {255, 55, 55}}, Case{30, {255, 154, 55}}, Case{60, {255, 255, 55}},
        Case{120, {55, 255, 55}}, Case{180, {55, 255, 255}}, Case{240, {55, 55, 255}},
        Case{300, {255, 55, 255}}, Case{359, {255, 55, 58}}, Case{360, {0, 0, 0}}}) {
    EXPECT_EQ(ChannelsOf(HueToRgb(c.Hue, 55, 100, 100, 100)), c.Expected) << c.Hue;
  }
}

TEST(ScaleColor, RoundsAndHoldsAtWhite) {
  EXPECT_EQ(ChannelsOf(ScaleColor(0x0A0503, 0.5F)), (Channels{2, 2, 5}))
      << "1.5 and 2.5 go to even";
  EXPECT_EQ(ChannelsOf(ScaleColor(0x646464, 3)), (Channels{255, 255, 255}));
  EXPECT_EQ(ScaleColor(0xFFFFFF, -1), 0U);
}

class FlareTables : public ::testing::Test {
 protected:
  FlareTables() { Process->Tree = &Tree; }

  MemoryTree Tree;
  std::unique_ptr<ProcessState> Process = std::make_unique<ProcessState>();
  StarfoldProfile& First() { return Process->Profiles[0]; }
  ProfileColours& Colours() { return Process->Colours.Profile[0]; }
  void Drift() { DriftCometHues(Process->Colours, Process->Prepared, Process->Profiles); }
  int Level(int left) { return ChannelsOf(Colours().NewColors[left]).Red; }
};

TEST_F(FlareTables, AShortNewStarHasOnlyTheFallingPart) {
  First().Starfold_NewFrames = 1;
  Process->Profiles[1].Starfold_NewFrames = 500;
  BuildNewStarRamp(Process->Colours, Process->Profiles);
  EXPECT_EQ(Level(1), 255);
  EXPECT_EQ(Level(0), 80);
  EXPECT_EQ(Process->Profiles[1].Starfold_NewFrames, 99) << "clamped in the record";
}

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
