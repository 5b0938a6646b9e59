// SPDX-License-Identifier: MIT
// Local binary patterns against the model with every border and order of bits, and their distances.
#include "lumi/lbp.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <type_traits>
#include <vector>

#include "filters/placed_image.hpp"
#include "model/filters/lbp.hpp"
#include "support/member.hpp"
#include "support/named_call.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

const std::vector<int> kFlags = {0, 0, 0, 0x10, 0x20, 0x40, 0x80, 0x50, 0x70, 0xF0, 0x100};
const std::vector<int> kTypes = {0, 1, 3, 6, 15};

std::vector<Value> borders() {
  std::vector<Value> result;
  for (const int type : kTypes)
    for (const int flags : kFlags) result.push_back({{static_cast<double>(type | flags)}});
  return result;
}

template <typename S, typename D>
constexpr bool kPatterns = std::is_unsigned_v<D> && sizeof(D) <= 2 &&
                           (std::is_same_v<S, Lum8u> || std::is_same_v<S, Lum32f>);

void addPatterns(const std::string& operation, int side, bool withMode) {
  const auto describe = [&](Member& m, auto s, auto d) {
    using S = decltype(s);
    using D = decltype(d);
    m.contents = kAnyContents;
    m.separateRows = true;
    m.mayStream = false;
    m.heights = {1, 2, 3, 5, 17};
    m.rounds = 2;
    if (withMode) m.choose("mode", {{{0}}, {{1}}, {{2}}, {{3}}, {{4}}, {{255}}});
    m.choose("border", borders());
    m.choose("borderValue", {{{0}}, {{99}}});
    m.surroundings = [=](const Call& c) -> Member::Surroundings {
      const int border = model::patternBorder(static_cast<int>(c.number("border")));
      const auto at = [=](int flag) { return border == 6 || (border & flag) != 0 ? side / 2 : 0; };
      return {at(64), at(16), at(128), at(32)};
    };
    if constexpr (kPatterns<S, D>)
      m.model = [=](const Call& c) {
        const int border = static_cast<int>(c.number("border"));
        const int mode = withMode ? static_cast<int>(c.number("mode")) : 1;
        const model::Bordered<S> image{c.srcImage(), c.roi, model::patternBorder(border), S()};
        for (int y = 0; y < c.roi.height; ++y)
          for (int x = 0; x < c.roi.width; ++x)
            model::store<D>(c.dstImage().row(y), x, model::pattern<S, D>(image, side, mode, x, y));
      };
  };
  addModelTests(membersOf(operation, describe, Types<Lum8u, Lum16u, Lum32f>()));
}

// With both images' surroundings made up; those in memory have a test of their own.
void addDistances() {
  const auto describe = [](Member& m, auto sample) {
    using T = decltype(sample);
    m.contents = {Contents::Bytes};
    m.separateRows = true;
    m.mayStream = false;
    m.heights = {1, 2, 3, 5, 9};
    m.rounds = 2;
    m.choose("shift",
             {{{0}}, {{1}}, {{-1}}, {{5}}, {{-17}}, {{40}}, {{-1e9}}, {{2147483647}}, {{-2147483648}}});
    m.choose("border", {{{0}}, {{1}}, {{4}}, {{7}}, {{0x100}}});
    m.choose("borderValue", {{{0}}, {{99}}});
    if constexpr (std::is_unsigned_v<T>)
      m.model = [](const Call& c) {
        const model::Bordered<T> a{c.srcImage(), c.roi, 1, 0}, b{c.src2Image(), c.roi, 1, 0};
        for (int y = 0; y < c.roi.height; ++y)
          for (int x = 0; x < c.roi.width; ++x)
            model::store<T>(c.dstImage().row(y), x,
                            model::patternDistance(a, b, static_cast<int>(c.number("shift")), x, y));
      };
  };
  addModelTests(membersOfOneType("LBPImageHorizCorr", describe, Types<Lum8u, Lum16u>()));
}

const bool added = [] {
  addPatterns("LBPImage3x3", 3, false);
  addPatterns("LBPImage5x5", 5, false);
  addPatterns("LBPImageMode3x3", 3, true);
  addPatterns("LBPImageMode5x5", 5, true);
  addDistances();
  return true;
}();

