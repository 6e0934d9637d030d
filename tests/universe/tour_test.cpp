#include "universe/tour.h"

#include <gtest/gtest.h>

namespace starfolds {
namespace {

TEST(VisitPointTest, AimsInFrontOfTheBodyAndThenPassesThrough) {
  const TourPoint fold{10, 20, 30};
  // Two approach steps, three close-in steps, a stand-off of 4.
  const double expected[] = {26, 26, 28, 30, 32};
  for (int segment = 1; segment <= 5; ++segment) {
    const TourPoint point = VisitPoint(fold, 4, segment, 2, 3);
    EXPECT_EQ(point.X, 10);
    EXPECT_EQ(point.Y, 20);
    EXPECT_NEAR(point.Z, expected[segment - 1], 1e-5) << segment;
  }
  EXPECT_EQ(VisitPoint(fold, 4, 1, 1, 0).Z, 26) << "without close-in steps nothing is divided";
}

TEST(PullOutPointTest, FallsAwayAtTheLastStep) {
  EXPECT_EQ(PullOutPoint(3, 1, 2).Z, -15);
  EXPECT_EQ(PullOutPoint(3, 2, 2).Z, -30000);
  EXPECT_EQ(PullOutPoint(3, 1, 1).Z, -30000) << "with one step there is only the far one";
  EXPECT_EQ(PullOutPoint(0, 1, 1).Z, 0);
}

}  // namespace
}  // namespace starfolds
