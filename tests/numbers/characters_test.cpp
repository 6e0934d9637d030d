#include "numbers/characters.h"

#include <gtest/gtest.h>

#include <string>

namespace starfolds {
namespace {

/// Each is one character for a person: letters, marks, vowel signs, Hangul, emoji and flags.
TEST(Characters, AreCutAsPeopleCountThem) {
  for (const std::string one :
       {"x", "\u00E4", "a\u0308\u0323", "\u661F", "\u0915\u093F", "\u0E19\u0E49", "\U0001F30C",
        "\U0001F44D\U0001F3FE", "\u2764\uFE0F", "\U0001F468\u200D\U0001F469\u200D\U0001F467",
        "\U0001F1F3\U0001F1EE", "\u1112\u1161\u11AB"}) {
    const std::string line = one + one + "y" + one;
    EXPECT_EQ(FirstCharacters(line, 0), "") << one;
    EXPECT_EQ(FirstCharacters(line, 1), one) << one;
    EXPECT_EQ(FirstCharacters(line, 2), one + one) << one;
    EXPECT_EQ(FirstCharacters(line, 3), one + one + "y") << one;
    EXPECT_EQ(FirstCharacters(line, 4), line) << one;
    EXPECT_EQ(FirstCharacters(line, 9), line) << one;
    EXPECT_EQ(FirstCharacters(line, 9, 2 * one.size() + 1), one + one + "y") << one;
    EXPECT_EQ(FirstCharacters(line, 9, 2 * one.size() - 1), one) << one;
  }
}

TEST(Characters, AreFoundInAnyBytes) {
  EXPECT_EQ(FirstCharacters("", 5), "");
  EXPECT_EQ(FirstCharacters("\x80\x80\x80", 5, 2), "") << "never more than asked for";
  EXPECT_EQ(FirstCharacters("a\xFF\xFF", 2), "a\xFF");
  EXPECT_EQ(FirstCharacters("\u0301", 1), "\u0301") << "a mark without a letter";
}

}  // namespace
}  // namespace starfolds
