#include "widgets/qt_message_boxes.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>
#include <vector>

#include "desktop/translation.h"
#include "widgets/dialog_model.h"

namespace starfolds {
namespace {

QMessageBox::Icon IconOf(BoxStyle style) {
  switch (style) {
    case BoxStyle::Plain: break;
    case BoxStyle::YesNoCancelQuestion:
    case BoxStyle::UnacceptedChanges: return QMessageBox::Question;
    case BoxStyle::Information: return QMessageBox::Information;
    case BoxStyle::Exclamation:
    case BoxStyle::SaveFailed: return QMessageBox::Warning;
  }
  return QMessageBox::NoIcon;
}

/// A button and its answer. The first button of a box has the focus.
struct BoxButton {
  QMessageBox::StandardButton Button;
  BoxAnswer Answer;
  const char* Text;  // replaces Qt's, whose translation may not be installed
};

std::vector<BoxButton> ButtonsOf(BoxStyle style) {
  switch (style) {
    case BoxStyle::YesNoCancelQuestion:
      return {{QMessageBox::Yes, BoxAnswer::Yes, STARFOLDS_TEXT("&Yes")},
              {QMessageBox::No, BoxAnswer::No, STARFOLDS_TEXT("&No")},
              {QMessageBox::Cancel, BoxAnswer::Cancel, STARFOLDS_TEXT("Cancel")}};
    case BoxStyle::UnacceptedChanges:
      return {{QMessageBox::Save, BoxAnswer::AcceptChanges, STARFOLDS_TEXT("&Accept Settings")},
              {QMessageBox::Discard, BoxAnswer::DiscardChanges, STARFOLDS_TEXT("&Discard")},
              {QMessageBox::Cancel, BoxAnswer::Cancel, STARFOLDS_TEXT("Cancel")}};
    case BoxStyle::SaveFailed:
      return {
          {QMessageBox::Retry, BoxAnswer::TryAgain, STARFOLDS_TEXT("&Try Again")},
          {QMessageBox::Save, BoxAnswer::SaveAsTemplate, STARFOLDS_TEXT("&Save as Template...")},
          {QMessageBox::Discard, BoxAnswer::CloseWithoutSaving,
           STARFOLDS_TEXT("&Close without Saving")},
          {QMessageBox::Cancel, BoxAnswer::Cancel, STARFOLDS_TEXT("Cancel")}};
    case BoxStyle::Plain:
    case BoxStyle::Information:
    case BoxStyle::Exclamation: break;
  }
  return {{QMessageBox::Ok, BoxAnswer::Ok, STARFOLDS_TEXT("OK")}};
}

/// Closing the box counts as its last button.
void AddButtons(QMessageBox& box, const std::vector<BoxButton>& buttons) {
  for (const BoxButton& each : buttons) {
    QPushButton* button = box.addButton(each.Button);
    button->setText(Translated(each.Text));
  }
  box.setDefaultButton(buttons.front().Button);
  box.setEscapeButton(buttons.back().Button);
}

/// Keeps lines of usual length unbroken: some texts are in columns.
void WidenToLines(QMessageBox& box) {
  constexpr int widest = 600;
  if (auto* label = box.findChild<QLabel*>("qt_msgbox_label")) {
    const int width = label->fontMetrics().boundingRect({}, Qt::AlignLeft, box.text()).width();
    label->setMinimumWidth(std::min(width + 1, widest));
  }
}

BoxAnswer AnswerOf(int pressed, const std::vector<BoxButton>& buttons) {
  for (const BoxButton& each : buttons) {
    if (each.Button == pressed) return each.Answer;
  }
  return buttons.back().Answer;
}

}  // namespace

BoxAnswer QtMessageBoxes::Show(const UserText& text, BoxStyle style, const std::string& caption) {
  QWidget* asking = QApplication::activeWindow();
  if (!asking) asking = QApplication::activeModalWidget();
  QMessageBox box(IconOf(style), Shown(caption), QString(), QMessageBox::NoButton, asking);
  box.setTextFormat(Qt::PlainText);  // a name or a path may contain markup
  box.setText(Translated(text));
  box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  const std::vector<BoxButton> buttons = ButtonsOf(style);
  AddButtons(box, buttons);
  WidenToLines(box);
  return AnswerOf(box.exec(), buttons);
}

}  // namespace starfolds
