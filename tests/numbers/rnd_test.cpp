#include "numbers/rnd.h"

#include <gtest/gtest.h>

#include <array>

namespace starfolds {
namespace {

TEST(RndTest, DrawsFillTheUnitIntervalEvenlyAndStayBelowOne) {
  Rnd random(3);
  std::array<int, 16> bins{};
  double sum = 0;
  constexpr int draws = 160000;
  for (int i = 0; i < draws; ++i) {
    const Single draw = random();
    ASSERT_GE(draw, 0.0F);
    ASSERT_LT(draw, 1.0F);
    ++bins[static_cast<std::size_t>(draw * 16)];
    sum += draw;
  }
  EXPECT_NEAR(sum / draws, 0.5, 0.004);
  // Five standard deviations of a bin's count: sqrt(160000 / 16 * 15 / 16) is 97.
  for (const int count : bins) EXPECT_NEAR(count, draws / 16, 485);
}

}  // namespace
}  // namespace starfolds
