#include "numbers/conversions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace starfolds {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(Conversions, RoundsHalvesToEven) {
  struct Case {
    double Value;
    std::int64_t Rounded;
  };
  for (const Case c : {Case{0.5, 0}, Case{1.5, 2}, Case{2.5, 2}, Case{-0.5, 0}, Case{-1.5, -2},
                       Case{12.5, 12}, Case{13.5, 14}, Case{2.5000001, 3}}) {
    EXPECT_EQ(RoundHalfEven(c.Value), c.Rounded) << c.Value;
  }
}

TEST(Conversions, ValuesOutOfRangeGiveTheLowestNumber) {
  constexpr std::int64_t lowest = std::numeric_limits<std::int64_t>::min();
  // As constants, which the compiler folds, and as values that it cannot know.
  EXPECT_EQ(RoundHalfEven(1e300), lowest);
  EXPECT_EQ(FloorToWhole(kInfinity), lowest);
  for (volatile double value : {0x1p63, -0x1p63, 1e300, -1e300, kInfinity, std::nan("")}) {
    EXPECT_EQ(RoundHalfEven(value), lowest) << value;
    EXPECT_EQ(FloorToWhole(value), lowest) << value;
  }
}

TEST(Conversions, AValueThatDoesNotFitLeavesTheFormerOne) {
  for (const double value : {32767.5, -32769.0, 1e300, -1e300, kInfinity, std::nan("")}) {
    Integer target = 7;
    EXPECT_FALSE(AssignRounded(target, value)) << value;
    EXPECT_EQ(target, 7) << value;
  }
  Integer edge = 7;
  EXPECT_TRUE(AssignRounded(edge, 32767.4));
  EXPECT_EQ(edge, 32767);
  Long wide = 7;
  EXPECT_FALSE(AssignRounded(wide, 2147483647.6));
  EXPECT_EQ(wide, 7);
}

TEST(Conversions, RoundedToLimitsClamps) {
  EXPECT_EQ(RoundedToLimits<Integer>(1e9), 32767);
  EXPECT_EQ(RoundedToLimits<Integer>(-kInfinity), -32768);
  EXPECT_EQ(RoundedToLimits<Integer>(std::nan("")), 0);
  EXPECT_EQ(RoundedToLimits<Long>(1e18), 2147483647);
}

}  // namespace
}  // namespace starfolds
