// SPDX-License-Identifier: MIT
// Magnitudes: against the model, ties, limits, floats that overflow.
#include "lumi/magnitude.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>

#include "model/transforms/magnitude.hpp"
#include "transforms/complex_support.hpp"

namespace test {
namespace {

const bool added = [] {
  addComplexMembers("Magnitude", [](auto re, auto im, int s) { return model::magnitude(re, im, s); });
  return true;
}();

TEST(Magnitude, KnownResults) {
  const auto words = [](int re, int im, int s) {
    return resultOf(lumiMagnitude_16sc16s_C1RSfs, {static_cast<Lum16s>(re), static_cast<Lum16s>(im)}, s);
  };
  EXPECT_EQ(words(3, -4, 0), 5);
  EXPECT_EQ(words(3, 4, 1), 2);    // 2.5
  EXPECT_EQ(words(0, -3, 1), 2);   // 1.5
  EXPECT_EQ(words(0, 1, 1), 0);    // 0.5
  EXPECT_EQ(words(1, 1, 1), 1);    // 0.707
  EXPECT_EQ(words(1, 1, -4), 23);  // 22.6
  EXPECT_EQ(words(-32768, -32768, 0), 32767);
  EXPECT_EQ(words(-32768, -32768, 1), 23170);
  EXPECT_EQ(words(-32768, 0, 15), 1);
  EXPECT_EQ(words(-32768, 0, 16), 0);  // 0.5
  EXPECT_EQ(words(-32768, -32768, 17), 0);
  EXPECT_EQ(words(0, 0, INT_MIN), 0);
  EXPECT_EQ(words(0, 1, INT_MIN), 32767);
  EXPECT_EQ(words(32767, 32767, INT_MAX), 0);
  EXPECT_EQ(resultOf(lumiMagnitude_16uc16u_C1RSfs, {65535, 65535}, 0), 65535);
  EXPECT_EQ(resultOf(lumiMagnitude_16uc16u_C1RSfs, {65535, 65535}, 1), 46340);
  EXPECT_EQ(resultOf(lumiMagnitude_32sc32s_C1RSfs, {INT_MIN, INT_MIN}, 0), INT_MAX);
  EXPECT_EQ(resultOf(lumiMagnitude_32sc32s_C1RSfs, {INT_MIN, INT_MIN}, 1), 1518500250);
  EXPECT_EQ(resultOf(lumiMagnitude_32sc32s_C1RSfs, {30000000, -40000000}, 0), 50000000);
}

// Sums of squares next to those of ties: a root of k + 1/2 is that of k^2 + k + 1/4.
TEST(Magnitude, NextToEveryTie) {
  std::vector<Lum16sc> samples;
  std::vector<int> right;
  for (int re = 0; re < 256; ++re)
    for (int im = 0; im < 256; ++im) {
      const int n = re * re + im * im, k = static_cast<int>(std::sqrt(static_cast<double>(n)));
      if (n != k * k + k && n != k * k + k + 1) continue;
      samples.push_back({static_cast<Lum16s>(re), static_cast<Lum16s>(-im)});
      right.push_back(n == k * k + k ? k : k + 1);
    }
  ASSERT_GT(samples.size(), 250U);
  std::vector<Lum16s> results(samples.size());
  const LumiSize roi{static_cast<int>(samples.size()), 1};
  ASSERT_EQ(
      lumiMagnitude_16sc16s_C1RSfs(samples.data(), 4 * roi.width, results.data(), 2 * roi.width, roi, 0),
      lumStatusOk);
  for (size_t i = 0; i < samples.size(); ++i)
    ASSERT_EQ(results[i], right[i]) << samples[i].re << samples[i].im;
}

TEST(Magnitude, FloatsGoAsTheyFall) {
  constexpr float infinity = std::numeric_limits<float>::infinity();
  const auto of = [](float re, float im) {
    const Lum32fc sample{re, im};
    float result = 77;
    EXPECT_EQ(lumiMagnitude_32fc32f_C1R(&sample, 8, &result, 4, {1, 1}), lumStatusOk);
    return result;
  };
  EXPECT_EQ(of(3, 4), 5);
  EXPECT_EQ(of(1e30F, 0), infinity);
  EXPECT_EQ(of(1e-30F, 0), 0);
  EXPECT_EQ(of(-infinity, 1), infinity);
  EXPECT_EQ(std::signbit(of(-0.0F, -0.0F)), false);
  EXPECT_TRUE(std::isnan(of(std::nanf(""), 1)));
}

}  // namespace
}  // namespace test
