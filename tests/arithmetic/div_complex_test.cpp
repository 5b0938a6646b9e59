// SPDX-License-Identifier: MIT
// Division of complex integers: every choice of four parts about the limits, at all scale factors.
#include "arithmetic/combine_support.hpp"
#include "lumi/div.h"
#include "model/arithmetic/div.hpp"

namespace test {
namespace {

template <typename T>
model::Complex<T> divided(model::Complex<T> d, model::Complex<T> n, int s) {
  return model::divide(d, n, s);
}

TEST(DivComplex, EdgesOfParts) {
  expectEdgesOfParts<Lum16sc, Lum16s>(lumiDiv_16sc_C1RSfs, divided<Lum16s>, lumStatusDivideByZeroWarning,
                                      {-32768, -32767, -3, 0, 1, 2, 181, 32767});
  expectEdgesOfParts<Lum32sc, Lum32s>(lumiDiv_32sc_C1RSfs, divided<Lum32s>, lumStatusDivideByZeroWarning,
                                      {INT32_MIN, -65536, -3, 0, 1, 2, 46341, INT32_MAX});
}

TEST(DivComplex, KnownResults) {
  const auto quotient = [](Lum16sc d, Lum16sc n, int s, LumStatus expected = lumStatusOk) {
    Lum16sc q{77, 77};
    EXPECT_EQ(lumiDiv_16sc_C1RSfs(&d, 4, &n, 4, &q, 4, {1, 1}, s), expected);
    return std::pair<int, int>(q.re, q.im);
  };
  using Parts = std::pair<int, int>;
  EXPECT_EQ(quotient({1, 2}, {-5, 10}, 0), Parts(3, 4));
  EXPECT_EQ(quotient({2, 0}, {5, -7}, 0), Parts(2, -4));
  EXPECT_EQ(quotient({2, 0}, {5, -5}, -33), Parts(32767, -32768));
  EXPECT_EQ(quotient({1, 0}, {32767, -5}, 33), Parts(0, 0));
  EXPECT_EQ(quotient({-32768, -32768}, {-32768, -32768}, 0), Parts(1, 0));
  EXPECT_EQ(quotient({0, 0}, {5, -7}, 0, lumStatusDivideByZeroWarning), Parts(0, 0));
  EXPECT_EQ(quotient({0, 0}, {5, -7}, -40, lumStatusDivideByZeroWarning), Parts(0, 0));
}

TEST(DivComplex, ConstantsThatAreZero) {
  Lum16sc sample{7, 7};
  EXPECT_EQ(lumiDivC_16sc_C1IRSfs({0, 0}, &sample, 4, {1, 1}, 0), lumStatusDivisionByZero);
  EXPECT_EQ(sample.re, 7);
  EXPECT_EQ(lumiDivC_16sc_C1IRSfs({0, 1}, &sample, 4, {1, 1}, 0), lumStatusOk);
  EXPECT_EQ(sample.im, -7);
  // The sum of the squares would be 0 in 32 bits.
  Lum32sc large{8, 4};
  EXPECT_EQ(lumiDivC_32sc_C1IRSfs({65536, 0}, &large, 8, {1, 1}, -16), lumStatusOk);
  EXPECT_EQ(large.re, 8);
  EXPECT_EQ(lumiDivC_32sc_C1IRSfs({INT32_MIN, INT32_MIN}, &large, 8, {1, 1}, 0), lumStatusOk);
  EXPECT_EQ(large.re, 0);
}

}  // namespace
}  // namespace test
