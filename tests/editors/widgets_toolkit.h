// To be included by tests that show widgets: makes the application object before the first test of
// the program and takes it down after the last. Without a word in the environment it runs on no
// screen at all.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <functional>
#include <memory>

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

/// Does something with the modal dialog that the next call shows.
template <class Dialog>
void WhenShown(const std::function<void(Dialog&)>& act) {
  QTimer::singleShot(0, qApp, [act] {
    auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    act(*dialog);
  });
}

}  // namespace starfolds
