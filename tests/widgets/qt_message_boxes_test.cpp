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
      {BoxStyle::YesNoCancelQuestion, Key(Qt::Key_Escape), BoxAnswer::Cancel},
      {BoxStyle::YesNoCancelQuestion, Key(Qt::Key_Return), BoxAnswer::Yes},
      {BoxStyle::YesNoCancelQuestion, kClose, BoxAnswer::Cancel},
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

}  // namespace
}  // namespace starfolds
