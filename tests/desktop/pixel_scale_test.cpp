#include "desktop/pixel_scale.h"

#include <gtest/gtest.h>

#include <string>

namespace starfolds {
namespace {

/// A factor as a fraction, so that the expected answer can be worked out in whole numbers.
struct Factor {
  int Over;
  int Under;

  double Value() const { return static_cast<double>(Over) / Under; }
  int PhysicalSize(int logical) const { return logical * Over / Under; }
  /// The logical pixel under the centre of a physical one: floor((p + 1/2) * Under / Over).
  int Owner(int physical) const { return (2 * physical + 1) * Under / (2 * Over); }
};

class AxisScaleAt : public testing::TestWithParam<Factor> {};

TEST_P(AxisScaleAt, GivesEachPhysicalPixelToTheLogicalOneUnderItsCentre) {
  const Factor factor = GetParam();
  constexpr int logical = 1001;
  const int physical = factor.PhysicalSize(logical);
  AxisScale axis;
  axis.Measure(logical, factor.Value(), physical);
  ASSERT_EQ(axis.Size(), logical);
  int next = 0;
  for (int i = 0; i < logical; ++i) {
    ASSERT_EQ(axis.Begin(i), next) << "gap or overlap before " << i;
    for (; next < axis.End(i); ++next) ASSERT_EQ(factor.Owner(next), i);
  }
  EXPECT_EQ(next, physical);
}

INSTANTIATE_TEST_SUITE_P(Factors, AxisScaleAt,
                         testing::Values(Factor{1, 1}, Factor{5, 4}, Factor{3, 2}, Factor{7, 4},
                                         Factor{2, 1}, Factor{3, 1}, Factor{9, 8}),
                         [](const auto& factor) {
                           return std::to_string(factor.param.Over) + "over" +
                                  std::to_string(factor.param.Under);
                         });

TEST(AxisScale, LeavesOutWhatDoesNotFitIntoThePicture) {
  AxisScale axis;
  axis.Measure(10, 2, 7);
  EXPECT_EQ(axis.Begin(2), 4);
  EXPECT_EQ(axis.Begin(3), 6);
  EXPECT_EQ(axis.End(3), 7);
  EXPECT_EQ(axis.Begin(9), 7);
  EXPECT_EQ(axis.End(9), 7);
}

TEST(AxisScale, IsOneToOneOnlyWhereEveryPixelFits) {
  AxisScale axis;
  axis.Measure(10, 1, 12);
  EXPECT_TRUE(axis.IsOneToOne());
  axis.Measure(10, 1, 9);
  EXPECT_FALSE(axis.IsOneToOne());
  axis.Measure(10, 1.25, 13);
  EXPECT_FALSE(axis.IsOneToOne());
}

}  // namespace
}  // namespace starfolds
