#include "render/recording_surface.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace starfolds {
namespace {

using testing::ElementsAre;

/// Notes the frames that it is given, and fails at one of them.
class NotingSink : public FrameSink {
 public:
  NotingSink(std::vector<FrameNumber>& frames, FrameNumber failsAt)
      : frames_(frames), failsAt_(failsAt) {}

  Fault Take(FrameNumber frame, const MemorySurface&) override {
    frames_.push_back(frame);
    return frame == failsAt_ ? Fault("full") : std::nullopt;
  }
  Fault Finish() override { return std::nullopt; }

 private:
  std::vector<FrameNumber>& frames_;
  FrameNumber failsAt_;
};

constexpr FrameNumber kNever = 0;

/// Shows frames until the surface says stop, as a run does.
struct Recording {
  std::vector<FrameNumber> First, Second;
  FrameNumber Shown = 0;
  Fault Trouble;

  Recording(const FramePlan& plan, FrameNumber firstFailsAt, FrameNumber secondFailsAt) {
    FrameSinks sinks;
    sinks.push_back(std::make_unique<NotingSink>(First, firstFailsAt));
    sinks.push_back(std::make_unique<NotingSink>(Second, secondFailsAt));
    bool stopRun = false;
    RecordingSurface surface(4, 3, plan, sinks, stopRun);
    surface.OnFrame = [this](FrameNumber frame) { Shown = frame; };
    while (!stopRun && Shown < 100) surface.Present();
    Trouble = surface.Trouble();
  }
};

TEST(RecordingSurface, StopsTheRunAfterTheLastFrame) {
  const Recording recording({9, 2, 3}, kNever, kNever);
  EXPECT_EQ(recording.Shown, 9);
  EXPECT_THAT(recording.First, ElementsAre(2, 5, 8));
  EXPECT_THAT(recording.Second, ElementsAre(2, 5, 8));
  EXPECT_EQ(recording.Trouble, std::nullopt);
}

TEST(RecordingSurface, StopsTheRunWhereASinkFails) {
  const Recording first({9, 2, 3}, 5, kNever);
  EXPECT_EQ(first.Shown, 5);
  EXPECT_THAT(first.First, ElementsAre(2, 5));
  EXPECT_THAT(first.Second, ElementsAre(2));
  EXPECT_EQ(first.Trouble, "full");
  EXPECT_EQ(Recording({9, 2, 3}, kNever, 2).Trouble, "full");
}

}  // namespace
}  // namespace starfolds
