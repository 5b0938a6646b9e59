// SPDX-License-Identifier: MIT
// Phases: against the model, the error of floats and of 32-bit integers, the closest that 16-bit integers
// come to ties, zeros and infinities.
#include "lumi/phase.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>

#include "model/transforms/phase.hpp"
#include "support/random.hpp"
#include "transforms/complex_support.hpp"

namespace test {
namespace {

const bool added = [] {
  addComplexMembers("Phase", [](auto re, auto im, int s) { return model::phase(re, im, s); });
  return true;
}();

TEST(Phase, KnownResults) {
  const auto words = [](int re, int im, int s) {
    return resultOf(lumiPhase_16sc16s_C1RSfs, {static_cast<Lum16s>(re), static_cast<Lum16s>(im)}, s);
  };
  EXPECT_EQ(words(0, 0, -13), 0);
  EXPECT_EQ(words(-7, 0, -13), 25736);
  EXPECT_EQ(words(-32768, -1, -13), -25736);
  EXPECT_EQ(words(-7, 0, -14), 32767);
  EXPECT_EQ(words(-7, -1, -14), -32768);
  EXPECT_EQ(words(0, 5, 0), 2);
  EXPECT_EQ(words(0, -5, 1), -1);
  EXPECT_EQ(words(-1, 0, 2), 1);
  EXPECT_EQ(words(-1, 0, 3), 0);
  EXPECT_EQ(words(-1, 0, INT_MAX), 0);
  EXPECT_EQ(words(32767, 1, INT_MIN), 32767);
  EXPECT_EQ(words(32767, 0, INT_MIN), 0);
  EXPECT_EQ(resultOf(lumiPhase_16uc16u_C1RSfs, {0, 65535}, -15), 51472);
  EXPECT_EQ(resultOf(lumiPhase_16uc16u_C1RSfs, {65535, 65535}, -16), 51472);
  EXPECT_EQ(resultOf(lumiPhase_32sc32s_C1RSfs, {INT_MIN, 0}, -29), 1686629713);
  EXPECT_EQ(resultOf(lumiPhase_32sc32s_C1RSfs, {INT_MIN, -1}, -30), INT_MIN);
  EXPECT_EQ(resultOf(lumiPhase_32sc32s_C1RSfs, {INT_MAX, 1}, -62), INT_MAX);
}

// Parts whose angle is next to a tie at a scale factor: the closest ones that there are, and all multiples.
TEST(Phase, WhereIntegersAreNextToTies) {
  constexpr struct {
    int re, im, s;
  } kClosest[] = {{19517, 17433, -16}, {19026, 1, -30},  {54901, 4241, -16}, {21301, 13341, -14},
                  {57559, 36800, -10}, {43086, 83, -25}, {51119, 8, -28},    {65535, 1, -31},
                  {20853, 1, -29},     {28195, 48, -22}, {28702, 3, -28},    {25541, 22666, -11}};
  for (const auto& c : kClosest)
    for (int n = 1; n * c.re <= 65535; ++n) {
      const auto re = static_cast<Lum16u>(n * c.re), im = static_cast<Lum16u>(n * c.im);
      EXPECT_EQ(resultOf(lumiPhase_16uc16u_C1RSfs, {re, im}, c.s), model::phase(re, im, c.s))
          << re << " " << im;
      if (re > 32767 || im > 32767) continue;
      const auto x = static_cast<Lum16s>(re), y = static_cast<Lum16s>(-im);
      EXPECT_EQ(resultOf(lumiPhase_16sc16s_C1RSfs, {x, y}, c.s), model::phase(x, y, c.s)) << re << " " << im;
    }
}

std::vector<float> phasesOf(const std::vector<Lum32fc>& samples) {
  std::vector<float> results(samples.size());
  const LumiSize roi{static_cast<int>(samples.size()), 1};
  EXPECT_EQ(lumiPhase_32fc32f_C1R(samples.data(), 8 * roi.width, results.data(), 4 * roi.width, roi),
            lumStatusOk);
  return results;
}

double errorOf(float result, long double exact) {
  int exponent = 0;
  std::frexp(exact, &exponent);
  return static_cast<double>(std::fabs(result - exact) / std::ldexp(1.0L, std::max(exponent, -125) - 24));
}

// Quotients of every kind in all eight octants.
TEST(Phase, FloatsAreExactToTwoUnits) {
  std::vector<Lum32fc> samples;
  Random random(settings().seed);
  const auto add = [&](float x, float y) {
    const float u = random.oneIn(2) ? x : -x, v = random.oneIn(2) ? y : -y;
    samples.push_back(random.oneIn(2) ? Lum32fc{u, v} : Lum32fc{v, u});
  };
  for (int i = 0; i <= 100000; ++i) add(1, static_cast<float>(i) / 100000);
  for (int i = 0; i < 100000; ++i) {
    const auto fraction = [&] { return 1 + static_cast<float>(random.below(1 << 23)) / (1 << 23); };
    add(std::ldexp(fraction(), random.between(-60, 60)), std::ldexp(fraction(), random.between(-60, 60)));
    add(fraction(), std::ldexp(fraction(), random.between(-3, 0)));
  }
  const std::vector<float> results = phasesOf(samples);
  for (size_t i = 0; i < samples.size(); ++i)
    ASSERT_LT(errorOf(results[i], std::atan2(static_cast<long double>(samples[i].im), samples[i].re)), 2)
        << std::hexfloat << samples[i].re << " " << samples[i].im;
}

TEST(Phase, ZerosAndInfinitiesAreAsInC) {
  constexpr float infinity = std::numeric_limits<float>::infinity(),
                  largest = std::numeric_limits<float>::max(), least = 1e-45F;
  for (float x : {0.0F, least, 1.0F, largest, infinity})
    for (float y : {0.0F, least, 1.0F, largest, infinity})
      for (int signs = 0; signs < 4; ++signs) {
        const float re = signs & 1 ? -x : x, im = signs & 2 ? -y : y, result = phasesOf({{re, im}})[0];
        const float right = std::atan2(im, re);
        EXPECT_EQ(std::signbit(result), std::signbit(right)) << re << " " << im;
        if (x == 0 || y == 0 || std::isinf(x) != std::isinf(y))
          EXPECT_EQ(result, right) << re << " " << im;
        else
          EXPECT_LT(errorOf(result, std::atan2(static_cast<long double>(im), re)), 2) << re << " " << im;
      }
  const float nan = std::numeric_limits<float>::quiet_NaN();
  for (float x : {0.0F, -1.0F, infinity, nan}) {
    EXPECT_TRUE(std::isnan(phasesOf({{nan, x}})[0]));
    EXPECT_TRUE(std::isnan(phasesOf({{x, nan}})[0]));
  }
}

// The model's steps, and so the results', are the arc tangent but for 2^-51.
TEST(Phase, DoublesAreNearTheArcTangent) {
  Random random(settings().seed);
  for (int i = 0; i < 200000; ++i) {
    const auto part = [&] { return static_cast<int>(random.next()) >> random.below(31); };
    const int x = part(), y = part();
    const long double exact = std::atan2(static_cast<long double>(y), static_cast<long double>(x));
    ASSERT_LT(std::fabs(model::angle(static_cast<double>(y), static_cast<double>(x)) - exact),
              std::ldexp(1.0L, -51))
        << x << " " << y;
  }
}

}  // namespace
}  // namespace test
