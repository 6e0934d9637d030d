// To be included by tests that need the toolkit: makes the application object before the first test
// of the program and takes it down after the last. Without a word in the environment it runs on no
// screen at all.
#pragma once

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <memory>

namespace starfolds {

class ToolkitEnvironment : public testing::Environment {
 public:
  void SetUp() override {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QGuiApplication>(count_, arguments_);
  }
  void TearDown() override { application_.reset(); }

 private:
  int count_ = 1;
  char name_[6] = "tests";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<QGuiApplication> application_;
};

inline testing::Environment* const kToolkit =
    testing::AddGlobalTestEnvironment(new ToolkitEnvironment);

}  // namespace starfolds
