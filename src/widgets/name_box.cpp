#include "widgets/name_box.h"

#include <QApplication>
#include <QKeyEvent>

#include "settings/registry.h"

namespace starfolds {
namespace {

constexpr const char kForbidden[] = "[,]=";

bool IsForbidden(QChar c) { return QString(kForbidden).contains(c); }

}  // namespace

NameBox::NameBox(QWidget* parent) : QLineEdit(parent) {
  setMaxLength(static_cast<int>(kLongestValue));
  connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
    QString clean = text;
    clean.removeIf(IsForbidden);
    if (clean != text) setText(clean);
  });
}

void NameBox::ShowName(const QString& name) {
  setText(name);
  setCursorPosition(0);
}

void NameBox::keyPressEvent(QKeyEvent* event) {
  if (event->text().size() == 1 && IsForbidden(event->text()[0])) {
    QApplication::beep();
    event->accept();
    return;
  }
  QLineEdit::keyPressEvent(event);
}

void NameBox::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  selectAll();
}

}  // namespace starfolds
