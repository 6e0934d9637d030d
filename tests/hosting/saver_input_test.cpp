#include "hosting/saver_input.h"

#include <gtest/gtest.h>

#include <vector>

namespace starfolds {
namespace {

TEST(SaverInput, EndsOnTheFourthMoveWithinTenSeconds) {
  struct Case {
    const char* Why;
    std::vector<double> Moves;  // when; the last one ends the saver, and no other does
  };
  const Case cases[] = {
      {"the fourth", {1000, 1003, 1006, 1009.9}},
      {"a pause begins anew", {1000, 1000, 1000, 1011, 1011, 1011, 1012}},
      {"occasional ones never do", {1000, 1004, 1008, 1012, 1016, 1020, 1024, 1025, 1025, 1025}},
      {"1000.5 counts as 1000", {1000.5, 1010.1, 1010.2, 1010.2, 1010.2}},
      {"1000.6 counts as 1001, and ten seconds still count", {1000.6, 1011, 1011, 1011}},
      {"the count stays over midnight", {86399, 86399.5, 100, 40000}},
  };
  for (const Case& c : cases) {
    SaverInput process(false, false);
    EXPECT_FALSE(process.MouseMove(1000)) << "the place that a new window is told of first";
    for (std::size_t i = 0; i < c.Moves.size(); ++i) {
      EXPECT_EQ(process.MouseMove(c.Moves[i]), i + 1 == c.Moves.size()) << c.Why << ", move " << i;
    }
  }
}

TEST(SaverInput, IgnoresThePointerAfterARefusedEndUntilTheTimeIsOver) {
  SaverInput input(false, false);
  for (int i = 0; i < 4; ++i) EXPECT_FALSE(input.MouseMove(1000));
  EXPECT_TRUE(input.MouseMove(1001));
  for (int i = 0; i < 20; ++i) EXPECT_FALSE(input.MouseMove(1005));
  for (int i = 0; i < 3; ++i) EXPECT_FALSE(input.MouseMove(1010.1));
  EXPECT_TRUE(input.MouseMove(1010.2));
}

}  // namespace
}  // namespace starfolds
