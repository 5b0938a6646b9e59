// SPDX-License-Identifier: MIT
#include "lumi/threshold_adaptive.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "model/filters/threshold_adaptive.hpp"
#include "support/arena.hpp"
#include "support/core_guard.hpp"
#include "support/member.hpp"
#include "support/random.hpp"

namespace test {
namespace {

constexpr int kHeader = 32;  // bytes of an object without its weights

LumiThresholdAdaptiveGaussSpec* specAt(Byte* p) {
  return reinterpret_cast<LumiThresholdAdaptiveGaussSpec*>(p);
}

int boxBytes(LumiSize roi, int side) {
  int bytes = -1;
  EXPECT_EQ(lumiThresholdAdaptiveBoxGetBufferSize(roi, {side, side}, lumiData8u, 1, &bytes), lumStatusOk);
  return bytes;
}

// Objects have a sigma of their own, or none, by their side.
float sigmaOf(int side) { return side % 4 == 3 ? 0.0F : 1.5F; }
int sideOf(int specBytes) { return (specBytes - kHeader) / 4; }

Member::Surroundings surroundingsOf(const Call& c, int side) {
  const float delta = static_cast<float>(c.number("delta"));
  if (side == 1 || delta > 255 || delta <= -255) return {};
  return model::inMemory({{side, side}, {side / 2, side / 2}}, static_cast<int>(c.number("border")));
}

void describe(Member& m, const std::function<int(const Call&)>& sideOfCall, bool weighted) {
  m.choose("delta", {{{0}},
                     {{5}},
                     {{-3.25}},
                     {{1.0 / 3}},
                     {{-0.11111112}},
                     {{0.5}},
                     {{100}},
                     {{-254.9}},
                     {{255}},
                     {{255.5}},
                     {{-255}}});
  m.choose("valueAbove", {{{255}}, {{1}}});
  m.choose("valueNotAbove", {{{0}}, {{200}}});
  m.choose(
      "border",
      {{{0}}, {{1}}, {{1}}, {{6}}, {{0x10}}, {{0x21}}, {{0x40}}, {{0x81}}, {{0xF0}}, {{0xC1}}, {{0x36}}});
  m.choose("borderValue", {{{0}}, {{255}}, {{77}}});
  m.scratch("buffer", [=](const Call& c) { return boxBytes(c.roi, sideOfCall(c)); });
  m.surroundings = [=](const Call& c) { return surroundingsOf(c, sideOfCall(c)); };
  m.surroundingsApart = true;
  m.contents = kAnyContents;
  m.aliasing = m.inPlace ? Aliasing::None : Aliasing::SameImage;
  m.separateRows = true;
  m.mayStream = false;
  m.rounds = 12;
  m.model = [=](const Call& c) {
    const int side = sideOfCall(c);
    const model::Adaptive rule{side, static_cast<float>(c.number("delta")),
                               static_cast<int>(c.number("valueAbove")),
                               static_cast<int>(c.number("valueNotAbove"))};
    const Lum8u value = static_cast<Lum8u>(c.number("borderValue"));
    const model::Border border{static_cast<int>(c.number("border")), &value};
    model::adaptive(c.srcImage(), c.dstImage(), c.roi, rule,
                    weighted ? model::hillOf(side, sigmaOf(side)) : std::vector<float>(), border);
  };
}

using ByteTypes = Types<Lum8u>;

const bool boxes = addModelTests(membersOf(
    "ThresholdAdaptiveBox",
    [](Member& m, auto, auto) {
      m.choose("maskSize",
               {{{3, 3}}, {{3, 3}}, {{5, 5}}, {{7, 7}}, {{1, 1}}, {{9, 9}}, {{15, 15}}, {{17, 17}}});
      describe(
          m, [](const Call& c) { return c.size("maskSize").width; }, false);
    },
    ByteTypes()));

const bool weighted = addModelTests(membersOf(
    "ThresholdAdaptiveGauss",
    [](Member& m, auto, auto) {
      std::vector<int> lengths;
      for (const int side : {1, 3, 3, 5, 7, 9, 17}) lengths.push_back(kHeader + 4 * side);
      m.array("spec", "8u", lengths, [](Random&, Byte* spec, int bytes) {
        const int side = sideOf(bytes);
        EXPECT_EQ(
            lumiThresholdAdaptiveGaussInit({1, 1}, {side, side}, lumiData8u, 1, sigmaOf(side), specAt(spec)),
            lumStatusOk);
      });
      describe(
          m, [](const Call& c) { return sideOf(c.block("spec").count); }, true);
    },
    ByteTypes()));

const bool covered =
    addCovered({"lumiThresholdAdaptiveBoxGetBufferSize", "lumiThresholdAdaptiveGaussGetBufferSize",
                "lumiThresholdAdaptiveGaussInit"});

// Worked by hand: padded((padded(side + width - 1) + 4) * side + padded(4 * width) * (side + 1)) and the
// borders.
TEST(ThresholdAdaptive, SizesAreTheFormula) {
  // (64 + 4) * 7 + 160 * 8 = 1756 -> 1760; (40 + 6) * 9 = 414 -> 416; 2 * 128 (120), 2 * 96 (90)
  EXPECT_EQ(boxBytes({40, 30}, 7), 1760 + 416 + 2 * 128 + 2 * 96);
  // (96 + 4) * 31 + 160 * 32 = 8220 -> 8224; 70 * 60 = 4200 -> 4224
  EXPECT_EQ(boxBytes({40, 30}, 31), 8224 + 4224);
  // 32 + 4 + 2 * 32 = 100 -> 128; nothing around a pixel
  EXPECT_EQ(boxBytes({5, 5}, 1), 128);
  int spec = 0, buffer = 0;
  ASSERT_EQ(lumiThresholdAdaptiveGaussGetBufferSize({40, 30}, {7, 7}, lumiData8u, 1, &spec, &buffer),
            lumStatusOk);
  EXPECT_EQ(spec, 7 * 4 + 32);
  EXPECT_EQ(buffer, boxBytes({40, 30}, 7));
}

// Neither source nor buffer are looked at.
TEST(ThresholdAdaptive, DeltaAloneDecidesBeyondItsLimits) {
  const Arena closed(1);
  closed.setAccessible(closed.begin(), closed.end(), false);
  Lum8u dst[6] = {};
  const auto box = [&](LumiSize mask, float delta) {
    EXPECT_EQ(lumiThresholdAdaptiveBox_8u_C1R(closed.begin(), 3, dst, 3, {3, 2}, mask, delta, 7, 8,
                                              lumiBorderConst, 0, closed.begin()),
              lumStatusOk);
    EXPECT_EQ(std::count(dst, dst + 6, dst[0]), 6);
    return dst[0];
  };
  EXPECT_EQ(box({3, 3}, 255.5F), 7);
  EXPECT_EQ(box({3, 3}, std::numeric_limits<float>::infinity()), 7);
  EXPECT_EQ(box({3, 3}, -255.0F), 8);
  EXPECT_EQ(box({1, 1}, 0.0F), 8);
  EXPECT_EQ(box({1, 1}, 0.25F), 7);
}

TEST(ThresholdAdaptive, NoNumberIsNeverBelow) {
  const Lum8u src[9] = {255, 0, 255, 0, 255, 0, 9, 9, 9};
  Lum8u dst[9], buffer[2048];
  for (const int side : {3, 5}) {
    EXPECT_EQ(lumiThresholdAdaptiveBox_8u_C1R(src, 3, dst, 3, {3, 3}, {side, side}, std::nanf(""), 7, 8,
                                              lumiBorderReplicate, 0, buffer),
              lumStatusOk);
    EXPECT_EQ(std::count(dst, dst + 9, 8), 9) << side;
  }
}

// Where the object is, and what it is, follows from its bytes alone.
class AnyObject : public testing::Test {
 protected:
  static constexpr int kSide = 5;
  alignas(8) Byte memory[8 + kHeader + 4 * kSide] = {};
  Lum8u src[4] = {9, 9, 9, 9}, dst[4] = {1, 1, 1, 1}, buffer[2048];

