// SPDX-License-Identifier: MIT
// The scale-factor rule against division by a power of two written out, over whole ranges.
#include "frame/scale_factor.hpp"

#include <gtest/gtest.h>

#include "lumi/types.h"

namespace test {
namespace {

using lumi::scaleAndSaturate;

// x / 2^s by floor division and comparison of the remainder: no shift, no carry trick.
int64_t nearestEven(int64_t x, int s) {
  if (s > 40) return 0;  // |x| below 2^33 is less than half of 2^s
  const int64_t divisor = int64_t{1} << s;
  int64_t quotient = x / divisor, remainder = x % divisor;
  if (remainder < 0) {
    remainder += divisor;
    --quotient;
  }
  if (2 * remainder > divisor || (2 * remainder == divisor && quotient % 2 != 0)) ++quotient;
  return quotient;
}

template <typename T>
T modelScale(int64_t x, int s) {
  const int64_t low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
  if (s > 0) x = nearestEven(x, s);
  for (int i = 0; i < -s && x >= low && x <= high && x != 0; ++i) x *= 2;
  return static_cast<T>(x < low ? low : x > high ? high : x);
}

template <typename T>
void compareOver(int64_t from, int64_t to, int64_t stride) {
  for (int s = -70; s <= 70; ++s)
    for (int64_t x = from; x <= to; x += stride)
      ASSERT_EQ(scaleAndSaturate<T>(x, s), modelScale<T>(x, s)) << "x " << x << ", s " << s;
}

// Sums, differences and products of 8-bit samples.
TEST(ScaleFactor, EveryResultOf8Bits) { compareOver<Lum8u>(-65025, 65025, 1); }

// Sums and differences of 16-bit samples, signed and unsigned.
TEST(ScaleFactor, EverySumOf16Bits) {
  compareOver<Lum16s>(-65536, 65535, 1);
  compareOver<Lum16u>(-65535, 131070, 1);
}

TEST(ScaleFactor, ProductsOf16BitsAndSumsOf32) {
  compareOver<Lum16s>(-(int64_t{1} << 30), int64_t{1} << 30, 100003);
  compareOver<Lum16u>(0, 65535LL * 65535, 400009);
  compareOver<Lum32s>(-(int64_t{1} << 32), int64_t{1} << 32, 800011);
}

TEST(ScaleFactor, TiesGoToTheEvenNeighbour) {
  EXPECT_EQ(scaleAndSaturate<Lum8u>(1 + 2, 1), 2);
  EXPECT_EQ(scaleAndSaturate<Lum8u>(2 + 3, 1), 2);
  EXPECT_EQ(scaleAndSaturate<Lum8u>(3 + 4, 1), 4);
  EXPECT_EQ(scaleAndSaturate<Lum16s>(-3, 1), -2);
  EXPECT_EQ(scaleAndSaturate<Lum16s>(-5, 1), -2);
}

// Beyond these scale factors every result is zero, or an extreme by the sign of x.
TEST(ScaleFactor, LimitsFollowFromTheRange) {
  EXPECT_EQ(scaleAndSaturate<Lum8u>(510, 9), 1);
  EXPECT_EQ(scaleAndSaturate<Lum8u>(510, 10), 0);
  EXPECT_EQ(scaleAndSaturate<Lum8u>(255, 8), 1);
  EXPECT_EQ(scaleAndSaturate<Lum8u>(255, 9), 0);
  EXPECT_EQ(scaleAndSaturate<Lum8u>(1, -8), 255);
  EXPECT_EQ(scaleAndSaturate<Lum16s>(-65536, 16), -1);
  EXPECT_EQ(scaleAndSaturate<Lum16s>(-65536, 17), 0);
  EXPECT_EQ(scaleAndSaturate<Lum16u>(131070, 17), 1);
  EXPECT_EQ(scaleAndSaturate<Lum16u>(131070, 18), 0);
  EXPECT_EQ(scaleAndSaturate<Lum32s>(INT32_MIN, -40), INT32_MIN);
  EXPECT_EQ(scaleAndSaturate<Lum32s>(0, INT32_MIN), 0);
  EXPECT_EQ(scaleAndSaturate<Lum32s>(INT32_MIN, INT32_MAX), 0);
}

}  // namespace
}  // namespace test
