#include "widgets/preview_runs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>

#include "scenes/scenes.h"

namespace starfolds {
namespace {

/// Counts the frames that are shown, and does in each what is planned for it while events run. A
/// run that nobody ends is ended, so that a fault fails instead of hanging.
class PreviewTest : public ::testing::Test {
 protected:
  static constexpr int kLongestRun = 500;

  PreviewTest() {
    State->Events = &Clock;
    State->Desktop = &Desktop;
    State->Tree = &Tree;
    State->Mode = RunMode::ScreenSaver;
    Dialog.Universe_Stars = 60;
    Dialog.Universe_Starfold = 2;
    Dialog.Universe_ESteps = 10;
    Dialog.Universe_GSteps = 10;
    Dialog.Universe_GPCtrl = 1;
    Dialog.Universe_GCCtrl = 1;
    Dialog.Universe_Recycle = 1;
    Canvas.OnFrame = [this] {
      if (++Frames >= kLongestRun) State->Requests.AskStop();
    };
    Clock.OnPump = [this] {
      const auto planned = Plan.find(Frames);
      if (planned == Plan.end()) return;
      const auto action = planned->second;
      Plan.erase(planned);
      action();
    };
  }

  /// The handler of a preview button: one routine for both presses.
  void PressUniverse() {
    if (Switch.IsOn()) return Switch.Stop();
    End = Switch.Start([this] { PreviewUniverse(*State, Canvas, Dialog, 1); });
  }
  void PressBody() {
    if (Switch.IsOn()) return Switch.Stop();
    End = Switch.Start([this] { PreviewBody(*State, Canvas, Body, 1); });
  }
  std::size_t LitPixels() const {
    const auto& pixels = Canvas.Pixels();
    return pixels.size() - static_cast<std::size_t>(std::count(pixels.begin(), pixels.end(), 0));
  }

  std::unique_ptr<ProcessState> State = std::make_unique<ProcessState>();
  scenes::WatchedSurface Canvas{160, 120};
  CountedPump Clock;
  MemoryDesktop Desktop;
  MemoryTree Tree;
  UniverseSettings Dialog;
  BodyPreview Body{.Stars = 200};
  PreviewSwitch Switch{*State};
  std::map<int, std::function<void()>> Plan;
  int Frames = 0;
  PreviewEnd End = PreviewEnd::Refused;
};

/// Frames 1 to 10 are the creation, then 20 of a visit, then 10 of the pull-out, and so on.
class PreviewStages : public PreviewTest, public testing::WithParamInterface<int> {};

TEST_P(PreviewStages, ASecondPressOrAWindowThatClosesEndsAUniverseInTheSameFrame) {
  Plan[GetParam()] = [this] { PressUniverse(); };
  PressUniverse();
  EXPECT_EQ(Frames, GetParam());
  EXPECT_EQ(End, PreviewEnd::Stopped);
  EXPECT_FALSE(Switch.IsOn());
  EXPECT_FALSE(State->Requests.StopRun()) << "only a window that closes stops for good";
  EXPECT_TRUE(State->Requests.NewRun());
  EXPECT_EQ(State->Screen.hDCDraw, nullptr);
  Frames = 0;
  Plan[GetParam()] = [this] { EXPECT_TRUE(Switch.DelaysClose()); };
  PressUniverse();
  EXPECT_EQ(Frames, GetParam()) << "the flags of the former run do not end the next one";
  EXPECT_EQ(End, PreviewEnd::Close);
  EXPECT_TRUE(State->Requests.StopRun());
  EXPECT_FALSE(Switch.DelaysClose()) << "now it may close";
}

INSTANTIATE_TEST_SUITE_P(Frames, PreviewStages, testing::Values(1, 11, 31, 95));

TEST_F(PreviewTest, ThereIsOneRunAtATimeAndNoneInAProcessThatEnds) {
  PreviewEnd nested = PreviewEnd::Stopped;
  Plan[2] = [&] {
    nested = Switch.Start([] { FAIL() << "a run within a run"; });
    EXPECT_TRUE(Switch.IsOn());
  };
  Plan[4] = [this] { PressBody(); };
  PressBody();
  EXPECT_EQ(nested, PreviewEnd::Refused);
  EXPECT_EQ(Frames, 4);
  State->Requests.AskQuit();
  PressBody();
  EXPECT_EQ(End, PreviewEnd::Refused);
  EXPECT_EQ(Frames, 4);
}

TEST_F(PreviewTest, RunsClampAndScaleWithoutTouchingTheRecords) {
  State->Profiles[0].Starfold_FoldStyle = static_cast<Integer>(FoldStyle::Quasar);
  State->Profiles[0].Starfold_StdLevels = 4;    // becomes 1 in a run, as only style 0 has levels
  State->Profiles[1].Starfold_NewFrames = 400;  // held to 99
  State->Composites[4].CompFold_Count = 30000;
  const auto expectUntouched = [this] {
    EXPECT_EQ(State->Profiles[0].Starfold_StdLevels, 4);
    EXPECT_EQ(State->Profiles[1].Starfold_NewFrames, 400);
    EXPECT_EQ(State->Composites[4].CompFold_Count, 30000);
  };
  Plan[3] = [this] { PressUniverse(); };
  PressUniverse();
  expectUntouched();
  Body.IsComposite = true;
  Body.Body = 4;
  Plan[6] = [this] { PressBody(); };
  PressBody();
  expectUntouched();
}

TEST_F(PreviewTest, AUniverseHasTheClampedValuesOfTheDialog) {
  Dialog.Universe_Stars = 3;
  Dialog.Universe_HW_Start = 5000;
  Dialog.Universe_GS_Idx = "7 66 nothing";
  RegistryWrite(Tree, "Advanced", "FocalLength", std::string("2.5"));
  RegistryWrite(Tree, "Advanced", "Adv_TimeDelay", Long{500});
  Plan[12] = [this] { PressUniverse(); };
  PressUniverse();
  EXPECT_EQ(State->Universe.Universe_Stars, 10);
  EXPECT_EQ(State->Visits.Count, 2);
  EXPECT_EQ(State->Screen.FocalPixels, (80 + 60) * 0.5F * 2.5F);
  EXPECT_EQ(State->Screen.FrameDelayMs, 0) << "a dialog does not wait as a saver does";
  FlareTable flare{};
  BuildFlareTable(flare, 999, Dialog.Universe_HW_End);
  EXPECT_EQ(State->Colours.UniverseFlare, flare);
}

TEST_F(PreviewTest, ABodyIsShownWithTheStarsAndTheTrailOnTheDialog) {
  struct Row {
    BodyPreview Given;
    Integer Stars, Trail;
  };
  const Row rows[] = {
      {{.Stars = 1, .Trail = 0}, 10, 1},
      {{.Stars = 99999, .Trail = 5}, 30000, 1},
      {{.Body = 49, .Stars = 40, .Trail = 5000}, 40, 750},
      {{.Body = 15, .IsComposite = true, .Stars = 300, .Trail = 3}, 300, 3},
  };
  for (const Row& row : rows) {
    Body = row.Given;
    Plan[Frames + 4] = [this] { PressBody(); };
    PressBody();
    EXPECT_EQ(End, PreviewEnd::Stopped);
    EXPECT_EQ(State->Universe.Universe_Stars, row.Stars);
    EXPECT_EQ(State->RunUniverse.RunTrail, row.Trail);
    EXPECT_GT(LitPixels(), 5U) << row.Stars;
  }
}

}  // namespace
}  // namespace starfolds