  LumStatus init(Byte* at, float sigma = 0) {
    return lumiThresholdAdaptiveGaussInit({2, 2}, {kSide, kSide}, lumiData8u, 1, sigma, specAt(at));
  }
  LumStatus run(const Byte* at) {
    return lumiThresholdAdaptiveGauss_8u_C1R(src, 2, dst, 2, {2, 2}, 1, 3, 4, lumiBorderReplicate, 0,
                                             specAt(const_cast<Byte*>(at)), buffer);
  }
  void expectRefused(const Byte* at) {
    EXPECT_EQ(run(at), lumStatusBadContext);
    EXPECT_EQ(std::count(dst, dst + 4, 1), 4);
  }
};

TEST_F(AnyObject, IsMadeAtAnyAddress) {
  for (int phase = 0; phase < 8; ++phase) {
    std::fill(std::begin(memory), std::end(memory), Byte{0xA5});
    Byte* const at = memory + phase;
    ASSERT_EQ(init(at), lumStatusOk);
    EXPECT_EQ(std::count(std::begin(memory), at, 0xA5), phase);
    EXPECT_EQ(std::count(at + kHeader + 4 * kSide, std::end(memory), 0xA5), 8 - phase);
    std::fill(std::begin(dst), std::end(dst), Lum8u{1});
    ASSERT_EQ(run(at), lumStatusOk);
    EXPECT_EQ(std::count(dst, dst + 4, 3), 4);
  }
}

TEST_F(AnyObject, IsTestedFieldByField) {
  ASSERT_EQ(init(memory), lumStatusOk);
  Byte* const object = memory + memory[0];
  for (const int field : {0, 1, 2, 3, 5}) {
    const Lum32s right = model::load<Lum32s>(object, field);
    for (const Lum32s wrong : {0, 4, -5, INT32_MAX - 1}) {
      model::store(object, field, wrong);
      if (field == 5 && wrong != 0) continue;
      expectRefused(memory);
    }
    model::store(object, field, right);
  }
  for (const int place : {0, 9, 255}) {
    Byte elsewhere[300] = {};
    elsewhere[0] = static_cast<Byte>(place);
    expectRefused(elsewhere);
  }
  EXPECT_EQ(run(memory), lumStatusOk);
}

// The sigma in use: 0.3 * ((3 - 1) * 0.5 - 1) + 0.8 is 0.8.
TEST_F(AnyObject, HasASigmaOfItsOwn) {
  ASSERT_EQ(lumiThresholdAdaptiveGaussInit({2, 2}, {3, 3}, lumiData8u, 1, 0, specAt(memory)), lumStatusOk);
  EXPECT_EQ(model::load<Lum32f>(memory + memory[0], 4), 0.8F);
  ASSERT_EQ(init(memory, 2.5F), lumStatusOk);
  EXPECT_EQ(model::load<Lum32f>(memory + memory[0], 4), 2.5F);
}

}  // namespace
}  // namespace test
