#include "bodies/flares.h"

#include <gtest/gtest.h>

namespace starfolds {
namespace {

TEST(NovaRowTest, RunsThroughTheRampAndStaysWhereTheProductNoLongerFits) {
  EXPECT_EQ(NovaRow(30, 30), 0);
  EXPECT_EQ(NovaRow(30, 15), 40);
  EXPECT_EQ(NovaRow(30, 1), 77);
  EXPECT_EQ(NovaRow(999, 590), 33) << "409 frames old: 409 * 80 just fits";
  EXPECT_EQ(NovaRow(999, 1), 33) << "and there it stays";
}

}  // namespace
}  // namespace starfolds
