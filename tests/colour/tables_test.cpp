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

TEST(HueToRgb, StrengthsAreTheChannelsOwn) {
  EXPECT_EQ(ChannelsOf(HueToRgb(0, 10, 50, 100, 100)), (Channels{110, 10, 10}));
  EXPECT_EQ(ChannelsOf(HueToRgb(240, 0, 100, 100, 20)), (Channels{0, 0, 40}));
}

TEST(ScaleColor, RoundsAndHoldsAtWhite) {
  EXPECT_EQ(ChannelsOf(ScaleColor(0x0A0503, 0.5F)), (Channels{2, 2, 5}))
      << "1.5 and 2.5 go to even";
  EXPECT_EQ(ChannelsOf(ScaleColor(0x646464, 3)), (Channels{255, 255, 255}));
  EXPECT_EQ(ScaleColor(0xFFFFFF, -1), 0U);
}

class HueWheel : public ::testing::Test {
 protected:
  Channels At(int hue) {
    BuildHueWheel(table_, Profile);
    return ChannelsOf(table_[hue]);
  }
  StarfoldProfile Profile;

 private:
  std::array<Colour, 361> table_{};
};

TEST_F(HueWheel, ASmoothWheelRisesThroughItsSector) {
  EXPECT_EQ(At(0).Green, 0);
  EXPECT_NEAR(At(30).Green, 127, 1);
  EXPECT_GE(At(59).Green, 249);
  EXPECT_NEAR(At(90).Red, 127, 1);
  EXPECT_EQ(At(60).Blue, 0);
}

TEST_F(HueWheel, ASmallBlendRestartsTheRampWithinTheSector) {
  Profile.Starfold_HueBlend = 20;
  EXPECT_EQ(At(20), At(0));
  EXPECT_EQ(At(39), At(19));
  EXPECT_GT(At(19).Green, 230);
}

TEST_F(HueWheel, TheLastEntryIsTheFirst) { EXPECT_EQ(At(360), At(0)); }

TEST(FlareTableTest, FadesFromWhiteThroughTheHuesToBlack) {
  FlareTable table{};
  BuildFlareTable(table, 0, 120);
  EXPECT_EQ(table[0], 0xFFFFFFU);
  EXPECT_EQ(table[7], HueToRgb(0, 55, 100, 100, 100));
  EXPECT_EQ(table[kFlareSteps], 0U);
  // Step 40 stands half way between the hues, at (120 - 40 + 8) / 120 of full brightness.
  EXPECT_EQ(table[40], ScaleColor(HueToRgb(60, 55, 100, 100, 100), 88.0F / 120));
  EXPECT_EQ(table[72], ScaleColor(HueToRgb(120, 55, 100, 100, 100), 8.0F / 9 * 57 / 120));
  for (int i = 73; i < kFlareSteps; ++i) {
    EXPECT_LT(ChannelsOf(table[i]).Green, ChannelsOf(table[i - 1]).Green) << i;
  }
}

TEST(FlareTableTest, HuesBeyondTheCircleComeRound) {
  FlareTable plain{};
  FlareTable wrapped{};
  BuildFlareTable(plain, 30, 90);
  BuildFlareTable(wrapped, 390, 450);
  EXPECT_EQ(plain, wrapped);
}

class FlareTables : public ::testing::Test {
 protected:
  FlareTables() { Process->Tree = &Tree; }

  MemoryTree Tree;
  std::unique_ptr<ProcessState> Process = std::make_unique<ProcessState>();
  StarfoldProfile& First() { return Process->Profiles[0]; }
  ProfileColours& Colours() { return Process->Colours.Profile[0]; }
  void Drift() { DriftCometHues(Process->Colours, Process->Prepared, Process->Profiles); }
  StarTint Seed(const SeededStar& star) {
    return SeedColor(First(), Process->Prepared[0], Colours(), star, Process->Random);
  }
  int Level(int left) { return ChannelsOf(Colours().NewColors[left]).Red; }
};

