#include "numbers/b_spline.h"

#include <gtest/gtest.h>

namespace starfolds {
namespace {

TEST(BSplineTest, EndsAreTheKnownBlendsAndEqualPointsStandStill) {
  EXPECT_NEAR(BSpline(0, 6, 12, 18, 99), (6 + 4 * 12 + 18) / 6.0, 1e-5);
  EXPECT_NEAR(BSpline(1, 99, 6, 12, 18), (6 + 4 * 12 + 18) / 6.0, 1e-5);
  for (const double t : {0.0, 0.3, 0.999}) EXPECT_NEAR(BSpline(t, -40, -40, -40, -40), -40, 1e-4);
}

}  // namespace
}  // namespace starfolds
