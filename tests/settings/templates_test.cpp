#include "settings/templates.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "numbers/text.h"
#include "random_records.h"
#include "settings/first_run.h"
#include "settings/former_settings.h"
#include "test_folder.h"

namespace starfolds {
namespace {

TEST(TemplateText, FindsTheFirstPlaceWhereTheTextStands) {
  struct Case {
    const char* Why;
    const char* Text;
    const char* Section;
    const char* Key;
    std::optional<std::string> Value;
  };
  for (const Case& c : {
           Case{"a plain value", "\r\n[A]\r\nk=1\r\n", "A", "k", "1"},
           Case{"blanks are part of it", "[A]\r\nk= 1 \r\n", "A", "k", " 1 "},
           Case{"the last line has no end", "[A]\r\nk=1", "A", "k", std::nullopt},
           Case{"exact case", "[A]\r\nK=1\r\n", "A", "k", std::nullopt},
           Case{"not in the next section", "[A]\r\n\r\n[B]\r\nk=1\r\n", "A", "k", std::nullopt},
           Case{"a bracket ends its section", "[A]\r\nn=a[b\r\nk=1\r\n", "A", "n", std::nullopt},
           Case{"and hides what follows", "[A]\r\nn=a[b\r\nk=1\r\n", "A", "k", std::nullopt},
           Case{"the end of a longer key", "[A]\r\nlong_k=7\r\nk=1\r\n", "A", "k", "7"},
           Case{"inside an earlier value", "[A]\r\nn=say k=7\r\nk=1\r\n", "A", "k", "7"},
           Case{"longer names are others", "[A10]\r\nk=7\r\n[A1]\r\nk=1\r\n", "A1", "k", "1"},
           Case{"sub-sections are others", "[A\\B]\r\nk=7\r\n[A]\r\nk=1\r\n", "A", "k", "1"},
           Case{"the first of two sections", "[A]\r\nk=1\r\n[A]\r\nk=2\r\n", "A", "k", "1"},
           Case{"a header inside a value", "[B]\r\nn=[A]\r\nk=7\r\n[A]\r\nk=1\r\n", "A", "k", "7"},
           Case{"brackets that open twice", "[[A]\r\nk=1\r\n", "A", "k", "1"},
           Case{"line feeds of another system", "[A]\nk=1\n", "A", "k", "1"},
           Case{"but not beside right line ends", "[A]\r\nk=1\nj=2\r\n", "A", "k", "1\nj=2"},
           Case{"Windows-1252", "[A]\r\nk=\xE4 \x80\r\n", "A", "k", "\xC3\xA4 \xE2\x82\xAC"},
       }) {
    EXPECT_EQ(TemplateText(c.Text).Find(c.Section, c.Key), c.Value) << c.Why;
  }
}

class Templates : public testing::Test {
 protected:
  std::optional<std::string> Write(SettingsRecords records) {
    SaveAdvancedToRegistry(Tree, records.Advanced);
    File.TemplateFileName = "out.sfd";
    return WriteTemplate(File, Tree, records.Universe, records.Profiles, records.Composites, {});
  }

  /// A template of the given text, read.
  SettingsRecords Read(const std::string& text) {
    Disk.Contents["in.sfd"] = text;
    SettingsRecords records;
    EXPECT_EQ(ReadTemplate(File, "in.sfd", records), std::nullopt);
    return records;
  }

