#include "widgets/plain_text.h"

#include <QEvent>
#include <QLabel>

#include "widgets/dialog_parts.h"

namespace starfolds {
namespace {

/// A widget is polished before its text is laid out for the first time. Tool tips are labels too.
class PlainLabels : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Polish) return false;
    auto* const label = qobject_cast<QLabel*>(watched);
    if (label && label->textFormat() == Qt::AutoText) label->setTextFormat(Qt::PlainText);
    return false;
  }
};

}  // namespace

void ShowTextsAsPlain(QApplication& application) {
  application.installEventFilter(new PlainLabels(&application));
}

QString WindowTitle(std::string_view text) { return Shown(text).replace("[*]", "[*][*]"); }

}  // namespace starfolds
