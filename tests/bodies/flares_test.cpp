#include "bodies/flares.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "bodies/star_step.h"
#include "scenes/scenes.h"

namespace starfolds {
namespace {

using scenes::BodyStage;

TEST(NovaRowTest, RunsThroughTheRampAndStaysWhereTheProductNoLongerFits) {
  EXPECT_EQ(NovaRow(30, 30), 0);
  EXPECT_EQ(NovaRow(30, 15), 40);
  EXPECT_EQ(NovaRow(30, 1), 77);
  EXPECT_EQ(NovaRow(999, 590), 33) << "409 frames old: 409 * 80 just fits";
  EXPECT_EQ(NovaRow(999, 1), 33) << "and there it stays";
}

/// A body of which one draw decides the flare: a tenth pulsars, three tenths novas.
class Roll : public ::testing::Test {
 protected:
  Roll()
      : Stage_(320, 200, 10, 1, [](SettingsRecords& settings) {
          StarfoldProfile& profile = settings.Profiles[0];
          profile.Starfold_PulsarFreq = 1000;
          profile.Starfold_PulsarCycles = 3;
          profile.Starfold_PulsarFrames = 20;
          profile.Starfold_NovaFreq = 3000;
          profile.Starfold_NovaFrames = 15;
          profile.Starfold_NewFrames = 5;
          profile.Starfold_NewFreq = 0;
          profile.Starfold_CometFreq = 0;
        }) {}

  /// Re-seeds star 4 with `roll` as the draw behind the seven of the radial generator.
  StarState& Reseed(Single roll) {
    draws_ = {0, 0.5F, 0, 0.9F, 0.5F, 0.1F, 0.2F, roll};
    Stage_.Process->Random.Script(draws_);
    ReseedStar(Stage_.Frame(), 4);
    EXPECT_EQ(Stage_.Process->Random.ScriptedDrawsLeft(), 0U);
    return Stage_.Run->Stars.Star[4];
  }
  int Lit() const {
    return static_cast<int>(std::count_if(Stage_.Canvas.Pixels().begin(),
                                          Stage_.Canvas.Pixels().end(),
                                          [](Colour colour) { return colour != 0; }));
  }

  BodyStage Stage_;

 private:
  std::vector<Single> draws_;
};

TEST_F(Roll, PulsarsComeFirstThenNovasThenNewStars) {
  const auto begun = [&](Single roll) {
    const StarState& star = Reseed(roll);
    return std::pair{star.StarFlare, static_cast<int>(star.StarFlareLeft)};
  };
  EXPECT_EQ(begun(0.05F), std::pair(FlareKind::Pulsar, 60));
  EXPECT_EQ(Lit(), 0) << "a pulsar shows from the next frame on";
  EXPECT_EQ(begun(0.25F), std::pair(FlareKind::Nova, 15));
  EXPECT_GT(Lit(), 1) << "a nova shows at once";
  EXPECT_EQ(begun(0.6F), std::pair(FlareKind::NewStar, 5));
}

TEST_F(Roll, NovasAndPulsarsEndInANewSeed) {
  Stage_.Process->Prepared[0].RunPulsarChance = 0.1F;
  for (const auto& [roll, frames] : {std::pair{0.25F, 15}, std::pair{0.05F, 60}}) {
    StarState& star = Reseed(roll);
    star.StarAge = 12345;
    for (int frame = 0; frame + 1 < frames; ++frame) Stage_.Step();
    EXPECT_EQ(star.StarFlareLeft, 1);
    EXPECT_EQ(star.StarAge, 12345);
    Stage_.Step();
    EXPECT_EQ(star.StarAge, 0) << "re-seeded";
  }
}

TEST_F(Roll, AFlareWithoutFramesIsAPlainStarAtOnce) {
  Stage_.Process->Profiles[0].Starfold_NewFrames = 0;
  EXPECT_FALSE(Reseed(0.6F).InFlare());
  Stage_.Process->Profiles[0].Starfold_NovaFrames = 0;
  EXPECT_FALSE(Reseed(0.25F).InFlare());
  Stage_.Process->Profiles[0].Starfold_PulsarFrames = 0;
  EXPECT_FALSE(Reseed(0.05F).InFlare());
  EXPECT_EQ(Lit(), 0);
  for (int frame = 0; frame < 3; ++frame) Stage_.Step();
}

}  // namespace
}  // namespace starfolds
