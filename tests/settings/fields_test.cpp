#include "settings/fields.h"

#include <gtest/gtest.h>

namespace starfolds {
namespace {

TEST(ClampProfileTest, RangesFollowTheClampedStyle) {
  struct Case {
    int Style, Segs, ExpectedStyle, ExpectedSegs;
  };
  for (const Case& c :
       {Case{2, 2, 2, 4}, Case{kStyleCount + 2, 500, kStyleCount - 1, 99}, Case{-4, 0, 0, 1}}) {
    StarfoldProfile profile;
    profile.Starfold_FoldStyle = static_cast<Integer>(c.Style);
    profile.Starfold_RadSegs = static_cast<Integer>(c.Segs);
    ClampProfile(profile);
    EXPECT_EQ(profile.Starfold_FoldStyle, c.ExpectedStyle);
    EXPECT_EQ(profile.Starfold_RadSegs, c.ExpectedSegs) << c.Style;
  }
}

TEST(ClampProfileTest, OnlyEntriesInUseAreTouchedAndALatticeHasAnEdge) {
  StarfoldProfile profile;
  profile.Starfold_Atoms = 1;
  profile.Atom.Atoms[0] = {99, 0, -5, 20000, 8, 1, 1, 0};
  profile.Atom.Atoms[1].Atom_Element = 99;
  ClampProfile(profile);
  EXPECT_EQ(profile.Atom.Atoms[0].Atom_Element, 17);
  EXPECT_EQ(profile.Atom.Atoms[0].Atom_LocX, 1) << "a lattice has at least one point an edge";
  EXPECT_EQ(profile.Atom.Atoms[0].Atom_LocZ, 9999);
  EXPECT_EQ(profile.Atom.Atoms[0].Atom_Count, 1);
  EXPECT_EQ(profile.Atom.Atoms[1].Atom_Element, 99);
}

TEST(ClampAdvancedTest, TextsHaveTheirLimits) {
  AdvancedSettings advanced;
  advanced.LockMessage = "  " + std::string(120, 'x') + " ";
  advanced.Adv_FontName = "";
  advanced.Adv_EffectFPC = 3;
  ClampAdvanced(advanced);
  EXPECT_EQ(advanced.LockMessage, std::string(100, 'x'));
  EXPECT_EQ(advanced.Adv_FontName, "MS Sans Serif");
  EXPECT_EQ(advanced.Adv_EffectFPC, 100);
}

TEST(SetByNameTest, FindsEverySettingAndSaysWhatItCannotFind) {
  SettingsRecords records;
  EXPECT_FALSE(SetByName(records, "Universe_Stars", "123"));
  EXPECT_FALSE(SetByName(records, "Adv_TimeDelay", "7"));
  EXPECT_FALSE(SetByName(records, "Starfold_Radius", "777"));
  EXPECT_FALSE(SetByName(records, "Starfold7/Starfold_Radius", "42"));
  EXPECT_FALSE(SetByName(records, "CompFold3\\CompFold_Type0", "9"));
  EXPECT_FALSE(SetByName(records, "CompFold3/_CompFoldPct", "30"));
  EXPECT_EQ(records.Universe.Universe_Stars, 123);
  EXPECT_EQ(records.Advanced.Adv_TimeDelay, 7);
  EXPECT_EQ(records.Profiles[49].Starfold_Radius, 777);
  EXPECT_EQ(records.Profiles[7].Starfold_Radius, 42);
  EXPECT_EQ(records.Composites[3].CompFold_Type[0], 9);
  EXPECT_EQ(records.Composites[3].CompFoldPct, 30);
  for (const char* name : {"", "Universe_", "/", "Starfold50/Starfold_Radius", "Starfold-1/x",
                           "Starfold99999999999999999999/Starfold_Radius", "Starfold7/",
                           "CompFold3/CompFold_Type48", "universe_stars"}) {
    EXPECT_TRUE(SetByName(records, name, "1")) << name;
  }
  EXPECT_TRUE(SetByName(records, "Universe_Stars", "many"));
  EXPECT_EQ(records.Universe.Universe_Stars, 123);
}

TEST(VisitListTest, IgnoresWhatIsNoNumberOfABody) {
  EXPECT_EQ(ParseVisitList("   ").Count, 0);
  const VisitList list = ParseVisitList(" 1 x  66 67 0 -3 2.0 1e1 0.2 0.4 0.5 1.5 2.5 65.6");
  const Integer expected[] = {0, 65, 1, 9, 0, 0, 2, 65};
  ASSERT_EQ(list.Count, std::ssize(expected));
  for (int i = 0; i < list.Count; ++i) EXPECT_EQ(list.Bodies[i], expected[i]) << i;
  std::string many;
  for (int i = 0; i < 500; ++i) many += "5 ";
  EXPECT_EQ(ParseVisitList(many).Count, VisitList::kRoom);
}

}  // namespace
}  // namespace starfolds
