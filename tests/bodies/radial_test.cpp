#include "bodies/radial.h"

#include <gtest/gtest.h>

#include <cmath>

namespace starfolds {
namespace {

TEST(Radial, SimpleShapesAreTheirSolids) {
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

}  // namespace
}  // namespace starfolds
