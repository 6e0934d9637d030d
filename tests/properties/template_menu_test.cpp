#include "template_dialogs/template_menu.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "properties/props_dialog.h"
#include "settings/templates.h"
#include "storage/disk_files.h"
#include "template_dialogs/frm_file_io.h"
#include "test_folder.h"

namespace starfolds {
namespace {

/// A user with the factory's settings, and a template of another universe, "other.sfd".
class TemplateMenuTest : public FrmPropsTest {
 protected:
  TemplateMenuTest() {
    UsedFiles = &RealDisk;
    StoreFactory();
    SettingsRecords records = LoadSettings(Tree);
    records.Universe.Universe_Stars = 1234;
    records.Profiles[5].UniFoldName = "Mine";
    records.Profiles[5].Starfold_Radius = 777;
    MemoryTree advanced;
    RegistryWrite(advanced, sections::kAdvanced, "LockMessage", "Hello");
    TemplateFile file(RealDisk);
    file.TemplateFileName = Folder.Path("other.sfd");
    WriteTemplate(file, advanced, records.Universe, records.Profiles, records.Composites, {});
    RegistryWrite(Tree, sections::kTemplate, "Path_Dir", Folder.Path(""));
    SharePage = "https://example.org/stars/";
    Open();
  }

  QAction& Entry(const char* name) { return Part<QAction>(*Dialog, name); }
  QString Box(const char* name) { return The<QLineEdit>(name).text(); }
  QString Name(int type) { return The<BodyList>("lstUniStarfold").EntryName(type).c_str(); }
  bool InStarfoldView() { return The<QPushButton>("cmdDismiss").isHidden(); }

  /// Chooses an entry, and a name in the dialog that comes up.
  void ChooseFile(const char* entry, const QString& name) {
    WhenShown<FrmFileIo>([name](FrmFileIo& dialog) {
      Part<QLineEdit>(dialog, "txtFile").setText(name);
      Part<QPushButton>(dialog, "cmdOK").click();
      if (dialog.isVisible()) dialog.reject();
    });
    Entry(entry).trigger();
  }

  SettingsRecords Saved(const std::string& name) {
    SettingsRecords records;
    TemplateFile file(RealDisk);
    EXPECT_EQ(ReadTemplate(file, Folder.Path(name), records), std::nullopt);
    return records;
  }

