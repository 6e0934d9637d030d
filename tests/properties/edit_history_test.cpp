// Undo, redo, and what is kept although nobody pressed "Commit".
#include "properties/edit_history.h"

#include <gtest/gtest.h>

#include <QTabBar>
#include <QToolButton>

#include "properties/props_dialog.h"
#include "settings/random_records.h"

namespace starfolds {
namespace {

class EditHistoryTest : public FrmPropsTest {
 protected:
  EditHistoryTest() {
    StoreFactory();
    Open();
  }

  QAction& Undo() { return Part<QAction>(*Dialog, "mnuUndo"); }
  QAction& Redo() { return Part<QAction>(*Dialog, "mnuRedo"); }
  BodyList& Bodies() { return The<BodyList>("lstUniStarfold"); }
  bool IsMarkedChanged() { return !The<QLabel>("lblChanged").isHidden(); }

  /// What "Accept Settings" stores; the dialog is opened again.
  MemoryTree Accepted() {
    Click("cmdAccept");
    MemoryTree stored = Contents(LoadSettings(Tree));
    StoreFactory();
    Open();
    return stored;
  }

  /// Changes of every kind, each with its name in the menu.
  void ChangeEverything() {
    const struct {
      const char* Name;
      std::function<void()> Act;
    } changes[] = {
        {"Theme Stylized:  Neon / Warp Speed", [&] { List("cboUniTheme").setCurrentIndex(2); }},
        {"Copy of Starfold Radius",
         [&] {
           List("cboPropCopyList").setCurrentIndex(5);
           Enter("txtPropCopy", "77");
           Click("cmdPropCopy");
           EXPECT_EQ(The<QLabel>("lblStatus").text(), "Set on 47 of 50 types");
         }},
        {"Percent of All Types",
         [&] {
           Enter("txtResetFoldPct", "3");
           Click("cmdResetFoldPct");
         }},
        {"Percent of All Composites",
         [&] {
           Enter("txtResetCompPct", "4");
           Click("cmdResetCompPct");
         }},
        {"Name and Percent of Star Rings",
         [&] {
           Bodies().setCurrentRow(1);
           Edit("txtUniFoldName").setText("Mine");
           Leave(Edit("txtUniFoldName"));
         }},
        {"Composite Starfold 1",
         [&] {
           The<BodyList>("lstCompStarfold").setCurrentRow(0);
           Edit("txtCompFoldName").setText("Halo");
           Leave(Edit("txtCompFoldName"));
         }},
        {"Universe Creation", [&] { Enter("txtUni_10", "123"); }},
        {"Mine",
         [&] {
           OpenType(1);
           Enter("txtStarfold_0", "444");
           Enter("txtStarfold_1", "55");  // joins
           Click("cmdAccept");
         }},
        {"Theme of Mine",
         [&] {
           OpenType(1);
           List("cboFoldTheme").setCurrentIndex(9);
           Click("cmdAccept");
         }},
        {"Reset of the Properties",
         [&] {
           Boxes.Answers = {BoxAnswer::No};
           Choose("mnuResetProps_0");
         }},
        {"Surprise Me", [&] { Click("cmdUniSurprise"); }},
    };
    for (const auto& change : changes) {
      change.Act();
      QApplication::processEvents();
      const QString name = change.Name == std::string("Composite Starfold 1")
                               ? Undo().text()
                               : "&Undo " + QString(change.Name).replace("&", "&&");
      EXPECT_EQ(Undo().text().toStdString(), name.toStdString());
      EXPECT_TRUE(IsMarkedChanged());
    }
    Steps = static_cast<int>(std::size(changes));
  }

