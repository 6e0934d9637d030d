#include "bodies/emitters.h"

#include <map>
#include <numbers>

#include "bodies/star_motion.h"
#include "one_body.h"

namespace starfolds {
namespace {

StarState StateOf(const SeedPoint& point) {
  StarState star;
  star.StarX = point.X;
  star.StarY = point.Y;
  star.StarZ = point.Z;
  star.StarVX = point.VX;
  star.StarVY = point.VY;
  star.StarVZ = point.VZ;
  return star;
}

void Move(StarState& star, const PreparedProfile& run, int frames) {
  for (int i = 0; i < frames; ++i) MoveStar(star, run.Star);
}

class Quasar : public OneBody {
 protected:
  Quasar() : OneBody(FoldStyle::Quasar) {}
};

TEST_F(Quasar, TheShapeGrowsWithoutChangingForm) {
  for (const Single force : {0.0F, 5.0F, 80.0F}) {
    Set().Starfold_QG_Force = force;
    SetUpSlots();
    const double growth = 1 + 10 * 0.01 * static_cast<double>(force);
    for (int i = 0; i < 200; ++i) {
      const SeedPoint seed = Seed();
      StarState star = StateOf(seed);
      Move(star, Run(), 10);
      const double tolerance = 1e-5 * growth * kMaxLevels;
      EXPECT_NEAR(star.StarX, seed.X * growth, tolerance);
      EXPECT_NEAR(star.StarY, seed.Y * growth, tolerance);
      EXPECT_NEAR(star.StarZ, seed.Z * growth, tolerance);
    }
  }
}

TEST_F(Quasar, ArmsTurnWithTheSweepOfTheBody) {
  Set().Starfold_RadSegs = 4;
  Set().Starfold_RadFill = 0;
  Set().Starfold_Rotation = 10000;
  for (const FoldStyle style : {FoldStyle::Quasar, FoldStyle::Graviton}) {
    Set().Starfold_FoldStyle = static_cast<Integer>(style);
    SetUpSlots();
    for (int frame = 0; frame < 25; ++frame) AdvanceAngles(Process());
    const double sweep = 25 * 8 * 0.01;
    for (int i = 0; i < 50; ++i) {
      const SeedPoint star = Seed();
      const double quarters = (std::atan2(star.Z, star.X) - sweep) / (std::numbers::pi / 2);
      EXPECT_NEAR(quarters, std::round(quarters), 1e-4);
    }
  }
}

class Graviton : public OneBody {
 protected:
  Graviton() : OneBody(FoldStyle::Graviton) { Set().Starfold_QG_Force = 5; }
  static constexpr double kForce = 0.0005;
};

TEST_F(Graviton, AStarFallsFromRest) {
  SetUpSlots();
  for (int i = 0; i < 50; ++i) {
    SeedPoint star;
    star.VX = star.VY = star.VZ = 9;  // of its former life
    SeedByStyle(star, TheBody(), Slots, 0);
    EXPECT_EQ(Length(star.VX, star.VY, star.VZ), 0);
  }
}

TEST_F(Graviton, TheFallKeepsItsEnergyAndGoesThroughTheCore) {
  SetUpSlots();
  StarState star;
  star.StarX = 2;
  star.StarY = -1;
  star.StarZ = 2;
  int frames = 0;
  for (; Length(star.StarX, star.StarY, star.StarZ) > 0.3; ++frames) {
    ASSERT_LT(frames, 1000) << "it never falls";
    Move(star, Run(), 1);
    const double r = Length(star.StarX, star.StarY, star.StarZ);
    const double v = Length(star.StarVX, star.StarVY, star.StarVZ);
    // The pull goes with 1 / r, so its potential with log r. A step moves the star up to v.
    EXPECT_NEAR(v * v / 2, kForce * std::log(3 / r), kForce * 1.5 * v / r + 1e-6) << r;
    EXPECT_NEAR(star.StarX, star.StarZ, 1e-4) << "straight for the core";
    EXPECT_NEAR(star.StarX, -2 * star.StarY, 1e-4);
  }
  // The last steps before the core are coarse, so how fast it comes out is not certain.
  for (frames = 0; star.StarX > -0.3; ++frames) {
    ASSERT_LT(frames, 1000) << "it never comes out on the far side";
    Move(star, Run(), 1);
  }
  EXPECT_NEAR(star.StarX, star.StarZ, 1e-3);
  EXPECT_NEAR(star.StarX, -2 * star.StarY, 1e-3);
}

TEST_F(Graviton, AStarOfTheRightSpeedCircles) {
  SetUpSlots();
  StarState star;
  star.StarX = 2;
  const double speed = std::sqrt(kForce);  // at any distance: the pull goes with 1 / r
  star.StarVZ = static_cast<Single>(speed);
  const double period = 2 * std::numbers::pi * 2 / speed;
  for (int frame = 0; frame < std::lround(period); ++frame) {
    Move(star, Run(), 1);
    ASSERT_NEAR(std::hypot(star.StarX, star.StarZ), 2, 0.03) << frame;
  }
  EXPECT_NEAR(star.StarX, 2, 0.03);
  EXPECT_NEAR(star.StarZ, 0, 0.06);
}

TEST_F(Graviton, TheExactCentreIsHarmless) {
  SetUpSlots();
  StarState still;
  Move(still, Run(), 3);
  EXPECT_EQ(Length(still.StarX, still.StarY, still.StarZ), 0);
  StarState near;
  near.StarX = 1e-6F;
  Move(near, Run(), 1);
  EXPECT_NEAR(near.StarVX, -kForce * 1e-6 / (1e-12 + 1e-9), 1e-4) << "flung off at once";
}

class Starwave : public OneBody {
 protected:
  Starwave() : OneBody(FoldStyle::Starwave) {
    Set().Starfold_Radius = 500;
    Set().Starfold_GHW_Ratio = 0.4F;  // an amplitude of 2
    Set().Starfold_RadBands = 4;
    Set().Starfold_RadBFill = 20;   // frames to half of it
    Set().Starfold_RadiusExp = 15;  // degrees a frame
  }
  static constexpr double kAmplitude = 2;
};

TEST_F(Starwave, TwoDrawsForTheDirectionAndOneForThePhase) {
  Set().Starfold_RadSegs = 5;
  Set().Starfold_RadFill = 50;
  SetUpSlots();
  Run().SweepPhase = 0.25F;
  Draws({0.65F, 0.5F, 0.8F});  // sector 3, half way, wave 3
  const SeedPoint star = Seed();
  EXPECT_EQ(Random().ScriptedDrawsLeft(), 0U);
  const double theta = (3 + 0.25) * 2 * std::numbers::pi / 5 + 0.25;
  EXPECT_NEAR(star.VX, 0.05 * std::cos(theta), 1e-6);
  EXPECT_NEAR(star.VZ, 0.05 * std::sin(theta), 1e-6);
  EXPECT_NEAR(star.VY, 2 * std::numbers::pi * 3 / 4, 1e-6);
  EXPECT_EQ(Length(star.X, star.Y, star.Z), 0) << "in the core";
}

TEST_F(Starwave, StarsRunOutAtOneSpeedInEquallyLikelyWaves) {
  constexpr Integer waves = 7;
  Set().Starfold_RadBands = waves;
  SetUpSlots();
  constexpr int stars = 14000;
  std::map<long, int> hits;
  for (int i = 0; i < stars; ++i) {
    const SeedPoint star = Seed();
    ASSERT_NEAR(std::hypot(star.VX, star.VZ), 0.05, 1e-6);
    const double wave = star.VY / (2 * std::numbers::pi) * waves;
    ASSERT_NEAR(wave, std::round(wave), 1e-5);
    ++hits[std::lround(wave)];
  }
  ASSERT_EQ(hits.size(), static_cast<std::size_t>(waves));
  EXPECT_EQ(hits.begin()->first, 0);
  for (const auto& [wave, count] : hits) {
    EXPECT_NEAR(count, stars / double{waves}, FiveSigma(stars, 1.0 / waves)) << wave;
  }
}

TEST_F(Starwave, HeightsFollowASineOfThePhase) {
  Set().Starfold_RadBFill = 9999;
  SetUpSlots();
  struct Case {
    double Draw;  // of the phase: quarters of a turn
    int Frames;
    double Height;  // in amplitudes
  };
  for (const Case& c : {Case{0, 2, 0.5}, Case{0, 6, 1}, Case{0, 12, 0}, Case{0, 18, -1},
                        Case{0.25, 6, 0}, Case{0.5, 6, -1}}) {
    Draws({0, 0, static_cast<Single>(c.Draw)});
    StarState star = StateOf(Seed());
    Move(star, Run(), c.Frames);
    const double fading = 9999.0 / (9999 + c.Frames);
    EXPECT_NEAR(star.StarY, kAmplitude * c.Height * fading, 1e-4) << c.Draw << " " << c.Frames;
    EXPECT_NEAR(std::hypot(star.StarX, star.StarZ), 0.05 * c.Frames, 1e-5) << "a circular ripple";
  }
}

TEST_F(Starwave, AStandingPhaseShowsTheDecay) {
  Set().Starfold_RadiusExp = 0;
  SetUpSlots();
  Draws({0, 0, 0.25F});  // at the crest
  StarState star = StateOf(Seed());
  Move(star, Run(), 20);
  EXPECT_NEAR(star.StarY, kAmplitude / 2, 1e-5);
  Move(star, Run(), 40);
  EXPECT_NEAR(star.StarY, kAmplitude / 4, 1e-5);
}

TEST_F(Starwave, NoPersistenceIsAFlatWave) {
  Set().Starfold_RadBFill = 0;
  Set().Starfold_RadiusExp = 0;
  SetUpSlots();
  Draws({0, 0, 0.25F});
  StarState star = StateOf(Seed());
  Move(star, Run(), 5);
  EXPECT_EQ(star.StarY, 0);
}

TEST(StarwaveTrails, WithTrailsAWaveAgesTwiceAsFast) {
  for (const Integer trail : {1, 6}) {
    scenes::BodyStage stage(320, 180, 50, trail, [](SettingsRecords& settings) {
      StarfoldProfile& set = settings.Profiles[0];
      set.Starfold_FoldStyle = static_cast<Integer>(FoldStyle::Starwave);
      set.Starfold_RadiusExp = 0;
      set.Starfold_RadBands = 2;
      set.Starfold_RadBFill = 30;
      set.Starfold_NewFreq = 0;
      set.Starfold_CometFreq = 0;
    });
    StarState& star = stage.Run->Stars.Star[7];
    star.StarVY = static_cast<Single>(std::numbers::pi / 2);
    const int halfLife = trail == 1 ? 30 : 15;
    for (int frame = 0; frame < halfLife; ++frame) stage.Step();
    EXPECT_NEAR(star.StarY, stage.Process->Prepared[0].Star.WaveAmplitude / 2, 1e-5) << trail;
  }
}

}  // namespace
}  // namespace starfolds
