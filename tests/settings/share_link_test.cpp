#include "settings/share_link.h"

#include <gtest/gtest.h>

#include <memory>

#include "random_records.h"
#include "settings/factory.h"
#include "settings/templates.h"

namespace starfolds {
namespace {

using Kind = LinkedScene::Kind;

std::string TemplateText(SettingsRecords& records) {
  MemoryTree tree;
  SaveAdvancedToRegistry(tree, records.Advanced);
  MemoryFiles files;
  TemplateFile file(files);
  file.TemplateFileName = "all.sfd";
  WriteTemplate(file, tree, records.Universe, records.Profiles, records.Composites, {});
  return files.Contents["all.sfd"];
}

TEST(ShareLink, RandomSettingsComeBackWithoutTheMessage) {
  const LinkedScene scenes[] = {
      {}, {Kind::Profile, 49, kLargestSeed, {}}, {Kind::Composite, 15, 0, {{1, 32767}}}};
  for (unsigned seed = 0; seed < 30; ++seed) {
    const auto records = std::make_unique<SettingsRecords>(RandomRecords(seed).Make());
    records->Profiles[3].UniFoldName = "[a]=\\(";
    records->Advanced.LockMessage = "back at five";
    const auto read = std::make_unique<SettingsRecords>();
    LinkedScene scene;
    const std::string text = LinkText(*records, scenes[seed % 3]);
    EXPECT_EQ(text.find("back at five"), std::string::npos);
    ASSERT_EQ(ReadLinkText(text, *read, scene), std::nullopt);
    EXPECT_EQ(scene, scenes[seed % 3]);
    AdvancedSettings seen;
    seen.Adv_TimeDelay = records->Advanced.Adv_TimeDelay;
    seen.FocalLength = records->Advanced.FocalLength;
    seen.Adv_Randomize = records->Advanced.Adv_Randomize;
    seen.Adv_RandomMag = records->Advanced.Adv_RandomMag;
    seen.Adv_RandomExp = records->Advanced.Adv_RandomExp;
    records->Advanced = seen;
    ASSERT_EQ(TemplateText(*read), TemplateText(*records)) << seed;
  }
}

TEST(ShareLink, NamesTheNearerFactorySet) {
  for (const FactorySet set : {FactorySet::Starfolds4x, FactorySet::Starfolds20}) {
    const auto records = std::make_unique<SettingsRecords>();
    LoadFactorySettings(*records, set, 1);
    records->Profiles[7].Starfold_Radius = 1234;
    EXPECT_EQ(LinkText(*records, {Kind::Universe, 0, 5, {}}),
              "[Link]\r\nSet=" + std::to_string(static_cast<int>(set)) +
                  "\r\nSeed=5\r\n\r\n[UniFold7]\r\nStarfold_Radius=1234\r\n");
  }
}

TEST(ShareLink, RefusesWhatIsNoLinkAndChangesNothing) {
  const auto records = std::make_unique<SettingsRecords>(RandomRecords(1).Make());
  const std::string before = TemplateText(*records);
  LinkedScene scene{Kind::Profile, 3, 7, {}};
  const LinkedScene sceneBefore = scene;
  for (const std::string& text :
       {std::string(), std::string("[Link]"), std::string("[Link]\r\nSet=2\r\n"),
        std::string("[Universe]\r\nUniverse_Stars=10\r\n"),
        std::string("[Link]\r\nSet=0\r\nScene=Starfold50\r\n"),
        std::string("[Link]\r\nSet=0\r\nScene=CompFold-1\r\n"),
        std::string("[Link]\r\nSet=0\r\nSeed=9007199254740992\r\n"),
        std::string("[Link]\r\nSet=0\r\nSize=0x600\r\n"),
        std::string("[Link]\r\nSet=0\r\nSize=800\r\n"),
        "[Link]\r\nSet=0\r\n" + std::string(kLongestLinkText, 'a')}) {
    EXPECT_NE(ReadLinkText(text, *records, scene), std::nullopt) << text.substr(0, 80);
  }
  EXPECT_EQ(TemplateText(*records), before);
  EXPECT_EQ(scene, sceneBefore);
}

TEST(ShareLink, ClampsSettingsBeyondTheirRange) {
  const auto records = std::make_unique<SettingsRecords>();
  LinkedScene scene;
  std::string text =
      "[Link]\r\nSet=0\r\n[UniFold0]\r\nStarfold_Radius=1e99\r\nStarfold_Atoms=99\r\n";
  for (int i = 0; i < 20000; ++i) text += "[]\r\n=\r\n";  // must not take long
  ASSERT_EQ(ReadLinkText(text, *records, scene), std::nullopt);
  EXPECT_EQ(records->Profiles[0].Starfold_Radius, 30000);
  EXPECT_EQ(records->Profiles[0].Starfold_Atoms, kMaxAtoms);
}

}  // namespace
}  // namespace starfolds
