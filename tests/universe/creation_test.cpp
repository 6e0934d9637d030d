#include "universe/creation.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "scenes/scenes.h"

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

TEST_F(Creation, InTurnOnlyBodiesWithAShareAreTaken) {
  Settings().Universe_GVisit = true;
  for (const int profile : {2, 5, 49}) Stage.Settings().Profiles[profile].UniFoldPct = 1;
  Create();
  const std::vector<Integer> first(Folds().StarfoldProf.begin(), Folds().StarfoldProf.begin() + 4);
  EXPECT_EQ(first, (std::vector<Integer>{2, 5, 49, 2}));
}

TEST_F(Creation, AmbientStarsRestAtItsEnd) {
  Create();
  for (const Single v : Run->Ambient.AmbVX) EXPECT_EQ(v, 0);
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

}  // namespace
}  // namespace starfolds
