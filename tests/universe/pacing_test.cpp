#include "universe/pacing.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

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

/// Keeps frames and notes when each was shown.
class KeepingSurface : public MemorySurface {
 public:
  explicit KeepingSurface(Pump& clock) : MemorySurface(8, 8), clock_(clock) {}

  void Present() override {
    if (Kept > 0) --Kept;
    Shown.push_back(clock_.TickCount());
  }
  bool KeepFrame() override {
    if (CanKeep) ++Kept;
    return CanKeep;
  }
  std::size_t KeptFrameCount() const override { return Kept; }

  bool CanKeep = true;
  std::size_t Kept = 0;
  std::vector<Long> Shown;

 private:
  Pump& clock_;
};

class PacingAhead : public Pacing {
 protected:
  PacingAhead() {
    Process().Screen.hDCDraw = &Canvas;
    Process().Screen.FrameDelayMs = 40;
  }

  /// Computes frames that take so many milliseconds each. False if the run must stop.
  bool Compute(int frames, Long milliseconds) {
    for (int i = 0; i < frames; ++i) {
      StampFrame(Process());
      Clock.CountedPump::WaitForEvents(milliseconds);
      if (FramePaceAhead(Process())) return false;
    }
    return true;
  }

  /// The times between the frames that were shown, each once.
  std::set<Long> Intervals() const {
    std::set<Long> intervals;
    for (std::size_t i = 1; i < Canvas.Shown.size(); ++i) {
      intervals.insert(Canvas.Shown[i] - Canvas.Shown[i - 1]);
    }
    return intervals;
  }

  KeepingSurface Canvas{Clock};
};

TEST_F(PacingAhead, FramesAreShownAtTheirTimesWheneverTheyWereComputed) {
  for (const Long milliseconds : {0, 1, 6, 19, 25}) {
    Canvas.Shown.clear();
    EXPECT_TRUE(Compute(50, milliseconds));
    EXPECT_EQ(Intervals(), std::set<Long>{40}) << milliseconds << " ms a frame";
    const auto ahead = static_cast<int>(Canvas.Kept);
    EXPECT_GE(static_cast<int>(Canvas.Shown.size()) + ahead, 50) << "none is lost";
    EXPECT_TRUE(Compute(static_cast<int>(Surface::kMostKeptFrames) - ahead, milliseconds));
  }
}

TEST_F(PacingAhead, AFrameThatCannotBeKeptComesAfterTheKeptOnes) {
  EXPECT_TRUE(Compute(11, 0));
  Canvas.CanKeep = false;
  EXPECT_TRUE(Compute(2, 0));
  EXPECT_EQ(Canvas.Kept, 0U);
  EXPECT_EQ(Canvas.Shown.size(), 13U);
  EXPECT_EQ(Intervals(), std::set<Long>{40});
}

TEST_F(PacingAhead, KeptFramesDoNotHoldUpAStopOrANewRun) {
  EXPECT_TRUE(Compute(8, 0));
  const std::size_t shown = Canvas.Shown.size();
  Clock.OnPump = [this] { Process().Requests.AskNewRun(); };
  Process().Screen.FrameDelayMs = 0;
  EXPECT_TRUE(Compute(8, 1));
  EXPECT_LE(Canvas.Shown.size(), shown + 1);
  Process().Requests.AskStop();
  EXPECT_FALSE(Compute(1, 0));
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
