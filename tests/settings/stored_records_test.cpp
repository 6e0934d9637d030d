#include "settings/stored_records.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "random_records.h"
#include "settings/first_run.h"

namespace starfolds {
namespace {

TEST(Storage, RandomRecordsComeBackWhole) {
  RandomRecords random(4);
  for (int round = 0; round < 5; ++round) {
    SettingsRecords records = random.Make();
    MemoryTree tree;
    ASSERT_TRUE(SaveSettings(tree, records));
    EXPECT_EQ(Contents(LoadSettings(tree)), Contents(records));
  }
}

/// What a stored text becomes, for every setting of a kind of record. `load` reads and clamps.
template <class Record, class Load>
void ExpectEveryFieldHolds(std::span<const Field<Record>> fields, std::string_view section,
                           const Load& load) {
  const Record defaults = load(MemoryTree());
  for (const Field<Record>& field : fields) {
    const auto loaded = [&](std::string_view text) {
      MemoryTree tree;
      RegistryWrite(tree, section, field.Name, text);
      return FieldText(load(std::move(tree)), field);
    };
    if (std::holds_alternative<std::string Record::*>(field.Where)) {
      EXPECT_EQ(loaded("Some text"), "Some text") << field.Name;
      continue;
    }
    const std::string unset = FieldText(defaults, field);
    EXPECT_EQ(unset, FieldText(Record(), field)) << field.Name;
    for (const char* rubbish : {"abc", "", "1 2 x", "0x10"}) {
      EXPECT_EQ(loaded(rubbish), unset) << field.Name;
    }
    if (field.Rule != RangeRule::Fixed) continue;
    const auto text = [](double number) { return NumberText(static_cast<Single>(number)); };
    EXPECT_EQ(loaded(text(field.Low)), text(field.Low)) << field.Name;
    EXPECT_EQ(loaded(text(field.High)), text(field.High)) << field.Name;
    EXPECT_EQ(loaded("-1"), text(field.Low)) << field.Name;
    EXPECT_EQ(loaded(text(field.High + 1)), text(field.High)) << field.Name;
    // Too large for the type: 0 from the reader, which the clamp lifts to the low limit.
    const bool readAsLong = field.Odd.ReadAs == Oddities::Reader::AsLong;
    EXPECT_EQ(loaded("1e40"), text(field.Low)) << field.Name;
    if (std::holds_alternative<Integer Record::*>(field.Where)) {
      EXPECT_EQ(loaded("70000"), text(readAsLong ? field.High : field.Low)) << field.Name;
    }
  }
}

TEST(Storage, EveryFieldIsClampedAndInvalidTextGivesTheDefault) {
  ExpectEveryFieldHolds(UniverseFields(), "Universe", [](MemoryTree tree) {
    UniverseSettings universe = LoadUniverseFromRegistry(tree);
    ClampUniverse(universe);
    return universe;
  });
  ExpectEveryFieldHolds(AdvancedFields(), "Advanced",
                        [](MemoryTree tree) { return LoadAdvancedFromRegistry(tree); });
  ExpectEveryFieldHolds(ProfileFields(), ProfileSection(3),
                        [](MemoryTree tree) { return LoadSettings(tree).Profiles[3]; });
  ExpectEveryFieldHolds(CompositeFields(), CompositeSection(15),
                        [](MemoryTree tree) { return LoadSettings(tree).Composites[15]; });
}

TEST(Storage, PointsAndAtomsArePackedInColumns) {
  struct Case {
    const char* Packed;
    std::array<Integer, 7> Numbers;
  };
  for (const Case& c : {Case{"*    1    2    3   50    1   90  100", {1, 2, 3, 50, 1, 90, 100}},
                        Case{"*    1  2 3", {1, 23, 0, 0, 0, 0, 0}}, Case{"", {}},
                        Case{"*   -5 9999x7777", {0, 9999, 0, 0, 0, 0, 0}}}) {
    MemoryTree tree;
    RegistryWrite(tree, "P", "Starfold_IFS_Points", Long{1});
    RegistryWrite(tree, "P\\IFS", "IFS_P0", c.Packed);
    const IfsPoint point =
        LoadProfileFromRegistry(tree, 0, "P", RootSelector::CurrentUser).IFS.Points[0];
    const std::array numbers{point.IFS_LocX, point.IFS_LocY,  point.IFS_LocZ,  point.IFS_Scale,
                             point.IFS_Axis, point.IFS_Angle, point.IFS_RelPct};
    EXPECT_EQ(numbers, c.Numbers) << c.Packed;
  }
  StarfoldProfile molecule;
  molecule.Starfold_Atoms = 11;
  molecule.Atom.Atoms[10] = {8, 1, 2, 3, 5, 60, 70, 38};
  MemoryTree tree;
  SaveProfileToRegistry(tree, molecule, "P");
  EXPECT_EQ(RegistryReadText(tree, "P\\ATOMIC", "Atom_P10"),
            "*    8    1    2    3    5   60   70");
  EXPECT_EQ(
      LoadProfileFromRegistry(tree, 0, "P", RootSelector::CurrentUser).Atom.Atoms[10].Atom_Count,
      38);
}

TEST(Storage, CountsBeyondTheRoomReadWhatThereIsRoomFor) {
  MemoryTree tree;
  for (const char* count : {"32767", "-5", "6", "33", "49"}) {
    RegistryWrite(tree, ProfileSection(0), "Starfold_IFS_Points", count);
    RegistryWrite(tree, ProfileSection(0), "Starfold_Atoms", count);
    RegistryWrite(tree, CompositeSection(0), "CompFold_Count", count);
    RegistryWrite(tree, CompositeSection(0), "CompFold_Type0", "77");
    SettingsRecords records = LoadSettings(tree);
    EXPECT_LE(records.Profiles[0].Starfold_IFS_Points, kMaxIfsPoints);
    EXPECT_LE(records.Profiles[0].Starfold_Atoms, kMaxAtoms);
    EXPECT_LE(records.Composites[0].CompFold_Type[0], kProfileCount - 1);
    MemoryTree again;
    EXPECT_TRUE(SaveSettings(again, records));
  }
}

TEST(FirstRun, MigratesACompleteMachineTreeOnce) {
  const auto machine = RootSelector::LocalMachine;
  MemoryTree tree;
  RegistryWrite(tree, "Universe", "Universe_Stars", Long{777}, machine);
  MigrateMachineSettings(tree);
  EXPECT_FALSE(HasMark(tree, kAnimationType)) << "the machine's tree is not complete";
  EXPECT_EQ(RegistryReadText(tree, "Universe", "Universe_Stars"), "");

  RegistryWrite(tree, "General", kAnimationType, Long{0}, machine);
  RegistryWrite(tree, ProfileSection(2), "_UniFoldName", "Mine", machine);
  RegistryWrite(tree, ProfileSection(2), "Starfold_Radius", Long{99999}, machine);
  RegistryWrite(tree, CompositeSection(1), "_CompFoldName", "All mine", machine);
  MigrateMachineSettings(tree);
  EXPECT_TRUE(HasMark(tree, kAnimationType));
  const SettingsRecords records = LoadSettings(tree);
  EXPECT_EQ(records.Universe.Universe_Stars, 777);
  EXPECT_EQ(records.Profiles[2].UniFoldName, "Mine");
  EXPECT_EQ(records.Profiles[2].Starfold_Radius, 30000);
  EXPECT_EQ(records.Composites[1].CompFoldName, "All mine");
  EXPECT_EQ(RegistryReadText(tree, "Advanced", "FocalLength"), "1.0") << "the default, no gap";
  EXPECT_EQ(RegistryReadText(tree, "Advanced", "Adv_Randomize", "none"), "none");

  RegistryWrite(tree, "Universe", "Universe_Stars", Long{888}, machine);
  MigrateMachineSettings(tree);
  EXPECT_EQ(LoadSettings(tree).Universe.Universe_Stars, 777);
}

TEST(FirstRun, TakesOverTheUsersSettingsElseTheMachines) {
  for (const auto root : {RootSelector::LocalMachine, RootSelector::CurrentUser}) {
    MemoryTree earlier;
    RegistryWrite(earlier, "General", kAnimationType, Long{0}, RootSelector::LocalMachine);
    RegistryWrite(earlier, "General", kAnimationType, Long{0}, root);
    RegistryWrite(earlier, "General", kResetSettings, Long{1}, root);
    RegistryWrite(earlier, "General\\Levels", "WindowSize", "00010000200003000040", root);
    RegistryWrite(earlier, "Universe", "Universe_Stars", Long{777}, root);
    RegistryWrite(earlier, "Advanced", "LockMessage", "", root);
    RegistryWrite(earlier, "Advanced", "Adv_FontName", std::string(200, 'x'), root);
    RegistryWrite(earlier, CompositeSection(15), "_CompFoldName", "All mine", root);
    const MemoryTree before = earlier;
    MemoryTree full;
    full.WritesUntilFull = 50;
    ImportEarlierSettings(full, earlier);
    EXPECT_FALSE(HasMark(full, kAnimationType));
    MemoryTree tree;
    ImportEarlierSettings(tree, earlier);
    EXPECT_EQ(earlier, before);
    EXPECT_EQ(LoadSettings(tree).Universe.Universe_Stars, 777);
    EXPECT_EQ(LoadSettings(tree).Composites[15].CompFoldName, "All mine");
    EXPECT_EQ(LoadSettings(tree).Advanced.Adv_FontName, "Arial");
    const bool isUser = root == RootSelector::CurrentUser;
    EXPECT_EQ(HasMark(tree, kResetSettings), isUser) << "the welcome page tells of the upgrade";
    EXPECT_EQ(RegistryReadText(tree, "General\\Levels", "WindowSize").empty(), !isUser);
    EXPECT_EQ(RegistryReadText(tree, "Advanced", "LockMessage", "none"), "");
    RegistryWrite(tree, "Universe", "Universe_Stars", Long{888});
    ImportEarlierSettings(tree, earlier);
    EXPECT_EQ(LoadSettings(tree).Universe.Universe_Stars, 888);
  }
}

TEST(FirstRun, AnEmptyTreeGetsTheFactorysBodiesAndStaysMarkedAsEmpty) {
  MemoryTree tree;
  EXPECT_TRUE(EnsureFactoryProfiles(tree));
  EXPECT_EQ(LoadSettings(tree).Profiles[0].UniFoldName,
            RegistryReadText(tree, ProfileSection(0), "_UniFoldName"));
  EXPECT_GT(LoadSettings(tree).Profiles[1].UniFoldPct, 0);
  EXPECT_FALSE(HasMark(tree, kAnimationType));

  RegistryWrite(tree, ProfileSection(1), "_UniFoldPct", Long{0});
  RegistryWrite(tree, "General", kAnimationType, Long{0});
  EXPECT_TRUE(EnsureFactoryProfiles(tree));
  EXPECT_EQ(LoadSettings(tree).Profiles[1].UniFoldPct, 0) << "the user's own are left alone";
}

TEST(FirstRun, ATreeThatCannotBeReadIsNotTakenForAnEmptyOne) {
  SettingsRecords records = RandomRecords(5).Make();
  MemoryTree tree;
  SaveSettings(tree, records);
  RegistryWrite(tree, "General", kAnimationType, Long{0});
  const MemoryTree before = tree;
  tree.Readable = false;  // locked by another process, say
  EXPECT_FALSE(EnsureFactoryProfiles(tree));
  EXPECT_EQ(tree, before);
  MemoryTree full;
  full.WritesUntilFull = 50;
  EXPECT_FALSE(EnsureFactoryProfiles(full));
}

}  // namespace
}  // namespace starfolds
