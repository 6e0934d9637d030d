// The box for a number and the box for a name, as keys, clipboard and wheel find them.
#include "widgets/number_box.h"

#include <gmock/gmock.h>

#include <QClipboard>

#include "widgets/dialog_test.h"
#include "widgets/name_box.h"

namespace starfolds {
namespace {

constexpr NumberRange kWhole{NumberKind::AsInteger, 4, 9999};
constexpr NumberRange kLong{NumberKind::AsLong, 10, 30000};
constexpr NumberRange kReal{NumberKind::AsSingle, 0.25, 99.9};

QLineEdit& Line(NumberBox& box) { return *box.findChild<QLineEdit*>(); }

TEST(NumberBoxTest, OnlyKeysOfANumberComeThroughAndLeavingClamps) {
  const struct {
    NumberRange Range;
    const char* Typed;
    const char* InTheBox;
    const char* AfterLeaving;
  } rows[] = {
      {kWhole, "1a-2.3,e", "123", "123"},
      {kWhole, "", "", "4"},
      {kWhole, "0012", "0012", "12"},
      {kWhole, "123456", "1234", "1234"},
      {kLong, "40000", "40000", "30000"},
      {kReal, "1.2.5", "1.25", "1.25"},
      {kReal, ".", ".", "0.25"},
      {kReal, "-99.95 ", "99.95", "99.9"},
      {kReal, "00000000.5", "00000000", "0.25"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Typed);
    NumberBox box;
    box.SetRange(row.Range);
    Type(box, row.Typed);
    EXPECT_EQ(box.Text(), row.InTheBox);
    Leave(box);
    EXPECT_EQ(box.Text(), row.AfterLeaving);
  }
}

TEST(NumberBoxTest, PastedTextIsANumberOrNothing) {
  NumberBox box;
  box.SetRange(kReal);
  for (const auto& [pasted, expected] :
       {std::pair{"7.5", "7.5"}, {"abc", "2"}, {"-3", "2"}, {"1.2.3", "2"}}) {
    QApplication::clipboard()->setText(pasted);
    box.SetText("2");
    Line(box).selectAll();
    Press(box, Qt::Key_V, "\x16", Qt::ControlModifier);
    EXPECT_EQ(box.Text(), expected) << pasted;
  }
}

TEST(NumberBoxTest, StepsFollowTheRangeAndStopAtItsEnds) {
  const struct {
    NumberRange Range;
    const char* Start;
    const char* Up;
    const char* Down;
  } rows[] = {
      {{NumberKind::AsInteger, 0, 100}, "50", "51", "49"},
      {{NumberKind::AsInteger, 0, 101}, "50", "55", "45"},
      {{NumberKind::AsInteger, 0, 999}, "50", "60", "40"},
      {{NumberKind::AsLong, 0, 30000}, "60", "110", "10"},
      {{NumberKind::AsInteger, 4, 10}, "10", "10", "9"},
      {{NumberKind::AsInteger, 4, 10}, "", "4", "4"},
      {kReal, "0.5", "1.5", "0.25"},
  };
  for (const auto& row : rows) {
    NumberBox box;
    box.SetRange(row.Range);
    box.SetText(row.Start);
    box.stepBy(1);
    EXPECT_EQ(box.Text(), row.Up);
    box.SetText(row.Start);
    Press(box, Qt::Key_Down);
    if (*row.Start) {
      EXPECT_EQ(box.Text(), row.Down) << row.Start;
    }
  }
}

TEST(NumberBoxTest, TheWheelTurnsOnlyABoxWithTheFocus) {
  QWidget window;
  NumberBox other(&window);
  NumberBox box(&window);
  box.SetRange({NumberKind::AsInteger, 0, 100});
  box.SetText("50");
  Activate(window);
  other.setFocus();
  EXPECT_FALSE(TurnWheel(box, 120)) << "the page under the box does not scroll";
  EXPECT_EQ(box.Text(), "50");
  EXPECT_FALSE(box.hasFocus());
  box.setFocus();
  ASSERT_TRUE(box.hasFocus());
  TurnWheel(box, 120);
  EXPECT_EQ(box.Text(), "51");
}

TEST(NumberBoxTest, ANewRangeCutsNothingOffUntilTheBoxIsLeft) {
  NumberBox box;
  box.SetRange(kWhole);
  box.SetText("9876");
  box.SetRange({NumberKind::AsInteger, 0, 100});
  box.SetRange(kWhole);
  EXPECT_EQ(box.Text(), "9876");
  box.SetRange({NumberKind::AsInteger, 0, 100});
  Leave(box);
  EXPECT_EQ(box.Text(), "100");
}

TEST(NameBoxTest, WhatBreaksTheFormatsIsDropped) {
  NameBox box;
  Type(box, "a[b],c=d e");
  EXPECT_EQ(box.text(), "abcd e");
  QApplication::clipboard()->setText("x=[1,2]y");
  box.selectAll();
  Press(box, Qt::Key_V, "\x16", Qt::ControlModifier);
  EXPECT_EQ(box.text(), "x12y");
  box.setText(QString(300, 'n'));
  EXPECT_EQ(box.text().size(), 127);
}

}  // namespace
}  // namespace starfolds
