#include "desktop/signals.h"

#include <gtest/gtest.h>
#include <signal.h>

#include "desktop/qt_pump.h"
#include "desktop/toolkit.h"

namespace starfolds {
namespace {

class StopSignalsTest : public testing::TestWithParam<int> {
 protected:
  void PumpUntilStopped() {
    const Long begin = Events.TickCount();
    while (Stops == 0 && Events.TickCount() - begin < 5000) Events.WaitForEvents(10);
  }

  static void* HandlerOf(int number) {
    struct sigaction action {};
    sigaction(number, nullptr, &action);
    return reinterpret_cast<void*>(action.sa_handler);
  }

  QtPump Events;
  int Stops = 0;
};

TEST_P(StopSignalsTest, StopTheRunFromInsideThePump) {
  StopSignals signals_;
  signals_.Watch([&] { ++Stops; });
  raise(GetParam());
  EXPECT_EQ(Stops, 0);
  PumpUntilStopped();
  EXPECT_EQ(Stops, 1);
}

TEST_P(StopSignalsTest, AreKeptUntilSomebodyWatches) {
  StopSignals signals_;
  raise(GetParam());
  signals_.Watch([&] { ++Stops; });
  PumpUntilStopped();
  EXPECT_EQ(Stops, 1);
}

TEST_P(StopSignalsTest, HaveTheirFormerMeaningAfterwards) {
  void* const former = HandlerOf(GetParam());
  {
    const StopSignals signals_;
    EXPECT_NE(HandlerOf(GetParam()), former);
  }
  EXPECT_EQ(HandlerOf(GetParam()), former);
}

TEST_P(StopSignalsTest, StayIgnoredWhereTheyWere) {
  const auto former = signal(GetParam(), SIG_IGN);
  {
    StopSignals signals_;
    signals_.Watch([&] { ++Stops; });
    raise(GetParam());
    for (int i = 0; i < 5; ++i) Events.WaitForEvents(10);
  }
  signal(GetParam(), former);
  EXPECT_EQ(Stops, 0);
}

INSTANTIATE_TEST_SUITE_P(Signals, StopSignalsTest, testing::Values(SIGTERM, SIGINT, SIGHUP));

}  // namespace
}  // namespace starfolds
