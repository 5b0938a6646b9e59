// SPDX-License-Identifier: MIT
// Thresholds: against the model; equal samples, NaNs and zeros by hand; the order of checks where rows do not
// tell it; when the cache is asked for.
#include "lumi/threshold.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "data/ordered_bounds.hpp"
#include "model/data/threshold.hpp"
#include "support/core_guard.hpp"
#include "support/member.hpp"

namespace test {
namespace {

using ThresholdTypes = Types<Lum8u, Lum16u, Lum16s, Lum32f>;
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

void describe(Member& m) {
  m.contents = kAnyContents;
  m.aliasing = m.inPlace ? Aliasing::None : Aliasing::SameImage;
  m.mayStream = m.types[0] == "16u" && m.layouts[0] != "AC4" && !m.inPlace;
  m.asksFrom = 1 << 19;
}

// With the operator among the arguments, or by name. Operators that are refused are in the fault matrix.
template <typename Run>
std::vector<Member> oneSided(const std::string& operation, Run run) {
  const bool named = operation.find("GT") != std::string::npos || operation.find("LT") != std::string::npos;
  return membersOfOneType(
      operation,
      [&](Member& m, auto sample) {
        describe(m);
        if (!named) m.choose("cmpOp", {{{lumCmpOpLess}}, {{lumCmpOpGreater}}});
        m.model = [=, isAbove = operation.find("GT") != std::string::npos,
                   channels = m.channels](const Call& c) {
          run(sample, c, named ? isAbove : static_cast<int>(c.number("cmpOp")) == lumCmpOpGreater, channels);
        };
      },
      ThresholdTypes());
}

bool addAll() {
  for (const char* operation : {"Threshold", "Threshold_GT", "Threshold_LT"})
    addModelTests(oneSided(operation, [](auto sample, const Call& c, bool above, model::Channels channels) {
      model::limit<decltype(sample)>(c.values, above, c.srcImage(), c.dstImage(), c.roi, channels);
    }));
  for (const char* operation : {"Threshold_Val", "Threshold_GTVal", "Threshold_LTVal"})
    addModelTests(oneSided(operation, [](auto sample, const Call& c, bool above, model::Channels channels) {
      model::replace<decltype(sample)>(c.values, above, c.srcImage(), c.dstImage(), c.roi, channels);
    }));
  addModelTests(membersOfOneType(
      "Threshold_LTValGTVal",
      [](Member& m, auto sample) {
        using T = decltype(sample);
        describe(m);
        const model::Channels channels = m.channels;
        m.arrangeValues = [=](Random& random, Byte* values) {
          arrangeBounds<T>(random, values, channels.moved, 2 * channels.moved);
        };
        m.model = [=](const Call& c) {
          return model::replaceBoth<T>(c.values, c.srcImage(), c.dstImage(), c.roi, channels);
        };
      },
      ThresholdTypes()));
  return true;
}
const bool added = addAll();

// One row of floats, in place.
template <typename... Argument>
std::vector<float> row(LumStatus (*threshold)(Lum32f*, int, LumiSize, Argument...),
                       std::vector<float> samples, Argument... arguments) {
  const int width = static_cast<int>(samples.size());
  EXPECT_EQ(threshold(samples.data(), 4 * width, {width, 1}, arguments...), lumStatusOk);
  return samples;
}

void expectSame(const std::vector<float>& got, const std::vector<float>& wanted) {
  ASSERT_EQ(got.size(), wanted.size());
  for (size_t i = 0; i < got.size(); ++i) {
    EXPECT_EQ(std::isnan(got[i]), std::isnan(wanted[i])) << i;
    if (std::isnan(wanted[i])) continue;
    EXPECT_EQ(got[i], wanted[i]) << i;
    EXPECT_EQ(std::signbit(got[i]), std::signbit(wanted[i])) << i;
  }
}

TEST(Threshold, NaNBecomesTheThreshold) {
  expectSame(row(lumiThreshold_GT_32f_C1IR, {kNaN, 1, 2, 3}, 2.0F), {2, 1, 2, 2});
  expectSame(row(lumiThreshold_LT_32f_C1IR, {kNaN, 1, 2, 3}, 2.0F), {2, 2, 2, 3});
  expectSame(row(lumiThreshold_GT_32f_C1IR, {kNaN, 1, -INFINITY}, kNaN), {kNaN, kNaN, kNaN});
  expectSame(row(lumiThreshold_LT_32f_C1IR, {kNaN, 1, INFINITY}, kNaN), {kNaN, kNaN, kNaN});
}

TEST(Threshold, ZerosTakeTheThresholdsSign) {
  expectSame(row(lumiThreshold_GT_32f_C1IR, {0.0F, -0.0F}, -0.0F), {-0.0F, -0.0F});
  expectSame(row(lumiThreshold_GT_32f_C1IR, {0.0F, -0.0F}, 0.0F), {0.0F, 0.0F});
  expectSame(row(lumiThreshold_LT_32f_C1IR, {0.0F, -0.0F}, 0.0F), {0.0F, 0.0F});
  expectSame(row(lumiThreshold_GTVal_32f_C1IR, {0.0F, -0.0F}, 0.0F, 7.0F), {0.0F, -0.0F});
  expectSame(row(lumiThreshold_LTVal_32f_C1IR, {0.0F, -0.0F}, 0.0F, 7.0F), {0.0F, -0.0F});
}

TEST(Threshold, NaNStaysOrIsReplaced) {
  expectSame(row(lumiThreshold_GTVal_32f_C1IR, {kNaN, 1, 2, 3}, 2.0F, 9.0F), {kNaN, 1, 2, 9});
  expectSame(row(lumiThreshold_LTVal_32f_C1IR, {kNaN, 1, 2, 3}, 2.0F, 9.0F), {9, 9, 2, 3});
  expectSame(row(lumiThreshold_GTVal_32f_C1IR, {kNaN, 1, INFINITY}, kNaN, 9.0F), {kNaN, 1, INFINITY});
  expectSame(row(lumiThreshold_LTVal_32f_C1IR, {kNaN, 1, INFINITY}, kNaN, 9.0F), {9, 9, 9});
  expectSame(row(lumiThreshold_LTValGTVal_32f_C1IR, {kNaN, 0, 1, 2, 3}, 1.0F, -9.0F, 2.0F, 9.0F),
             {-9, -9, 1, 2, 9});
}

TEST(Threshold, ThresholdsThatAreNaNPassTheOrderTest) {
  expectSame(row(lumiThreshold_LTValGTVal_32f_C1IR, {kNaN, 0, 1, 9}, 1.0F, -9.0F, kNaN, 9.0F),
             {-9, -9, 1, 9});
  expectSame(row(lumiThreshold_LTValGTVal_32f_C1IR, {kNaN, 0, 1, 8}, kNaN, -9.0F, 1.0F, 9.0F),
             {-9, -9, -9, 9});
}

TEST(Threshold, EqualSamplesStay) {
  const std::vector<float> all = {1, 2, 3};
  expectSame(row(lumiThreshold_GTVal_32f_C1IR, all, 2.0F, 9.0F), {1, 2, 9});
  expectSame(row(lumiThreshold_LTVal_32f_C1IR, all, 2.0F, 9.0F), {9, 2, 3});
  expectSame(row(lumiThreshold_LTValGTVal_32f_C1IR, all, 2.0F, 8.0F, 2.0F, 9.0F), {8, 2, 9});
  Lum16s words[] = {-32768, -1, 0, 1, 32767};
  ASSERT_EQ(lumiThreshold_LTValGTVal_16s_C1IR(words, 10, {5, 1}, -1, 100, 0, 200), lumStatusOk);
  EXPECT_EQ(std::vector<int>(std::begin(words), std::end(words)), (std::vector<int>{100, -1, 0, 200, 200}));
}

// Every byte against every threshold.
TEST(Threshold, AllBytesAndThresholds) {
  std::vector<Lum8u> src(256), dst(256);
  for (int i = 0; i < 256; ++i) src[static_cast<size_t>(i)] = static_cast<Lum8u>(i);
  for (int t = 0; t < 256; ++t) {
    const auto threshold = static_cast<Lum8u>(t);
    const auto expect = [&](LumStatus status, auto wanted) {
      ASSERT_EQ(status, lumStatusOk);
      for (int i = 0; i < 256; ++i) ASSERT_EQ(dst[static_cast<size_t>(i)], wanted(i)) << i << " at " << t;
    };
    const LumiSize roi{256, 1};
    expect(lumiThreshold_GT_8u_C1R(src.data(), 256, dst.data(), 256, roi, threshold),
           [=](int x) { return x > t ? t : x; });
    expect(lumiThreshold_LT_8u_C1R(src.data(), 256, dst.data(), 256, roi, threshold),
           [=](int x) { return x < t ? t : x; });
    expect(lumiThreshold_GTVal_8u_C1R(src.data(), 256, dst.data(), 256, roi, threshold, 77),
           [=](int x) { return x > t ? 77 : x; });
    expect(lumiThreshold_LTVal_8u_C1R(src.data(), 256, dst.data(), 256, roi, threshold, 77),
           [=](int x) { return x < t ? 77 : x; });
  }
}

TEST(Threshold, TheOperatorIsTestedFirstOrLast) {
  Lum8u sample = 7;
  EXPECT_EQ(lumiThreshold_Val_8u_C1R(nullptr, 0, &sample, 0, {0, 0}, 1, 2, 7), lumStatusUnsupportedMode);
  EXPECT_EQ(lumiThreshold_8u_C1R(nullptr, 0, &sample, 0, {0, 0}, 1, 7), lumStatusNullPointer);
  EXPECT_EQ(lumiThreshold_8u_C3R(&sample, 3, &sample, 3, {1, 1}, nullptr, 7), lumStatusNullPointer);
  EXPECT_EQ(sample, 7);
}

// By pointer the order of thresholds is tested after all else, in every channel that is worked on.
TEST(Threshold, UnorderedThresholdsOfAnyChannel) {
  Lum16u pixel[4] = {5, 5, 5, 5};
  const Lum16u value[3] = {1, 1, 1}, upper[3] = {10, 10, 10};
  for (size_t channel = 0; channel < 3; ++channel) {
    Lum16u lower[3] = {10, 10, 10};
    EXPECT_EQ(lumiThreshold_LTValGTVal_16u_AC4IR(pixel, 8, {1, 1}, lower, value, upper, value), lumStatusOk);
    pixel[0] = pixel[1] = pixel[2] = 5;
    ++lower[channel];
    EXPECT_EQ(lumiThreshold_LTValGTVal_16u_AC4IR(pixel, 8, {1, 1}, lower, value, upper, value),
              lumStatusBadThresholdOrder);
    EXPECT_EQ(lumiThreshold_LTValGTVal_16u_C3IR(pixel, 8, {1, 1}, lower, value, upper, value),
              lumStatusBadThresholdOrder);
    EXPECT_EQ(lumiThreshold_LTValGTVal_16u_C3IR(pixel, 8, {1, 1}, lower, value, upper, nullptr),
              lumStatusNullPointer);
    EXPECT_EQ(lumiThreshold_LTValGTVal_16u_C3IR(pixel, 0, {1, 1}, lower, value, upper, value),
              lumStatusBadStep);
    for (const Lum16u sample : pixel) EXPECT_EQ(sample, 5);
  }
}

// 16u alone asks for the cache, above 256 KiB of results; in place too, but with four channels.
TEST(Threshold, WhatAsksForTheCache) {
  const CoreGuard guard;
  constexpr int width = 1 << 10, floorRows = 128;
  std::vector<Lum16u> image(4 * width * (floorRows + 1)), other(image.size());
  const Lum16u constant[4] = {};
  const auto asks = [&](auto call) {
    testcore::reset();
    EXPECT_EQ(call(), lumStatusOk);
    return testcore::counts().cacheQueries;
  };
  const auto single = [&](int rows) {
    return asks([&] { return lumiThreshold_GT_16u_C1IR(image.data(), 2 * width, {width, rows}, 9); });
  };
  EXPECT_EQ(single(floorRows), 0);
  EXPECT_EQ(single(floorRows + 1), 1);
  const LumiSize roi{width, floorRows + 1};
  EXPECT_EQ(
      asks([&] { return lumiThreshold_LTVal_16u_C3IR(image.data(), 6 * width, roi, constant, constant); }),
      1);
  EXPECT_EQ(
      asks([&] { return lumiThreshold_LTVal_16u_C4IR(image.data(), 8 * width, roi, constant, constant); }),
      0);
  EXPECT_EQ(asks([&] { return lumiThreshold_GT_16u_AC4IR(image.data(), 8 * width, roi, constant); }), 0);
  EXPECT_EQ(asks([&] {
              return lumiThreshold_LTVal_16u_C4R(image.data(), 8 * width, other.data(), 8 * width, roi,
                                                 constant, constant);
            }),
            1);
  auto* const words = reinterpret_cast<Lum16s*>(image.data());
  EXPECT_EQ(asks([&] { return lumiThreshold_GT_16s_C1IR(words, 2 * width, roi, 9); }), 0);
}

}  // namespace
}  // namespace test
