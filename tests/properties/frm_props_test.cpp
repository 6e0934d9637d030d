#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QShortcut>
#include <QTimer>
#include <QToolTip>
#include <QWindow>
#include <set>

#include "numbers/text.h"
#include "properties/frm_welcome.h"
#include "properties/props_dialog.h"
#include "settings/first_run.h"
#include "settings/overrides.h"
#include "settings/random_records.h"
#include "settings/templates.h"
#include "template_dialogs/frm_file_io.h"
#include "widgets/plain_text.h"

namespace starfolds {
namespace {

std::string Shortest(double number) { return NumberText(static_cast<Single>(number)); }

TEST_F(FrmPropsTest, EveryUniverseRowIsClampedStoredAndShownAgain) {
  StoreFactory();
  for (const bool high : {true, false}) {
    Open();
    for (const UniverseRow& row : UniverseRows()) {
      Enter("txtUni_" + std::to_string(row.Index), high ? "99999999" : "0");
      const NumberRange range = RangeOf(row);
      EXPECT_EQ(Edit("txtUni_" + std::to_string(row.Index)).text().toStdString(),
                Shortest(high ? range.High : range.Low))
          << FieldOf(row.What).Name;
    }
    Click("cmdAccept");
    EXPECT_FALSE(Dialog->IsOpen());
    Open();
    for (const UniverseRow& row : UniverseRows()) {
      const NumberRange range = RangeOf(row);
      const std::string expected = Shortest(high ? range.High : range.Low);
      EXPECT_EQ(RegistryReadText(Tree, sections::kUniverse, FieldOf(row.What).Name), expected)
          << FieldOf(row.What).Name;
      EXPECT_EQ(Edit("txtUni_" + std::to_string(row.Index)).text().toStdString(), expected);
    }
    Click("cmdDismiss");
  }
}

TEST_F(FrmPropsTest, ListsAndChecksOfTheUniverseAreStoredToo) {
  StoreFactory();
  Open();
  The<QCheckBox>("chkUniTour").setChecked(true);
  The<QCheckBox>("chkVisitSeq").setChecked(true);
  EXPECT_FALSE(Edit("txtUni_34").parentWidget()->isEnabled());
  The<QCheckBox>("chkRotCamera").setChecked(true);
  EXPECT_TRUE(Edit("txtUni_34").parentWidget()->isEnabled());
  auto& tour = The<QComboBox>("cboTourStarfolds");
  tour.setEditText(" 4 ");
  emit tour.lineEdit()->textEdited(" 4 ");
  tour.setCurrentIndex(65);
  emit tour.activated(65);  // a body chosen from the list adds its number
  The<QComboBox>("cboUniProfile").setCurrentIndex(50);
  The<QCheckBox>("chkUniTour").setChecked(false);
  EXPECT_FALSE(tour.isEnabled());
  Click("cmdAccept");
  const UniverseSettings stored = LoadUniverseFromRegistry(Tree);
  EXPECT_FALSE(stored.Universe_Tour);
  EXPECT_TRUE(stored.Universe_GVisit);
  EXPECT_TRUE(stored.Universe_RotCam);
  EXPECT_EQ(stored.Universe_GS_Idx, "4 66");
  EXPECT_EQ(stored.Universe_Profile, 50);
}

TEST_F(FrmPropsTest, EveryStarfoldRowOfEveryStyleReachesItsSetting) {
  StoreFactory();
  for (int style = 0; style < kStyleCount; ++style) {
    Open();
    OpenType(7);
    The<QComboBox>("cboFoldStyle").setCurrentIndex(style);
    std::set<std::string_view> settings;
    for (const bool hue : {false, true}) {
      for (const StarfoldRow& row : hue ? PixHueRows() : StarfoldRows()) {
        const std::string box = (hue ? "txtPixHue_" : "txtStarfold_") + std::to_string(row.Index);
        EXPECT_NE(Edit(box).parentWidget()->isHidden(), IsShown(row, style)) << style << " " << box;
        if (!IsShown(row, style)) continue;
        EXPECT_TRUE(settings.insert(FieldOf(row, style).Name).second) << box << " is another's";
        Enter(box, "99999999");
        EXPECT_EQ(Edit(box).text().toStdString(), Shortest(RangeOf(row, style).High)) << box;
      }
    }
    Click("cmdAccept");  // to the universe
    Click("cmdAccept");
    const StarfoldProfile stored = LoadSettings(Tree).Profiles[7];
    EXPECT_EQ(stored.Starfold_FoldStyle, style);
    for (const StarfoldRow& row : StarfoldRows()) {
      if (!IsShown(row, style)) continue;
      const Field<StarfoldProfile>& field = FieldOf(row, style);
      EXPECT_EQ(FieldText(stored, field), Shortest(RangeOf(row, style).High)) << field.Name;
    }
    EXPECT_EQ(stored.Starfold_HueBlend, 60);
    EXPECT_EQ(stored.Starfold_ColorComp == 5, style == 4);
    EXPECT_EQ(stored.Starfold_ColorComp == 6, style == 9);
  }
}

TEST_F(FrmPropsTest, LookingAtATypeChangesNothingAndNeitherDoesTryingAStyle) {
  SettingsRecords records = RandomRecords(71).Make();
  for (StarfoldProfile& profile : records.Profiles) {
    const bool ruled =
        profile.Style() == FoldStyle::Nebula || profile.Style() == FoldStyle::Molecule;
    const int forced = profile.Style() == FoldStyle::Nebula ? 5 : 6;
    profile.Starfold_ColorComp =
        static_cast<Integer>(ruled ? forced : profile.Starfold_ColorComp % 5);
  }
  Store(records);
  Open();
  for (int type = 0; type < kProfileCount; type += 7) {
    OpenType(type);
    auto& style = The<QComboBox>("cboFoldStyle");
    const int own = style.currentIndex();
    for (int other = 0; other < kStyleCount; ++other) style.setCurrentIndex(other);
    style.setCurrentIndex(own);
    Click("cmdAccept");
  }
  Click("cmdAccept");
  const SettingsRecords after = LoadSettings(Tree);
  for (int type = 0; type < kProfileCount; ++type) {
    for (const Field<StarfoldProfile>& field : ProfileFields()) {
      EXPECT_EQ(FieldText(after.Profiles[type], field), FieldText(records.Profiles[type], field))
          << field.Name << " of " << type;
    }
  }
  for (const Field<UniverseSettings>& field : UniverseFields()) {
    EXPECT_EQ(FieldText(after.Universe, field), FieldText(records.Universe, field)) << field.Name;
  }
}

TEST_F(FrmPropsTest, CancelLeavesTheTreeAsItWas) {
  Store(RandomRecords(81).Make());
  Open();
  const MemoryTree before = Tree;
  Enter("txtUni_0", "77");
  The<QComboBox>("cboUniTheme").setCurrentIndex(3);
  The<BodyList>("lstUniStarfold").setCurrentRow(4);
  Edit("txtUniFoldName").setText("Mine");
  Click("cmdFoldCommit");
  OpenType(5);
  EXPECT_TRUE(The<QPushButton>("cmdDismiss").isHidden()) << "Cancel is for the universe's view";
  Click("cmdAccept");
  Click("cmdDismiss");
  EXPECT_EQ(Contents(LoadSettings(Tree)), Contents(LoadSettings(const_cast<MemoryTree&>(before))));
  EXPECT_TRUE(Process->Requests.NewRun());
  EXPECT_NE(RegistryReadText(Tree, sections::kMain, "WindowSize"), "");
}

TEST_F(FrmPropsTest, NamesAndWeightsAreCommitted) {
  StoreFactory();
  Open();
  auto& list = The<BodyList>("lstUniStarfold");
  list.setCurrentRow(4);
  Edit("txtUniFoldName").selectAll();
  Type(Edit("txtUniFoldName"), "[a=b],");
  EXPECT_EQ(Edit("txtUniFoldName").text(), "ab") << "typed over, without what breaks formats";
  Enter("txtUniFoldPct", "9999");
  Click("cmdFoldCommit");
  EXPECT_EQ(list.EntryName(4), "ab");
  EXPECT_TRUE(list.item(4)->text().endsWith("   9999"));
  EXPECT_EQ(The<QComboBox>("cboUniProfile").itemText(4).left(2), "ab");
  Edit("txtResetFoldPct").clear();
  Click("cmdResetFoldPct");
  EXPECT_EQ(LastBox(), "Please enter a value for the Reset percent.");
  Enter("txtResetFoldPct", "7");
  Click("cmdResetFoldPct");
  EXPECT_TRUE(list.item(4)->text().endsWith("   7"));
  Click("cmdAccept");
  const SettingsRecords stored = LoadSettings(Tree);
  EXPECT_EQ(stored.Profiles[4].UniFoldName, "ab");
  for (const StarfoldProfile& profile : stored.Profiles) EXPECT_EQ(profile.UniFoldPct, 7);
}

TEST_F(FrmPropsTest, ThemesFillThePages) {
  StoreFactory();
  Open();
  The<BodyList>("lstCompStarfold").setCurrentRow(1);
  The<QComboBox>("cboUniTheme").setCurrentIndex(8);
  UniverseSettings theme;
  LoadFactoryTheme(theme, 8, false);
  for (const UniverseRow& row : UniverseRows()) {
    if (FieldOf(row.What).Name == "Universe_C_Ramp") continue;  // no theme has it
    EXPECT_EQ(Edit("txtUni_" + std::to_string(row.Index)).text().toStdString(),
              FieldText(theme, *FindField(UniverseFields(), FieldOf(row.What).Name)))
        << FieldOf(row.What).Name;
  }
  EXPECT_EQ(The<BodyList>("lstCompStarfold").Selected(), -1);
  OpenType(30);
  for (int position = 1; position <= kProfileCount; ++position) {
    The<QComboBox>("cboFoldTheme").setCurrentIndex(position);
    StarfoldProfile body;
    LoadFactoryProfile(body, FactorySet::Starfolds4x, position - 1);
    EXPECT_EQ(The<QComboBox>("cboFoldStyle").currentIndex(), body.Starfold_FoldStyle);
    EXPECT_EQ(Edit("txtStarfold_0").text().toStdString(), NumberText(body.Starfold_Radius));
  }
}

TEST_F(FrmPropsTest, APreviewIsToggledByItsButtonAndLeavesTheRestDisabled) {
  StoreFactory();
  Open();
  The<BodyList>("lstUniStarfold").setCurrentRow(2);
  The<QCheckBox>("chkUniTour").setChecked(false);
  Events.Plan[5] = [&] {
    EXPECT_EQ(The<QPushButton>("cmdPreviewFold").text(), "Stop");
    EXPECT_FALSE(Edit("txtUni_0").parentWidget()->isEnabled());
    EXPECT_FALSE(The<QPushButton>("cmdAccept").isEnabled());
    EXPECT_FALSE(The<QPushButton>("cmdPreviewUni").isEnabled());
    Click("cmdPreviewFold");
  };
  Click("cmdPreviewFold");
  EXPECT_EQ(Events.Pumps, 5);
  EXPECT_EQ(The<QPushButton>("cmdPreviewFold").text(), "Preview Starfold");
  EXPECT_TRUE(Edit("txtUni_0").parentWidget()->isEnabled());
  EXPECT_TRUE(The<QPushButton>("cmdAccept").isEnabled());
  EXPECT_FALSE(The<QCheckBox>("chkRotCamera").isEnabled()) << "it was not enabled before";

  Events.Plan = {{12, [&] { Press(*Dialog, Qt::Key_Escape); }}};
  Click("cmdPreviewUni");
  EXPECT_LE(Events.Pumps, 13);
  EXPECT_TRUE(Dialog->IsOpen());
  Events.Plan = {{16, [&] { Process->Requests.AskQuit(); }}};
  Click("cmdPreviewUni");
  EXPECT_LE(Events.Pumps, 17);
  Process->Requests = {};
  The<BodyList>("lstCompStarfold").setCurrentRow(0);
  Events.Plan = {{20, [&] { Dialog->close(); }}};
  Click("cmdPreviewComp");
  EXPECT_LE(Events.Pumps, 21);
  EXPECT_FALSE(Dialog->IsOpen()) << "it closes when the run has ended";
}

/// The middle of what is lit in a picture.
QPoint MiddleOf(const QImage& picture) {
  QRect lit;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if ((picture.pixel(x, y) & RGB_MASK) != 0) lit |= QRect(x, y, 1, 1);
    }
  }
  return lit.center();
}

