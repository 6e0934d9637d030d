#include "bodies/star_step.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <set>

#include "scenes/scenes.h"

namespace starfolds {
namespace {

using scenes::BodyStage;

/// No star is re-seeded and no comet launched.
void Quiet(SettingsRecords& settings) {
  settings.Universe.Universe_NewFreq = 0;
  for (StarfoldProfile& profile : settings.Profiles) {
    profile.Starfold_NewFreq = 0;
    profile.Starfold_CometFreq = 0;
  }
}

/// Re-seeding, flares of all kinds and comets, as many as there can be.
void Busy(SettingsRecords& settings) {
  for (StarfoldProfile& profile : settings.Profiles) {
    profile.Starfold_NewFreq = 3000;
    profile.Starfold_NovaFreq = 2500;
    profile.Starfold_PulsarFreq = 2500;
    profile.Starfold_CometFreq = 9999;
  }
}

std::set<std::pair<Long, Long>> LitPlaces(const Surface& surface) {
  std::set<std::pair<Long, Long>> places;
  for (Long y = 0; y < surface.Height(); ++y) {
    for (Long x = 0; x < surface.Width(); ++x) {
      if (surface.Pixel(x, y) != 0) places.insert({x, y});
    }
  }
  return places;
}

TEST(RecycleCountTest, RoundsHalvesToEvenWithAndWithoutTheExtraStar) {
  struct Case {
    Long Quota;
    Single Draw;
    int Count;
  };
  Rnd random;
  for (const Case& c : {Case{0, 0, 0}, Case{100, 0.5F, 1}, Case{1250, 0.1F, 14},
                        Case{1250, 0.9F, 12}, Case{50, 0.49F, 2}, Case{50, 0.5F, 0},
                        Case{130, 0.2F, 2}, Case{130, 0.4F, 1}, Case{9999, 0.98F, 101}}) {
    random.Script({&c.Draw, 1});
    EXPECT_EQ(RecycleCount(c.Quota, random), c.Count) << c.Quota << " " << c.Draw;
  }
}

class Tour : public ::testing::Test {
 protected:
  Tour() : Stage_(320, 200, 50) {
    UniverseSettings& universe = Stage_.Process->Universe;
    universe.Universe_Starfold = 2;
    universe.Universe_NewFreq = 1000;
    universe.Universe_GPCtrl = 2;
    Stage_.Process->RunUniverse.RunNewShare = 0.5F;
    Stage_.Run = std::make_unique<RunArrays>(universe, Integer{1}, Integer{2}, Integer{0});
    Stage_.Run->Folds.StarfoldProf = {0, 1};
    Stage_.Process->Profiles[0].Starfold_NewFreq = 200;
    Stage_.Process->Profiles[1].Starfold_NewFreq = 600;
  }

  FrameScene Scene() { return {*Stage_.Process, *Stage_.Run}; }
  Long Quota(Integer visit, Integer segment, Single t, bool tourOn = true) {
    return NewQuota(Scene(), {visit, 0, segment, t, tourOn}).Quota;
  }
  /// The home that scripted draws lead to, and how many of them it took.
  std::pair<int, std::size_t> Home(const TourPlace& place, double crossFade,
                                   const std::vector<Single>& draws) {
    Stage_.Process->Random.Script(draws);
    const int home = ChooseHome(Scene(), place, crossFade);
    const std::size_t left = Stage_.Process->Random.ScriptedDrawsLeft();
    Stage_.Process->Random.Script({});
    return {home, draws.size() - left};
  }

