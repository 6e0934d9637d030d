// The two limits that keep products and pools in their types.
#include "bodies/comets.h"

#include <gtest/gtest.h>

#include "bodies/flares.h"

namespace starfolds {
namespace {

TEST(NovaRowTest, RunsThroughTheRampAndStaysWhereTheProductNoLongerFits) {
  EXPECT_EQ(NovaRow(30, 30), 0);
  EXPECT_EQ(NovaRow(30, 15), 40);
  EXPECT_EQ(NovaRow(30, 1), 77);
  EXPECT_EQ(NovaRow(999, 590), 33) << "409 frames old: 409 * 80 just fits";
  EXPECT_EQ(NovaRow(999, 1), 33) << "and there it stays";
}

TEST(Comets, ThePoolHoldsAsManyAsTheirStarsFitIn) {
  for (const auto& [stars, comets] : {std::pair{0, 100}, std::pair{25, 100}, std::pair{26, 96},
                                      std::pair{2500, 1}, std::pair{2501, 0}}) {
    EXPECT_EQ(CometRoom(static_cast<Integer>(stars)), comets) << stars;
  }
}

}  // namespace
}  // namespace starfolds
