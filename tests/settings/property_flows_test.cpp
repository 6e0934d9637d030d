#include "settings/property_flows.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "random_records.h"
#include "settings/first_run.h"
#include "settings/templates.h"

namespace starfolds {
namespace {

class StubPicture : public ProgressPicture {
 public:
  std::vector<int> Widths;
  bool Cleared = false;

  int ScaleWidth() const override { return 132; }
  void FillFromLeft(int width, unsigned colour) override {
    Widths.push_back(width);
    EXPECT_EQ(colour, 0xFFFF00U);
  }
  void Clear() override { Cleared = true; }
};

/// A properties dialog without widgets: a text for each universe setting, and a log of the rest.
class StubDialog : public PropertiesDialog {
 public:
  std::map<std::string_view, std::string> Texts;
  std::string Log;
  int Entries = 0;
  StubPicture Picture;
  std::function<bool()> OnWelcome = [] { return false; };
  std::vector<WelcomePage> Welcomes;

  std::string UniverseText(const Field<UniverseSettings>& field) const override {
    const auto found = Texts.find(field.Name);
    return found == Texts.end() ? "" : found->second;
  }
  void SetUniverseText(const Field<UniverseSettings>& field, const std::string& text) override {
    Texts[field.Name] = text;
  }
  void ClearProfileList() override { Entries = 0; }
  void AddProfileEntry(std::string_view, Integer) override { ++Entries; }
  void SelectProfileEntry(int position) override { Log += "P" + std::to_string(position); }
  void RebuildProfileList() override { Log += "p"; }
  void RebuildCompositeLists() override { Log += "c"; }
  void SelectUniverseTheme(int position) override {
    Log += "T" + std::to_string(position);
    UniverseSettings universe;
    LoadFactoryTheme(universe, position, Log.find("M0+") != std::string::npos);
    for (const auto& field : UniverseFields()) Texts[field.Name] = FieldText(universe, field);
  }
  void SelectUniverseExtras(int position) override { Log += "E" + std::to_string(position); }
  void MarkResetMenu(int menuIndex, bool marked) override {
    Log += "M" + std::to_string(menuIndex) + (marked ? "+" : "-");
  }
  ProgressPicture* Preview() override { return &Picture; }
  bool ShowWelcomeDialog(const WelcomePage& page) override {
    Welcomes.push_back(page);
    return OnWelcome();
  }
};

class PropertyFlows : public testing::Test {
 protected:
  void StoreComplete(SettingsRecords& records) {
    SaveSettings(Tree, records);
    RegistryWrite(Tree, "General", kAnimationType, Long{0});
  }

  void Open() {
    const StoredProperties stored = LoadDialogFromRegistry(Settings, Dialog);
    Dialog.Log.clear();
    OpenProperties(Settings, Dialog, stored);
  }

