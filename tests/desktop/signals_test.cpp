#include "desktop/signals.h"

#include <gtest/gtest.h>
#include <signal.h>

#include "desktop/pumped_test.h"

namespace starfolds {
namespace {

class StopSignalsTest : public PumpedTest, public testing::WithParamInterface<int> {
 protected:
  int Stops = 0;
};

TEST_P(StopSignalsTest, StopTheRunFromInsideThePumpAndAreKeptUntilSomebodyWatches) {
  StopSignals signals_;
  raise(GetParam());
  signals_.Watch([&] { ++Stops; });
  EXPECT_TRUE(PumpUntil([&] { return Stops == 1; }));
  raise(GetParam());
  EXPECT_EQ(Stops, 1);
  EXPECT_TRUE(PumpUntil([&] { return Stops == 2; }));
}

TEST_P(StopSignalsTest, StayIgnoredIfTheParentIgnoresThem) {
  const auto former = signal(GetParam(), SIG_IGN);
  {
    StopSignals signals_;
    signals_.Watch([&] { ++Stops; });
    raise(GetParam());
    Settle();
  }
  signal(GetParam(), former);
  EXPECT_EQ(Stops, 0);
}

INSTANTIATE_TEST_SUITE_P(Signals, StopSignalsTest, testing::Values(SIGTERM, SIGINT, SIGHUP));

}  // namespace
}  // namespace starfolds
