// A pump for tests that plan what happens in which frame.
#pragma once

#include <QCoreApplication>
#include <functional>
#include <map>

#include "platform/pump.h"

namespace starfolds {

/// Runs the toolkit's events in each pump of a run, and what is planned for it. A run that nobody
/// ends is ended after a while, so that a fault fails instead of hanging.
class PlannedPump : public CountedPump {
 public:
  static constexpr int kLongestRun = 3000;
  std::map<int, std::function<void()>> Plan;
  int Pumps = 0;
  std::function<void()> OnTooLong;

  void PumpEvents() override {
    QCoreApplication::processEvents();
    ++Pumps;
    if (const auto planned = Plan.find(Pumps); planned != Plan.end()) planned->second();
    if (Pumps >= kLongestRun && OnTooLong) OnTooLong();
  }
};

}  // namespace starfolds
