#include "numbers/text.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "numbers/plain_decimal.h"
#include "numbers/rnd.h"

namespace starfolds {
namespace {

TEST(Text, LenientScanTakesTheNumberAtTheStart) {
  struct Case {
    const char* Text;
    double Value;
  };
  for (const Case& c :
       {Case{"", 0},          Case{"abc", 0},    Case{"12abc", 12}, Case{"  7 ", 7},
        Case{"1 2.5x", 12.5}, Case{"-3", -3},    Case{"+4", 4},     Case{".5", 0.5},
        Case{"5.", 5},        Case{"1e3", 1000}, Case{"1e", 1},     Case{"2e-", 2},
        Case{":12345", 0},    Case{"1,5", 1},    Case{"--1", 0},    Case{".", 0},
        Case{"1e-9999", 0},   Case{"0x10", 0},   Case{"nan", 0},    Case{"inf", 0}}) {
    EXPECT_EQ(LenientNumber(c.Text), c.Value) << c.Text;
  }
}

TEST(Text, NumbersOutOfRangeGoToTheNearerEnd) {
  const std::string zeros(400, '0');
  for (const std::string& large : std::vector<std::string>{
           "1e9999", "7" + zeros, "0.1" + zeros + "e800", "1e" + std::string(30, '9'), "1e+9999"}) {
    EXPECT_EQ(LenientNumber(large), std::numeric_limits<double>::max()) << large;
    EXPECT_EQ(LenientNumber("-" + large), -std::numeric_limits<double>::max()) << large;
  }
  for (const std::string& small : std::vector<std::string>{
           "0." + zeros + "1", "1" + zeros + "e-900", "1e-" + std::string(30, '9')}) {
    EXPECT_EQ(LenientNumber(small), 0) << small;
  }
}

TEST(Text, NumericTestWantsTheWholeText) {
  for (const char* text : {"5", " 5 ", "-1.5", "+.5", "1e5", "7."})
    EXPECT_TRUE(IsNumeric(text)) << text;
  for (const char* text : {"", " ", "a", "5a", "1 2", "1e", ".", "-", "0x1", "nan", "1,5"}) {
    EXPECT_FALSE(IsNumeric(text)) << text;
  }
}

TEST(Text, NumbersAreShortAndPlain) {
  EXPECT_EQ(NumberText(0.99F), "0.99");
  EXPECT_EQ(NumberText(2500.0F), "2500");
  EXPECT_EQ(NumberText(0.0025F), "0.0025");
  EXPECT_EQ(NumberText(-0.5F), "-0.5");
  EXPECT_EQ(NumberText(Long{-30000}), "-30000");
  EXPECT_EQ(NumberText(std::nanf("")), "0");
}

#ifdef __cpp_lib_to_chars

std::string Standard(Single value, std::chars_format format) {
  char text[64];
  return {text, std::to_chars(text, text + sizeof text, value, format).ptr};
}

TEST(Text, LibrariesWithoutFloatingCharconvGiveTheSameTexts) {
  std::vector<Single> numbers{0.0F, -0.0F, 0.1F, 123456789.0F, std::numeric_limits<Single>::max()};
  // Next to a power of two the nearest text is not always the shortest.
  for (int power = -149; power < 128; ++power) {
    const Single number = std::ldexp(1.0F, power);
    numbers.insert(numbers.end(), {number, -number, std::nextafter(number, 0.0F)});
  }
  Rnd random(1);
  for (int i = 0; i < 20000; ++i) {
    const auto high = static_cast<std::uint32_t>(random() * 65536) << 16U;
    const auto number = std::bit_cast<Single>(high | static_cast<std::uint32_t>(random() * 65536));
    if (std::isfinite(number)) numbers.push_back(number);
  }
  for (const Single number : numbers) {
    const std::string fixed = Standard(number, std::chars_format::fixed);
    const std::string exponent = Standard(number, std::chars_format::scientific);
    ASSERT_EQ(plain_decimal::FixedText(number), fixed);
    ASSERT_EQ(plain_decimal::ExponentText(number), exponent);
    double value = 0;
    std::from_chars(exponent.data(), exponent.data() + exponent.size(), value);
    ASSERT_EQ(plain_decimal::Parse(exponent), value) << exponent;
  }
}

#endif

}  // namespace
}  // namespace starfolds
