#include "bodies/radial.h"

#include <numbers>

#include "one_body.h"

namespace starfolds {
namespace {

class Radial : public OneBody {
 protected:
  Radial() : OneBody(FoldStyle::Standard) {}
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
  SetUpSlots();
  Run().SpinPhase = 0.25F;
  // level, two for the radius, the side, the height, two for the angle
  Draws({0.9F, 0.5F, 0.0F, 0.1F, 0.5F, 0.5F, 0.0F});
  const SeedPoint point = Seed();
  EXPECT_EQ(Random().ScriptedDrawsLeft(), 0U);
  EXPECT_NEAR(RadiusOf(point), 1, 1e-5) << "0.25 of 4";
  EXPECT_NEAR(point.Y, -0.5 * 3 * 0.5, 1e-5) << "half of the height 3, flattened by half, below";
  EXPECT_NEAR(std::atan2(point.Z, point.X), std::numbers::pi + 0.25 - 2 * std::numbers::pi, 1e-4);
}

TEST_F(Radial, StarsKeepToTheFilledPartsOfBandsAndArms) {
  Set().Starfold_RadBands = 5;
  Set().Starfold_RadBFill = 40;
  Set().Starfold_RadiusExp = 1;
  Set().Starfold_RadSegs = 6;
  Set().Starfold_RadFill = 25;
  SetUpSlots();
  std::array<int, 5> bands{};
  std::array<int, 6> arms{};
  constexpr int stars = 30000;
  constexpr double inside = 1e-5;  // what lies on the edge of a band belongs to it
  for (int i = 0; i < stars; ++i) {
    const SeedPoint point = Seed();
    const double band = RadiusOf(point) / 3 * 5 + inside;
    const double turn = std::atan2(point.Z, point.X) / (2 * std::numbers::pi) * 6 + inside;
    const double arm = turn < 0 ? turn + 6 : turn;
    ASSERT_LT(band - std::floor(band), 0.4 + 1e-4);
    ASSERT_LT(arm - std::floor(arm), 0.25 + 1e-4);
    ++bands.at(static_cast<std::size_t>(band));
    ++arms.at(static_cast<std::size_t>(arm));
  }
  for (const int count : bands) EXPECT_NEAR(count, stars / 5, FiveSigma(stars, 0.2));
  for (const int count : arms) EXPECT_NEAR(count, stars / 6, FiveSigma(stars, 1.0 / 6));
}

TEST_F(Radial, HeightsLieBelowTheShapeOnBothSidesAndKeplerIsCapped) {
  Set().Starfold_GHW_Ratio = 1;
  Set().Starfold_Rotation = 30000;
  for (Integer shape = 0; shape <= 6; ++shape) {
    Set().Starfold_Profile = shape;
    SetUpSlots();
    int above = 0;
    constexpr int stars = 4000;
    for (int i = 0; i < stars; ++i) {
      const SeedPoint point = Seed();
      const double limit = std::abs(ShapeProfile(shape, RadiusOf(point), 3, 9));
      ASSERT_LE(std::abs(point.Y), limit + 2e-3) << shape;
      above += point.Y > 0;
      const double kepler = 2 * std::numbers::pi * 0.03 / std::sqrt(RadiusOf(point));
      ASSERT_NEAR(point.RotationStep, std::min(kepler, std::numbers::pi / 2), 1e-4);
    }
    EXPECT_NEAR(above, stars / 2, FiveSigma(stars, 0.5)) << shape;
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
  Set().Starfold_HeightExp = 0;  // all on the shape
  for (const Integer own : {0, 1}) {
    Set().Starfold_StdLevB_HS = own;
    SetUpSlots();
    double innermost = 99;
    for (int i = 0; i < 5000; ++i) {
      const SeedPoint point = Seed();
      if (point.Level == 0) continue;
      const double r = RadiusOf(point);
      innermost = std::min(innermost, r);
      EXPECT_NEAR(std::abs(point.Y), 3 * (6 - r), 1e-2) << own;
    }
    EXPECT_NEAR(innermost, own ? 0 : 3, 0.02);
  }
}

}  // namespace
}  // namespace starfolds
