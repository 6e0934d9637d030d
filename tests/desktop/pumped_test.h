// A test that runs events.
#pragma once

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <functional>

#include "application.h"
#include "desktop/qt_pump.h"

namespace starfolds {

inline testing::Environment* const kToolkit =
    testing::AddGlobalTestEnvironment(new ApplicationEnvironment<QGuiApplication>);

class PumpedTest : public testing::Test {
 protected:
  /// Runs events until `done`, for at most twenty seconds. Whether it came to that.
  bool PumpUntil(const std::function<bool()>& done) {
    const Long begin = Events.TickCount();
    while (!done() && Events.TickCount() - begin < 20000) Events.WaitForEvents(10);
    return done();
  }

  /// Lets window system and window manager come to rest.
  void Settle(Long milliseconds = 50) {
    const Long begin = Events.TickCount();
    while (Events.TickCount() - begin < milliseconds) Events.WaitForEvents(10);
  }

  QtPump Events;
};

}  // namespace starfolds
