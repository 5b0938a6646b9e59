// SPDX-License-Identifier: MIT
#include "geometry/positions.hpp"

namespace lumi {
namespace {

constexpr int kMantissaBits = 52;
constexpr int kBias = 1023 + kMantissaBits;
constexpr uint64_t kImplied = uint64_t{1} << kMantissaBits;

uint64_t bitsOf(double x) {
  uint64_t bits = 0;
  std::memcpy(&bits, &x, sizeof bits);
  return bits;
}
double doubleOf(uint64_t bits) {
  double x = 0;
  std::memcpy(&x, &bits, sizeof x);
  return x;
}

// Whether the sum x + addend, rounded to nearest, is at least the integer n from 1 on: that is, exceeds it or
// comes within half of the distance between n and the double before it. Ties are n's, which is even. Near to
// n the differences are exact; elsewhere they cannot pass the addend.
bool sumReaches(double x, double addend, double n) {
  const double halfStep = (n - doubleOf(bitsOf(n) - 1)) * 0.5;
  return (n - x) - halfStep <= addend;
}

// To an integer, ties to even.
double roundedToEven(double x) {
  const double below = std::floor(x), part = x - below;
  const bool isOdd = std::floor(below * 0.5) * 2 != below;
  return part > 0.5 || (part == 0.5 && isOdd) ? below + 1 : below;
}

}  // namespace

// Rounded in any direction, the quotient is one of its two neighbours: from there the remainder tells the
// nearer one. It is below 2^32, so that modulo 2^64 is enough. No quotient of 31-bit sizes is halfway between
// its neighbours, or so close to a power of two that their distance would change.
ExactPositions::ExactPositions(int32_t src, int32_t dst) {
  const uint64_t bits = bitsOf(static_cast<double>(src) / static_cast<double>(dst));
  shift_ = kBias - static_cast<int>(bits >> kMantissaBits);
  mantissa_ = (bits & (kImplied - 1)) | kImplied;
  const uint64_t scaled = shift_ < 64 ? static_cast<uint64_t>(src) << shift_ : 0;
  const auto twice = 2 * static_cast<int64_t>(scaled - mantissa_ * static_cast<uint64_t>(dst));
  mantissa_ += static_cast<uint64_t>(twice > dst) - static_cast<uint64_t>(twice < -int64_t{dst});
}

// n * mantissa / 2^shift. The product has up to 85 bits; of these the first 53 stay, ties go to even.
double ExactPositions::product(uint32_t n, int shift) const {
  if (n == 0) return 0;
  const uint64_t low = n * (mantissa_ & UINT32_MAX);
  const uint64_t top = n * (mantissa_ >> 32) + (low >> 32);
  const uint64_t rest = low & UINT32_MAX;
  const int dropped = 64 - __builtin_clzll(top) + 32 - (kMantissaBits + 1);  // 0 to 32
  const uint64_t unit = uint64_t{1} << dropped;
  uint64_t kept = (top << (32 - dropped)) | (rest >> dropped);
  kept += ((rest & (unit - 1)) + ((unit - 1 + (kept & 1)) >> 1)) >> dropped;
  // A carry out of the mantissa goes into the exponent.
  return doubleOf((static_cast<uint64_t>(kBias + dropped - shift - 1) << kMantissaBits) + kept);
}

int32_t ExactPositions::nearest(int32_t i) const {
  const double at = centre(i), index = std::floor(at);
  const bool isBelow = index >= 1 && !sumReaches(at, -kBelowTie, index);
  return static_cast<int32_t>(index) - (isBelow ? 1 : 0);
}

// From 0 on the subtractions are exact, but a difference of zero has the sign of the rounding mode. Before,
// both round to what doubles hold between 1/4 and 1/2, and between 1/2 and 1.
Between ExactPositions::between(int32_t i) const {
  const double at = centre(i);
  if (at >= 0.5) {
    const double position = at - 0.5, index = std::floor(position);
    return {index, std::fabs(position - index)};
  }
  constexpr double kQuarter = 0x1p54, kHalf = 0x1p53;  // doubles in 1
  const double position = (at < 0.25 ? roundedToEven(at * kQuarter) / kQuarter : at) - 0.5;
  return {-1, 1 + roundedToEven(position * kHalf) / kHalf};
}

// The fraction is 0 or a normal float.
float ExactPositions::asFloat(double fraction) {
  constexpr int kDropped = kMantissaBits - 23;
  const uint64_t bits = bitsOf(fraction), half = uint64_t{1} << (kDropped - 1);
  const uint64_t sum = bits + half - 1 + (bits >> kDropped & 1);
  return static_cast<float>(doubleOf(sum >> kDropped << kDropped));
}

uint16_t ExactPositions::asQ14(double fraction) {
  const double scaled = fraction * kQ14, below = std::floor(scaled);
  return static_cast<uint16_t>(below + (sumReaches(scaled, kQ14Slack, below + 1) ? 1 : 0));
}

}  // namespace lumi
