#include "settings/overrides.h"

#include <gtest/gtest.h>

#include <vector>

#include "settings/stored_records.h"

namespace starfolds {
namespace {

class OverridesTest : public testing::Test {
 protected:
  OverridesTest() {
    SettingsRecords records;
    records.Universe.Universe_Stars = 77;
    records.Universe.Universe_Starfold = 7;
    records.Composites[3].CompFold_Count = 2;
    SaveSettings(Stored, records);
    Before = Stored;
  }

  void Override(const std::vector<std::pair<std::string, std::string>>& changes) {
    Tree.Override(changes);
  }

  MemoryTree Stored;
  MemoryTree Before;
  BeginningTree Edited{Stored};
  OverriddenTree Tree{Edited};
};

TEST_F(OverridesTest, ReplaceStoredValues) {
  Override({{"Universe_Stars", "5000"},
            {"Universe_Tour", "0"},
            {"Adv_TimeDelay", "40"},
            {"Adv_Randomize", "1"},
            {"Starfold_Radius", "123"},
            {"Starfold07/Starfold_Radius", "321"},
            {"CompFold3/CompFold_Type1", "9"},
            {"Universe_Starfold", "many"},
            {"", "1"}});
  RegistryWrite(Stored, "Advanced", "Adv_TimeDelay", Long{99});
  Before = Stored;
  const SettingsRecords seen = LoadSettings(Tree);
  EXPECT_EQ(seen.Universe.Universe_Stars, 5000);
  EXPECT_EQ(seen.Universe.Universe_Starfold, 7);
  EXPECT_FALSE(seen.Universe.Universe_Tour);
  EXPECT_EQ(seen.Advanced.Adv_TimeDelay, 40);
  EXPECT_TRUE(seen.Advanced.Adv_Randomize);
  EXPECT_EQ(seen.Profiles[6].Starfold_Radius, 123);
  EXPECT_EQ(seen.Profiles[7].Starfold_Radius, 321);
  EXPECT_EQ(seen.Composites[3].CompFold_Type[1], 9);
  EXPECT_TRUE(Stored == Before);
}

TEST_F(OverridesTest, InitialValuesAreReadUntilTheyAreStored) {
  SettingsRecords records;
  records.Universe.Universe_Stars = 1111;
  records.Universe.Universe_Starfold = 11;
  SaveSettings(Edited.Values(), records);
  Override({{"Universe_Starfold", "22"}});
  EXPECT_EQ(LoadSettings(Tree).Universe.Universe_Stars, 1111);
  EXPECT_EQ(LoadSettings(Tree).Universe.Universe_Starfold, 22);
  EXPECT_TRUE(Stored == Before);
  records.Universe.Universe_Stars = 99;
  Stored.WritesUntilFull = 100;
  EXPECT_FALSE(SaveSettings(Tree, records));
  EXPECT_TRUE(Stored == Before);
  EXPECT_EQ(LoadSettings(Tree).Universe.Universe_Stars, 1111);
  Stored.WritesUntilFull = -1;
  EXPECT_TRUE(SaveSettings(Tree, records));
  EXPECT_EQ(LoadSettings(Tree).Universe.Universe_Stars, 99);
  EXPECT_EQ(LoadSettings(Stored).Universe.Universe_Stars, 99);
  EXPECT_EQ(LoadSettings(Stored).Universe.Universe_Starfold, 11);
  EXPECT_EQ(LoadSettings(Edited).Universe.Universe_Starfold, 11) << "what the dialog edits";
  EXPECT_EQ(LoadSettings(Tree).Universe.Universe_Starfold, 22) << "still overridden";
}

}  // namespace
}  // namespace starfolds
