#include "numbers/b_spline.h"

#include <gtest/gtest.h>

namespace starfolds {
namespace {

TEST(BSplineTest, WindowsJoinInPlaceSlopeAndCurvature) {
  constexpr double p[] = {3, -2, 7, 11, -5};
  constexpr double h = 1e-3;
  const auto first = [&](double t) { return BSpline(t, p[0], p[1], p[2], p[3]); };
  const auto second = [&](double t) { return BSpline(t, p[1], p[2], p[3], p[4]); };
  EXPECT_NEAR(first(1), second(0), 1e-6);
  EXPECT_NEAR((first(1) - first(1 - h)) / h, (second(h) - second(0)) / h, 0.05);
  const double bendOfFirst = (first(1) - 2 * first(1 - h) + first(1 - 2 * h)) / (h * h);
  const double bendOfSecond = (second(2 * h) - 2 * second(h) + second(0)) / (h * h);
  EXPECT_NEAR(bendOfFirst, bendOfSecond, 0.2);
}

TEST(BSplineTest, EndsAreTheKnownBlendsAndEqualPointsStandStill) {
  EXPECT_NEAR(BSpline(0, 6, 12, 18, 99), (6 + 4 * 12 + 18) / 6.0, 1e-5);
  EXPECT_NEAR(BSpline(1, 99, 6, 12, 18), (6 + 4 * 12 + 18) / 6.0, 1e-5);
  for (const double t : {0.0, 0.3, 0.999}) EXPECT_NEAR(BSpline(t, -40, -40, -40, -40), -40, 1e-4);
}

}  // namespace
}  // namespace starfolds
