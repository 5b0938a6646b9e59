// SPDX-License-Identifier: MIT
#include "lumi/mirror.h"

#include <gtest/gtest.h>

#include <climits>

#include "model/data/mirror.hpp"
#include "support/case.hpp"
#include "support/core_guard.hpp"
#include "support/member.hpp"
#include "support/settings.hpp"
#include "support/stage.hpp"

namespace test {
namespace {

using Moved = Types<Lum8u, Lum16u, Lum16s, Lum32s, Lum32f>;

// Of what is no diagonal.
LumStatus statusOf(int flip, LumiSize roi) {
  if (flip < 0 || flip > 2) return lumStatusBadMirrorAxis;
  if (flip != 1 && roi.height < 2) return lumStatusBadSize;
  if (flip != 0 && roi.width < 2) return lumStatusBadSize;
  return lumStatusOk;
}

bool hasDiagonals(const Member& m) { return m.layouts.front() == "C1" && !m.inPlace; }

template <typename T>
Model modelOf(const Member& m) {
  const model::Channels channels = m.channels;
  const bool diagonals = m.transposes;
  return [=](const Call& c) {
    const auto flip = static_cast<int>(c.number("flip"));
    const LumStatus status = diagonals ? LumStatus{lumStatusOk} : statusOf(flip, c.roi);
    if (status == lumStatusOk) model::mirror<T>(c.srcImage(), c.dstImage(), c.roi, channels, flip);
    return status;
  };
}

const bool added = addModelTests(membersOfOneType(
    "Mirror",
    [](Member& m, auto sample) {
      m.separateRows = true;
      m.heights = {1, 2, 2, 3, 4, 5, 9};
      m.mayStream = !m.inPlace;
      m.streamsFrom = 4 << 20;  // both images
      if (!m.inPlace) m.aliasing = Aliasing::SameImage;
      const Value axes[] = {{{0}}, {{1}}, {{2}}};
      m.choose("flip", {axes[0], axes[1], axes[2], axes[0], axes[1], axes[2], {{-1}}, {{5}}});
      if (!hasDiagonals(m)) m.choices.back().values.insert(m.choices.back().values.end(), {{{3}}, {{4}}});
      m.model = modelOf<decltype(sample)>(m);
    },
    Moved()));

// The same members, whose destination then has another size; and steps that are whole samples.
TEST(MirrorDiagonals, EqualTheModel) {
  const CoreGuard guard;
  Stage stage(kLargestCaseImage);
  std::vector<Member> all = membersOfOneType(
      "Mirror",
      [](Member& m, auto sample) {
        m.transposes = m.separateRows = m.checksSteps = true;
        m.heights = {1, 2, 3, 7, 8, 9, 16, 17, 31, 33, 64, 65};
        m.choose("flip", {{{3}}, {{4}}});
        m.model = modelOf<decltype(sample)>(m);
      },
      Moved());
  int tried = 0;  // members
  for (const Member& m : all) {
    if (!hasDiagonals(m)) continue;
    ++tried;
    for (int i = 0; i < settings().scaled(6 * caseRound()); ++i) {
      Case c = makeCase(m, settings().seed, i);
      for (int* step : {&c.srcStep, &c.dstStep}) *step = (*step / m.sampleBytes) * m.sampleBytes;
      if (c.srcStep == 0) c.srcStep = m.sampleBytes;
      if (c.dstStep < c.roi.height * m.sampleBytes) c.dstStep = c.roi.height * m.sampleBytes;
      const auto failure = stage.run(m, c);
      ASSERT_FALSE(failure) << *failure << "\n" << describe(m, c);
    }
  }
  EXPECT_EQ(tried, 5);
  EXPECT_FALSE(stage.compareEverything());
}

TEST(MirrorCalls, WhatHasNothingToFlipIsRefused) {
  Lum8u src[4] = {1, 2, 3, 4}, dst[4] = {};
  EXPECT_EQ(lumiMirror_8u_C1R(src, 4, dst, 4, {4, 1}, 0), lumStatusBadSize);
  EXPECT_EQ(lumiMirror_8u_C1R(src, 1, dst, 1, {1, 4}, 1), lumStatusBadSize);
  for (int flip : {0, 1, 2}) EXPECT_EQ(lumiMirror_8u_C1R(src, 1, dst, 1, {1, 1}, flip), lumStatusBadSize);
  EXPECT_EQ(dst[0], 0);
  EXPECT_EQ(lumiMirror_8u_C1R(src, 4, dst, 4, {4, 1}, 1), lumStatusOk);
  EXPECT_EQ(std::vector<Lum8u>(dst, dst + 4), (std::vector<Lum8u>{4, 3, 2, 1}));
  for (int flip : {3, 4}) {
    EXPECT_EQ(lumiMirror_8u_C1R(src, 1, dst, 1, {1, 1}, flip), lumStatusOk);
    EXPECT_EQ(dst[0], 1);
  }
}

TEST(MirrorCalls, DiagonalsAreForSomeMembers) {
  Lum8u src[27] = {}, dst[27] = {};
  for (int flip : {3, 4}) {
    EXPECT_EQ(lumiMirror_8u_C1IR(src, 3, {3, 3}, flip), lumStatusBadMirrorAxis);
    EXPECT_EQ(lumiMirror_8u_C3R(src, 9, dst, 9, {3, 3}, flip), lumStatusBadMirrorAxis);
    EXPECT_EQ(lumiMirror_8u_C1R(src, 3, src, 3, {3, 3}, flip), lumStatusUnsupportedMode);
  }
}

TEST(MirrorCalls, KnownDiagonals) {
  const Lum16s src[] = {1, 2, 3, 4, 5, 6};
  Lum16s dst[6] = {};
  const auto flipped = [&](int flip) {
    EXPECT_EQ(lumiMirror_16s_C1R(src, 6, dst, 4, {3, 2}, flip), lumStatusOk);
    return std::vector<Lum16s>(dst, dst + 6);
  };
  EXPECT_EQ(flipped(3), (std::vector<Lum16s>{1, 4, 2, 5, 3, 6}));
  EXPECT_EQ(flipped(4), (std::vector<Lum16s>{6, 3, 5, 2, 4, 1}));
}

// Null pointers, steps, sizes, images that overlap.
template <typename T, typename F>
void expectOrderOfDiagonals(F call, LumStatus oddSteps) {
  T image[16] = {};
  T* const none = nullptr;
  constexpr int row = 4 * sizeof(T);
  for (int flip : {3, 4}) {
    EXPECT_EQ(call(none, 0, image, 0, {0, 0}, flip), lumStatusNullPointer);
    EXPECT_EQ(call(image, 0, none, 0, {0, 0}, flip), lumStatusNullPointer);
    for (int bad : {0, -row, INT_MIN}) {
      EXPECT_EQ(call(image, bad, image, row, {0, 0}, flip), lumStatusBadStep);
      EXPECT_EQ(call(image, row, image, bad, {0, 0}, flip), lumStatusBadStep);
    }
    EXPECT_EQ(call(image, row + 1, image, row, {0, 0}, flip), oddSteps);
    EXPECT_EQ(call(image, row, image, row + 1, {0, 0}, flip), oddSteps);
    EXPECT_EQ(call(image, row, image, row, {0, 4}, flip), lumStatusBadSize);
    EXPECT_EQ(call(image, row, image, row, {4, -1}, flip), lumStatusBadSize);
    EXPECT_EQ(call(image, row, image, row, {4, 4}, flip), lumStatusUnsupportedMode);
  }
}

TEST(MirrorCalls, OrderOfChecksOfDiagonals) {
  constexpr LumStatus ofBytes = lumStatusBadSize, ofOthers = lumStatusBadStep;
  expectOrderOfDiagonals<Lum8u>(lumiMirror_8u_C1R, ofBytes);
  expectOrderOfDiagonals<Lum16u>(lumiMirror_16u_C1R, ofOthers);
  expectOrderOfDiagonals<Lum16s>(lumiMirror_16s_C1R, ofOthers);
  expectOrderOfDiagonals<Lum32s>(lumiMirror_32s_C1R, ofOthers);
  expectOrderOfDiagonals<Lum32f>(lumiMirror_32f_C1R, ofOthers);
}

// A corner of one image in a row of the other: found for any place of a small image about a larger one.
// Corners between rows are not, nor are images that lie in one another's gaps.
TEST(MirrorCalls, OverlapIsFoundByCorners) {
  constexpr int kStep = 16, kWidth = 5, kHeight = 4;
  std::vector<Lum8u> memory(400);
  const auto inRows = [](int at, int step, LumiSize size) {
    for (int y = 0; y < size.height; ++y)
      if (at >= y * step && at < y * step + size.width) return true;
    return false;
  };
  const auto cornersIn = [&](int at, int step, LumiSize of, int otherStep, LumiSize other) {
    const int right = of.width - 1, below = (of.height - 1) * step;
    for (int corner : {at, at + right, at + below, at + below + right})
      if (inRows(corner, otherStep, other)) return true;
    return false;
  };
  for (int dstStep : {4, 5, 7, 16, 23})
    for (int place = -120; place <= 120; ++place) {
      const LumiSize roi = {kWidth, kHeight}, turned = {kHeight, kWidth};
      const bool hit =
          cornersIn(place, dstStep, turned, kStep, roi) || cornersIn(-place, kStep, roi, dstStep, turned);
      const LumStatus status =
          lumiMirror_8u_C1R(memory.data() + 160, kStep, memory.data() + 160 + place, dstStep, roi, 3);
      EXPECT_EQ(status, hit ? lumStatusUnsupportedMode : lumStatusOk) << place << " step " << dstStep;
    }
}

}  // namespace
}  // namespace test
