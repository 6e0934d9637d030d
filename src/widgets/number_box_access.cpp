#include "widgets/number_box_access.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QLineEdit>

#include "numbers/text.h"
#include "widgets/number_box.h"

namespace starfolds {
namespace {

/// A spin box with a value in a range, without parts. The text interfaces are those of the line
/// edit in it.
class NumberBoxAccess : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  explicit NumberBoxAccess(NumberBox* box) : QAccessibleWidget(box, QAccessible::SpinBox) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    if (type == QAccessible::TextInterface || type == QAccessible::EditableTextInterface) {
      return QAccessible::queryAccessibleInterface(Edit())->interface_cast(type);
    }
    return QAccessibleWidget::interface_cast(type);
  }

  QString text(QAccessible::Text which) const override {
    if (which == QAccessible::Value) return QString::fromStdString(Box().Text());
    return QAccessibleWidget::text(which);
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.editable = true;
    return state;
  }

  int childCount() const override { return 0; }
  QAccessibleInterface* child(int) const override { return nullptr; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }

  QVariant currentValue() const override { return Box().Number(); }
  void setCurrentValue(const QVariant& value) override {
    Box().SetText(NumberText(static_cast<Single>(value.toDouble())));
    Box().ClampTextField();
  }
  QVariant minimumValue() const override { return Box().Range().Low; }
  QVariant maximumValue() const override { return Box().Range().High; }
  QVariant minimumStepSize() const override { return Box().Step(); }

 private:
  NumberBox& Box() const { return *static_cast<NumberBox*>(widget()); }
  QLineEdit* Edit() const { return Box().findChild<QLineEdit*>(); }
};

QAccessibleInterface* MakeAccess(const QString&, QObject* object) {
  auto* const box = qobject_cast<NumberBox*>(object);
  return box ? new NumberBoxAccess(box) : nullptr;
}

}  // namespace

void InstallNumberBoxAccess() {
  static const bool installed = [] {
    QAccessible::installFactory(MakeAccess);
    return true;
  }();
  (void)installed;
}

}  // namespace starfolds
