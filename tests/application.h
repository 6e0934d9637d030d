// Makes the toolkit's application object before the first test of a program and takes it down after
// the last. Without a platform in the environment it runs on no screen at all.
#pragma once

#include <gtest/gtest.h>

#include <QByteArray>
#include <memory>

namespace starfolds {

template <class Application>
class ApplicationEnvironment : public testing::Environment {
 public:
  void SetUp() override {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<Application>(count_, arguments_);
  }
  void TearDown() override { application_.reset(); }

 private:
  int count_ = 1;
  char name_[6] = "tests";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<Application> application_;
};

}  // namespace starfolds
