#include "editors/qt_message_boxes.h"

#include <QMessageBox>

#include "editors/props_model.h"

namespace starfolds {
namespace {

QMessageBox::Icon IconOf(BoxStyle style) {
  switch (style) {
    case BoxStyle::Plain: break;
    case BoxStyle::YesNoCancelQuestion: return QMessageBox::Question;
    case BoxStyle::Information: return QMessageBox::Information;
    case BoxStyle::Exclamation: return QMessageBox::Warning;
  }
  return QMessageBox::NoIcon;
}

void AddButtons(QMessageBox& box, BoxStyle style) {
  const bool asks = style == BoxStyle::YesNoCancelQuestion;
  box.setStandardButtons(asks ? QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel
                              : QMessageBox::StandardButtons(QMessageBox::Ok));
  box.setDefaultButton(asks ? QMessageBox::Yes : QMessageBox::Ok);
  box.setEscapeButton(asks ? QMessageBox::Cancel : QMessageBox::Ok);
}

BoxAnswer AnswerOf(int button) {
  switch (button) {
    case QMessageBox::Yes: return BoxAnswer::Yes;
    case QMessageBox::No: return BoxAnswer::No;
    case QMessageBox::Cancel: return BoxAnswer::Cancel;
    default: return BoxAnswer::Ok;
  }
}

}  // namespace

BoxAnswer QtMessageBoxes::Show(const std::string& text, BoxStyle style,
                               const std::string& caption) {
  QMessageBox box(IconOf(style), Shown(caption), QString(), QMessageBox::NoButton, parent_);
  box.setTextFormat(Qt::PlainText);  // a name or a path may hold anything
  box.setText(Shown(text));
  box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  AddButtons(box, style);
  return AnswerOf(box.exec());
}

}  // namespace starfolds
