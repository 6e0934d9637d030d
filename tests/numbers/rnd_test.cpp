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

TEST(RndTest, SeedsGiveSequencesOfTheirOwnAndTheSameAgain) {
  Rnd a(1);
  Rnd b(2);
  Rnd again(1);
  int same = 0;
  for (int i = 0; i < 100; ++i) {
    const Single draw = a();
    same += draw == b();
    EXPECT_EQ(draw, again());
  }
  EXPECT_LT(same, 5);
}

TEST(RndTest, ScriptedDrawsComeFirstAndDoNotMoveTheGenerator) {
  Rnd plain(9);
  Rnd scripted(9);
  const std::array<Single, 2> script{0.25F, 0.75F};
  scripted.Script(script);
  EXPECT_EQ(scripted(), 0.25F);
  EXPECT_EQ(scripted(), 0.75F);
  EXPECT_EQ(scripted(), plain());
}

}  // namespace
}  // namespace starfolds