  /// Drags files over a box in the window, as file managers do, and drops them if they are taken.
  bool Drop(const std::vector<std::string>& paths) {
    QMimeData data;
    QList<QUrl> urls;
    for (const std::string& path : paths) urls.append(QUrl::fromLocalFile(path.c_str()));
    data.setUrls(urls);
    data.setText("/some/path");
    QWidget* box = &The<QLineEdit>("txtUniFoldName");
    QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(box, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent drop({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(box, &drop);
    QApplication::processEvents();
    return drop.isAccepted();
  }

  TestFolder Folder;
  DiskFiles RealDisk;
};

TEST_F(TemplateMenuTest, AnOpenedTemplateIsShownAndSavedAgain) {
  The<QComboBox>("cboUniTheme").setCurrentIndex(3);
  ChooseFile("mnuOpen", "other.sfd");
  EXPECT_EQ(Box("txtUni_0"), "1234");
  EXPECT_EQ(Name(5), "Mine");
  EXPECT_EQ(The<QComboBox>("cboUniTheme").currentIndex(), 0);
  EXPECT_EQ(RegistryReadText(Tree, sections::kAdvanced, "LockMessage"), "Hello");
  EXPECT_EQ(LoadSettings(Tree).Profiles[5].UniFoldName, "Rapid Rotator");
  The<QLineEdit>("txtUni_0").setText("99999999");  // the entry's key leaves no box
  Choose("mnuSave");
  EXPECT_EQ(Saved("other.sfd").Universe.Universe_Stars, 30000);
  EXPECT_EQ(Saved("other.sfd").Profiles[5].Starfold_Radius, 777);
  EXPECT_TRUE(Boxes.Log.empty());
}

TEST_F(TemplateMenuTest, TheOpenPageIsSavedAndALoadedTemplateTakesItsPlace) {
  OpenType(5);
  The<QLineEdit>("txtStarfold_0").setText("4321");
  ChooseFile("mnuSaveAs", "page");
  EXPECT_EQ(Saved("page.sfd").Profiles[5].Starfold_Radius, 4321);
  EXPECT_TRUE(InStarfoldView());
  ChooseFile("mnuOpen", "missing.sfd");
  EXPECT_TRUE(InStarfoldView());
  EXPECT_EQ(Box("txtStarfold_0"), "4321");
  ChooseFile("mnuOpen", "other.sfd");
  EXPECT_FALSE(InStarfoldView());
  OpenType(5);
  EXPECT_EQ(Box("txtStarfold_0"), "777");
}

TEST_F(TemplateMenuTest, WhatCannotBeReadOrWrittenIsToldAndChangesNothing) {
  std::ofstream(Folder.Path("broken.sfd")) << "no template";
  ChooseFile("mnuOpen", "broken.sfd");
  ASSERT_EQ(Boxes.Log.size(), 1U);
  EXPECT_EQ(Boxes.Log.back().Text, "The template could not be opened:\n" +
                                       Folder.Path("broken.sfd") +
                                       "\n\nIt holds no settings of a universe");
  EXPECT_EQ(Box("txtUni_0"), "5000");
  ChooseFile("mnuOpen", "other.sfd");
  std::filesystem::remove(Folder.Path("other.sfd"));
  std::filesystem::create_directory(Folder.Path("other.sfd"));
  Choose("mnuSave");
  ASSERT_EQ(Boxes.Log.size(), 2U);
  EXPECT_TRUE(Boxes.Log.back().Text.starts_with("The template could not be saved to:\n"));
}

TEST_F(TemplateMenuTest, OneTemplateCanBeDropped) {
  const std::string odd = Folder.Path("it's 100% \"odd\" .SFD");
  std::filesystem::copy_file(Folder.Path("other.sfd"), odd);
  std::ofstream(Folder.Path("x.txt")) << "x";
  EXPECT_FALSE(Drop({}));
  EXPECT_FALSE(Drop({Folder.Path("x.txt")}));
  EXPECT_FALSE(Drop({Folder.Path("other.sfd"), odd}));
  EXPECT_EQ(Box("txtUni_0"), "5000");
  EXPECT_TRUE(Drop({odd}));
  EXPECT_EQ(Box("txtUni_0"), "1234");
  EXPECT_TRUE(Boxes.Log.empty());
  EXPECT_TRUE(Drop({Folder.Path("gone.sfd")}));
  ASSERT_EQ(Boxes.Log.size(), 1U);
  EXPECT_TRUE(Boxes.Log.back().Text.ends_with("\n\nNo such file or directory"));
}

TEST_F(TemplateMenuTest, NothingIsOpenedWhileAPreviewRuns) {
  Events.Plan[1] = [&] {
    for (const char* entry : {"mnuOpen", "mnuSave", "mnuSaveAs"}) {
      EXPECT_FALSE(Entry(entry).isEnabled());
    }
    EXPECT_FALSE(Drop({Folder.Path("other.sfd")}));
    Click("cmdPreviewUni");
  };
  Click("cmdPreviewUni");
  EXPECT_EQ(Events.Pumps, 1);
  EXPECT_TRUE(Entry("mnuOpen").isEnabled());
  EXPECT_TRUE(Drop({Folder.Path("other.sfd")}));
}

TEST_F(TemplateMenuTest, AChosenFileIsShownAndTheLatestAreListed) {
  WhenShown<FrmFileIo>([](FrmFileIo& dialog) {
    auto& facts = Part<QLabel>(dialog, "lblTemplateFacts");
    Part<QLineEdit>(dialog, "txtFile").setText("other.sfd");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !facts.text().isEmpty(); }, 30000));
    EXPECT_TRUE(facts.text().startsWith("1234 stars in 100 starfolds of "));
    Part<QLineEdit>(dialog, "txtFile").setText("missing.sfd");
    EXPECT_TRUE(QTest::qWaitFor([&] { return facts.text().isEmpty(); }, 30000));
    Part<QLineEdit>(dialog, "txtFile").setText("other.sfd");
    Part<QPushButton>(dialog, "cmdOK").click();
  });
  Entry("mnuOpen").trigger();
  EXPECT_EQ(The<QLabel>("lblStatus").text(), "Loaded other.sfd");
  QApplication::processEvents();
  Entry("mnuUndo").trigger();
  EXPECT_EQ(Box("txtUni_0"), "5000") << "opening is undone";
  auto& recent = Part<QMenu>(*Dialog, "mnuRecent");
  emit recent.aboutToShow();
  ASSERT_EQ(recent.actions().size(), 1);
  recent.actions().front()->trigger();
  EXPECT_EQ(Box("txtUni_0"), "1234");
}

/// The text that was raw deflated, by Qt, which wants the header and the checksum of zlib.
std::string Inflated(const QByteArray& packed, const std::string& expected) {
  std::uint32_t low = 1, high = 0;
  for (const char c : expected) {
    low = (low + static_cast<unsigned char>(c)) % 65521;
    high = (high + low) % 65521;
  }
  QByteArray stream = QByteArray::fromHex("00000000789c") + packed;
  for (const std::uint32_t half : {high, low}) {
    stream.append(static_cast<char>(half >> 8U)).append(static_cast<char>(half & 255U));
  }
  return qUncompress(stream).toStdString();
}

TEST_F(TemplateMenuTest, SharesTheTypedSettingsAsALink) {
  The<QLineEdit>("txtUni_1").setText("77");
  Entry("mnuShareLink").trigger();
  const QStringList parts = QGuiApplication::clipboard()->text().split('#');
  ASSERT_EQ(parts.size(), 2);
  EXPECT_EQ(parts[0], "https://example.org/stars/");
  const std::string text = "[Link]\r\nSet=0\r\n\r\n[Universe]\r\nUniverse_Starfold=77\r\n";
  EXPECT_EQ(
      Inflated(QByteArray::fromBase64(parts[1].toLatin1(), QByteArray::Base64UrlEncoding), text),
      text);
  EXPECT_EQ(Boxes.Log.size(), 1U);
}

}  // namespace
}  // namespace starfolds
