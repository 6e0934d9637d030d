// To be included by tests of widgets: makes the application object before the first test of the
// program and takes it down after the last, and does what a user's hands do.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <map>
#include <memory>

#include "platform/pump.h"

namespace starfolds {

class WidgetsEnvironment : public testing::Environment {
 public:
  void SetUp() override {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QApplication>(count_, arguments_);
  }
  void TearDown() override { application_.reset(); }

 private:
  int count_ = 1;
  char name_[6] = "tests";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> application_;
};

inline testing::Environment* const kWidgets =
    testing::AddGlobalTestEnvironment(new WidgetsEnvironment);

inline void Press(QWidget& widget, int key, const QString& text = {},
                  Qt::KeyboardModifiers with = Qt::NoModifier) {
  QKeyEvent press(QEvent::KeyPress, key, with, text);
  QApplication::sendEvent(&widget, &press);
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

/// Runs the toolkit's events in each pump of a run, and what is planned for it. A run that nobody
/// ends is ended after a while, so that a fault fails instead of hanging.
class DialogPump : public CountedPump {
 public:
  static constexpr int kLongestRun = 3000;
  std::map<int, std::function<void()>> Plan;
  int Pumps = 0;
  std::function<void()> OnTooLong;

  void PumpEvents() override {
    QApplication::processEvents();
    ++Pumps;
    if (const auto planned = Plan.find(Pumps); planned != Plan.end()) planned->second();
    if (Pumps >= kLongestRun && OnTooLong) OnTooLong();
  }
};

}  // namespace starfolds