TEST_F(FrmPropsTest, ThePreviewFollowsTheSizeOfItsPicture) {
  SettingsRecords records;
  LoadFactorySettings(records, FactorySet::Starfolds4x, 1);
  StarfoldProfile& body = records.Profiles[0];  // small and in the middle
  body.Starfold_Radius = 30;
  body.Starfold_CometFreq = body.Starfold_NovaFreq = body.Starfold_PulsarFreq = 0;
  Store(records);
  Open();
  Dialog->resize(1280, 700);
  The<BodyList>("lstUniStarfold").setCurrentRow(0);
  auto& picture = The<PictureBox>("picPreview");
  const auto isCentred = [&] {
    const QPoint off = MiddleOf(picture.grab().toImage()) - picture.rect().center();
    return off.manhattanLength() < 40;
  };
  EXPECT_TRUE(QTest::qWaitFor(isCentred, 30'000));
  Dialog->resize(1500, 800);
  EXPECT_TRUE(QTest::qWaitFor(isCentred, 30'000)) << "while nothing runs";
  bool centred = false;
  Events.Plan[5] = [&] {
    Dialog->resize(1300, 900);
    QTest::qWait(400);  // the run restarts when the size has settled
  };
  Events.Plan[12] = [&] {
    centred = isCentred();
    Click("cmdPreviewFold");
  };
  Click("cmdPreviewFold");
  EXPECT_TRUE(centred) << "while it runs";
  EXPECT_EQ(Events.Pumps, 12);
  Dialog->resize(1000, 700);
  const auto* const splitter = Dialog->findChild<QSplitter*>();
  EXPECT_EQ(splitter->orientation(), Qt::Vertical) << "below the form";
}

TEST_F(FrmPropsTest, APageThatIsOpenDuringAResetShowsAndStoresTheFactorysValues) {
  StoreFactory();
  Open();
  OpenType(3);
  const std::string factory = Edit("txtStarfold_0").text().toStdString();
  Enter("txtStarfold_0", "4321");
  Boxes.Answers = {BoxAnswer::Cancel};
  Choose("mnuResetProps_2");
  EXPECT_EQ(Edit("txtStarfold_0").text(), "4321") << "what was typed outlives a cancelled reset";
  Boxes.Answers = {BoxAnswer::No};
  Choose("mnuResetProps_2");
  EXPECT_EQ(Edit("txtStarfold_0").text().toStdString(), factory);
  Click("cmdAccept");
  OpenType(3);
  EXPECT_EQ(Edit("txtStarfold_0").text().toStdString(), factory);
}

TEST_F(FrmPropsTest, WhatCannotBeStoredStaysInTheDialog) {
  StoreFactory();
  Open();
  Enter("txtUni_0", "1234");
  Tree.Writable = false;
  Boxes.Answers = {BoxAnswer::Ok, BoxAnswer::TryAgain, BoxAnswer::Ok, BoxAnswer::Cancel};
  Click("cmdAccept");
  ASSERT_EQ(Boxes.Log.size(), 4U);
  EXPECT_TRUE(Boxes.Log[2].Text.starts_with("The Registry is read-only."));
  EXPECT_TRUE(Dialog->IsOpen());
  EXPECT_EQ(Edit("txtUni_0").text(), "1234");

  Boxes.Answers = {BoxAnswer::Ok, BoxAnswer::CloseWithoutSaving};
  Click("cmdAccept");
  EXPECT_FALSE(Dialog->IsOpen());
  Tree.Writable = true;
  EXPECT_EQ(LoadUniverseFromRegistry(Tree).Universe_Stars, 5000);

  Open();
  Edit("txtUni_0").setText("99999999");
  const MemoryTree before = Contents(LoadSettings(Tree));
  Tree.WritesUntilFull = 800;
  Click("cmdAccept");
  EXPECT_TRUE(Dialog->IsOpen()) << "a disk that fills up in the middle";
  EXPECT_TRUE(Contents(LoadSettings(Tree)) == before);
  Tree.WritesUntilFull = -1;
  Click("cmdAccept");
  EXPECT_FALSE(Dialog->IsOpen());
  EXPECT_EQ(RegistryReadText(Tree, sections::kUniverse, "Universe_Stars"), "30000")
      << "also a box that was not left";
}

TEST_F(FrmPropsTest, AnUnreadableTreeShowsTheFactorySettingsAndIsKept) {
  const SettingsRecords mine = RandomRecords(51).Make();
  Store(mine);
  const MemoryTree before = Tree;
  Tree.Readable = false;  // held by another process
  Open();
  EXPECT_TRUE(Tree == before);
  EXPECT_NE(LastBox().find("show the Factory Settings"), std::string::npos);
  EXPECT_EQ(Edit("txtUni_0").text(), "5000");
  Tree.Readable = true;
  Click("cmdAccept");
  EXPECT_EQ(LoadSettings(Tree).Profiles[1].UniFoldName, "Star Rings");
  EXPECT_EQ(SavedName("/home/u/former-settings-1.sfd"), mine.Profiles[1].UniFoldName);
}

TEST_F(FrmPropsTest, ABodyIsMadeAtRandomStartedFromASampleAndPutBack) {
  StoreFactory();
  Open();
  for (int style = 0; style < kStyleCount; ++style) {
    OpenType(7);
    List("cboFoldStyle").setCurrentIndex(0);
    const std::string before = Edit("txtStarfold_2").text().toStdString();
    List("cboFoldStyle").setCurrentIndex(style);
    Click("cmdSurprise");
    EXPECT_EQ(List("cboFoldStyle").currentIndex(), style);
    EXPECT_NE(Edit("txtStarfold_2").text().toStdString(), before) << style;
    Click("cmdSample");
    EXPECT_EQ(List("cboFoldStyle").currentIndex(), style);
    Click("cmdRevert");
    EXPECT_EQ(Edit("txtStarfold_2").text().toStdString(), before) << style;
    EXPECT_EQ(List("cboFoldStyle").currentIndex(), 0);
    Click("cmdAccept");
  }
  OpenType(7);
  List("cboFoldStyle").setCurrentIndex(static_cast<int>(FoldStyle::Molecule));
  Click("cmdSample");
  Click("cmdAccept");
  Click("cmdAccept");
  const StarfoldProfile stored = LoadSettings(Tree).Profiles[7];
  EXPECT_GT(stored.Starfold_Atoms, 0) << "the settings without a box come with the others";
  EXPECT_EQ(stored.UniFoldName, "Nested Bulbs");
}

TEST_F(FrmPropsTest, ANewUserIsWelcomedOnceAndGetsTheFactorySettings) {
  WhenShown<FrmWelcome>([](FrmWelcome& welcome) { welcome.reject(); });
  Open();
  EXPECT_EQ(The<BodyList>("lstUniStarfold").EntryName(1), "Star Rings");
  EXPECT_FALSE(HasMark(Tree, kAnimationType)) << "nothing is accepted yet";
  Click("cmdDismiss");
  Open();
  EXPECT_TRUE(HasMark(Tree, kAnimationType)) << "opened again, the settings are stored at once";
  EXPECT_EQ(LoadUniverseFromRegistry(Tree).Universe_C_Ramp, 750) << "which no theme has";
  EXPECT_EQ(LoadSettings(Tree).Profiles[1].UniFoldName, "Star Rings");
  Choose("mnuExit");
  EXPECT_TRUE(Process->Requests.QuitApp());
  EXPECT_FALSE(Dialog->IsOpen());
}

TEST_F(FrmPropsTest, AnUpgradeAndAResetMakeASafetyCopy) {
  const SettingsRecords mine = RandomRecords(95).Make();
  Store(mine);
  RegistryWrite(Tree, sections::kGeneral, kResetSettings, "");
  WhenShown<FrmWelcome>(
      [](FrmWelcome& welcome) { Part<QPushButton>(welcome, "cmdReset").click(); });
  Open();
  EXPECT_EQ(SavedName("/prog/propsave.sfd"), mine.Profiles[1].UniFoldName);
  SettingsRecords saved;
  TemplateFile copy(Disk);
  ReadTemplate(copy, "/prog/propsave.sfd", saved);
  EXPECT_EQ(saved.Universe, mine.Universe) << "that of the dialog, which is loaded already";
  EXPECT_EQ(The<BodyList>("lstUniStarfold").EntryName(1), "Star Rings");
  EXPECT_EQ(LoadSettings(Tree).Profiles[1].UniFoldName, mine.Profiles[1].UniFoldName)
      << "until the dialog is accepted";

  Disk.ReadOnlyFolders = {"/prog"};
  Boxes.Answers = {BoxAnswer::Cancel, BoxAnswer::Yes};
  Choose("mnuResetProps_0");
  EXPECT_EQ(Disk.Contents.size(), 1U);
  Choose("mnuResetProps_0");
  EXPECT_EQ(SavedName("/home/u/propsave.sfd"), "Star Rings");
  EXPECT_EQ(Edit("txtUni_0").text(), "2500") << "theme 1 in its variant for 2.0";
}

TEST_F(FrmPropsTest, F1OpensTheTopicOfThePageOrTheFrameInUse) {
  StoreFactory();
  Open();
  const auto topic = [&] {
    emit Part<QShortcut>(*Dialog, "helpHere").activated();
    return HelpBook.Topics.back();
  };
  for (int page = 0; page < kUniversePageCount; ++page) {
    The<QComboBox>("cboUniExtras").setCurrentIndex(page);
    The<QComboBox>("cboUniExtras").setFocus();
    EXPECT_EQ(topic(), help::kUniversePage + page);
  }
  The<BodyList>("lstUniStarfold").setFocus();
  EXPECT_EQ(topic(), help::kUniverseView);
  The<QComboBox>("cboPropCopyList").setFocus();
  EXPECT_EQ(topic(), help::kPropertyCopy);
  OpenType(0);
  The<QComboBox>("cboFoldTheme").setFocus();
  EXPECT_EQ(topic(), help::kStarfoldView);
  The<QComboBox>("cboFoldExtras").setCurrentIndex(2);
  The<QComboBox>("cboFoldExtras").setFocus();
  EXPECT_EQ(topic(), help::kStarfoldPage + 2);
}

/// Whatever a user does, previews included, leaves a valid tree.
TEST_F(FrmPropsTest, RandomEventsLeaveAValidTree) {
  StoreFactory();
  Open();
  RandomHands hands(7);
  for (int i = 1; i < 400; ++i) Events.Plan[i * 6] = [&] { Press(*Dialog, Qt::Key_Escape); };
  QTimer closer;  // of the editors, which are modal
  closer.callOnTimeout([this] {
    QWidget* editor = QApplication::activeModalWidget();
    if (editor && editor != Dialog.get()) editor->close();
  });
  closer.start(0);
  const auto accepts = [&] { return The<QPushButton>("cmdAccept").text() == "&Accept Settings"; };
  for (int i = 0; i < 10000; ++i) {
    Events.Pumps = 0;
    hands.Act(*Dialog, [&](const QString& name) {
      return name == "cmdDismiss" || (name == "cmdAccept" && accepts()) ||
             (name.startsWith("cmdPreview") && hands.Draw(20) > 0);
    });
    if (hands.Draw(200) == 0) Choose(i % 2 == 0 ? "mnuResetProps_0" : "mnuResetProps_2");
  }
  EXPECT_TRUE(Dialog->IsOpen() && Dialog->isVisible()) << "used to the end";
  if (!accepts()) Click("cmdAccept");
  Click("cmdAccept");
  for (const UniverseRow& row : UniverseRows()) {
    const std::string stored = RegistryReadText(Tree, sections::kUniverse, FieldOf(row.What).Name);
    EXPECT_EQ(stored, ClampedText(stored, RangeOf(row))) << FieldOf(row.What).Name;
  }
  MemoryTree again = Contents(LoadSettings(Tree));
  EXPECT_EQ(Contents(LoadSettings(again)), again);
}

TEST_F(FrmPropsTest, SettingsOfTheRunAreToldAndNotStored) {
  StoreFactory();
  EXPECT_FALSE(Part<QLabel>(Open(), "lblOverrides").isVisible());
  Click("cmdDismiss");
  OverriddenTree ofRun(Tree);
  const std::vector<SettingChange> changes(28, {"Universe_Stars", "123"});
  ofRun.Override(changes);
  Overrides = ChangesInWords(changes);
  EXPECT_NE(Part<QLabel>(Open(), "lblOverrides").text().indexOf("Starfolds = 123."), -1);
  EXPECT_TRUE(The<QLabel>("lblOverrides").isVisible());
  EXPECT_EQ(Edit("txtUni_0").text(), "5000");
  Click("cmdAccept");
  EXPECT_EQ(LoadUniverseFromRegistry(Tree).Universe_Stars, 5000);
  EXPECT_EQ(LoadUniverseFromRegistry(ofRun).Universe_Stars, 123);
}

/// Pinned: what each style shows, and under which captions.
TEST_F(FrmPropsTest, EachStyleShowsItsRowsUnderTheirNames) {
  StoreFactory();
  Open();
  OpenType(0);
  const std::string pinned[kStyleCount] = {
      "b23f76ac0189cf36afd333abadd5bc76", "5335a5cf0ed1534c61d58ca2f2a5c2d9",
      "4f674d5302f0912c20af3b7aead59b88", "753d448bb0abc908d7e6ddc55d76697d",
      "8f01556cff5f5a0860c4a8a1a51a81bb", "18e4fac4e5667d0b46381048444bd23b",
      "dfea2e5f384784429cd5252c8ed9aec7", "a01fa46c629538ec608b75ec4d124945",
      "0037bd2dcfec0fa9d8dc9c094be059cd", "b832bbb312d764a71af36b77b0884d61"};
  for (int style = 0; style < kStyleCount; ++style) {
    The<QComboBox>("cboFoldStyle").setCurrentIndex(style);
    QStringList shown;
    const QRegularExpression varied(
        "^(lblStarfold|spnStarfold|cboFold|picFold|chkCP|cmdIFS|cmdFold)");
    for (const QWidget* widget : Dialog->findChildren<QWidget*>(varied)) {
      if (widget->isHidden()) continue;
      const auto* label = qobject_cast<const QLabel*>(widget);
      const auto* button = qobject_cast<const QAbstractButton*>(widget);
      shown += widget->objectName() + ' ' + (label ? label->text() : button ? button->text() : "");
    }
    shown.sort();
    EXPECT_EQ(HashOf(shown.join('\n')), pinned[style]) << shown.join('\n').toStdString();
  }
}

/// The format in which a tool tip shows a text.
Qt::TextFormat FormatOfTip(const QString& text) {
  QToolTip::showText({}, text);
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    const auto* const label = qobject_cast<const QLabel*>(window);
    if (label && label->inherits("QTipLabel") && label->text() == text) return label->textFormat();
  }
  return Qt::AutoText;
}

TEST_F(FrmPropsTest, NamesAreNotTakenForMarkup) {
  ShowTextsAsPlain(*qApp);
  const std::string name = "<img src='/dev/zero'>[*]";
  SettingsRecords records;
  for (StarfoldProfile& profile : records.Profiles) profile.UniFoldName = name;
  for (CompositeProfile& composite : records.Composites) composite.CompFoldName = name;
  Store(records);
  Overrides = {name};
  Open();
  OpenType(0);
  const auto expectPlain = [](const QWidget& window) {
    for (QLabel* const label : window.findChildren<QLabel*>()) {
      label->ensurePolished();
      EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->text().toStdString();
    }
  };
  expectPlain(*Dialog);
  for (const auto& [style, button] : {std::pair{FoldStyle::Standard, "cmdFoldLevels"},
                                      {FoldStyle::UserIfs, "cmdIFS_Chem"},
                                      {FoldStyle::Molecule, "cmdIFS_Chem"}}) {
    List("cboFoldStyle").setCurrentIndex(static_cast<int>(style));
    WhenShown<BodyEditor>([&](BodyEditor& editor) {
      expectPlain(editor);
      editor.reject();
    });
    Click(button);
  }
  for (const char* list : {"lstUniStarfold", "lstCompStarfold", "lstCompMinor"}) {
    const QString tip = The<QListWidget>(list).item(0)->toolTip();
    EXPECT_EQ(tip.toStdString(), name) << list;
    EXPECT_EQ(FormatOfTip(tip), Qt::PlainText);
  }
  QWidget window;
  window.setWindowTitle(WindowTitle(name));
  window.show();
  EXPECT_EQ(window.windowHandle()->title().toStdString(), name);
}

}  // namespace
}  // namespace starfolds
