#include "universe/pacing.h"

#include <gtest/gtest.h>

#include "scenes/scenes.h"

namespace starfolds {
namespace {

/// A counted clock that counts what it was asked for.
class CountingPump : public CountedPump {
 public:
  void PumpEvents() override {
    ++Pumps;
    CountedPump::PumpEvents();
  }
  void WaitForEvents(Long milliseconds) override {
    Waited += milliseconds;
    CountedPump::WaitForEvents(milliseconds);
  }
  void WaitForRefresh() override { ++Refreshes; }

  int Pumps = 0;
  int Refreshes = 0;
  Long Waited = 0;
};

class Pacing : public ::testing::Test {
 protected:
  Pacing() { Process().Events = &Clock; }
  ProcessState& Process() { return *stage_.Process; }

  CountingPump Clock;
  scenes::Stage stage_;
};

TEST_F(Pacing, AFrameLastsItsDelayIncludingTheTimeItTook) {
  Process().Screen.FrameDelayMs = 40;
  StampFrame(Process());
  Clock.CountedPump::WaitForEvents(15);
  EXPECT_FALSE(FramePace(Process()));
  EXPECT_EQ(Clock.Waited, 25);
  EXPECT_EQ(Clock.Refreshes, 0);
  Clock.Pumps = 0;
  Process().Screen.FrameDelayMs = 0;
  StampFrame(Process());
  EXPECT_FALSE(FramePace(Process()));
  EXPECT_EQ(Clock.Pumps, 1);
  EXPECT_EQ(Clock.Refreshes, 1) << "without a delay the screen sets the pace";
  EXPECT_EQ(Clock.Waited, 25);
}

TEST_F(Pacing, AStopInThePumpEndsTheWait) {
  Process().Screen.FrameDelayMs = 999;
  StampFrame(Process());
  Clock.OnPump = [this] {
    if (Clock.Pumps == 1) Process().Requests.AskStop();
  };
  EXPECT_TRUE(FramePace(Process()));
  EXPECT_EQ(Clock.Waited, 0);
}

TEST_F(Pacing, APreviewEndsWithItsHost) {
  Process().Mode = RunMode::Preview;
  Process().PreviewParent = 77;
  stage_.Desktop.Windows = {77};
  EXPECT_FALSE(FramePace(Process()));
  stage_.Desktop.Windows.clear();
  EXPECT_TRUE(FramePace(Process()));
  EXPECT_TRUE(Process().Requests.StopRun());
}

TEST_F(Pacing, AStoppedClockDoesNotHoldUpTheEnd) {
  class StoppedClock : public CountingPump {
    Long TickCount() override { return 5; }
  } clock;
  clock.OnPump = [&] {
    if (clock.Pumps == 3) Process().Requests.AskStop();
  };
  Process().Events = &clock;
  PumpOneTick(Process());
  EXPECT_EQ(clock.Pumps, 3);
}

}  // namespace
}  // namespace starfolds
