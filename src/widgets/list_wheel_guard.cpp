#include "widgets/list_wheel_guard.h"

#include <QEvent>
#include <QKeyEvent>

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

bool IsArrow(int key) {
  switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown: return true;
    default: return false;
  }
}

class OpenedListOnly : public QObject {
 public:
  explicit OpenedListOnly(QComboBox& list) : QObject(&list), list_(list) {}

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Wheel) {
      event->ignore();
      return true;
    }
    if (event->type() != QEvent::KeyPress) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (!IsArrow(key->key()) || key->modifiers().testFlag(Qt::ControlModifier)) return false;
    list_.showPopup();
    return true;
  }

 private:
  QComboBox& list_;
};

}  // namespace

void GuardListsFromWheel(QWidget& window) {
  for (QComboBox* list : window.findChildren<QComboBox*>()) {
    list->setFocusPolicy(Qt::StrongFocus);  // the wheel does not give it the focus
    list->installEventFilter(new ListWheelGuard(list));
  }
}

ListChoice::ListChoice(QComboBox& list)
    : QObject(&list), list_(list), chosen_(list.currentIndex()) {
  list.installEventFilter(this);
  connect(&list, &QComboBox::currentIndexChanged, this, [this] {
    if (!looking_) Settle();
  });
}

void ListChoice::Settle() {
  const int position = list_.currentIndex();
  if (position == chosen_) return;
  chosen_ = position;
  emit Chosen(position);
}

bool ListChoice::HandleKey(int key) {
  if (list_.currentIndex() == chosen_) return false;
  if (key == Qt::Key_Return || key == Qt::Key_Enter) {
    Settle();
  } else if (key == Qt::Key_Escape) {
    list_.setCurrentIndex(chosen_);
  } else {
    return false;
  }
  return true;
}

/// The event is handled inside the filter, so that what it changes is known to be looking.
bool ListChoice::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusOut) {
    Settle();
    return false;
  }
  const bool isKey = event->type() == QEvent::KeyPress;
  if (looking_ || (!isKey && event->type() != QEvent::Wheel)) return false;
  if (isKey && HandleKey(static_cast<QKeyEvent*>(event)->key())) return true;
  looking_ = true;
  watched->event(event);
  looking_ = false;
  return true;
}

void ChooseOnlyInOpenedList(QComboBox& list) { list.installEventFilter(new OpenedListOnly(list)); }

}  // namespace starfolds
