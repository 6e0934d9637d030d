#include "universe/single_body_run.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "scenes/scenes.h"

namespace starfolds {
namespace {

class SingleBody : public ::testing::Test {
 protected:
  void Run(const SingleBodyPlan& plan) {
    Stage.Read();
    SingleBodyRun(*Stage.Process, plan);
  }
  scenes::Stage Stage{160, 120};
};

TEST_F(SingleBody, StopsAfterItsFrames) {
  Stage.Canvas.OnFrame = [this] { ++Stage.FramesShown; };
  Run({.Stars = 50, .FrameLimit = 400});
  EXPECT_EQ(Stage.FramesShown, 399) << "the last frame ends the run before it is paced";
  EXPECT_FALSE(Stage.Process->Requests.StopRun());
}

TEST_F(SingleBody, NewRunEndsItAtTheNextFrameAndIsCleared) {
  Stage.Canvas.OnFrame = [this] {
    if (++Stage.FramesShown == 5) Stage.Process->Requests.AskNewRun();
  };
  Run({.Stars = 50});
  EXPECT_EQ(Stage.FramesShown, 5);
  EXPECT_FALSE(Stage.Process->Requests.NewRun());
}

TEST_F(SingleBody, ACompositeIsAsPinned) {
  CompositeProfile& composite = Stage.Settings().Composites[2];
  composite.CompFold_Count = 2;
  composite.CompFold_Type = {4, 9};
  Stage.Settings().Profiles[4].Starfold_ColorMult = 30000;
  Stage.Settings().Profiles[9].Starfold_Radius = 100;
  Stage.StopAfter(30);
  Run({.Body = 2, .IsComposite = true, .Stars = 300});
  EXPECT_EQ(Stage.Canvas.Hash(), 8522864330256078075U);
}

}  // namespace
}  // namespace starfolds