  BodyStage Stage_;
};

TEST_F(Tour, TheRateGlidesBetweenTheBodysAndTheUniverses) {
  EXPECT_EQ(Quota(0, 1, 0), 1000) << "no starfold lies behind the first visit";
  EXPECT_EQ(Quota(1, 1, 0), 200) << "leaving at the body's own rate";
  EXPECT_EQ(Quota(1, 1, 0.5F), 600) << "half way to the universe's";
  EXPECT_EQ(Quota(1, 2, 0.3F), 1000);
  EXPECT_EQ(Quota(1, 3, 0), 1000);
  EXPECT_EQ(Quota(1, 3, 0.5F), 800) << "half way to the body's";
  EXPECT_EQ(Quota(1, 4, 0), 600);
  EXPECT_EQ(Quota(2, 5, 0, false), 1000) << "in the pull-out no starfold is visited";
}

TEST_F(Tour, StarsFollowTheEye) {
  using Pair = std::pair<int, std::size_t>;
  const TourPlace visiting{1, 0, 2, 0, true};
  const TourPlace leaving{1, 0, 1, 0, true};
  EXPECT_EQ(Home({1, 0, 2, 0, false}, 1, {0.4F, 0, 0}), (Pair{0, 1})) << "no tour: anywhere";
  EXPECT_EQ(Home(visiting, 1, {0.6F, 0.4F, 0}), (Pair{0, 2})) << "not exclusive: anywhere";
  EXPECT_EQ(Home(visiting, 1, {0.4F, 0, 0}), (Pair{1, 1}));
  EXPECT_EQ(Home(leaving, 0.7, {0.4F, 0.6F, 0}), (Pair{0, 2})) << "the old one keeps some";
  EXPECT_EQ(Home(leaving, 0.7, {0.4F, 0.8F, 0}), (Pair{1, 2}));
}

TEST(StarStepTest, TheShortRoadDrawsWhatTheLongOneDoes) {
  BodyStage shortRoad(320, 200, 600, 1, Busy);
  BodyStage longRoad(320, 200, 600, 1, Busy);
  std::size_t settled = 0;
  for (int frame = 0; frame < 300; ++frame) {
    for (StarState& star : longRoad.Run->Stars.Star) star.StarFrame = 0;
    shortRoad.Step();
    longRoad.Step();
    for (const StarState& star : shortRoad.Run->Stars.Star) settled += star.StarFrame != 0;
    ASSERT_EQ(shortRoad.Canvas.Hash(), longRoad.Canvas.Hash()) << "frame " << frame;
  }
  EXPECT_GT(settled, 10000U) << "hardly a star took the short road";
}

TEST(StarStepTest, NothingStaysOnTheScreenButTheStarsThatAreThere) {
  for (const Integer trail : {Integer{1}, Integer{5}}) {
    for (Integer shape = 0; shape <= 4; ++shape) {
      BodyStage stage(320, 200, 300, trail, [&](SettingsRecords& settings) {
        Busy(settings);
        settings.Profiles[0].Starfold_PulsarShape = shape;
      });
      for (int frame = 0; frame < 150; ++frame) stage.Step();
      stage.Process->Profiles[0].Starfold_NewFreq = 0;
      stage.Process->Profiles[0].Starfold_CometCPersist = 0.1F;
      PreparedProfile& run = stage.Process->Prepared[0];
      run.RunCometChance = run.RunNovaChance = run.RunPulsarChance = 0;
      for (int frame = 0; frame < 500; ++frame) stage.Step();
      std::set<std::pair<Long, Long>> lit = LitPlaces(stage.Canvas);
      for (const TrailPlace& place : stage.Run->Stars.Trail)
        lit.erase({place.TrailX, place.TrailY});
      EXPECT_EQ(lit.size(), 0U) << "trail " << trail << " shape " << shape;
    }
  }
}

TEST(StarStepTest, ATrailIsAsLongAsItsRingAndDrainsBeforeAWaitingStarIsReborn) {
  BodyStage stage(640, 400, 10, 4, [](SettingsRecords& settings) {
    Quiet(settings);
    settings.Profiles[0].Starfold_Rotation = 30000;
    settings.Profiles[0].Starfold_NewFrames = 0;
    settings.Profiles[0].Starfold_NovaFreq = 0;
  });
  for (std::size_t frame = 1; frame <= 8; ++frame) {
    stage.Step();
    EXPECT_LE(LitPlaces(stage.Canvas).size(), 10 * std::min<std::size_t>(frame, 4));
  }
  EXPECT_GT(LitPlaces(stage.Canvas).size(), 30U);
  for (StarState& star : stage.Run->Stars.Star) star.StarWait = 5;
  for (int frame = 0; frame < 4; ++frame) stage.Step();
  EXPECT_TRUE(LitPlaces(stage.Canvas).empty()) << "four frames empty a ring of four";
  stage.Step();
  for (const StarState& star : stage.Run->Stars.Star) {
    EXPECT_EQ(star.StarWait, 0);
    EXPECT_EQ(star.StarAge, 0);
  }
}

TEST(StarStepTest, HuesMoveOnceAFrame) {
  for (const Integer trail : {Integer{1}, Integer{3}}) {
    BodyStage stage(320, 200, 50, trail, [](SettingsRecords& settings) {
      Quiet(settings);
      settings.Profiles[0].Starfold_HWheelInc = 0.25F;
    });
    std::vector<Single> before;
    for (const StarState& star : stage.Run->Stars.Star) before.push_back(star.StarHue);
    for (int frame = 0; frame < 40; ++frame) stage.Step();
    FinishHueWork(*stage.Process, stage.Run->Stars);
    for (std::size_t i = 0; i < before.size(); ++i) {
      const StarState& star = stage.Run->Stars.Star[i];
      EXPECT_EQ(star.StarHue, std::fmod(before[i] + 10, 360)) << "trail " << trail;
      EXPECT_EQ(star.StarColor, stage.Process->Colours.Profile[0].HueTable[RoundHue(star.StarHue)]);
    }
  }
}

TEST(StarStepTest, AStarThatKeepsItsHueIsRecycledBeforeTheHueMoves) {
  BodyStage stage(320, 200, 10, 1, [](SettingsRecords& settings) {
    Quiet(settings);
    settings.Profiles[0].Starfold_NewFreq = 9999;
    settings.Profiles[0].Starfold_HWheelInc = 0.75F;
    // Nested levels that end at the core: there is no hue for a star, so each keeps its own.
    settings.Profiles[0].Starfold_StdLevels = 3;
    settings.Profiles[0].Starfold_StdLevDRad = -150;
  });
  stage.Step();
  FinishHueWork(*stage.Process, stage.Run->Stars);
  for (const StarState& star : stage.Run->Stars.Star) EXPECT_EQ(star.StarHue, 0.75F);
}

}  // namespace
}  // namespace starfolds
