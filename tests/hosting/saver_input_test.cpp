#include "hosting/saver_input.h"

#include <gtest/gtest.h>

namespace starfolds {
namespace {

/// The place that a new window is told of first.
SaverInput InputWithPlaceKnown(bool mouseMoveOff, bool backG) {
  SaverInput input(mouseMoveOff, backG);
  EXPECT_FALSE(input.MouseMove(1000));
  return input;
}

TEST(SaverInput, EndsOnKeysAndButtonsButNotAsABackground) {
  const SaverInput saver(true, false);
  EXPECT_TRUE(saver.KeyDown());
  EXPECT_TRUE(saver.MouseDown());
  EXPECT_FALSE(saver.DoubleClick());
  const SaverInput background(false, true);
  EXPECT_FALSE(background.KeyDown());
  EXPECT_FALSE(background.MouseDown());
  EXPECT_TRUE(background.DoubleClick());
}

TEST(SaverInput, EndsOnTheFourthMove) {
  SaverInput input = InputWithPlaceKnown(false, false);
  EXPECT_FALSE(input.MouseMove(1000.0));
  EXPECT_FALSE(input.MouseMove(1003.0));
  EXPECT_FALSE(input.MouseMove(1006.0));
  EXPECT_TRUE(input.MouseMove(1009.9));
}

TEST(SaverInput, BeginsAnewWithTheMoveAfterAPause) {
  SaverInput input = InputWithPlaceKnown(false, false);
  for (int i = 0; i < 3; ++i) EXPECT_FALSE(input.MouseMove(1000.0));
  for (int i = 0; i < 3; ++i) EXPECT_FALSE(input.MouseMove(1011.0));
  EXPECT_TRUE(input.MouseMove(1012.0));
}

TEST(SaverInput, IsNeverEndedByOccasionalMoves) {
  SaverInput input = InputWithPlaceKnown(false, false);
  for (int i = 0; i < 50; ++i) EXPECT_FALSE(input.MouseMove(1000.0 + i * 4)) << i;
}

TEST(SaverInput, MeasuresTheTenSecondsFromTheRoundedFirstMove) {
  // 1000.5 is stored as 1000 (halves go to even), 1000.6 as 1001.
  SaverInput early = InputWithPlaceKnown(false, false);
  EXPECT_FALSE(early.MouseMove(1000.5));
  EXPECT_FALSE(early.MouseMove(1010.1));  // lapses
  for (int i = 0; i < 2; ++i) EXPECT_FALSE(early.MouseMove(1010.2));
  EXPECT_TRUE(early.MouseMove(1010.2));

  SaverInput late = InputWithPlaceKnown(false, false);
  EXPECT_FALSE(late.MouseMove(1000.6));
  EXPECT_FALSE(late.MouseMove(1011.0));  // exactly ten seconds: still counts
  EXPECT_FALSE(late.MouseMove(1011.0));
  EXPECT_TRUE(late.MouseMove(1011.0));
}

TEST(SaverInput, KeepsTheCountOverMidnight) {
  SaverInput input = InputWithPlaceKnown(false, false);
  EXPECT_FALSE(input.MouseMove(86399.0));
  EXPECT_FALSE(input.MouseMove(86399.5));
  EXPECT_FALSE(input.MouseMove(100.0));
  EXPECT_TRUE(input.MouseMove(40000.0));
}

TEST(SaverInput, IgnoresThePointerAfterARefusedEndUntilTheTimeIsOver) {
  SaverInput input = InputWithPlaceKnown(false, false);
  for (int i = 0; i < 3; ++i) EXPECT_FALSE(input.MouseMove(1000.0));
  EXPECT_TRUE(input.MouseMove(1001.0));
  for (int i = 0; i < 20; ++i) EXPECT_FALSE(input.MouseMove(1005.0));
  for (int i = 0; i < 3; ++i) EXPECT_FALSE(input.MouseMove(1010.1));
  EXPECT_TRUE(input.MouseMove(1010.2));
}

TEST(SaverInput, DoesNotCountTheFirstPlace) {
  SaverInput input(false, false);
  for (int i = 0; i < 4; ++i) EXPECT_FALSE(input.MouseMove(1000.0));
  EXPECT_TRUE(input.MouseMove(1000.0));
}

TEST(SaverInput, NeverEndsOnMovesWhereTheyAreOffOrItIsABackground) {
  SaverInput off = InputWithPlaceKnown(true, false);
  SaverInput background = InputWithPlaceKnown(false, true);
  for (int i = 0; i < 50; ++i) {
    EXPECT_FALSE(off.MouseMove(1000.0));
    EXPECT_FALSE(background.MouseMove(1000.0));
  }
}

}  // namespace
}  // namespace starfolds
