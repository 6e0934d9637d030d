#include "editors/qt_message_boxes.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <algorithm>

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

bool Asks(BoxStyle style) { return style == BoxStyle::YesNoCancelQuestion; }

void AddButtons(QMessageBox& box, BoxStyle style) {
  box.setStandardButtons(Asks(style) ? QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel
                                     : QMessageBox::StandardButtons(QMessageBox::Ok));
  box.setDefaultButton(Asks(style) ? QMessageBox::Yes : QMessageBox::Ok);
  box.setEscapeButton(Asks(style) ? QMessageBox::Cancel : QMessageBox::Ok);
}

/// Lines of usual length are not broken: some texts stand in columns.
void WidenToLines(QMessageBox& box) {
  constexpr int widest = 600;
  if (auto* label = box.findChild<QLabel*>("qt_msgbox_label")) {
    const int width = label->fontMetrics().boundingRect({}, Qt::AlignLeft, box.text()).width();
    label->setMinimumWidth(std::min(width + 1, widest));
  }
}

BoxAnswer AnswerOf(int button, BoxStyle style) {
  switch (button) {
    case QMessageBox::Yes: return BoxAnswer::Yes;
    case QMessageBox::No: return BoxAnswer::No;
    case QMessageBox::Ok: return BoxAnswer::Ok;
    default: return Asks(style) ? BoxAnswer::Cancel : BoxAnswer::Ok;
  }
}

}  // namespace

BoxAnswer QtMessageBoxes::Show(const std::string& text, BoxStyle style,
                               const std::string& caption) {
  QWidget* asking = QApplication::activeWindow();
  if (!asking) asking = QApplication::activeModalWidget();
  QMessageBox box(IconOf(style), Shown(caption), QString(), QMessageBox::NoButton, asking);
  box.setTextFormat(Qt::PlainText);  // a name or a path may hold anything
  box.setText(Shown(text));
  box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  AddButtons(box, style);
  WidenToLines(box);
  return AnswerOf(box.exec(), style);
}

}  // namespace starfolds
