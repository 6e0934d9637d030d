#include "universe/creation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "scenes/scenes.h"
#include "universe/universe_run.h"

namespace starfolds {
namespace {

/// One creation, on settings that a test changes first.
class Creation : public ::testing::Test {
 protected:
  Creation() {
    UniverseSettings& universe = Stage.Settings().Universe;
    universe.Universe_Stars = 400;
    universe.Universe_Starfold = 60;
    universe.Universe_ESteps = 40;
    universe.Universe_AmStar = 20;
  }

  UniverseSettings& Settings() { return Stage.Settings().Universe; }
  StarfoldArrays& Folds() { return Run->Folds; }

  void Create() {
    Stage.Read();
    ProcessState& process = *Stage.Process;
    PrepareRun(process);
    Run = std::make_unique<RunArrays>(process.Universe, process.RunUniverse.RunTrail,
                                      process.Universe.Universe_Starfold,
                                      process.Universe.Universe_AmStar);
    Scene = std::make_unique<UniverseScene>(UniverseScene{process, *Run});
    Scene->TourProfile = 0;
    Scene->Growth = {process.RunUniverse.RunExpand, 0};
    CreateUniverse(*Scene);
  }
  int CountOf(Integer entry) {
    const auto& folds = Folds().StarfoldProf;
    return static_cast<int>(std::count(folds.begin(), folds.end(), entry));
  }

  scenes::Stage Stage{320, 200};
  std::unique_ptr<RunArrays> Run;
  std::unique_ptr<UniverseScene> Scene;
};

TEST_F(Creation, WithoutSharesEverythingIsProfileZero) {
  Create();
  EXPECT_EQ(CountOf(0), 60);
  Settings().Universe_GVisit = true;
  Create();
  EXPECT_EQ(CountOf(0), 60);
}

TEST_F(Creation, StarfoldsAreChosenByTheirShares) {
  Stage.Settings().Profiles[7].UniFoldPct = 30;
  Stage.Settings().Composites[3].CompFoldPct = 10;
  Stage.Settings().Composites[3].CompFold_Count = 1;
  Settings().Universe_Starfold = 999;
  Settings().Universe_ESteps = 1;
  Create();
  const double deviation = std::sqrt(999 * 0.75 * 0.25);
  EXPECT_NEAR(CountOf(7), 999 * 0.75, 5 * deviation);
  EXPECT_EQ(CountOf(7) + CountOf(53), 999);
}

TEST_F(Creation, InTurnOnlyBodiesWithAShareAreTaken) {
  Settings().Universe_GVisit = true;
  for (const int profile : {2, 5, 49}) Stage.Settings().Profiles[profile].UniFoldPct = 1;
  Create();
  const std::vector<Integer> first(Folds().StarfoldProf.begin(), Folds().StarfoldProf.begin() + 4);
  EXPECT_EQ(first, (std::vector<Integer>{2, 5, 49, 2}));
}

TEST_F(Creation, TheVisitListNamesTheFirstStarfolds) {
  Settings().Universe_GS_Idx = " 3  x 66 0 67 1.0 12";
  Create();
  const std::vector<Integer> first(Folds().StarfoldProf.begin(), Folds().StarfoldProf.begin() + 5);
  EXPECT_EQ(first, (std::vector<Integer>{2, 65, 0, 11, 0}));
  Settings().Universe_Tour = false;
  Create();
  EXPECT_EQ(CountOf(0), 60) << "without a tour the list is not looked at";
}

TEST_F(Creation, EveryStarEndsInAStarfoldAndEverythingRests) {
  for (const Integer trail : {Integer{1}, Integer{7}}) {
    for (const Single persist : {1.0F, 0.25F}) {
      Settings().Universe_STrail = trail;
      Settings().Universe_Persist = persist;
      Stage.Canvas.Clear();
      Create();
      for (const StarState& star : Run->Stars.Star) {
        EXPECT_GE(star.StarHome, 0);
        EXPECT_LT(star.StarHome, 60);
        EXPECT_NE(star.StarX, 0) << "seeded";
      }
      for (const Single v : Run->Ambient.AmbVX) EXPECT_EQ(v, 0);
      EXPECT_GT(Scene->Growth.ExpandTotal, 0);
    }
  }
}

TEST_F(Creation, TheUniverseGrowsAtADampedPaceAndSlowsToAStop) {
  Settings().Universe_ESteps = 100;
  Settings().Universe_Damping = 0.5F;
  Settings().Universe_Expand = 1000;
  Create();
  // The step shrinks by 0.75 a frame from 1, so the size comes to 1 / (1 - 0.75).
  EXPECT_NEAR(Scene->Growth.ExpandTotal, 4, 1e-3);
  EXPECT_LT(Scene->Growth.ExpandStep, 1e-9);
}

TEST_F(Creation, AStopLeavesAtOnce) {
  Stage.StopAfter(3);
  Create();
  EXPECT_EQ(Stage.FramesShown, 3);
}

TEST_F(Creation, EveryStyleShapesABlast) {
  for (Integer style = 0; style < kStyleCount; ++style) {
    Stage.Settings().Profiles[0].Starfold_FoldStyle = style;
    Stage.Settings().Profiles[0].Starfold_RadSegs = 6;
    Stage.Settings().Profiles[0].Starfold_RadFill = 50;
    if (style == 9) {
      Stage.Settings().Profiles[0].Starfold_Atoms = 1;
      Stage.Settings().Profiles[0].Atom.Atoms[0] = {6, 0, 0, 0, 3, 0, 1000, 18};
    }
    int spread = 0;
    Stage.FramesShown = 0;
    Stage.Canvas.Clear();
    Stage.Canvas.OnFrame = [&] {
      if (++Stage.FramesShown != 4) return;
      const auto& pixels = Stage.Canvas.Pixels();
      spread = static_cast<int>(
          std::count_if(pixels.begin(), pixels.end(), [](Colour c) { return c != 0; }));
    };
    Create();
    EXPECT_GT(spread, style == 9 ? 6 : 20) << style;
  }
}

}  // namespace
}  // namespace starfolds
