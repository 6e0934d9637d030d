#include "widgets/qt_message_boxes.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QDialog>
#include <QMessageBox>

#include "widgets/dialog_test.h"

namespace starfolds {
namespace {

using Act = std::function<void(QMessageBox&)>;

Act Click(QMessageBox::StandardButton button) {
  return [button](QMessageBox& box) {
    ASSERT_NE(box.button(button), nullptr);
    box.button(button)->click();
  };
}
Act Key(int key) {
  return [key](QMessageBox& box) { Press(box, key); };
}
const Act kClose = [](QMessageBox& box) { box.close(); };

TEST(QtMessageBoxes, AnswerByTheirButtonsKeysAndClosing) {
  struct Row {
    BoxStyle Style;
    Act Do;
    BoxAnswer Answer;
  };
  const Row rows[] = {
      {BoxStyle::YesNoCancelQuestion, Click(QMessageBox::Yes), BoxAnswer::Yes},
      {BoxStyle::YesNoCancelQuestion, Click(QMessageBox::No), BoxAnswer::No},
      {BoxStyle::YesNoCancelQuestion, Click(QMessageBox::Cancel), BoxAnswer::Cancel},
      {BoxStyle::YesNoCancelQuestion, Key(Qt::Key_Escape), BoxAnswer::Cancel},
      {BoxStyle::YesNoCancelQuestion, Key(Qt::Key_Return), BoxAnswer::Yes},
      {BoxStyle::YesNoCancelQuestion, kClose, BoxAnswer::Cancel},
      {BoxStyle::Information, Click(QMessageBox::Ok), BoxAnswer::Ok},
      {BoxStyle::Exclamation, Key(Qt::Key_Escape), BoxAnswer::Ok},
      {BoxStyle::Plain, kClose, BoxAnswer::Ok},
      {BoxStyle::SaveFailed, Key(Qt::Key_Return), BoxAnswer::TryAgain},
      {BoxStyle::SaveFailed, Click(QMessageBox::Save), BoxAnswer::SaveAsTemplate},
      {BoxStyle::SaveFailed, Click(QMessageBox::Discard), BoxAnswer::CloseWithoutSaving},
      {BoxStyle::SaveFailed, Key(Qt::Key_Escape), BoxAnswer::Cancel},
  };
  QtMessageBoxes boxes;
  for (const Row& row : rows) {
    WhenShown<QMessageBox>(row.Do);
    EXPECT_EQ(boxes.Show("text", row.Style, "caption"), row.Answer) << &row - rows;
  }
}

TEST(QtMessageBoxes, ShowTheTextAsItIsOverTheDialogThatIsOpen) {
  QDialog first, last(&first);
  for (QDialog* dialog : {&first, &last}) {
    dialog->setWindowModality(Qt::WindowModal);
    Activate(*dialog);
  }
  QtMessageBoxes boxes;
  WhenShown<QMessageBox>([&](QMessageBox& box) {
    EXPECT_EQ(box.text(), "A <b>name</b>\n\xC3\xA4");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.windowTitle(), "Starfolds");
    EXPECT_EQ(box.icon(), QMessageBox::Warning);
    EXPECT_EQ(box.parentWidget(), &last);
    EXPECT_TRUE(box.textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
    box.close();
  });
  boxes.Show("A <b>name</b>\n\xC3\xA4", BoxStyle::Exclamation, "Starfolds");
}

}  // namespace
}  // namespace starfolds
