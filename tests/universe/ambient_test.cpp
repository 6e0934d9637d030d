#include "universe/ambient.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "scenes/scenes.h"

namespace starfolds {
namespace {

/// A finished universe of radius 50 with so many ambient stars and nothing else.
class Ambient : public ::testing::Test {
 protected:
  void SetUpStars(Integer stars, Integer frames) {
    UniverseSettings& universe = Stage.Process->Universe;
    Stage.Read();
    universe.Universe_AmStar = stars;
    universe.Universe_AmFrames = frames;
    PrepareRun(*Stage.Process);
    Stage.Process->RunUniverse = {.RunExpand = 2.5F, .RunAmMaxExt = 10};
    for (int p = 0; p < kProfileCount; ++p) {
      ResetAngles(Stage.Process->Prepared[p], Stage.Process->Profiles[p]);
    }
    Stars = std::make_unique<AmbientArrays>(stars, frames);
    BuildAmbRamp(*Stars);
    SeedAmbientStars(Scene(), 0, 2.5F);
  }
  AmbientScene Scene() { return {*Stage.Process, *Stars, Shape}; }
  void Step() { StepAmbientStars(Scene(), {0, 0, -300}, 50, 1, AmbientMode::Finished, 0); }
  std::ptrdiff_t Lit() const {
    const auto& pixels = Stage.Canvas.Pixels();
    return std::count_if(pixels.begin(), pixels.end(), [](Colour c) { return c != 0; });
  }

  scenes::Stage Stage;
  std::unique_ptr<AmbientArrays> Stars;
  BodySlots Shape;
};

TEST_F(Ambient, ReborStarsFlashWithinTheUniverseAndLeaveNothingBehind) {
  SetUpStars(300, 12);
  Stage.Process->Universe.Universe_AmPers = 0.25F;
  for (int frame = 0; frame < 30; ++frame) Step();
  EXPECT_GT(
      std::count_if(Stars->AmbLeft.begin(), Stars->AmbLeft.end(), [](Integer n) { return n > 0; }),
      100);
  for (const Single x : Stars->AmbX) EXPECT_LE(std::abs(x), 50 * 2.5 * 1.01);
  for (const Single v : Stars->AmbVX) EXPECT_EQ(v, 0);
  Stage.Process->Universe.Universe_AmPers = 1;
  Stage.Process->Universe.Universe_AmCAge = 10;
  for (int frame = 0; frame < 30; ++frame) Step();
  EXPECT_EQ(Lit(), 0) << "every flash was taken off the screen";
}

}  // namespace
}  // namespace starfolds
