// SPDX-License-Identifier: MIT
// Shifts, against the model; all samples by all counts; overlap; sources that are not read.
#include "lumi/shift.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

#include "model/arithmetic/shift.hpp"
#include "support/arena.hpp"
#include "support/fault.hpp"
#include "support/member.hpp"

namespace test {
namespace {

using ShiftTypes = Types<Lum8u, Lum8s, Lum16u, Lum16s, Lum32s>;

// Every count within a type, about its bits, and far beyond.
std::vector<Lum32u> countsAbout(int bits) {
  std::vector<Lum32u> all(static_cast<size_t>(bits + 3));
  std::iota(all.begin(), all.end(), 0u);
  all.insert(all.end(), {31, 32, 33, 40, 63, 64, 256, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF});
  return all;
}

// Of channels that are all alike, all beyond the type, or any.
void fillCounts(Random& random, Byte* data, int channels, int bits) {
  const std::vector<Lum32u> among = countsAbout(bits);
  const int kind = random.below(6);
  const Lum32u first = random.pick(among);
  for (int c = 0; c < channels; ++c) {
    const Lum32u any = random.below(3) ? static_cast<Lum32u>(random.below(bits + 1)) : random.pick(among);
    const Lum32u beyond = static_cast<Lum32u>(bits + random.below(40));
    model::store<Lum32u>(data, c, kind == 0 ? first : kind == 1 ? beyond : any);
  }
}

template <typename T>
void describe(Member& m, T (*formula)(T, Lum32u)) {
  constexpr int bits = 8 * sizeof(T);
  const model::Channels channels = m.channels;
  m.contents = kAnyContents;
  m.aliasing = m.inPlace ? Aliasing::None : Aliasing::SameImage;
  const bool byEach = channels.dst > 1;
  if (byEach) {
    m.array("counts", "32u", {channels.moved},
            [](Random& random, Byte* data, int count) { fillCounts(random, data, count, bits); });
  } else {
    for (const Lum32u count : countsAbout(bits)) m.numbers[0].push_back(static_cast<int>(count));
  }
  m.model = [=](const Call& c) {
    Lum32u counts[4] = {static_cast<Lum32u>(c.numbers[0])};
    if (byEach)
      std::memcpy(counts, c.block("counts").data, sizeof(Lum32u) * static_cast<size_t>(channels.moved));
    model::shift<T>(counts, c.srcImage(), c.dstImage(), c.roi, channels, formula);
  };
}

bool addAll() {
  addModelTests(membersOfOneType(
      "LShiftC", [](Member& m, auto s) { describe<decltype(s)>(m, model::shiftLeft<decltype(s)>); },
      ShiftTypes()));
  addModelTests(membersOfOneType(
      "RShiftC", [](Member& m, auto s) { describe<decltype(s)>(m, model::shiftRight<decltype(s)>); },
      ShiftTypes()));
  return true;
}
const bool added = addAll();

template <typename T>
using OneCount = LumStatus (*)(const T*, int, Lum32u, T*, int, LumiSize);
template <typename T>
using CountEach = LumStatus (*)(const T*, int, const Lum32u*, T*, int, LumiSize);

// Of 32 bits those about powers of two.
template <typename T>
std::vector<T> allSamples() {
  std::vector<T> all;
  if constexpr (sizeof(T) < 4)
    for (int i = 0; i < 1 << 8 * sizeof(T); ++i) all.push_back(static_cast<T>(i));
  else
    for (int bit = 0; bit < 32; ++bit)
      for (const int64_t near : {-2, -1, 0, 1})
        for (const int64_t sign : {-1, 1}) all.push_back(static_cast<T>(sign * (int64_t{1} << bit) + near));
  return all;
}

template <typename T>
void expectAllSamples(OneCount<T> function, T (*formula)(T, Lum32u)) {
  const std::vector<T> src = allSamples<T>();
  const auto width = static_cast<int>(src.size());
  std::vector<T> dst(src.size());
  for (const Lum32u count : countsAbout(8 * sizeof(T))) {
    ASSERT_EQ(function(src.data(), 1, count, dst.data(), 1, {width, 1}), lumStatusOk);
    for (size_t i = 0; i < src.size(); ++i)
      if (dst[i] != formula(src[i], count)) FAIL() << +src[i] << " by " << count << " gives " << +dst[i];
  }
}

TEST(Shift, AllSamplesByAllCounts) {
  expectAllSamples<Lum8u>(lumiLShiftC_8u_C1R, model::shiftLeft<Lum8u>);
  expectAllSamples<Lum8u>(lumiRShiftC_8u_C1R, model::shiftRight<Lum8u>);
  expectAllSamples<Lum8s>(lumiRShiftC_8s_C1R, model::shiftRight<Lum8s>);
  expectAllSamples<Lum16u>(lumiLShiftC_16u_C1R, model::shiftLeft<Lum16u>);
  expectAllSamples<Lum16u>(lumiRShiftC_16u_C1R, model::shiftRight<Lum16u>);
  expectAllSamples<Lum16s>(lumiRShiftC_16s_C1R, model::shiftRight<Lum16s>);
  expectAllSamples<Lum32s>(lumiLShiftC_32s_C1R, model::shiftLeft<Lum32s>);
  expectAllSamples<Lum32s>(lumiRShiftC_32s_C1R, model::shiftRight<Lum32s>);
}

// Every count beside other counts, in every channel.
template <typename T>
void expectAllByChannels(CountEach<T> function, T (*formula)(T, Lum32u), int channels) {
  const std::vector<T> src = allSamples<T>();
  const int width = static_cast<int>(src.size()) / channels;
  for (const Lum32u count : countsAbout(8 * sizeof(T)))
    for (int channel = 0; channel < channels; ++channel) {
      Lum32u counts[] = {3, 1, 2, 5};
      counts[channel] = count;
      std::vector<T> dst(src.size());
      ASSERT_EQ(function(src.data(), 1, counts, dst.data(), 1, {width, 1}), lumStatusOk);
      for (int i = 0; i < width * channels; ++i) {
        const auto at = static_cast<size_t>(i);
        if (dst[at] != formula(src[at], counts[i % channels]))
          FAIL() << +src[at] << " by " << counts[i % channels] << " gives " << +dst[at];
      }
    }
}

TEST(Shift, AllCountsOfChannels) {
  expectAllByChannels<Lum8u>(lumiLShiftC_8u_C3R, model::shiftLeft<Lum8u>, 3);
  expectAllByChannels<Lum8u>(lumiLShiftC_8u_C4R, model::shiftLeft<Lum8u>, 4);
  expectAllByChannels<Lum8u>(lumiRShiftC_8u_C3R, model::shiftRight<Lum8u>, 3);
  expectAllByChannels<Lum8u>(lumiRShiftC_8u_C4R, model::shiftRight<Lum8u>, 4);
  expectAllByChannels<Lum8s>(lumiRShiftC_8s_C3R, model::shiftRight<Lum8s>, 3);
  expectAllByChannels<Lum8s>(lumiRShiftC_8s_C4R, model::shiftRight<Lum8s>, 4);
  expectAllByChannels<Lum32s>(lumiLShiftC_32s_C4R, model::shiftLeft<Lum32s>, 4);
  expectAllByChannels<Lum32s>(lumiRShiftC_32s_C3R, model::shiftRight<Lum32s>, 3);
  expectAllByChannels<Lum32s>(lumiRShiftC_32s_C4R, model::shiftRight<Lum32s>, 4);
}

template <typename T, typename Function>
T resultOf(Function* function, T x, Lum32u count) {
  T result = 77;
  EXPECT_EQ(function(&x, 1, count, &result, 1, {1, 1}), lumStatusOk);
  return result;
}

// By hand.
TEST(Shift, KnownResults) {
  EXPECT_EQ(resultOf<Lum8u>(lumiLShiftC_8u_C1R, 0x81, 7), 0x80);
  EXPECT_EQ(resultOf<Lum8u>(lumiLShiftC_8u_C1R, 0xFF, 8), 0);
  EXPECT_EQ(resultOf<Lum8u>(lumiRShiftC_8u_C1R, 0xFF, 7), 1);
  EXPECT_EQ(resultOf<Lum8u>(lumiRShiftC_8u_C1R, 0xFF, 9), 0);
  EXPECT_EQ(resultOf<Lum8s>(lumiRShiftC_8s_C1R, -1, 1), -1);
  EXPECT_EQ(resultOf<Lum8s>(lumiRShiftC_8s_C1R, -128, 6), -2);
  EXPECT_EQ(resultOf<Lum8s>(lumiRShiftC_8s_C1R, 127, 8), 0);
  EXPECT_EQ(resultOf<Lum16s>(lumiRShiftC_16s_C1R, -3, 1), -2);
  EXPECT_EQ(resultOf<Lum16s>(lumiRShiftC_16s_C1R, -32768, 40), -1);
  EXPECT_EQ(resultOf<Lum16s>(lumiRShiftC_16s_C1R, 32767, 40), 0);
  EXPECT_EQ(resultOf<Lum32s>(lumiRShiftC_32s_C1R, INT32_MIN, 31), -1);
  EXPECT_EQ(resultOf<Lum32s>(lumiRShiftC_32s_C1R, INT32_MIN, 0xFFFFFFFF), -1);
  EXPECT_EQ(resultOf<Lum32s>(lumiLShiftC_32s_C1R, 3, 31), INT32_MIN);
  EXPECT_EQ(resultOf<Lum32s>(lumiLShiftC_32s_C1R, 3, 32), 0);
}

// Beyond the type no source of unsigned samples is read: it is closed. Signed ones have their signs there.
TEST(Shift, ResultsThatAreAllZeroReadNoSource) {
  Arena closed(1 << 12);
  closed.setAccessible(closed.begin(), closed.end(), false);
  const Byte* const src = closed.begin();
  const LumiSize roi{37, 2};
  const auto expectFill = [&](auto call, int used, int stored) {
    std::vector<Lum8u> dst(300, 9);
    LumStatus status = -1;
    ASSERT_FALSE(faultOf([&] { status = call(dst.data()); })) << "reads the source";
    ASSERT_EQ(status, lumStatusOk);
    for (int i = 0; i < 300; ++i) {
      const bool isFilled = i % 150 < 37 * stored && i % 150 % stored < used;
      ASSERT_EQ(dst[static_cast<size_t>(i)], isFilled ? 0 : 9) << i;
    }
  };
  const Lum32u counts[] = {8, 9, 0xFFFFFFFF, 31};
  expectFill([&](Lum8u* d) { return lumiLShiftC_8u_C1R(src, 64, 8, d, 150, roi); }, 1, 1);
  expectFill([&](Lum8u* d) { return lumiRShiftC_8u_C1R(src, 64, 0x80000000, d, 150, roi); }, 1, 1);
  expectFill([&](Lum8u* d) { return lumiRShiftC_8u_C3R(src, 64, counts, d, 150, roi); }, 3, 3);
  expectFill([&](Lum8u* d) { return lumiLShiftC_8u_C4R(src, 64, counts, d, 150, roi); }, 4, 4);
  expectFill([&](Lum8u* d) { return lumiLShiftC_8u_AC4R(src, 64, counts, d, 150, roi); }, 3, 4);
  Lum8s dst = 0;
  EXPECT_TRUE(faultOf([&] {
    lumiRShiftC_8s_C1R(reinterpret_cast<const Lum8s*>(src), 64, 8, &dst, 1, {1, 1});
  }));
}

TEST(Shift, CountsOfZeroInPlaceTouchNothing) {
  Arena closed(4096);
  closed.setAccessible(closed.begin(), closed.end(), false);
  Byte* const bytes = closed.begin();
  const Lum32u none[4] = {};
  EXPECT_EQ(lumiLShiftC_8u_C1IR(0, bytes, 64, {64, 2}), lumStatusOk);
  EXPECT_EQ(lumiRShiftC_16s_C3IR(none, reinterpret_cast<Lum16s*>(bytes), 64, {10, 2}), lumStatusOk);
  EXPECT_EQ(lumiRShiftC_8s_AC4IR(none, reinterpret_cast<Lum8s*>(bytes), 64, {10, 2}), lumStatusOk);
  EXPECT_EQ(lumiLShiftC_8u_C1IR(0, nullptr, 64, {64, 2}), lumStatusNullPointer);
  EXPECT_EQ(lumiLShiftC_8u_C1IR(0, bytes, 64, {0, 2}), lumStatusBadSize);
}

// The counts lie in the image that is shifted.
TEST(Shift, CountsAreReadFirst) {
  Lum32s image[] = {4, 1, 2, 3, 100, 200, 300, 400};
  const auto* const counts = reinterpret_cast<const Lum32u*>(image);
  EXPECT_EQ(lumiLShiftC_32s_C4IR(counts, image, 32, {2, 1}), lumStatusOk);
  const Lum32s expected[] = {64, 2, 8, 24, 1600, 400, 1200, 3200};
  EXPECT_TRUE(std::equal(std::begin(image), std::end(image), expected));
}

// A destination that lies a few samples before or behind the source: each result as if the ones before it
// were stored already.
TEST(Shift, OverlappingRowsAreDoneInOrder) {
  for (int width = 1; width <= 25; ++width)
    for (int offset = -70; offset <= 70; ++offset) {
      Random random(static_cast<uint64_t>(width * 1000 + offset));
      std::vector<Lum16s> image(300);
      random.fill(reinterpret_cast<Byte*>(image.data()), image.size() * 2);
      std::vector<Lum16s> expected = image;
      const Lum32u counts[] = {1, 0, 2};
      for (int i = 0; i < 3 * width; ++i)
        expected[static_cast<size_t>(100 + offset + i)] =
            model::shiftRight(expected[static_cast<size_t>(100 + i)], counts[i % 3]);
      const Lum16s* const src = image.data() + 100;
      ASSERT_EQ(lumiRShiftC_16s_C3R(src, 2, counts, image.data() + 100 + offset, 2, {width, 1}), lumStatusOk);
      ASSERT_EQ(image, expected) << "width " << width << ", destination " << offset << " samples on";
    }
}

// A row of samples is checked after its width is multiplied, and the product wraps.
TEST(Shift, WidthsThatWrapAreBadSizes) {
  Lum8u sample = 7;
  for (const Lum32u count : {0u, 1u, 8u}) {
    const Lum32u counts[] = {count, count, count, count};
    EXPECT_EQ(lumiLShiftC_8u_C4R(&sample, 1, counts, &sample, 1, {1 << 30, 1}), lumStatusBadSize);
    EXPECT_EQ(lumiRShiftC_8u_C3IR(counts, &sample, 1, {1 << 30, 1}), lumStatusBadSize);
  }
  EXPECT_EQ(sample, 7);
}

// Null pointers come before steps, steps before sizes.
TEST(Shift, OrderOfChecks) {
  Lum8u sample = 7;
  const Lum32u counts[4] = {};
  EXPECT_EQ(lumiLShiftC_8u_C4R(&sample, 0, nullptr, &sample, 0, {0, 0}), lumStatusNullPointer);
  EXPECT_EQ(lumiLShiftC_8u_C4R(&sample, 0, counts, &sample, 1, {0, 0}), lumStatusBadStep);
  EXPECT_EQ(lumiLShiftC_8u_C1R(&sample, 1, 8, &sample, 0, {1, 1}), lumStatusBadStep);
  EXPECT_EQ(lumiRShiftC_8u_C1IR(8, &sample, 1, {1, 0}), lumStatusBadSize);
  EXPECT_EQ(sample, 7);
}

}  // namespace
}  // namespace test
