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
