// SPDX-License-Identifier: MIT
// Division of floats: zeros of both signs, special numbers, and how far quotients are from true ones.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

#include "lumi/div.h"
#include "support/random.hpp"

namespace test {
namespace {

using Limits = std::numeric_limits<float>;

uint32_t bitsOf(float x) {
  uint32_t bits;
  std::memcpy(&bits, &x, sizeof bits);
  return bits;
}

struct Quotient {
  uint32_t bits;
  LumStatus status;
  bool operator==(const Quotient& o) const { return bits == o.bits && status == o.status; }
};

// At every place of a row, between ones.
void expectQuotient(float d, float n, Quotient expected) {
  constexpr int kWidth = 21;
  for (size_t at = 0; at < kWidth; ++at) {
    std::vector<float> divisors(kWidth, 1), dividends(kWidth, 1), dst(kWidth, 77);
    divisors[at] = d, dividends[at] = n;
    EXPECT_EQ(lumiDiv_32f_C1R(divisors.data(), 84, dividends.data(), 84, dst.data(), 84, {kWidth, 1}),
              expected.status);
    EXPECT_EQ(bitsOf(dst[at]), expected.bits) << n << " / " << d << " at " << at;
    dst[at] = 1;
    EXPECT_EQ(dst, std::vector<float>(kWidth, 1));
  }
}

TEST(DivFloats, Zeros) {
  const LumStatus zero = lumStatusDivideByZeroWarning;
  const float infinity = Limits::infinity();
  expectQuotient(0.0F, 1, {bitsOf(infinity), zero});
  expectQuotient(0.0F, -1, {bitsOf(-infinity), zero});
  expectQuotient(0.0F, -infinity, {bitsOf(-infinity), zero});
  expectQuotient(0.0F, Limits::denorm_min(), {bitsOf(infinity), zero});
  expectQuotient(0.0F, 0.0F, {0x7FBFFFFF, zero});
  expectQuotient(0.0F, -0.0F, {0x7FBFFFFF, zero});
  expectQuotient(0.0F, Limits::quiet_NaN(), {0x7FBFFFFF, zero});
  expectQuotient(-0.0F, 1, {0x80000000, lumStatusOk});
  expectQuotient(-0.0F, Limits::quiet_NaN(), {0x80000000, lumStatusOk});
  expectQuotient(-0.0F, 0, {0x80000000, lumStatusOk});
}

// Three steps leave an error far below that of the sums.
TEST(DivFloats, QuotientsAreNearTrueOnes) {
  constexpr int kCount = 100000;
  std::vector<float> d(kCount), n(kCount), dst(kCount);
  Random random(3);
  for (size_t i = 0; i < kCount; ++i) {
    const auto any = [&] {
      const float x = 1 + std::ldexp(static_cast<float>(random.between(0, 0x7FFFFF)), -23);
      return std::ldexp(random.oneIn(2) ? x : -x, random.between(-60, 60));
    };
    d[i] = any(), n[i] = any();
  }
  ASSERT_EQ(lumiDiv_32f_C1R(d.data(), 4, n.data(), 4, dst.data(), 4, {kCount, 1}), lumStatusOk);
  for (size_t i = 0; i < kCount; ++i) {
    const double exact = double{n[i]} / double{d[i]};
    ASSERT_LE(std::abs(dst[i] - exact), std::abs(exact) * 0x1p-22) << n[i] << " / " << d[i];
  }
}

TEST(DivFloats, ComplexQuotients) {
  const auto quotient = [](Lum32fc d, Lum32fc n, LumStatus expected = lumStatusOk) {
    Lum32fc q{77, 77};
    EXPECT_EQ(lumiDiv_32fc_C1R(&d, 8, &n, 8, &q, 8, {1, 1}), expected);
    return q;
  };
  const Lum32fc simple = quotient({1, 2}, {-5, 10});
  EXPECT_EQ(simple.re, 3);
  EXPECT_EQ(simple.im, 4);
  const Lum32fc large = quotient({3e38F, 3e38F}, {3e38F, -3e38F}), small = quotient({0, 1e-44F}, {1e-44F, 0});
  EXPECT_EQ(large.re, 0);
  EXPECT_EQ(large.im, -1);
  EXPECT_EQ(small.re, 0);
  EXPECT_EQ(small.im, -1);
  for (float zero : {0.0F, -0.0F}) {
    const Lum32fc none = quotient({zero, -zero}, {1, 0}, lumStatusDivideByZeroWarning);
    EXPECT_EQ(bitsOf(none.re), 0x7FC00000U);
    EXPECT_EQ(bitsOf(none.im), 0x7FC00000U);
  }
}

TEST(DivFloats, ConstantsThatAreZero) {
  Lum32f sample = 7;
  EXPECT_EQ(lumiDivC_32f_C1IR(0.0F, &sample, 4, {1, 1}), lumStatusDivisionByZero);
  EXPECT_EQ(lumiDivC_32f_C1IR(-0.0F, &sample, 4, {1, 1}), lumStatusDivisionByZero);
  EXPECT_EQ(lumiDivC_32f_C1IR(0.0F, &sample, 0, {1, 1}), lumStatusBadStep);
  EXPECT_EQ(sample, 7);
  Lum32fc complex{7, 7};
  EXPECT_EQ(lumiDivC_32fc_C1IR({0, 0}, &complex, 8, {1, 1}), lumStatusDivisionByZero);
  EXPECT_EQ(lumiDivC_32fc_C1IR({1e-30F, 1e-30F}, &complex, 8, {1, 1}), lumStatusDivisionByZero);
  EXPECT_EQ(complex.re, 7);
  EXPECT_EQ(lumiDivC_32fc_C1IR({0, 2}, &complex, 8, {1, 1}), lumStatusOk);
  EXPECT_EQ(complex.re, 3.5F);
  EXPECT_EQ(complex.im, -3.5F);
}

}  // namespace
}  // namespace test
