#include "widgets/list_wheel_guard.h"

#include <QComboBox>
#include <QEvent>

namespace starfolds {
namespace {

class ListWheelGuard : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* object, QEvent* event) override {
    const auto* list = qobject_cast<QComboBox*>(object);
    if (event->type() != QEvent::Wheel || !list || list->hasFocus()) return false;
    event->ignore();
    return true;
  }
};

}  // namespace

void GuardListsFromWheel(QWidget& window) {
  for (QComboBox* list : window.findChildren<QComboBox*>()) {
    list->setFocusPolicy(Qt::StrongFocus);  // the wheel does not give it the focus
    list->installEventFilter(new ListWheelGuard(list));
  }
}

}  // namespace starfolds