  int Steps = 0;
};

TEST_F(EditHistoryTest, EveryKindOfChangeIsOneStepThereAndBack) {
  const MemoryTree before = Contents(LoadSettings(Tree));
  ChangeEverything();
  const MemoryTree changed = Accepted();
  EXPECT_FALSE(changed == before);

  ChangeEverything();
  for (int i = 0; i < Steps; ++i) Undo().trigger();
  EXPECT_FALSE(Undo().isEnabled());
  EXPECT_FALSE(IsMarkedChanged());
  EXPECT_TRUE(Accepted() == before);

  ChangeEverything();
  for (int i = 0; i < Steps; ++i) Undo().trigger();
  for (int i = 0; i < Steps; ++i) Redo().trigger();
  EXPECT_FALSE(Redo().isEnabled());
  EXPECT_TRUE(Accepted() == changed);
}

TEST_F(EditHistoryTest, AnOpenPageShowsWhatWasUndone) {
  OpenType(3);
  const QString radius = Edit("txtStarfold_0").text();
  Enter("txtStarfold_0", "4321");
  Undo().trigger();
  EXPECT_EQ(Edit("txtStarfold_0").text(), radius);
  EXPECT_TRUE(The<QPushButton>("cmdDismiss").isHidden()) << "the page stays open";
  Redo().trigger();
  EXPECT_EQ(Edit("txtStarfold_0").text(), "4321");
  Boxes.Answers = {BoxAnswer::No};
  Choose("mnuResetProps_2");
  EXPECT_EQ(Edit("txtStarfold_0").text(), radius);
  Undo().trigger();
  EXPECT_EQ(Edit("txtStarfold_0").text(), "4321");
  The<QToolButton>("cmdNextFold").click();
  EXPECT_EQ(The<QLabel>("lblFoldPlace").text().left(7), "5 of 50");
  The<QToolButton>("cmdPrevFold").click();
  EXPECT_EQ(Edit("txtStarfold_0").text(), "4321") << "stepping stores the page, as closing does";
}

TEST_F(EditHistoryTest, ABoxWithTheFocusUndoesItsOwnTextFirst) {
  auto& box = *Edit("txtUni_0").parentWidget();
  box.setFocus();
  QTest::keyClicks(&box, "7");
  QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Edit("txtUni_0").text(), "5000");
  EXPECT_FALSE(IsMarkedChanged());
  List("cboUniTheme").setCurrentIndex(2);
  QApplication::processEvents();
  EXPECT_EQ(Edit("txtUni_0").text(), "3500");
  QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Edit("txtUni_0").text(), "5000") << "the box has nothing to undo: the theme is undone";
}

TEST_F(EditHistoryTest, WhatIsTypedIsKeptWithoutCommit) {
  const auto type = [&](const char* box, const char* text) { Edit(box).setText(text); };
  Bodies().setCurrentRow(4);
  type("txtUniFoldName", "Mine");
  type("txtUniFoldPct", "81");
  Bodies().setCurrentRow(5);
  EXPECT_EQ(Bodies().EntryName(4), "Mine");
  type("txtUniFoldPct", "82");
  Press(*Edit("txtUniFoldPct").parentWidget(), Qt::Key_Return);
  EXPECT_TRUE(Bodies().item(5)->text().endsWith("  82"));
  The<BodyList>("lstCompStarfold").setCurrentRow(2);
  type("txtCompFoldName", "Halo");
  The<BodyList>("lstCompStarfold").setCurrentRow(3);
  EXPECT_TRUE(List("cboTourStarfolds").itemText(52).endsWith("Halo")) << "the tour's list as well";
  type("txtCompFoldPct", "83");
  Bodies().setCurrentRow(6);
  type("txtUniFoldName", "Last");
  Click("cmdAccept");
  const SettingsRecords stored = LoadSettings(Tree);
  EXPECT_EQ(stored.Profiles[4].UniFoldName, "Mine");
  EXPECT_EQ(stored.Profiles[4].UniFoldPct, 81);
  EXPECT_EQ(stored.Profiles[5].UniFoldPct, 82);
  EXPECT_EQ(stored.Profiles[6].UniFoldName, "Last");
  EXPECT_EQ(stored.Composites[2].CompFoldName, "Halo");
  EXPECT_EQ(stored.Composites[3].CompFoldPct, 83);
}

TEST_F(EditHistoryTest, LookingThroughAClosedListIsNotChoosing) {
  auto& theme = List("cboUniTheme");
  theme.setFocus();
  const auto stars = [&] { return Edit("txtUni_0").text(); };
  QTest::keyClick(&theme, Qt::Key_Down);
  QTest::keyClick(&theme, Qt::Key_Down);
  TurnWheel(theme, -120);
  EXPECT_EQ(theme.currentIndex(), 3);
  EXPECT_EQ(stars(), "5000");
  QTest::keyClick(&theme, Qt::Key_Escape);
  EXPECT_EQ(theme.currentIndex(), 0);
  QTest::keyClick(&theme, Qt::Key_Down);
  QTest::keyClick(&theme, Qt::Key_Down);
  QTest::keyClick(&theme, Qt::Key_Return);
  EXPECT_EQ(stars(), "3500");
  EXPECT_TRUE(Dialog->IsOpen()) << "that Return was for the list";
  QTest::keyClick(&theme, Qt::Key_Down);
  EXPECT_EQ(stars(), "3500");
  Bodies().setFocus();
  EXPECT_EQ(stars(), "4000");

  auto& tour = List("cboTourStarfolds");
  The<QComboBox>("cboUniExtras").setCurrentIndex(2);
  tour.setFocus();
  QTest::keyClick(&tour, Qt::Key_Down);
  tour.hidePopup();
  TurnWheel(tour, -120);
  EXPECT_EQ(tour.currentText(), "");
}

