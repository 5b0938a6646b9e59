// SPDX-License-Identifier: MIT
// Windows: against the model, sides that are too small, the tables' error, known factors.
#include "lumi/window.h"

#include <gtest/gtest.h>

#include <cmath>

#include "model/transforms/window.hpp"
#include "support/member.hpp"

namespace test {
namespace {

using model::Window;

// Sides of 1 and 2 are refused, and nothing is touched.
LumStatus run(const Call& c, const std::string& type, Window window, bool radial) {
  if (c.roi.width < 3 || c.roi.height < 3) return lumStatusBadSize;
  const auto apply = [&](auto sample) {
    model::window<decltype(sample)>(c.srcImage(), c.dstImage(), c.roi, window, radial);
  };
  withType(type, apply, Types<Lum8u, Lum16u, Lum32f>());
  return lumStatusOk;
}

void add(const std::string& operation, Window window, bool radial) {
  std::vector<Member> all;
  for (const ExportRow& row : exportRows()) {
    if (row.operation != operation || row.family != programFamily()) continue;
    all.push_back(memberOf(row));
    Member& m = all.back();
    const std::string type = m.types.front();
    m.contents = kAnyContents;
    m.heights = {3, 3, 4, 5, 2};
    m.mayStream = false;
    m.allocates = true;
    m.separateRows = radial;  // these go from both ends towards the middle
    m.floatResults = isFloating(type);
    m.aliasing = m.inPlace ? Aliasing::None : Aliasing::SameImage;
    m.model = [=](const Call& c) { return run(c, type, window, radial); };
  }
  addModelTests(all);
}

const bool added = [] {
  add("WinBartlett", Window::Bartlett, true);
  add("WinBartlettSep", Window::Bartlett, false);
  add("WinHamming", Window::Hamming, true);
  add("WinHammingSep", Window::Hamming, false);
  return true;
}();

// Samples of ones are the factors themselves.
using Operation = LumStatus (*)(Lum32f*, int, LumiSize);
std::vector<float> factorsOf(Operation operation, LumiSize roi) {
  std::vector<float> image(static_cast<size_t>(roi.width) * static_cast<size_t>(roi.height), 1);
  EXPECT_EQ(operation(image.data(), 4 * roi.width, roi), lumStatusOk);
  return image;
}

TEST(Window, SmallSidesAreRefused) {
  Lum8u image[9] = {9, 9, 9, 9, 9, 9, 9, 9, 9};
  for (auto* operation : {lumiWinBartlett_8u_C1IR, lumiWinBartlettSep_8u_C1IR, lumiWinHamming_8u_C1IR,
                          lumiWinHammingSep_8u_C1IR}) {
    for (LumiSize roi : {LumiSize{2, 3}, {3, 2}, {1, 3}, {3, 1}, {2, 2}})
      EXPECT_EQ(operation(image, 3, roi), lumStatusBadSize);
    EXPECT_EQ(operation(image, 0, {2, 3}), lumStatusBadSize);
    EXPECT_EQ(operation(image, 0, {3, 3}), lumStatusBadStep);
    EXPECT_EQ(operation(nullptr, 0, {2, 3}), lumStatusNullPointer);
    for (Lum8u sample : image) ASSERT_EQ(sample, 9);
  }
}

TEST(Window, KnownFactors) {
  EXPECT_EQ(factorsOf(lumiWinBartlettSep_32f_C1IR, {5, 3}),
            (std::vector<float>{0, 0, 0, 0, 0, 0, 0.5F, 1, 0.5F, 0, 0, 0, 0, 0, 0}));
  // The middle of a 4 x 4 cone is the sample (2, 2): row 2 has the factors of row 1, of distance 1.
  const float far = (2 - std::sqrt(2.0F)) / 2;
  EXPECT_EQ(factorsOf(lumiWinBartlett_32f_C1IR, {4, 4}),
            (std::vector<float>{0, 0, 0, 0, 0, far, 0.5F, far, 0, far, 0.5F, far, 0, 0, 0, 0}));
  const std::vector<float> edge = factorsOf(lumiWinHamming_32f_C1IR, {3, 3});
  EXPECT_EQ(edge[0], 0.08F * 0.08F);
  EXPECT_EQ(edge[1], 0.08F);
  EXPECT_EQ(edge[7], 0.08F);
  Lum8u bytes[9] = {255, 255, 255, 255, 255, 255, 255, 255, 255};
  EXPECT_EQ(lumiWinHammingSep_8u_C1IR(bytes, 3, {3, 3}), lumStatusOk);
  EXPECT_EQ(bytes[0], 2);   // 1.632
  EXPECT_EQ(bytes[1], 20);  // 20.4
  EXPECT_EQ(bytes[4], 255);
  Lum16u words[9] = {1, 1, 1, 1, 5, 1, 1, 1, 1};
  EXPECT_EQ(lumiWinBartlettSep_16u_C1IR(words, 6, {3, 3}), lumStatusOk);
  EXPECT_EQ(words[4], 5);
}

// The middle row of an image of odd height has the columns' factors alone.
TEST(Window, TablesAreNearTheCosine) {
  for (int n : {3, 4, 5, 6, 7, 8, 9, 10, 16, 64, 255, 256, 1920, 7680, 65536}) {
    const std::vector<float> factors = factorsOf(lumiWinHammingSep_32f_C1IR, {n, 3});
    for (int i = 0; i < n; ++i) {
      const long double right = 0.54L - 0.46L * std::cos(6.283185307179586476925L * i / (n - 1));
      ASSERT_LT(std::fabs(factors[static_cast<size_t>(n + i)] - right), std::ldexp(1.0L, -23))
          << n << " " << i;
    }
  }
}

TEST(Window, RadialCosinesAreNearTheRightOnes) {
  const LumiSize roi{400, 300};
  const std::vector<float> factors = factorsOf(lumiWinHamming_32f_C1IR, roi);
  for (int y = 1; y < 150; ++y)
    for (int x = 0; x < 400; ++x) {
      const double r = std::hypot(200.0 - x, (150.0 - y) * 4 / 3), t = 200 - r;
      if (std::fabs(t) < 1e-3) continue;  // on the rim, where a float may tell otherwise
      const double right = t > 0 ? 0.54 - 0.46 * std::cos(t * 6.283185307179586 / 400) : 0;
      ASSERT_NEAR(factors[static_cast<size_t>(y * 400 + x)], right, 1e-6) << x << " " << y;
    }
}

}  // namespace
}  // namespace test
