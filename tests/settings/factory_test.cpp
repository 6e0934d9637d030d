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
       {Case{Starfolds20, 1, 8690647335938517820U}, Case{Starfolds4x, 1, 12856629752367997910U},
        Case{Starfolds4x, 2, 4397437874453593571U}, Case{Starfolds4x, 3, 17169486513424203528U},
        Case{Starfolds4x, 4, 11197319832915532771U}, Case{Starfolds4x, 5, 17469340214280492868U},
        Case{Starfolds4x, 6, 9577170947338232662U}, Case{Starfolds4x, 7, 1922879977333263475U},
        Case{Starfolds4x, 8, 17976720747339371365U}}) {
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
