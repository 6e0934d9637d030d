#include "bodies/emitters.h"

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
  Set().Starfold_QG_Force = 5;
  SetUpSlots();
  for (int i = 0; i < 200; ++i) {
    const SeedPoint seed = Seed();
    StarState star = StateOf(seed);
    Move(star, Run(), 10);
    ExpectPoint({star.StarX, star.StarY, star.StarZ}, {seed.X * 1.5F, seed.Y * 1.5F, seed.Z * 1.5F},
                1e-4);
  }
}

TEST_F(Quasar, ArmsTurnWithTheSweepOfTheBody) {
  Set().Starfold_RadSegs = 4;
  Set().Starfold_RadFill = 0;
  Set().Starfold_Rotation = 10000;
  for (const FoldStyle style : {FoldStyle::Quasar, FoldStyle::Graviton}) {
    Set().Starfold_FoldStyle = static_cast<Integer>(style);
    SetUpSlots();
    for (int frame = 0; frame < 25; ++frame) AdvanceAngles(Process().Prepared);
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

TEST_F(Graviton, TheFallFromRestKeepsItsEnergy) {
  SetUpSlots();
  SeedPoint seed;
  seed.VX = seed.VY = seed.VZ = 9;  // of its former life
  SeedAsStar(seed);
  StarState star = StateOf(seed);
  star.StarX = 2;
  star.StarY = -1;
  star.StarZ = 2;
  for (int frames = 0; Length(star.StarX, star.StarY, star.StarZ) > 0.3; ++frames) {
    ASSERT_LT(frames, 1000) << "it never falls";
    Move(star, Run(), 1);
    const double r = Length(star.StarX, star.StarY, star.StarZ);
    const double v = Length(star.StarVX, star.StarVY, star.StarVZ);
    // The pull goes with 1 / r, so its potential with log r. A step moves the star up to v.
    EXPECT_NEAR(v * v / 2, kForce * std::log(3 / r), kForce * 1.5 * v / r + 1e-6) << r;
    EXPECT_NEAR(star.StarX, star.StarZ, 1e-4) << "straight for the core";
    EXPECT_NEAR(star.StarX, -2 * star.StarY, 1e-4);
  }
}

TEST_F(Graviton, TheExactCentreIsHarmless) {
  SetUpSlots();
  StarState still;
  Move(still, Run(), 3);
  EXPECT_EQ(Length(still.StarX, still.StarY, still.StarZ), 0);
}

class Starwave : public OneBody {
 protected:
  Starwave() : OneBody(FoldStyle::Starwave) {
    Set().Starfold_Radius = 500;
    Set().Starfold_GHW_Ratio = 0.4F;  // an amplitude of 2
    Set().Starfold_RadBands = 4;
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

TEST_F(Starwave, HeightsFollowASineOfThePhaseAndDecay) {
  struct Case {
    Single PhaseStep;  // degrees a frame
    Integer HalfLife;  // frames; 0: a flat wave
    Single Draw;       // of the phase: quarters of a turn
    int Frames;
    double Height;  // in amplitudes, before it decays
  };
  for (const Case& c :
       {Case{15, 9999, 0, 2, 0.5}, Case{15, 9999, 0, 18, -1}, Case{15, 30, 0.25F, 12, -1},
        Case{15, 9999, 0.5F, 6, -1}, Case{0, 20, 0.25F, 60, 1}, Case{0, 0, 0.25F, 5, 1}}) {
    Set().Starfold_RadiusExp = c.PhaseStep;
    Set().Starfold_RadBFill = c.HalfLife;
    SetUpSlots();
    Draws({0, 0, c.Draw});
    StarState star = StateOf(Seed());
    Move(star, Run(), c.Frames);
    const double fading = double{1} * c.HalfLife / (c.HalfLife + c.Frames);
    EXPECT_NEAR(star.StarY, kAmplitude * c.Height * fading, 1e-4) << c.Draw << " " << c.Frames;
    EXPECT_NEAR(std::hypot(star.StarX, star.StarZ), 0.05 * c.Frames, 1e-5) << "a circular ripple";
  }
}

TEST(StarwaveTrails, WithTrailsAWaveAgesTwiceAsFast) {
  for (const Integer trail : {1, 6}) {
    scenes::BodyStage stage(320, 180, 50, trail, [](SettingsRecords& settings) {
      StarfoldProfile& set = settings.Profiles[0];
      set.Starfold_FoldStyle = static_cast<Integer>(FoldStyle::Starwave);
      set.Starfold_NewFreq = 0;
    });
    for (int frame = 0; frame < 15; ++frame) stage.Step();
    EXPECT_EQ(stage.Run->Stars.Star[7].StarAge, trail == 1 ? 15 : 30);
  }
}

}  // namespace
}  // namespace starfolds
