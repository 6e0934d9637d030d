#include "numbers/elementary.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

namespace starfolds {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

/// A sum of two numbers, the second of which is below half a unit in the last place of the first:
/// a number with about 106 bits.
struct Wide {
  double High = 0;
  double Low = 0;
};

/// a + b without an error.
Wide Sum(double a, double b) {
  const double high = a + b;
  const double ofB = high - a;
  return {high, (a - (high - ofB)) + (b - ofB)};
}

/// a * b without an error, for factors below 1e299.
Wide Product(double a, double b) {
  constexpr double splitter = 134217729;  // 2^27 + 1: leaves halves of 26 bits
  const double wideA = a * splitter;
  const double wideB = b * splitter;
  const double highA = wideA - (wideA - a);
  const double highB = wideB - (wideB - b);
  const double lowA = a - highA;
  const double lowB = b - highB;
  const double high = a * b;
  return {high, ((highA * highB - high) + highA * lowB + lowA * highB) + lowA * lowB};
}

/// The nearest whole number, for values below 2^51.
double Nearest(double value) {
  constexpr double unit = 6755399441055744;  // 1.5 * 2^52: its last place is 1
  return (value + unit) - unit;
}

/// An angle of up to an eighth of a turn to both sides, and the quarter turns (0 to 3) before it.
struct Reduced {
  Wide Rest;
  int Quarter = 0;
};

/// Pi / 2 and ln 2 in parts: a part of 33 bits times a whole number below 2^20 has no error.
constexpr double kQuarterTurn[] = {0x1.921fb544p+0, 0x1.0b4611a6p-34, 0x1.3198a2e037073p-69};
constexpr double kLn2[] = {0x1.62e42fefp-1, 0x1.473de6afp-34, 0x1.3c7673007e5edp-69};

constexpr double kTurn = 6.283185307179586;
constexpr double kMostAngle = 1.6e6;

Reduced Reduce(double angle) {
  constexpr double quartersPerRadian = 0x1.45f306dc9c883p-1;
  if (!(std::abs(angle) <= kMostAngle)) angle = std::remainder(angle, kTurn);
  const double quarters = Nearest(angle * quartersPerRadian);
  const Wide first = Sum(angle - quarters * kQuarterTurn[0], -quarters * kQuarterTurn[1]);
  const Wide rest = Sum(first.High, first.Low - quarters * kQuarterTurn[2]);
  return {rest, static_cast<int>(static_cast<std::int64_t>(quarters) & 3)};
}

/// The sine within an eighth of a turn: the Taylor series, which is exact enough there.
double SineNearZero(Wide angle) {
  const double x = angle.High;
  const double z = x * x;
  const double z2 = z * z;
  const double first = -1.0 / 6 + z * (1.0 / 120) + z2 * (-1.0 / 5040 + z * (1.0 / 362880));
  const double later = -1.0 / 39916800 + z * (1.0 / 6227020800) +
                       z2 * (-1.0 / 1307674368000 + z * (1.0 / 355687428096000));
  return x + (angle.Low * (1 - 0.5 * z) + x * z * (first + z2 * z2 * later));
}

double CosineNearZero(Wide angle) {
  const double x = angle.High;
  const double z = x * x;
  const double z2 = z * z;
  const double first = 1.0 / 24 + z * (-1.0 / 720) + z2 * (1.0 / 40320 + z * (-1.0 / 3628800));
  const double later = 1.0 / 479001600 + z * (-1.0 / 87178291200) + z2 * (1.0 / 20922789888000);
  const double half = 0.5 * z;
  const double near = 1 - half;
  return near + (((1 - near) - half) + (z2 * (first + z2 * z2 * later) - x * angle.Low));
}

/// The sine of a reduced angle some quarter turns later.
double SineAt(const Reduced& angle, int quarters) {
  const int quarter = (angle.Quarter + quarters) & 3;
  const double value = (quarter & 1) == 0 ? SineNearZero(angle.Rest) : CosineNearZero(angle.Rest);
  return (quarter & 2) == 0 ? value : -value;
}

/// A positive number as fraction * 2^exponent, the fraction between the roots of 1/2 and of 2.
struct Scaled {
  double Fraction = 1;
  int Exponent = 0;
};

// The C++ library of Emscripten 3.1.6 lacks `std::bit_cast`.

std::uint64_t BitsOf(double number) {
  std::uint64_t bits = 0;
  std::memcpy(&bits, &number, sizeof bits);
  return bits;
}

double FromBits(std::uint64_t bits) {
  double number = 0;
  std::memcpy(&number, &bits, sizeof number);
  return number;
}

/// 2 to the power of a whole number between -1022 and 1023.
double PowerOfTwo(int exponent) {
  return FromBits(static_cast<std::uint64_t>(exponent + 1023) << 52U);
}

Scaled Scale(double value) {
  constexpr double rootOf2 = 1.4142135623730951;
  constexpr int lift = 54;  // makes subnormal numbers normal
  const bool isSmall = value < std::numeric_limits<double>::min();
  const auto bits = BitsOf(isSmall ? value * PowerOfTwo(lift) : value);
  int exponent = static_cast<int>(bits >> 52U) - 1023;
  double fraction = FromBits((bits & 0xFFFFFFFFFFFFFU) | 0x3FF0000000000000U);
  if (fraction > rootOf2) {
    fraction /= 2;
    ++exponent;
  }
  return {fraction, isSmall ? exponent - lift : exponent};
}

/// The natural logarithm of a positive number, with about 66 bits: 2 artanh((m - 1) / (m + 1)).
Wide Logarithm(double value) {
  const auto [fraction, exponent] = Scale(value);
  const double above = fraction - 1;
  const Wide below = Sum(fraction, 1);
  const double s = above / below.High;
  const Wide back = Product(s, below.High);
  const double sLow = (((above - back.High) - back.Low) - s * below.Low) / below.High;

  // artanh s = s + s * t, t = z / 3 + z^2 / 5 + ... for z = s^2, at most 0.03.
  const Wide square = Product(s, s);
  const double z = square.High;
  const double zLow = square.Low + 2 * s * sLow;
  const double z2 = z * z;
  const double z4 = z2 * z2;
  const double later = (1.0 / 5 + z * (1.0 / 7)) + z2 * (1.0 / 9 + z * (1.0 / 11)) +
                       z4 * ((1.0 / 13 + z * (1.0 / 15)) + z2 * (1.0 / 17 + z * (1.0 / 19)) +
                             z4 * (1.0 / 21 + z * (1.0 / 23) + z2 * (1.0 / 25)));
  constexpr double third = 1.0 / 3;
  constexpr double thirdLow = 0x1.5555555555555p-56;
  const Wide start = Product(z, third);
  const Wide t = Sum(start.High, start.Low + z * thirdLow + zLow * third + z2 * later);
  const Wide st = Product(s, t.High);
  const Wide most = Sum(s, st.High);
  const double rest = most.Low + st.Low + sLow + s * t.Low + sLow * t.High;

  const Wide powers = Sum(exponent * kLn2[0], 2 * most.High);
  return Sum(powers.High, powers.Low + (exponent * kLn2[1] + (2 * rest + exponent * kLn2[2])));
}

/// e to the power of a number between -800 and 800.
double Exponential(Wide power) {
  constexpr double log2e = 0x1.71547652b82fep+0;
  const double twos = Nearest(power.High * log2e);
  const Wide first = Sum(power.High - twos * kLn2[0], -twos * kLn2[1]);
  const Wide rest = Sum(first.High, first.Low + (power.Low - twos * kLn2[2]));
  const double x = rest.High;
  const double x2 = x * x;
  const double x4 = x2 * x2;
  const double later =
      (1.0 / 2 + x * (1.0 / 6)) + x2 * (1.0 / 24 + x * (1.0 / 120)) +
      x4 * ((1.0 / 720 + x * (1.0 / 5040)) + x2 * (1.0 / 40320 + x * (1.0 / 362880)) +
            x4 * (1.0 / 3628800 + x * (1.0 / 39916800) + x2 * (1.0 / 479001600) +
                  x2 * x * (1.0 / 6227020800)));
  const Wide sum = Sum(1, x);
  const double value = sum.High + (sum.Low + (x2 * later + rest.Low * (1 + x)));
  // In two steps, because the result may lie outside of the range of one power of two.
  const int half = static_cast<int>(twos) / 2;
  return value * PowerOfTwo(half) * PowerOfTwo(static_cast<int>(twos) - half);
}

bool IsWhole(double value) { return std::floor(value) == value; }
bool IsOdd(double value) { return IsWhole(value) && !IsWhole(value / 2); }

double PowerOfPositive(double base, double exponent) {
  const Wide logarithm = Logarithm(base);
  const double rough = logarithm.High * exponent;
  if (rough > 800) return kInfinity;
  if (rough < -800) return 0;
  const Wide power = Product(logarithm.High, exponent);
  return Exponential(Sum(power.High, power.Low + logarithm.Low * exponent));
}

}  // namespace

double Sine(double angle) {
  if (!std::isfinite(angle)) return kNone;
  return SineAt(Reduce(angle), 0);
}

double Cosine(double angle) {
  if (!std::isfinite(angle)) return kNone;
  return SineAt(Reduce(angle), 1);
}

double Power(double base, double exponent) {
  const bool isSpecial =
      base == 0 || base == 1 || exponent == 0 || !std::isfinite(base) || !std::isfinite(exponent);
  if (isSpecial) return std::pow(base, exponent);  // exact values, the same in every library
  if (exponent == 1) return base;                  // most settings
  if (base > 0) return PowerOfPositive(base, exponent);
  if (!IsWhole(exponent)) return kNone;
  const double size = PowerOfPositive(-base, exponent);
  return IsOdd(exponent) ? -size : size;
}

}  // namespace starfolds
