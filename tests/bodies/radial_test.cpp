#include "bodies/radial.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "scenes/scenes.h"

namespace starfolds {
namespace {

class Radial : public ::testing::Test {
 protected:
  StarfoldProfile& Set() { return stage_.Process->Profiles[0]; }
  PreparedProfile& Run() { return stage_.Process->Prepared[0]; }
  Rnd& Random() { return stage_.Process->Random; }

  SeedPoint Seed(Single phase = 0) {
    SeedPoint point;
    SeedRadial(point, Body(*stage_.Process, 0), Run().RunSpin, phase);
    return point;
  }
  void Prepare() { PrepareProfiles(*stage_.Process); }

 private:
  scenes::Stage stage_;
};

double RadiusOf(const SeedPoint& point) { return std::hypot(point.X, point.Z); }

TEST_F(Radial, SevenScriptedDrawsPlaceOneStar) {
  Set().Starfold_Profile = 3;  // conical: height R - r
  Set().Starfold_RadiusExp = 2;
  Set().Starfold_HeightExp = 1;
  Set().Starfold_GHW_Ratio = 0.5F;
  Set().Starfold_RadSegs = 4;
  Set().Starfold_Radius = 400;
  Set().Starfold_Rotation = 10000;
  Prepare();
  // level, two for the radius, the side, the height, two for the angle
  const std::array<Single, 7> draws{0.9F, 0.5F, 0.0F, 0.1F, 0.5F, 0.5F, 0.0F};
  Random().Script(draws);
  const SeedPoint point = Seed(0.25F);
  EXPECT_EQ(Random().ScriptedDrawsLeft(), 0U);
  EXPECT_NEAR(RadiusOf(point), 1, 1e-5) << "0.25 of 4";
  EXPECT_NEAR(point.Y, -0.5 * 3 * 0.5, 1e-5) << "half of the height 3, flattened by half, below";
  EXPECT_NEAR(std::atan2(point.Z, point.X), std::numbers::pi + 0.25 - 2 * std::numbers::pi, 1e-4);
  EXPECT_NEAR(point.RotationStep, 2 * std::numbers::pi * 0.01, 1e-6) << "Kepler at radius 1";
}

TEST_F(Radial, RotationFallsOffWithTheRootOfTheRadiusAndIsCapped) {
  Set().Starfold_Rotation = 30000;
  Prepare();
  for (int i = 0; i < 2000; ++i) {
    const SeedPoint point = Seed();
    const double kepler = 2 * std::numbers::pi * 0.03 / std::sqrt(RadiusOf(point));
    EXPECT_NEAR(point.RotationStep, std::min(kepler, std::numbers::pi / 2), 1e-4);
  }
}

TEST_F(Radial, StarsKeepToTheFilledPartsOfBandsAndArms) {
  Set().Starfold_RadBands = 5;
  Set().Starfold_RadBFill = 40;
  Set().Starfold_RadiusExp = 1;
  Set().Starfold_RadSegs = 6;
  Set().Starfold_RadFill = 25;
  Prepare();
  std::array<int, 5> bands{};
  std::array<int, 6> arms{};
  constexpr int stars = 30000;
  for (int i = 0; i < stars; ++i) {
    const SeedPoint point = Seed();
    const double band = RadiusOf(point) / 3 * 5;
    const double turn = std::atan2(point.Z, point.X) / (2 * std::numbers::pi) * 6;
    const double arm = turn < -1e-6 ? turn + 6 : std::max(turn, 0.0);
    ASSERT_LT(band - std::floor(band + 1e-5), 0.4 + 1e-4);
    ASSERT_LT(arm - std::floor(arm + 1e-5), 0.25 + 1e-4);
    ++bands[std::min<std::size_t>(static_cast<std::size_t>(band + 1e-5), 4)];
    ++arms[std::min<std::size_t>(static_cast<std::size_t>(arm + 1e-5), 5)];
  }
  // Five standard deviations of a binomial count.
  for (const int count : bands) EXPECT_NEAR(count, stars / 5, 5 * std::sqrt(stars * 0.2 * 0.8));
  for (const int count : arms) EXPECT_NEAR(count, stars / 6, 5 * std::sqrt(stars / 6.0 * 5 / 6));
}

TEST_F(Radial, TheExponentPacksStarsTowardTheCore) {
  Set().Starfold_RadiusExp = 3;
  Prepare();
  constexpr int stars = 20000;
  int inner = 0;
  for (int i = 0; i < stars; ++i) inner += RadiusOf(Seed()) < 3 * 0.125;
  EXPECT_NEAR(inner, stars * 0.5, 5 * std::sqrt(stars * 0.25))
      << "half of the draws cube below 1/8";
}

TEST_F(Radial, HeightsLieBelowTheShapeOnBothSides) {
  for (Integer shape = 0; shape <= 6; ++shape) {
    Set().Starfold_Profile = shape;
    Set().Starfold_GHW_Ratio = 1;
    Prepare();
    int above = 0;
    constexpr int stars = 4000;
    for (int i = 0; i < stars; ++i) {
      const SeedPoint point = Seed();
      const double limit = std::abs(ShapeProfile(shape, RadiusOf(point), 3, 9));
      ASSERT_LE(std::abs(point.Y), limit + 2e-3) << shape;
      above += point.Y > 0;
    }
    EXPECT_NEAR(above, stars / 2, 5 * std::sqrt(stars * 0.25)) << shape;
  }
}

TEST_F(Radial, SimpleShapesAreTheirSolids) {
  constexpr double R = 2;
  for (double r = 0; r <= R; r += 0.25) {
    EXPECT_NEAR(ShapeProfile(2, r, R, R * R), std::sqrt(R * R - r * r), 1e-12);
    EXPECT_NEAR(ShapeProfile(3, r, R, R * R), R - r, 1e-12);
    EXPECT_NEAR(ShapeProfile(4, r, R, R * R) + ShapeProfile(6, r, R, R * R), R, 1e-12);
    EXPECT_NEAR(ShapeProfile(5, r, R, R * R) + ShapeProfile(2, r, R, R * R), R, 1e-12);
  }
  EXPECT_EQ(ShapeProfile(7, 1, R, R * R), 0);
  EXPECT_GE(ShapeProfile(2, 3, R, R * R), 0) << "beyond the radius the height is real";
}

TEST_F(Radial, LevelsArePushedOutOrAreBodiesOfTheirOwn) {
  Set().Starfold_StdLevels = 2;
  Set().Starfold_StdLevDRad = 300;
  Set().Starfold_StdLevHSca = 3;
  Set().Starfold_Profile = 3;
  Set().Starfold_GHW_Ratio = 1;
  Set().Starfold_RadiusExp = 1;
  Set().Starfold_HeightExp = 0;  // all on the shape
  for (const Integer own : {0, 1}) {
    Set().Starfold_StdLevB_HS = own;
    Prepare();
    double innermost = 99;
    double outermost = 0;
    for (int i = 0; i < 5000; ++i) {
      const SeedPoint point = Seed();
      if (point.Level == 0) continue;
      const double r = RadiusOf(point);
      innermost = std::min(innermost, r);
      outermost = std::max(outermost, r);
      const double height = own ? 6 - r : 3 - (r - 3);
      EXPECT_NEAR(std::abs(point.Y), 3 * height, 1e-2) << own;
    }
    EXPECT_NEAR(outermost, 6, 0.02);
    EXPECT_NEAR(innermost, own ? 0 : 3, 0.02);
  }
}

}  // namespace
}  // namespace starfolds
