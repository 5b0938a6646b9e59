// SPDX-License-Identifier: MIT
// Complex samples of magnitudes and phases: against the model, the error of sines and cosines, phases far
// from zero, scale factors and limits.
#include "lumi/polar_to_cart.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>

#include "model/transforms/polar_to_cart.hpp"
#include "support/member.hpp"
#include "support/random.hpp"

namespace test {
namespace {

const bool added = [] {
  std::vector<Member> all;
  for (const ExportRow& row : exportRows()) {
    if (row.operation != std::string("PolarToCart") || row.family != programFamily()) continue;
    all.push_back(memberOf(row));
    Member& m = all.back();
    const int channels = m.channels.dst;
    m.types = {"32f", m.types.back()};
    m.src = m.src2 = operandOf("32f", m.layouts.back());
    m.sharesStep = true;
    m.contents = kAnyContents;
    m.mayStream = false;
    m.floatResults = isFloating(m.types.back());
    const auto describe = [&](auto sample) {
      using T = decltype(sample);
      m.model = [=](const Call& c) {
        model::polarToCart<T>(c.srcImage(), c.src2Image(), c.dstImage(), c.roi, channels, c.numbers[0]);
      };
    };
    withType(m.types.back(), describe, Types<Lum16s, Lum32s, Lum32f>());
  }
  addModelTests(all);
  return true;
}();

std::vector<Lum32fc> unitsOf(const std::vector<float>& phases) {
  const std::vector<float> ones(phases.size(), 1);
  std::vector<Lum32fc> results(phases.size());
  const LumiSize roi{static_cast<int>(phases.size()), 1};
  EXPECT_EQ(lumiPolarToCart_32f32fc_P2C1R(ones.data(), phases.data(), 4 * roi.width, results.data(),
                                          8 * roi.width, roi),
            lumStatusOk);
  return results;
}

double errorOf(float result, long double exact) {
  int exponent = 0;
  std::frexp(exact, &exponent);
  return static_cast<double>(std::fabs(result - exact) / std::ldexp(1.0L, std::max(exponent, -125) - 24));
}

void expectErrors(const std::vector<float>& phases) {
  const std::vector<Lum32fc> results = unitsOf(phases);
  for (size_t i = 0; i < phases.size(); ++i) {
    const long double p = phases[i];
    ASSERT_LT(errorOf(results[i].re, std::cos(p)), 1.6) << std::hexfloat << phases[i];
    ASSERT_LT(errorOf(results[i].im, std::sin(p)), 1.6) << std::hexfloat << phases[i];
  }
}

TEST(PolarToCart, SinesAndCosinesAreExactToAUnitAndAHalf) {
  std::vector<float> phases;
  Random random(settings().seed);
  for (int i = -50000; i <= 50000; ++i) phases.push_back(static_cast<float>(i) * 0.000314F);
  for (int n = -3000; n <= 3000; ++n)  // next to right angles
    for (int i = -2; i <= 2; ++i) {
      const auto angle = static_cast<float>(n * 1.5707963267948966);
      phases.push_back(angle + std::ldexp(angle, -23) * static_cast<float>(i));
    }
  for (int exponent = -30; exponent < 128; ++exponent)
    for (int i = 0; i < 300; ++i) {
      const float fraction = 1 + static_cast<float>(random.below(1 << 23)) / (1 << 23);
      phases.push_back(std::ldexp(random.oneIn(2) ? fraction : -fraction, exponent));
    }
  for (float about : {1048576.0F, 667544.0F, std::numeric_limits<float>::max()})
    for (int i = -200; i <= 0; ++i) phases.push_back(about + std::ldexp(about, -23) * static_cast<float>(i));
  expectErrors(phases);
}

TEST(PolarToCart, PhasesThatAreNoOrdinaryNumbers) {
  constexpr float infinity = std::numeric_limits<float>::infinity();
  const std::vector<Lum32fc> results = unitsOf({0.0F, -0.0F, infinity, -infinity, std::nanf(""), 1e-45F});
  EXPECT_EQ(results[0].re, 1);
  EXPECT_EQ(std::signbit(results[0].im), false);
  EXPECT_EQ(results[1].im, 0);
  for (size_t i = 2; i < 5; ++i) {
    EXPECT_TRUE(std::isnan(results[i].re));
    EXPECT_TRUE(std::isnan(results[i].im));
  }
  EXPECT_EQ(results[5].im, 1e-45F);
}

template <typename C>
C sampleOf(LumStatus (*function)(const Lum32f*, const Lum32f*, int, int, LumiSize, C*, int), float m, float p,
           int s) {
  C result{77, 77};
  EXPECT_EQ(function(&m, &p, 4, s, {1, 1}, &result, sizeof result), lumStatusOk);
  return result;
}

TEST(PolarToCart, IntegersAreScaledAndLimited) {
  const auto words = [](float m, float p, int s) { return sampleOf(lumiPolarToCart_16sc_C1R, m, p, s); };
  const auto dwords = [](float m, float p, int s) { return sampleOf(lumiPolarToCart_32sc_C1R, m, p, s); };
  EXPECT_EQ(words(5, 0, 1).re, 2);    // 2.5
  EXPECT_EQ(words(-3, 0, 1).re, -2);  // -1.5
  EXPECT_EQ(words(40000, 0, 0).re, 32767);
  EXPECT_EQ(words(-40000, 0, 0).re, -32768);
  EXPECT_EQ(words(100, 0.92729522F, 0).re, 60);
  EXPECT_EQ(words(100, 0.92729522F, 0).im, 80);
  EXPECT_EQ(words(1e-45F, 0, -149).re, 1);
  EXPECT_EQ(words(1e-45F, 0, -181).re, 32767);
  EXPECT_EQ(words(std::numeric_limits<float>::max(), 0, 128).re, 1);
  EXPECT_EQ(words(std::numeric_limits<float>::max(), 0, 130).re, 0);
  EXPECT_EQ(words(0, 1, INT_MIN).re, 0);
  EXPECT_EQ(words(1, 0, INT_MAX).re, 0);
  EXPECT_EQ(dwords(3e9F, 0, 0).re, INT_MAX);
  EXPECT_EQ(dwords(-3e9F, 0, 0).re, INT_MIN);
  EXPECT_EQ(dwords(2147483520, 0, 0).re, 2147483520);
  EXPECT_EQ(dwords(2147483648.0F, 0, 0).re, INT_MAX);
  EXPECT_EQ(dwords(1e-45F, 0, -179).re, 1 << 30);
  EXPECT_EQ(dwords(1e-45F, 0, -180).re, INT_MAX);
  EXPECT_EQ(dwords(1e-45F, 0, INT_MIN).re, INT_MAX);
  EXPECT_EQ(dwords(std::nanf(""), 0, 0).re, INT_MIN);
  EXPECT_EQ(words(std::nanf(""), 0, 0).re, -32768);
}

}  // namespace
}  // namespace test
