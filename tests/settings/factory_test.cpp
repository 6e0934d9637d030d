#include "settings/factory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "settings/fields.h"
#include "settings/surprise_universe.h"
#include "settings/templates.h"

namespace starfolds {
namespace {

using enum FactorySet;

/// FNV-1a over the text of a template that holds the records.
std::uint64_t HashOf(SettingsRecords& records) {
  MemoryFiles disk;
  MemoryTree tree;
  TemplateFile file(disk);
  file.TemplateFileName = "out.sfd";
  WriteTemplate(file, tree, records.Universe, records.Profiles, records.Composites, {});
  std::uint64_t hash = 0xCBF29CE484222325U;
  for (const char c : disk.Contents["out.sfd"]) {
    hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
  }
  return hash;
}

/// All names, numbers and members of both sets and all themes, as they are decoded.
TEST(Factory, TheTablesAreAsPinned) {
  struct Case {
    FactorySet Set;
    int Theme;
    std::uint64_t Hash;
  };
  for (const Case& c :
       {Case{Starfolds20, 1, 13552053300490478950U}, Case{Starfolds4x, 1, 17022662409873241019U},
        Case{Starfolds4x, 2, 16013063029177855890U}, Case{Starfolds4x, 3, 3860252936476035921U},
        Case{Starfolds4x, 4, 14205939925069868434U}, Case{Starfolds4x, 5, 12037082167697735837U},
        Case{Starfolds4x, 6, 4272733420451900219U}, Case{Starfolds4x, 7, 8881349153227294818U},
        Case{Starfolds4x, 8, 12585771623084587240U}}) {
    SettingsRecords records;
    LoadFactorySettings(records, c.Set, c.Theme);
    EXPECT_EQ(HashOf(records), c.Hash) << "theme " << c.Theme;
  }
}

/// One level leaves the settings of levels alone; points and atoms drive each other out.
TEST(Factory, ARowKeepsLevelsAndReplacesPointsAndAtoms) {
  StarfoldProfile record;
  record.Starfold_StdLevels = 3;
  record.Starfold_StdLevDRad = 777;
  struct Case {
    int Row, Points, Atoms;
  };
  for (const Case& c : {Case{0, 0, 0}, Case{43, 0, 6}, Case{39, 5, 0}, Case{43, 0, 6}}) {
    LoadFactoryProfile(record, Starfolds4x, c.Row);
    EXPECT_EQ(record.Starfold_StdLevels, 1);
    EXPECT_EQ(record.Starfold_StdLevDRad, 777);
    EXPECT_EQ(record.Starfold_IFS_Points, c.Points) << c.Row;
    EXPECT_EQ(record.Starfold_Atoms, c.Atoms) << c.Row;
  }
}

TEST(Factory, IndexesOutOfRangeGiveNothing) {
  UniverseSettings universe;
  StarfoldProfile profile;
  profile.UniFoldName = "former";
  for (const int index : {-1, 50, 1000}) {
    LoadFactoryProfile(profile, Starfolds4x, index);
    LoadFactoryTheme(universe, index, true);
    EXPECT_EQ(FactoryThemeName(index), "");
    EXPECT_EQ(FactoryProfileName(index, Starfolds20), "");
    EXPECT_EQ(FactoryCompositeRow(Starfolds4x, index), "");
  }
  EXPECT_EQ(profile.UniFoldName, "former");
}

TEST(SurpriseUniverse, DrawsWhatARunTakesAsItIs) {
  SettingsRecords factory;
  LoadFactorySet(factory, Starfolds4x);
  for (std::uint64_t seed = 0; seed < 200; ++seed) {
    Rnd random(seed);
    const SurprisedUniverse drawn = SurpriseUniverse(random, {}, factory.Composites);
    UniverseSettings clamped = drawn.Universe;
    ClampUniverse(clamped);
    EXPECT_EQ(clamped, drawn.Universe) << seed;
    const auto shown = std::ranges::count_if(drawn.ProfileWeights, [](int w) { return w > 0; });
    EXPECT_GE(shown, 5) << seed;
    EXPECT_LE(shown, 12) << seed;
    EXPECT_LE(std::ranges::count_if(drawn.CompositeWeights, [](int w) { return w > 0; }), 2);
  }
}

}  // namespace
}  // namespace starfolds