TEST_F(EditHistoryTest, OnlyTheWindowsOwnWaysOfClosingAskAboutChanges) {
  Dialog->close();
  EXPECT_TRUE(Boxes.Log.empty()) << "nothing has changed";
  const struct {
    BoxAnswer Answer;
    bool Exit;
    bool Closed;
    Integer Stars;
  } rows[] = {{BoxAnswer::Cancel, false, false, 5000},
              {BoxAnswer::DiscardChanges, false, true, 5000},
              {BoxAnswer::AcceptChanges, true, true, 60},
              {BoxAnswer::Cancel, true, false, 5000}};
  for (const auto& row : rows) {
    StoreFactory();
    Process->Requests = {};
    Open();
    Edit("txtUni_0").setText("60");
    Boxes.Answers = {row.Answer};
    if (row.Exit) {
      Choose("mnuExit");
    } else {
      Dialog->close();
    }
    EXPECT_EQ(LastBox().substr(0, 26), "The settings were changed.");
    EXPECT_EQ(!Dialog->IsOpen(), row.Closed);
    EXPECT_EQ(Process->Requests.QuitApp(), row.Exit && row.Closed);
    EXPECT_EQ(LoadUniverseFromRegistry(Tree).Universe_Stars, row.Stars);
  }
  Click("cmdDismiss");
  EXPECT_FALSE(Dialog->IsOpen());
  EXPECT_EQ(LastBox(), "") << "Cancel is an answer already";
  Open();
  Edit("txtUni_0").setText("60");
  Process->Requests.AskQuit();  // as a signal does
  Dialog->close();
  EXPECT_FALSE(Dialog->IsOpen());
  EXPECT_EQ(LastBox(), "");
}

TEST_F(EditHistoryTest, KeysOpenRowsTurnPagesAndPressTheDefault) {
  EXPECT_EQ(Bodies().Selected(), 0) << "something is selected, and shown";
  auto& pages = List("cboUniExtras");
  auto& tabs = Part<QTabBar>(*Dialog, "tabcboUniExtras");
  QTest::keyClick(&Bodies(), Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(pages.currentIndex(), kUniversePageCount - 1);
  EXPECT_EQ(tabs.currentIndex(), kUniversePageCount - 1);
  tabs.setCurrentIndex(1);
  EXPECT_EQ(pages.currentIndex(), 1);

  Edit("txtListFilter").setText("comet");
  EXPECT_TRUE(Bodies().isRowHidden(0));
  EXPECT_FALSE(Bodies().isRowHidden(10));
  Bodies().setCurrentRow(10);
  QTest::keyClick(&Bodies(), Qt::Key_Return);
  EXPECT_EQ(The<QLabel>("lblFoldPlace").text().left(8), "11 of 50");
  QTest::keyClick(Edit("txtStarfold_0").parentWidget(), Qt::Key_Return);
  EXPECT_FALSE(The<QPushButton>("cmdDismiss").isHidden()) << "back in the universe";
  Edit("txtUni_0").parentWidget()->setFocus();
  QTest::keyClick(Edit("txtUni_0").parentWidget(), Qt::Key_Return);
  EXPECT_FALSE(Dialog->IsOpen()) << "accepted";
}

TEST_F(EditHistoryTest, LongNamesDoNotWidenTheWindow) {
  const int usual = Dialog->minimumSizeHint().width();
  EXPECT_LE(usual, 1024);
  Click("cmdDismiss");
  SettingsRecords records;
  for (StarfoldProfile& profile : records.Profiles) profile.UniFoldName.assign(127, 'W');
  for (CompositeProfile& composite : records.Composites) composite.CompFoldName.assign(127, 'W');
  Store(records);
  Open();
  EXPECT_EQ(Dialog->minimumSizeHint().width(), usual);
  OpenType(0);
  EXPECT_EQ(Dialog->minimumSizeHint().width(), usual);
}

}  // namespace
}  // namespace starfolds