// The first image has two pixels beyond the sides in memory, the second one as many about where the shift has
// it, and none that is not read.
template <typename T>
void expectDistances(Random& random, const Arena (&arenas)[2], bool isWide) {
  const LumiSize roi = {isWide ? random.between(1000, 1100) : random.between(1, 60), random.between(1, 4)};
  const int border = random.pick(kTypes) | random.pick(kFlags), effective = model::patternBorder(border);
  const int shift = random.between(-roi.width - 3, roi.width + 3);
  const int moved = std::clamp(shift, -roi.width, roi.width);
  const auto reach = [&](int flag, int n) {
    return effective == 6 || (effective & flag) != 0 ? std::max(0, n) : 0;
  };
  const auto around = [&](int by) -> Member::Surroundings {
    return {reach(64, 2 - by), reach(16, 2), reach(128, 2 + by), reach(32, 2)};
  };
  const auto sample = [&] { return static_cast<T>(random.next()); };
  const model::Bordered<T> a{placed<T>(random, arenas[0], roi, 1, around(0), sample), roi, effective, 0};
  const model::Bordered<T> b{placed<T>(random, arenas[1], roi, 1, around(moved), sample), roi, effective, 0};
  std::vector<T> result(static_cast<size_t>(roi.width * roi.height));
  const int step = roi.width * static_cast<int>(sizeof(T));
  const std::string type = sizeof(T) == 1 ? "8u" : "16u";
  NamedCall call("lumiLBPImageHorizCorr_" + type + "_C1R");
  call.image("src1", a.src.first, a.src.step).image("src2", b.src.first, b.src.step).size("roi", roi);
  call.image("dst", result.data(), step).number("shift", shift).number("border", border);
  call.number("borderValue", 3);
  ASSERT_EQ(call.run(), lumStatusOk);
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x) {
      const T got = result[static_cast<size_t>(y * roi.width + x)];
      ASSERT_EQ(got, model::patternDistance(a, b, shift, x, y))
          << x << ", " << y << " of " << roi.width << ", " << border << ", " << shift;
    }
}

TEST(PatternDistances, ReadWhatIsInMemory) {
  Random random(settings().seed);
  const Arena arenas[2] = {Arena(1 << 17), Arena(1 << 17)};
  for (int i = 0; i < 60; ++i) {
    ASSERT_NO_FATAL_FAILURE(expectDistances<Lum8u>(random, arenas, i % 20 == 0)) << i;
    ASSERT_NO_FATAL_FAILURE(expectDistances<Lum16u>(random, arenas, i % 20 == 1)) << i;
  }
}

TEST(PatternDistances, OfEqualImagesAreZeroAndOfOppositeOnesWhole) {
  const std::vector<Lum16u> image(35, 0x1234), opposite(35, 0xEDCB);
  std::vector<Lum16u> result(35, 7);
  EXPECT_EQ(lumiLBPImageHorizCorr_16u_C1R(image.data(), 14, image.data(), 14, result.data(), 14, {7, 5}, 0,
                                          lumiBorderReplicate, 0),
            lumStatusOk);
  EXPECT_EQ(result, std::vector<Lum16u>(35, 0));
  EXPECT_EQ(lumiLBPImageHorizCorr_16u_C1R(image.data(), 14, opposite.data(), 14, result.data(), 14, {7, 5}, 3,
                                          lumiBorderReplicate, 0),
            lumStatusOk);
  EXPECT_EQ(result, std::vector<Lum16u>(35, 400));
}

TEST(Patterns, FlatImagesSetAllBits) {
  const std::vector<Lum8u> image(42, 9);
  for (Lum8u mode = 0; mode < 5; ++mode) {
    std::vector<Lum8u> result(42);
    EXPECT_EQ(
        lumiLBPImageMode3x3_8u_C1R(image.data(), 7, result.data(), 7, {7, 6}, mode, lumiBorderReplicate, 0),
        lumStatusOk);
    EXPECT_EQ(result, std::vector<Lum8u>(42, 255));
  }
  Lum8u code = 0;
  EXPECT_EQ(lumiLBPImage3x3_8u_C1R(image.data(), 1, &code, 1, {1, 1}, lumiBorderConst, 0), lumStatusOk);
  EXPECT_EQ(code, 255);
}

TEST(Patterns, OfOneBrightPixel) {
  const std::vector<Lum8u> image = {6, 5, 5, 5, 9, 5, 5, 5, 5};
  std::vector<Lum8u> result(9);
  EXPECT_EQ(lumiLBPImage3x3_8u_C1R(image.data(), 3, result.data(), 3, {3, 3}, lumiBorderReplicate, 0),
            lumStatusOk);
  EXPECT_EQ(result[4], 0);
  EXPECT_EQ(result[0], 0b10010011);  // itself, repeated outside, and the bright one
  EXPECT_EQ(result[8], 255);
}

TEST(Patterns, WhatIsNoNumberIsNotBelow) {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  std::vector<float> image(9, 1);
  image[0] = nan;
  image[1] = 0;
  Lum8u codes[9];
  EXPECT_EQ(lumiLBPImage3x3_32f8u_C1R(image.data(), 12, codes, 3, {3, 3}, lumiBorderReplicate, 0),
            lumStatusOk);
  EXPECT_EQ(codes[0], 255);
  EXPECT_EQ(codes[4], 0xFF & ~2);
}

}  // namespace
}  // namespace test
