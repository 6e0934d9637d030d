#include <gtest/gtest.h>

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QCheckBox>
#include <QLabel>

#include "body_editors/body_editors_test.h"
#include "numbers/text.h"

namespace starfolds {
namespace {

/// Pinned: the names of the parts in the order of the Tab key.
constexpr const char* kTabOrders[] = {"1f9d1123e145461f5576c03f95c4a9f9",
                                      "4ccb7576760d59e74b5a024d6cc48b0a",
                                      "71ddf6401e476e928f4e9f490892c456"};

/// Pinned: all numbers of all themes, as they reach the record and the boxes of the page.
TEST_F(BodyEditorsTest, EveryThemeGoesToTheRecord) {
  QString all;
  const auto add = [&all](const auto& record, const auto fields) {
    for (const auto& field : fields) all += Shown(FieldText(record, field)) + ' ';
  };
  for (const Kind kind : {Kind::Ifs, Kind::Molecule}) {
    Open(kind);
    for (int theme = 1; theme < List("cboTheme").count(); ++theme) {
      Record() = {};
      Open(kind);
      List("cboTheme").setCurrentIndex(theme);
      all += List("cboTheme").currentText() + ": " + The<QLabel>("lblTheme").text() + '\n';
      Click("cmdOK");
      EXPECT_TRUE(Boxes.Log.empty());
      for (const auto& [box, text] : Props.Texts) all += Shown(text) + ' ';
      add(Record().IFS, IfsCenterFields());
      for (int i = 0; i < Record().Starfold_IFS_Points; ++i) {
        add(Record().IFS.Points[i], IfsPointFields());
      }
      add(Record().Atom, AtomCenterFields());
      for (int i = 0; i < Record().Starfold_Atoms; ++i)
        add(Record().Atom.Atoms[i], AtomPointFields());
    }
  }
  EXPECT_EQ(HashOf(all), "0303c615ea7ebdeaa07e141ff1e0e238") << all.toStdString();
}

TEST_F(BodyEditorsTest, LevelsAreClampedAndPassedToThePage) {
  struct Row {
    std::string Typed[5], Held[5];
  };
  const Row rows[] = {
      {{"", "0", "100", "0", ""}, {"1", "1", "99.9", "1", "1"}},
      {{"11", "30001", "0.25", "99999", "777"}, {"10", "30000", "0.25", "30000", "777"}}};
  const char* const boxes[] = {"txtLevel_0", "txtLevel_1", "txtLevel_2", "txtStarfold_0",
                               "txtStarfold_1"};
  for (const auto& [typed, held] : rows) {
    Open(Kind::Levels);
    for (int i = 0; i < 5; ++i) Put(boxes[i], typed[i]);
    The<QCheckBox>("chkToggle_1").toggle();
    const bool interleaved = The<QCheckBox>("chkToggle_1").isChecked();
    Click("cmdOK");
    const StarfoldProfile& body = Record();
    EXPECT_EQ(NumberText(Long{body.Starfold_StdLevels}), held[0]);
    EXPECT_EQ(NumberText(body.Starfold_StdLevDRad), held[1]);
    EXPECT_EQ(NumberText(body.Starfold_StdLevHSca), held[2]);
    EXPECT_EQ(body.Starfold_StdLevB_A0, interleaved ? 1 : 0);
    EXPECT_EQ(body.Starfold_StdLevB_HS + body.Starfold_StdLevB_A1, 0);
    const std::map<int, std::string> handedOn = {{9, held[0]}, {0, held[3]}, {2, held[4]}};
    EXPECT_EQ(Props.Texts, handedOn);
    Open(Kind::Levels);
    for (int i = 0; i < 5; ++i) EXPECT_EQ(Text(boxes[i]), held[i]);
    EXPECT_EQ(The<QCheckBox>("chkToggle_1").isChecked(), interleaved);
  }
  Record().Starfold_StdLevDRad = 1234567;
  Open(Kind::Levels);
  EXPECT_EQ(Text("txtLevel_1"), "1234567") << "as it stands in the record";
}

TEST_F(BodyEditorsTest, ValuesOfAPreviewStayInTheRecordAfterCancel) {
  Open(Kind::Levels);
  Put("txtLevel_0", "6");
  Put("txtStarfold_1", "1500");
  Preview(3);
  Put("txtLevel_0", "8");
  Click("cmdDismiss");
  EXPECT_EQ(Record().Starfold_StdLevels, 6);
  EXPECT_EQ(Record().Starfold_Distance, 1500);

  Open(Kind::Ifs);
  Put("txtStarfold_1", "222");
  Put("txtCenter_2", "33");
  Click("cmdPreview");  // refused
  EXPECT_EQ(Record().Starfold_Rotation, 222);
  EXPECT_EQ(Record().IFS.IFS_CenterZ, 33);
  Click("cmdDismiss");
  EXPECT_TRUE(Props.Texts.empty());
}

TEST_F(BodyEditorsTest, PointsWithoutAWeightAreDropped) {
  Record().Starfold_IFS_Points = 5;
  for (IfsPoint& point : Record().IFS.Points) point = {1, 2, 3, 4, 2, 6, 7};
  Open(Kind::Ifs);
  EXPECT_EQ(List("cboRAxis_4").currentText(), "Z");
  Put("txtPercent_1", "");
  Put("txtPercent_3", "0");
  Put("txtScale_2", "101");
  Put("txtAngle_2", "400");
  Put("txtLocX_2", "");
  List("cboRAxis_4").setCurrentIndex(-1);
  Put("txtStarfold_0", "0");
  Click("cmdOK");
  EXPECT_EQ(Props.Texts[0], "0");
  EXPECT_EQ(Record().Starfold_IFS_Points, 3);
  const auto& points = Record().IFS.Points;
  EXPECT_EQ(points[0].IFS_Scale, 4);
  EXPECT_EQ(points[1].IFS_Scale, 100);
  EXPECT_EQ(points[1].IFS_Angle, 360);
  EXPECT_EQ(points[1].IFS_LocX, 0);
  EXPECT_EQ(points[2].IFS_Axis, 0);
  EXPECT_EQ(points[3].IFS_RelPct, 0);
  EXPECT_EQ(points[4].IFS_RelPct, 0);

  Open(Kind::Ifs);
  EXPECT_EQ(Text("txtPercent_2"), "7");
  EXPECT_EQ(Text("txtPercent_3"), "") << "a row that is not in use is blank";
  for (int row = 3; row < 5; ++row) Put("txtPercent_" + std::to_string(row), "9");
  List("cboTheme").setCurrentIndex(5);  // of three points
  for (int row = 3; row < 5; ++row) {
    EXPECT_EQ(Text("txtPercent_" + std::to_string(row)), "");
    EXPECT_EQ(List("cboRAxis_" + std::to_string(row)).currentIndex(), -1);
  }
  Put("txtLocX_1", "1");
  emit List("cboTheme").activated(5);  // once more
  EXPECT_EQ(Text("txtLocX_1"), "1000");
  Click("cmdClear");
  for (const char* box : {"txtCenter_0", "txtLocX_1", "txtPercent_0"}) {
    Leave(*Edit(box).parentWidget());
    EXPECT_EQ(Text(box), "") << box;
  }
  EXPECT_EQ(Text("txtStarfold_0"), "300") << "the body's own numbers are not cleared";
}

TEST_F(BodyEditorsTest, AnIncompleteBodyIsRefused) {
  for (const Kind kind : {Kind::Ifs, Kind::Molecule}) {
    Record().Starfold_IFS_Points = Record().Starfold_Atoms = 3;
    Open(kind);
    Click("cmdClear");
    if (kind == Kind::Ifs) Put("txtPercent_2", "50");
    for (const char* button : {"cmdOK", "cmdPreview"}) {
      Click(button);
      EXPECT_NE(LastBox().find(kind == Kind::Ifs ? "two or more Attractor" : "at least one Atomic"),
                std::string::npos);
      EXPECT_TRUE(Dialog->isVisible());
    }
    const auto& body = Record();
    EXPECT_EQ(kind == Kind::Ifs ? body.Starfold_IFS_Points : body.Starfold_Atoms, 0);
    EXPECT_TRUE(Props.Texts.empty());
  }
}

/// The keyboard goes through all parts from the top to the bottom, and a screen reader finds a name
/// for each box.
TEST_F(BodyEditorsTest, TheKeyboardReachesAllPartsInTheirOrder) {
  for (const Kind kind : kKinds) {
    Open(kind);
    QStringList order;
    QWidget* part = Dialog.get();
    while ((part = part->nextInFocusChain()) != Dialog.get()) {
      if (!(part->focusPolicy() & Qt::TabFocus) || !part->isVisible()) continue;
      order += part->objectName();
      if (!qobject_cast<QAbstractSpinBox*>(part) && !qobject_cast<QComboBox*>(part)) continue;
      const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(part);
      EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty()) << part->objectName().toStdString();
    }
    EXPECT_EQ(HashOf(order.join('\n')), kTabOrders[static_cast<int>(kind)])
        << order.join('\n').toStdString();
  }
}

TEST_F(BodyEditorsTest, EveryEditorFitsASmallScreen) {
  for (const Kind kind : kKinds) {
    const QSize least = Open(kind).minimumSizeHint();
    EXPECT_TRUE(least.width() <= 960 && least.height() <= 680)
        << least.width() << " x " << least.height();
  }
}

TEST_F(BodyEditorsTest, APreviewIsAToggleThatKeepsTheDialogLive) {
  Open(Kind::Ifs);
  List("cboTheme").setCurrentIndex(1);
  auto& preview = The<QPushButton>("cmdPreview");
  Edit("txtLocX_0").parentWidget()->setFocus();
  EXPECT_TRUE(The<QPushButton>("cmdOK").isDefault());
  preview.setFocus();  // as a click does
  Events.Plan[4] = [&] {
    Edit("txtLocX_0").parentWidget()->setFocus();
    EXPECT_EQ(preview.text(), "Stop");
    EXPECT_TRUE(preview.isDefault());
    EXPECT_FALSE(The<QPushButton>("cmdDismiss").isEnabled());
    EXPECT_TRUE(The<QPushButton>("cmdOK").isEnabled());
    Put("txtLocX_0", "5");
    Press(*Edit("txtLocX_0").parentWidget(), Qt::Key_Return);
  };
  Click("cmdPreview");
  EXPECT_EQ(Events.Pumps, 4);
  EXPECT_EQ(preview.text(), "Preview I.F.S.");
  EXPECT_TRUE(The<QPushButton>("cmdOK").isDefault());
  EXPECT_TRUE(The<QPushButton>("cmdDismiss").isEnabled());
  EXPECT_EQ(Record().IFS.Points[0].IFS_LocX, 1000) << "of the preview";

  Events.Pumps = 0;
  Events.Plan = {{4, [&] { Dialog->resize(Dialog->size() + QSize(80, 50)); }},
                 {30, [&] { Press(*Dialog, Qt::Key_Escape); }}};
  Click("cmdPreview");
  EXPECT_EQ(Events.Pumps, 30) << "it goes on in the new size";
  EXPECT_TRUE(Dialog->isVisible()) << "Escape ended the preview only";

  for (const bool closes : {true, false}) {
    Dialog->show();
    Events.Pumps = 0;
    Events.Plan = {{4, [&] {
                      closes ? void(Dialog->close()) : Click("cmdOK");
                      EXPECT_TRUE(Dialog->isVisible()) << "the run draws on it";
                    }}};
    Click("cmdPreview");
    EXPECT_EQ(Events.Pumps, 4);
    EXPECT_EQ(Dialog->result(), closes ? QDialog::Rejected : QDialog::Accepted);
    EXPECT_FALSE(Dialog->isVisible());
  }
  EXPECT_EQ(Record().IFS.Points[0].IFS_LocX, 5);
  EXPECT_EQ(Props.Texts[0], "250");
}

}  // namespace
}  // namespace starfolds
