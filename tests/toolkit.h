// To be included by tests of widgets: an application object, and what a user's hands do.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QFocusEvent>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <functional>

#include "application.h"
#include "planned_pump.h"

namespace starfolds {

inline testing::Environment* const kWidgets =
    testing::AddGlobalTestEnvironment(new ApplicationEnvironment<QApplication>);

inline void Press(QWidget& widget, int key, const QString& text = {},
                  Qt::KeyboardModifiers with = Qt::NoModifier) {
  QTest::sendKeyEvent(QTest::Press, &widget, static_cast<Qt::Key>(key), text, with);
}

inline void Type(QWidget& widget, const QString& text) {
  for (const QChar c : text) Press(widget, c.toUpper().unicode(), c);
}

inline void Leave(QWidget& widget) {
  QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
  QApplication::sendEvent(&widget, &out);
}

/// Brings a window to the front, so that its widgets can have the focus.
inline void Activate(QWidget& window) {
  window.show();
  window.activateWindow();
  QApplication::processEvents();
}

/// Does something with the modal dialog that the next call shows.
template <class Dialog>
void WhenShown(const std::function<void(Dialog&)>& act) {
  QTimer::singleShot(0, qApp, [act] {
    auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    act(*dialog);
  });
}

/// The part of a dialog that has this name. It is a fault if there is none.
template <class Widget>
Widget& Part(QWidget& dialog, const char* name) {
  auto* part = dialog.findChild<Widget*>(name);
  EXPECT_NE(part, nullptr) << name;
  if (!part) std::abort();
  return *part;
}

}  // namespace starfolds
