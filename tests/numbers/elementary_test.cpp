#include "numbers/elementary.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

namespace starfolds {
namespace {

/// Ten thousand angles of 1e-3 to 1e6 radians to both sides, and powers of 1e-7 to 100.
template <class Use>
void ForSamples(const Use& use) {
  double angle = 0.001;
  double base = 1e-7;
  for (int i = 0; i < 10'000; ++i) {
    use(i % 2 == 0 ? angle : -angle, base, i % 97 * 0.125 - 3);
    angle *= 1.002074;
    base *= 1.002074;
  }
}

double Ulps(double value, double expected) {
  const double ulp = std::abs(std::nextafter(expected, HUGE_VAL) - expected);
  return std::abs(value - expected) / ulp;
}

TEST(Elementary, IsNearTheCLibrary) {
  ForSamples([](double angle, double base, double exponent) {
    // The processor's sine, which some libraries take, is off by this much at large angles.
    EXPECT_NEAR(Sine(angle), std::sin(angle), 2e-15) << angle;
    EXPECT_NEAR(Cosine(angle), std::cos(angle), 2e-15) << angle;
    EXPECT_LE(Ulps(Power(base, exponent), std::pow(base, exponent)), 6) << base << '^' << exponent;
  });
}

/// Every bit: a pixel may depend on the last one, and all systems must show the same pixels.
TEST(Elementary, HasTheSameBitsOnEverySystem) {
  std::uint64_t hash = 0xCBF29CE484222325U;
  ForSamples([&](double angle, double base, double exponent) {
    for (const double value :
         {Sine(angle), Cosine(angle), Power(base, exponent), Sine(angle * 1e9)}) {
      hash = (hash ^ std::bit_cast<std::uint64_t>(value)) * 0x100000001B3U;
    }
  });
  EXPECT_EQ(hash, 16333618023052976820U);
}

TEST(Elementary, PowerHasTheSpecialValuesOfTheCLibrary) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  for (const double base :
       {0.0, -0.0, 1.0, -1.0, -2.0, 0.5, 3.0, 5e-324, 1e300, infinity, -infinity}) {
    for (const double exponent : {0.0, 1.0, -1.0, 2.0, 3.0, 0.5, 1e5, -1e5, 1e300, infinity}) {
      const double expected = std::pow(base, exponent);
      if (std::isnan(expected)) {
        EXPECT_TRUE(std::isnan(Power(base, exponent))) << base << '^' << exponent;
      } else {
        EXPECT_DOUBLE_EQ(Power(base, exponent), expected) << base << '^' << exponent;
      }
    }
  }
  EXPECT_TRUE(std::isnan(Sine(infinity)));
  EXPECT_TRUE(std::isnan(Cosine(std::nan(""))));
}

}  // namespace
}  // namespace starfolds
