#include "universe/gravity.h"

#include <gtest/gtest.h>

namespace starfolds {
namespace {

StarfoldArrays TwoBodies(Single distance) {
  StarfoldArrays folds(2);
  folds.StarfoldX[1] = distance;
  return folds;
}

TEST(Gravity, ALaterBodySeesTheEarlierOneWhereItWent) {
  StarfoldArrays folds = TwoBodies(2);
  StepGravity(folds, 0.5F, true);
  EXPECT_FLOAT_EQ(folds.StarfoldX[0], 0.25F);
  EXPECT_NEAR(folds.StarfoldVX[1], -0.5 / 1.75, 1e-6);
}

TEST(Gravity, BetweenEvaluationsBodiesOnlyCoast) {
  StarfoldArrays folds = TwoBodies(2);
  folds.StarfoldVY[0] = 3;
  StepGravity(folds, 0.5F, false);
  EXPECT_EQ(folds.StarfoldY[0], 3);
  EXPECT_EQ(folds.StarfoldVX[0], 0);
}

TEST(Gravity, BodiesAtOnePlaceAndALoneBodyStayAtRest) {
  StarfoldArrays folds = TwoBodies(0);
  StepGravity(folds, 0.0999999F, true);
  EXPECT_EQ(folds.StarfoldVX[0], 0);
  EXPECT_EQ(folds.StarfoldVX[1], 0);
  StarfoldArrays lone(1);
  StepGravity(lone, 0.0999999F, true);
  EXPECT_EQ(lone.StarfoldX[0], 0);
}

}  // namespace
}  // namespace starfolds