  MemoryFiles Disk;
  MemoryTree Tree;
  TemplateFile File{Disk};
};

TEST_F(Templates, RandomRecordsComeBackWhole) {
  RandomRecords random(11);
  for (int round = 0; round < 5; ++round) {
    SettingsRecords records = random.Make();
    ASSERT_EQ(Write(records), std::nullopt);
    CopyUntemplated(AdvancedSettings(), records.Advanced);
    EXPECT_EQ(Contents(Read(Disk.Contents["out.sfd"])), Contents(records));
  }
}

/// The templates that the project brings along. A value beyond its range would be written as the
/// limit, and a file that another version has written would differ somewhere.
TEST_F(Templates, ShippedOnesComeBackByteByByte) {
  int count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(STARFOLDS_TEMPLATES)) {
    if (entry.path().extension() != ".sfd") continue;
    const std::string bytes = FileText(entry.path().string());
    SettingsRecords records = Read(bytes);
    ClampUniverse(records.Universe);
    ASSERT_EQ(Write(records), std::nullopt);
    EXPECT_TRUE(Disk.Contents["out.sfd"] == bytes) << entry.path().filename();
    ++count;
  }
  EXPECT_GE(count, 8);
}

TEST_F(Templates, WhatIsMissingIsADefaultOrZero) {
  const SettingsRecords records = Read(
      "[Universe]\r\nUniverse_Stars=99999\r\nUniverse_AmCAge=x\r\n"
      "[UniFold1]\r\nStarfold_Radius=9\r\nStarfold_IFS_Points=-1\r\n");
  EXPECT_EQ(records.Universe.Universe_Stars, 32767) << "the run clamps";
  EXPECT_EQ(records.Universe.Universe_AmCAge, 0.1F);
  EXPECT_EQ(records.Universe.Universe_GSteps, 160);
  EXPECT_EQ(records.Universe.Universe_Profile, 0);
  EXPECT_FALSE(records.Universe.Universe_Tour);
  EXPECT_EQ(records.Profiles[1].Starfold_Radius, 9);
  EXPECT_EQ(records.Profiles[1].Starfold_IFS_Points, 0);
  EXPECT_EQ(records.Profiles[4].UniFoldName, "< Starfold Profile 5 >");
  EXPECT_EQ(records.Profiles[4].Starfold_Radius, 300);
  EXPECT_EQ(records.Composites[4].MemberCount(), 0);
}

/// As a reader finds a value that knows of no escapes.
std::string FoundWithoutEscapes(const std::string& file, std::string_view section,
                                std::string_view key) {
  const std::string text = file + "[";
  const std::size_t begin = text.find("[" + std::string(section) + "]");
  const std::string cut = text.substr(begin, text.find('[', begin + 1) - begin);
  const std::size_t value = cut.find(std::string(key) + "=") + key.size() + 1;
  return cut.substr(value, cut.find("\r\n", value) - value);
}

TEST_F(Templates, TextsWithAnyCharactersComeBackAndHideNothing) {
  std::vector<std::string> texts = {"A [b] c", std::string(90, '\\') + "["};
  std::istringstream words(
      "[ ] \\(b\\) \\ [\\ \\[ \\\\[\\\\\\] [UniFold3] [Escapes] E=mc2 Starfold_Radius=7 \\: "
      "[IFS_P0=] C:\\(x86)\\[ \xC3\xA4[\xE2\x82\xAC] []=\\()::");
  for (std::string word; words >> word;) texts.push_back(word);
  std::mt19937 random(15);
  for (int i = 0; i < 100; ++i) {
    std::string text = "x";
    for (int n = 0; n < 12; ++n) text += "[]()=:\\aZ_0 "[random() % 12];
    texts.emplace_back(Trimmed(text));
  }
  for (const std::string& text : texts) {
    SettingsRecords records;
    records.Profiles[2].UniFoldName = text;
    records.Profiles[2].Starfold_Radius = 4321;
    records.Composites[3].CompFoldName = text;
    records.Advanced.LockMessage = text;
    ASSERT_EQ(Write(records), std::nullopt);
    const std::string file = Disk.Contents["out.sfd"];
    EXPECT_EQ(Contents(Read(file)), Contents(records)) << text;
    EXPECT_EQ(FoundWithoutEscapes(file, "UniFold2", "Starfold_Radius"), "4321") << text;
    EXPECT_EQ(FoundWithoutEscapes(file, "CompFold3", "_CompFoldPct"), "0") << text;
    EXPECT_EQ(FoundWithoutEscapes(file, "Advanced", "Adv_FontSize"), "20") << text;
  }
}

TEST_F(Templates, OnlyAFileThatSaysSoHasEscapes) {
  const std::string profile = "[UniFold0]\r\n_UniFoldName=\\\\a\\(b\\)\r\n";
  EXPECT_EQ(Read(profile).Profiles[0].UniFoldName, "\\\\a\\(b\\)");
  EXPECT_EQ(Read(profile + "[Escapes]\r\n").Profiles[0].UniFoldName, "\\a[b]");
  SettingsRecords records;
  records.Profiles[0].UniFoldName = "\\\\a\\(b\\) E=mc2";
  records.Profiles[1].UniFoldName = "two\r\nlines";
  ASSERT_EQ(Write(records), std::nullopt);
  EXPECT_EQ(Disk.Contents["out.sfd"].find("[Escapes]"), std::string::npos);
  records.Profiles[1].UniFoldName = "two  lines";
  EXPECT_EQ(Contents(Read(Disk.Contents["out.sfd"])), Contents(records));
}

TEST_F(Templates, ASaveThatFailsLeavesTheFileAndTheNextOneIsWhole) {
  Disk.Contents["out.sfd"] = "former";
  Disk.Full = true;
  EXPECT_NE(Write(SettingsRecords()), std::nullopt);
  EXPECT_EQ(Disk.Contents["out.sfd"], "former");
  Disk.Full = false;
  EXPECT_EQ(Write(SettingsRecords()), std::nullopt);
  EXPECT_EQ(Disk.Contents["out.sfd"].find("[Admin]"), 2U);
  EXPECT_EQ(Disk.Contents["out.sfd"].find("[Admin]", 3), std::string::npos);
}

TEST_F(Templates, WhatIsNoTemplateIsRefusedAndChangesNothing) {
  SettingsRecords records = RandomRecords(3).Make();
  const MemoryTree before = Contents(records);
  Disk.Contents["huge.sfd"] = "[Universe]\r\n" + std::string(2U << 20U, 'x');
  Disk.Contents["other.sfd"] =
      "[UniFold50]\n[UniFold07]\n[CompFold16]\n[CompFold1\\IFS]\n[Other]\n";
  Disk.Contents["one.sfd"] = "[UniFold49\\IFS]\n";
  SettingsRecords any;
  EXPECT_EQ(ReadTemplate(File, "one.sfd", any), std::nullopt) << "one section makes a template";
  for (const char* path : {"missing.sfd", "huge.sfd", "other.sfd"}) {
    EXPECT_NE(ReadTemplate(File, path, records), std::nullopt) << path;
    ProfileArray profiles;
    EXPECT_NE(ImportTemplate(File, path, Tree, profiles), std::nullopt) << path;
  }
  EXPECT_EQ(Contents(records), before);
  EXPECT_EQ(Tree.Size(), 0U);
}

TEST_F(Templates, AnImportKeepsACopyOfTheFormerSettings) {
  const auto import = [&] {
    ProfileArray profiles;
    return ImportOverFormerSettings(File, "in.sfd", Tree, profiles, Disk, "/home/u");
  };
  Disk.Contents["in.sfd"] = "[Universe]\r\nUniverse_Stars=1111\r\n";
  const TemplateImport first = import();
  EXPECT_EQ(first.Fault, std::nullopt);
  EXPECT_EQ(first.FormerSettings, "") << "the factory's settings need no copy";
  EXPECT_EQ(LoadSettings(Tree).Universe.Universe_Stars, 1111);
  EXPECT_EQ(LoadSettings(Tree).Profiles[1].UniFoldName, "Star Rings");
  EXPECT_TRUE(HasMark(Tree, kResetSettings)) << "no user of an earlier version";

  SettingsRecords mine = RandomRecords(9).Make();
  SaveSettings(Tree, mine);
  Disk.Contents["/home/u/former-settings-1.sfd"] = "somebody's";
  EXPECT_EQ(import().FormerSettings, "/home/u/former-settings-2.sfd");
  EXPECT_NE(LoadSettings(Tree).Universe.Universe_GSteps, mine.Universe.Universe_GSteps);
  EXPECT_EQ(import().FormerSettings, "/home/u/former-settings-3.sfd");
  EXPECT_EQ(import().FormerSettings, "/home/u/former-settings-3.sfd") << "it holds them already";
  EXPECT_EQ(Disk.Contents["/home/u/former-settings-1.sfd"], "somebody's");

  MemoryTree again;
  ASSERT_EQ(StoreTemplate(File, "/home/u/former-settings-2.sfd", again), std::nullopt);
  SettingsRecords back = LoadSettings(again);
  CopyUntemplated(mine.Advanced, back.Advanced);
  EXPECT_EQ(Contents(back), Contents(mine));
}

TEST_F(Templates, AnImportThatCannotBeStoredSaysSoAndChangesNothing) {
  SettingsRecords mine = RandomRecords(10).Make();
  SaveSettings(Tree, mine);
  const MemoryTree before = Tree;
  Disk.Contents["in.sfd"] = "[Universe]\r\nUniverse_Stars=1111\r\n";
  ProfileArray profiles;
  const auto fails = [&] {
    return ImportOverFormerSettings(File, "in.sfd", Tree, profiles, Disk, "/home/u").Fault &&
           Tree == before;
  };
  Disk.Full = true;
  EXPECT_TRUE(fails()) << "the copy";
  Disk.Full = false;
  Tree.WritesUntilFull = 20;
  EXPECT_TRUE(fails()) << "the values";
  EXPECT_NE(ImportTemplate(File, "in.sfd", Tree, profiles), std::nullopt);
  EXPECT_NE(StoreTemplate(File, "in.sfd", Tree), std::nullopt);
  Tree.Writable = false;
  EXPECT_TRUE(fails()) << "all of them";
}

TEST_F(Templates, AnImportBringsTheUniverseAndLeavesTheBodiesInTheTree) {
  SettingsRecords mine = RandomRecords(7).Make();
  SaveSettings(Tree, mine);
  const SettingsRecords theirs = RandomRecords(8).Make();
  MemoryTree elsewhere;
  SaveAdvancedToRegistry(elsewhere, theirs.Advanced);
  File.TemplateFileName = "theirs.sfd";
  SettingsRecords written = theirs;
  WriteTemplate(File, elsewhere, written.Universe, written.Profiles, written.Composites, {});

  ProfileArray profiles;
  ASSERT_EQ(ImportTemplate(File, "theirs.sfd", Tree, profiles), std::nullopt);
  SettingsRecords expected = theirs;
  expected.Profiles = mine.Profiles;
  expected.Composites = mine.Composites;
  CopyUntemplated(mine.Advanced, expected.Advanced);
  EXPECT_EQ(Contents(LoadSettings(Tree)), Contents(expected));
  EXPECT_EQ(profiles[9].UniFoldName, theirs.Profiles[9].UniFoldName) << "in memory only";
  EXPECT_TRUE(HasMark(Tree, kAnimationType));
}

}  // namespace
}  // namespace starfolds
