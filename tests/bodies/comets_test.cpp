#include "bodies/comets.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "bodies/star_step.h"
#include "scenes/scenes.h"

namespace starfolds {
namespace {

constexpr Integer kFarStep = 32000;  // of a run without a tour

using Change = std::function<void(StarfoldProfile&)>;

/// A body of one black star, so that all that is lit are comets. A comet starts in every frame, its
/// nucleus and its stars last, and it sheds 60 of them.
class CometStage : public scenes::BodyStage {
 public:
  explicit CometStage(const Change& change = {})
      : BodyStage(400, 300, 1, 1, [&](SettingsRecords& settings) {
          StarfoldProfile& set = settings.Profiles[0];
          set.Starfold_ColorComp = 4;
          set.Starfold_NewFreq = 0;
          set.Starfold_CometFreq = 10000;
          set.Starfold_CometStars = 60;
          set.Starfold_CometCPersist = 1;
          set.Starfold_CometSPersist = 1;
          if (change) change(set);
        }) {
    // Chances of 0 and 1 lie beyond what the settings allow.
    const StarfoldProfile& asked = Settings().Profiles[0];
    Set().Starfold_CometCPersist = asked.Starfold_CometCPersist;
    Set().Starfold_CometSPersist = asked.Starfold_CometSPersist;
    Chance() = static_cast<Single>(asked.Starfold_CometFreq * 1e-4);
    Visit(0);
  }

  StarfoldProfile& Set() { return Process->Profiles[0]; }
  Single& Chance() { return Process->Prepared[0].RunCometChance; }
  CometArrays& Comets() { return Run->Comets; }
  CometHead& Head(std::size_t k) { return Comets().Heads[k]; }
  void Visit(Integer visit) { ResetComets(*Process, Comets(), visit, 0); }
  void StepComets(int frames = 1, Integer segment = kFarStep) {
    for (int frame = 0; frame < frames; ++frame) CometStep(Frame(), 0, 0, segment);
  }

  auto LiveStars() {
    return std::count(Comets().CometStarLive.begin(), Comets().CometStarLive.end(), 1);
  }
  auto LiveHeads() {
    return std::count_if(Comets().Heads.begin(), Comets().Heads.end(),
                         [](const CometHead& head) { return head.CometLeft > 0; });
  }
  auto LitPixels() const {
    const auto& pixels = Canvas.Pixels();
    return static_cast<long>(pixels.size()) - std::count(pixels.begin(), pixels.end(), 0U);
  }
};

TEST(Comets, TheyLiveFromTheThirdStepOfAVisit) {
  for (const Integer segment : {1, 2, 3, 4, 32000}) {
    CometStage stage;
    stage.StepComets(10, segment);
    EXPECT_EQ(stage.LiveHeads() > 0, segment >= 3) << segment;
  }
  CometStage leaving;
  leaving.StepComets(50);
  leaving.StepComets(1, 2);
  for (const CometHead& head : leaving.Comets().Heads) EXPECT_FALSE(head.CometLive);
  EXPECT_GT(leaving.LiveHeads(), 10) << "whose stars live on";
}

TEST(Comets, ThePoolHoldsAsManyAsTheirStarsFitIn) {
  for (const auto& [stars, comets] : {std::pair{0, 100}, std::pair{25, 100}, std::pair{26, 96},
                                      std::pair{2500, 1}, std::pair{2501, 0}}) {
    EXPECT_EQ(CometRoom(static_cast<Integer>(stars)), comets) << stars;
  }
}

TEST(Comets, ANewVisitErasesThem) {
  CometStage stage;
  stage.StepComets(50);
  EXPECT_GT(stage.LitPixels(), 100);
  stage.Set().Starfold_CometStars = 100;
  stage.Visit(1);
  EXPECT_EQ(stage.LitPixels(), 0);
  EXPECT_EQ(stage.LiveStars(), 0);
  EXPECT_EQ(stage.LiveHeads(), 0);
  EXPECT_EQ(stage.Comets().CometCount, 25) << "by the profile now visited";
}

}  // namespace
}  // namespace starfolds