TEST_F(FlareTables, ANewStarFlaresUpAndSinksToGrey) {
  First().Starfold_NewFrames = 40;
  BuildNewStarRamp(Process->Colours, Process->Profiles);
  EXPECT_EQ(Level(30), 255) << "after the first quarter";
  EXPECT_EQ(Level(0), 80);
  for (int left = 31; left <= 40; ++left) EXPECT_LE(Level(left), Level(left - 1)) << left;
  for (int left = 1; left <= 30; ++left) EXPECT_GE(Level(left), Level(left - 1)) << left;
  EXPECT_LT(Level(40), 120) << "it begins dim";
  EXPECT_EQ(Colours().NewColors[41], 0U);
}

TEST_F(FlareTables, AShortNewStarHasOnlyTheFallingPart) {
  First().Starfold_NewFrames = 1;
  Process->Profiles[1].Starfold_NewFrames = 500;
  BuildNewStarRamp(Process->Colours, Process->Profiles);
  EXPECT_EQ(Level(1), 255);
  EXPECT_EQ(Level(0), 80);
  EXPECT_EQ(Process->Profiles[1].Starfold_NewFrames, 99) << "clamped in the record";
}

TEST_F(FlareTables, APulsarBreathesBetweenItsExtents) {
  First().Starfold_PulsarFrames = 40;
  First().Starfold_PulsarMinExt = 100;
  First().Starfold_PulsarMaxExt = 900;
  BuildPulsarTables(Process->Colours, Process->Profiles);
  EXPECT_NEAR(Colours().PulsarExtents[0], 0.1, 1e-5);
  EXPECT_NEAR(Colours().PulsarExtents[20], 0.9, 1e-5);
  EXPECT_NEAR(Colours().PulsarExtents[10], 0.5, 1e-4);
  EXPECT_LT(ChannelsOf(Colours().PulsarColors[0]).Green, 60) << "it fades in from black";
  EXPECT_EQ(ChannelsOf(Colours().PulsarColors[20]).Blue, 255) << "the end hue, 220, in full";
  EXPECT_LT(ChannelsOf(Colours().PulsarColors[39]).Green, 60) << "and fades out";
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

TEST_F(FlareTables, HuesCycleByStyleAndColourRule) {
  struct Case {
    int Style, ColorComp, AdvHW;
    bool Cycles;
  };
  for (const Case& c :
       {Case{0, 3, 0, true}, Case{0, 4, 0, false}, Case{4, 5, 0, false}, Case{4, 5, 1, true},
        Case{4, 4, 1, false}, Case{7, 3, 1, false}, Case{9, 6, 0, true}}) {
    First().Starfold_FoldStyle = static_cast<Integer>(c.Style);
    First().Starfold_ColorComp = static_cast<Integer>(c.ColorComp);
    First().Starfold_CP_AdvHW = static_cast<Integer>(c.AdvHW);
    PrepareRun(*Process);
    EXPECT_EQ(Process->Prepared[0].Star.HueCycleOn, c.Cycles) << c.Style << " " << c.ColorComp;
  }
}

class SeedColorTest : public FlareTables {
 protected:
  /// The hue of a star at (x, 0, 0) of a body of radius 3, the wheel standing at 240.
  Single HueAt(Integer rule, double x, Single rv = 0, Single span = 0, int offset = 0) {
    First().Starfold_ColorComp = rule;
    First().Starfold_ColorMult = 1800;
    PrepareRun(*Process);
    BuildHueWheels(Process->Colours, Process->Profiles);
    Process->Prepared[0].HueWheel = 240;
    return Seed({x, 0, 0, rv, span, offset, {7, 99}}).StarHue;
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

TEST_F(SeedColorTest, BlackStarsKeepTheirHue) {
  EXPECT_EQ(HueAt(4, 1), 7);
  EXPECT_EQ(Seed({.X = 1, .Former = {7, 99}}).StarColor, 0U);
}

TEST_F(SeedColorTest, MoleculesAddTheHueOfTheElement) {
  const std::array<Single, 1> draw{0.5F};
  Process->Random.Script(draw);
  EXPECT_EQ(HueAt(6, 1, 0, 0, 30), 279) << "240 + 30 + 0.5 * 1.8 * 10";
}

}  // namespace
}  // namespace starfolds