  MemoryTree Tree;
  MemoryFiles Disk;
  TemplateFile Template{Disk};
  ScriptedMessageBoxes Boxes;
  SettingsRecords Edited;
  PropertySettings Settings{Tree, Edited.Profiles, Edited.Composites, Template,
                            Disk, Boxes,           "/prog",           "/home/u"};
  StubDialog Dialog;
};

constexpr char kResetLog[] = "P0T0T1E0";

TEST_F(PropertyFlows, ANewUserIsWelcomedAndGetsTheFactorySettings) {
  Open();
  ASSERT_EQ(Dialog.Welcomes.size(), 1U);
  EXPECT_EQ(Dialog.Log, kResetLog);
  EXPECT_EQ(Dialog.Entries, 50);
  EXPECT_EQ(Edited.Profiles[0].UniFoldName, FactoryProfileName(0, FactorySet::Starfolds4x));
  EXPECT_TRUE(HasMark(Tree, kResetSettings));
  EXPECT_FALSE(HasMark(Tree, kAnimationType)) << "nothing is accepted yet";
  EXPECT_EQ(RegistryReadText(Tree, "Advanced", "FocalLength"), "1.0");
  EXPECT_FALSE(Dialog.Welcomes[0].OffersReset);

  // Cancelled, and opened again: the reset is stored at once.
  Open();
  EXPECT_EQ(Dialog.Welcomes.size(), 1U);
  EXPECT_EQ(Dialog.Log, kResetLog);
  EXPECT_TRUE(HasMark(Tree, kAnimationType));
  EXPECT_EQ(LoadSettings(Tree).Profiles[3].UniFoldName, Edited.Profiles[3].UniFoldName);
}

TEST_F(PropertyFlows, AnUpgradeOffersAResetWithASafetyCopy) {
  SettingsRecords mine = RandomRecords(21).Make();
  StoreComplete(mine);
  const MemoryTree before = Tree;

  Open();  // dismissed
  ASSERT_EQ(Dialog.Welcomes.size(), 1U);
  EXPECT_TRUE(Dialog.Welcomes[0].OffersReset);
  EXPECT_EQ(Dialog.Welcomes[0].Dismiss, "Close");
  EXPECT_EQ(Dialog.Log, "");
  EXPECT_EQ(Dialog.Texts["Universe_Stars"], NumberText(Long{mine.Universe.Universe_Stars}));
  EXPECT_EQ(Contents(LoadSettings(Tree)), Contents(LoadSettings(const_cast<MemoryTree&>(before))));

  Tree = before;
  Dialog.Texts.clear();
  StubPicture status;
  Dialog.OnWelcome = [&] {
    SaveSafetyCopy(Settings, Dialog, &status);
    return true;
  };
  Open();
  EXPECT_EQ(Dialog.Log, kResetLog);
  EXPECT_EQ(status.Widths.size(), 66U);
  EXPECT_EQ(status.Widths.front(), 2);
  EXPECT_EQ(status.Widths.back(), 132);
  SettingsRecords saved;
  ASSERT_EQ(ReadTemplate(Template, "/prog/propsave.sfd", saved), std::nullopt);
  CopyUntemplated(mine.Advanced, saved.Advanced);
  EXPECT_EQ(Contents(saved), Contents(mine));
}

TEST_F(PropertyFlows, AcceptStoresAllAndOpenShowsIt) {
  SettingsRecords mine = RandomRecords(31).Make();
  StoreComplete(mine);
  RegistryWrite(Tree, "General", kResetSettings, Long{1});
  Open();
  Dialog.Texts["Universe_Stars"] = "1 2 3 4 stars";
  Dialog.Texts["Universe_GS_Idx"] = "  5 6 ";
  Dialog.Texts["Universe_Expand"] = "none";
  Edited.Profiles[2].Starfold_Radius = 99999;
  EXPECT_TRUE(SaveDialogToRegistry(Settings, Dialog));
  const SettingsRecords stored = LoadSettings(Tree);
  EXPECT_EQ(stored.Universe.Universe_Stars, 1234);
  EXPECT_EQ(stored.Universe.Universe_GS_Idx, "5 6");
  EXPECT_EQ(stored.Universe.Universe_Expand, 0);
  EXPECT_EQ(stored.Profiles[2].Starfold_Radius, 30000);
  EXPECT_TRUE(Boxes.Log.empty());
}

TEST_F(PropertyFlows, AcceptThatFailsKeepsWhatWasStoredAndSaysSo) {
  SettingsRecords mine = RandomRecords(41).Make();
  StoreComplete(mine);
  RegistryWrite(Tree, "General", "TestRegWrite", Long{1});
  const MemoryTree before = Tree;
  Tree.WritesUntilFull = 800;
  EXPECT_FALSE(SaveDialogToRegistry(Settings, Dialog));
  EXPECT_EQ(Tree, before);
  Tree.WritesUntilFull = -1;
  Tree.Writable = false;
  EXPECT_FALSE(SaveDialogToRegistry(Settings, Dialog));
  ASSERT_EQ(Boxes.Log.size(), 2U);
  EXPECT_NE(Boxes.Log[0].Text.find("are kept"), std::string::npos);
  EXPECT_TRUE(Boxes.Log[1].Text.starts_with("The Registry is read-only."));
}

TEST_F(PropertyFlows, AnUnreadableTreeShowsTheFactorySettingsAndStays) {
  SettingsRecords mine = RandomRecords(51).Make();
  StoreComplete(mine);
  const MemoryTree before = Tree;
  Tree.Readable = false;
  Open();
  EXPECT_EQ(Tree, before);
  EXPECT_TRUE(Dialog.Welcomes.empty());
  ASSERT_EQ(Boxes.Log.size(), 1U);
  EXPECT_NE(Boxes.Log[0].Text.find("show the Factory Settings"), std::string::npos);
  EXPECT_EQ(Dialog.Texts["Universe_Stars"], "5000");
  SettingsRecords factory;
  LoadFactorySet(factory, FactorySet::Starfolds4x);
  SettingsRecords shown;
  shown.Profiles = Edited.Profiles;
  shown.Composites = Edited.Composites;
  EXPECT_EQ(Contents(shown), Contents(factory));

  // Whoever held the tree has let it go by the time the dialog is accepted.
  Tree.Readable = true;
  EXPECT_TRUE(SaveDialogToRegistry(Settings, Dialog));
  EXPECT_EQ(LoadSettings(Tree).Profiles[1].UniFoldName, "Star Rings");
  SettingsRecords kept;
  ASSERT_EQ(ReadTemplate(Template, "/home/u/former-settings-1.sfd", kept), std::nullopt);
  EXPECT_EQ(kept.Profiles[1].UniFoldName, mine.Profiles[1].UniFoldName);
  EXPECT_TRUE(SaveDialogToRegistry(Settings, Dialog));
  EXPECT_EQ(Disk.Contents.size(), 1U);
}

TEST_F(PropertyFlows, TheResetMenuAsksAndGoesByTheAnswer) {
  Template.TemplateFileName = "mine.sfd";
  Boxes.Answers = {BoxAnswer::Cancel};
  ResetFromMenu(Settings, Dialog, 2);
  EXPECT_EQ(Dialog.Log, "M2+M2-");
  EXPECT_TRUE(Disk.Contents.empty());
  EXPECT_EQ(Boxes.Log[0].Style, BoxStyle::YesNoCancelQuestion);

  Boxes.Answers = {BoxAnswer::No};
  ResetFromMenu(Settings, Dialog, 2);
  EXPECT_EQ(Dialog.Log, std::string("M2+M2-M2+") + kResetLog + "M2-");
  EXPECT_TRUE(Disk.Contents.empty());

  Dialog.Log.clear();
  Disk.ReadOnlyFolders = {"/prog"};
  Boxes.Answers = {BoxAnswer::Yes};
  ResetFromMenu(Settings, Dialog, 0);
  EXPECT_EQ(Dialog.Log, std::string("M0+") + kResetLog + "M0-");
  EXPECT_NE(Boxes.Log.back().Text.find("Starfolds 2.0 factory settings?"), std::string::npos);
  EXPECT_TRUE(Boxes.Log.back().Text.ends_with("/home/u"));
  EXPECT_TRUE(Disk.Contents.contains("/home/u/propsave.sfd"));
  EXPECT_EQ(Edited.Profiles[0].UniFoldName, FactoryProfileName(0, FactorySet::Starfolds20));
  EXPECT_TRUE(Dialog.Picture.Cleared);
  EXPECT_EQ(Template.TemplateFileName, "mine.sfd");
}

TEST_F(PropertyFlows, ALoadedTemplateShowsAndItsAdvancedValuesTakeEffectAtOnce) {
  SettingsRecords theirs = RandomRecords(61).Make();
  theirs.Advanced.Adv_TimeDelay = 7;
  MemoryTree elsewhere;
  SaveAdvancedToRegistry(elsewhere, theirs.Advanced);
  Template.TemplateFileName = "t.sfd";
  WriteTemplate(Template, elsewhere, theirs.Universe, theirs.Profiles, theirs.Composites, {});
  EXPECT_EQ(LoadTemplate(Settings, Dialog, nullptr), std::nullopt);
  EXPECT_EQ(Dialog.Log, "pc");
  EXPECT_EQ(Dialog.Texts["Universe_GSteps"], NumberText(Long{theirs.Universe.Universe_GSteps}));
  EXPECT_EQ(Edited.Profiles[8].Starfold_Radius, theirs.Profiles[8].Starfold_Radius);
  EXPECT_EQ(Edited.Composites[3].CompFold_Type, theirs.Composites[3].CompFold_Type);
  EXPECT_EQ(RegistryReadText(Tree, "Advanced", "Adv_TimeDelay"), "7");
  EXPECT_EQ(RegistryReadText(Tree, "Universe", "Universe_GSteps"), "");

  const auto texts = Dialog.Texts;
  Template.TemplateFileName = "missing.sfd";
  EXPECT_NE(LoadTemplate(Settings, Dialog, nullptr), std::nullopt);
  EXPECT_EQ(Dialog.Texts, texts);
}

}  // namespace
}  // namespace starfolds
