// SPDX-License-Identifier: MIT
// Bit images, against the model; every offset, values by their bits, and thresholds of every kind.
#include "model/data/bits.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <type_traits>
#include <vector>

#include "lumi/bits.h"
#include "support/member.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

// What grey values and thresholds are chosen from; floats are whole ones here.
template <typename T>
std::vector<int> choices() {
  if constexpr (std::is_floating_point_v<T>) {
    return {-40, -1, 0, 1, 3, 255, 32767, 1 << 24};
  } else {
    constexpr auto low = static_cast<int>(std::numeric_limits<T>::min()),
                   high = static_cast<int>(std::numeric_limits<T>::max());
    return {low, low + 1, 0, 1, 7, high / 2, high - 1, high};
  }
}

const bool grayAdded = addModelTests(membersOf("BinToGray", [](Member& m, auto, auto dst) {
  using D = decltype(dst);
  m.numbers[1] = m.numbers[2] = choices<D>();
  m.model = [](const Call& c) {
    model::binToGray(c.srcImage(), c.numbers[0], c.dstImage(), c.roi, static_cast<D>(c.numbers[1]),
                     static_cast<D>(c.numbers[2]));
  };
}));

const bool binAdded = addModelTests(membersOf("GrayToBin", [](Member& m, auto src, auto) {
  using S = decltype(src);
  m.numbers[1] = choices<S>();
  m.contents = kAnyContents;
  m.model = [](const Call& c) {
    model::grayToBin(c.srcImage(), c.dstImage(), c.numbers[0], c.roi, static_cast<S>(c.numbers[1]));
  };
}));

bool ofBits(const Member& m) { return m.types.front() == "1u"; }

const bool convertAdded = addModelTests([] {
  std::vector<Member> all = membersOf("Convert", [](Member& m, auto, auto) {
    m.model = [](const Call& c) { model::convertBits(c.srcImage(), c.numbers[0], c.dstImage(), c.roi); };
  });
  all.erase(std::remove_if(all.begin(), all.end(), [](const Member& m) { return !ofBits(m); }), all.end());
  return all;
}());

constexpr int kMaxWidth = 300;
constexpr int kOffsets[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 15, 31, 32, 1 << 20, INT32_MAX};

// Two rows of bits, with bytes around them that are watched.
struct Bits {
  static constexpr int kStep = kMaxWidth / 8 + 8;
  Byte bytes[4 * kStep];
  explicit Bits(Random& random) { random.fill(bytes, sizeof bytes); }
  model::Image image() { return {bytes + 5, kStep}; }
};

template <typename D, typename Gray>
void expectGray(Gray toGray, D zeroValue, D oneValue) {
  Random random(settings().seed);
  for (int offset : kOffsets)
    for (int width = 1; width <= kMaxWidth; ++width) {
      Bits src(random);
      const LumiSize roi{width, 2};
      std::vector<D> dst(2 * kMaxWidth, D{1}), expected = dst;
      constexpr int step = kMaxWidth * sizeof(D);
      ASSERT_EQ(toGray(src.image().first, Bits::kStep, offset, dst.data(), step, roi, zeroValue, oneValue),
                lumStatusOk);
      model::binToGray(src.image(), offset, {reinterpret_cast<Byte*>(expected.data()), step}, roi, zeroValue,
                       oneValue);
      ASSERT_EQ(std::memcmp(dst.data(), expected.data(), dst.size() * sizeof(D)), 0)
          << "offset " << offset << ", width " << width;
    }
}

TEST(BinToGray, EveryOffsetAndWidth) {
  expectGray<Lum8u>(lumiBinToGray_1u8u_C1R, 3, 250);
  expectGray<Lum16s>(lumiBinToGray_1u16s_C1R, -32768, 32767);
  expectGray<Lum16u>(lumiBinToGray_1u16u_C1R, 65535, 256);
  expectGray<Lum32f>(lumiBinToGray_1u32f_C1R, -0.1f, 1e30f);
}

// Values are stored with all their bits.
TEST(BinToGray, FloatsKeepTheirBits) {
  const uint32_t patterns[] = {0x80000000, 0x7F800001, 0xFFC12345, 0x00000001};
  const Lum8u src[] = {0xA5, 0x5A};
  for (uint32_t zero : patterns)
    for (uint32_t one : patterns) {
      float zeroValue = 0, oneValue = 0;
      std::memcpy(&zeroValue, &zero, sizeof zero);
      std::memcpy(&oneValue, &one, sizeof one);
      uint32_t dst[16];
      ASSERT_EQ(lumiBinToGray_1u32f_C1R(src, 2, 0, reinterpret_cast<float*>(dst), sizeof dst, {16, 1},
                                        zeroValue, oneValue),
                lumStatusOk);
      for (int x = 0; x < 16; ++x) EXPECT_EQ(dst[x], (src[x / 8] >> x % 8 & 1) != 0 ? one : zero) << x;
    }
}

TEST(BinToGray, CountsFromTheLowEnd) {
  const Lum8u src[] = {0x01, 0x80};
  Lum8u dst[9] = {};
  ASSERT_EQ(lumiBinToGray_1u8u_C1R(src, 2, 0, dst, 9, {9, 1}, 10, 20), lumStatusOk);
  EXPECT_EQ(dst[0], 20);
  for (int x = 1; x < 9; ++x) EXPECT_EQ(dst[x], 10);
}

TEST(ConvertBits, CountsFromTheHighEnd) {
  const Lum8u src[] = {0x80, 0x01};
  Lum8u dst[9] = {};
  ASSERT_EQ(lumiConvert_1u8u_C1R(src, 2, 0, dst, 9, {9, 1}), lumStatusOk);
  EXPECT_EQ(dst[0], 255);
  for (int x = 1; x < 9; ++x) EXPECT_EQ(dst[x], 0);
}

TEST(ConvertBits, EveryOffsetAndWidth) {
  Random random(settings().seed);
  for (int offset : kOffsets)
    for (int width = 1; width <= kMaxWidth; ++width) {
      Bits src(random);
      std::vector<Lum8u> dst(2 * kMaxWidth, 1), expected = dst;
      ASSERT_EQ(
          lumiConvert_1u8u_C1R(src.image().first, Bits::kStep, offset, dst.data(), kMaxWidth, {width, 2}),
          lumStatusOk);
      model::convertBits(src.image(), offset, {expected.data(), kMaxWidth}, {width, 2});
      ASSERT_EQ(dst, expected) << "offset " << offset << ", width " << width;
    }
}

template <typename S, typename Bin>
void expectBits(Bin toBits, const std::vector<S>& samples, const std::vector<S>& thresholds) {
  Random random(settings().seed);
  for (int offset : kOffsets)
    for (int width = 1; width <= kMaxWidth; ++width) {
      const S threshold = random.pick(thresholds);
      std::vector<S> src(2 * kMaxWidth);
      for (S& sample : src) sample = random.pick(samples);
      constexpr int step = kMaxWidth * sizeof(S);
      Bits dst(random), expected = dst;
      const LumiSize roi{width, 2};
      ASSERT_EQ(toBits(src.data(), step, dst.image().first, Bits::kStep, offset, roi, threshold),
                lumStatusOk);
      model::grayToBin({reinterpret_cast<Byte*>(src.data()), step}, expected.image(), offset, roi, threshold);
      ASSERT_EQ(std::memcmp(dst.bytes, expected.bytes, sizeof dst.bytes), 0)
          << "offset " << offset << ", width " << width << ", threshold " << +threshold;
    }
}

TEST(GrayToBin, EveryOffsetAndWidth) {
  expectBits<Lum8u>(lumiGrayToBin_8u1u_C1R, {0, 1, 127, 128, 129, 254, 255}, {0, 1, 127, 128, 254, 255});
  expectBits<Lum16s>(lumiGrayToBin_16s1u_C1R, {-32768, -32767, -1, 0, 1, 255, 256, 32766, 32767},
                     {-32768, -32767, -1, 0, 1, 255, 32766, 32767});
  expectBits<Lum16u>(lumiGrayToBin_16u1u_C1R, {0, 1, 255, 256, 32767, 32768, 65534, 65535},
                     {0, 1, 255, 32767, 32768, 65534, 65535});
  using Limits = std::numeric_limits<float>;
  const std::vector<Lum32f> floats = {0.0f,
                                      -0.0f,
                                      1.0f,
                                      -1.0f,
                                      Limits::max(),
                                      -Limits::max(),
                                      Limits::min(),
                                      Limits::denorm_min(),
                                      -Limits::denorm_min(),
                                      Limits::infinity(),
                                      -Limits::infinity(),
                                      Limits::quiet_NaN(),
                                      -Limits::quiet_NaN()};
  expectBits<Lum32f>(lumiGrayToBin_32f1u_C1R, floats, floats);
}

TEST(GrayToBin, EverySampleAndThresholdOfAByte) {
  std::vector<Lum8u> src(256), dst(32);
  for (size_t v = 0; v < 256; ++v) src[v] = static_cast<Lum8u>(v);
  for (int threshold = 0; threshold < 256; ++threshold) {
    ASSERT_EQ(
        lumiGrayToBin_8u1u_C1R(src.data(), 256, dst.data(), 32, 0, {256, 1}, static_cast<Lum8u>(threshold)),
        lumStatusOk);
    for (int v = 0; v < 256; ++v)
      ASSERT_EQ(dst[static_cast<size_t>(v / 8)] >> v % 8 & 1, threshold < v) << v << " above " << threshold;
  }
}

TEST(BitOffsets, NegativeOnesAreRefusedAfterTheSteps) {
  Lum8u a[8] = {}, b[8] = {};
  for (int offset : {-1, -8, INT32_MIN}) {
    EXPECT_EQ(lumiConvert_1u8u_C1R(a, 8, offset, b, 8, {8, 1}), lumStatusBadSize);
    EXPECT_EQ(lumiConvert_1u8u_C1R(a, 0, offset, b, 8, {8, 1}), lumStatusBadStep);
    EXPECT_EQ(lumiBinToGray_1u8u_C1R(a, 8, offset, b, 8, {8, 1}, 0, 1), lumStatusBadSize);
    EXPECT_EQ(lumiBinToGray_1u8u_C1R(a, 8, offset, b, -1, {8, 1}, 0, 1), lumStatusBadStep);
    EXPECT_EQ(lumiGrayToBin_8u1u_C1R(a, 8, b, 8, offset, {8, 1}, 0), lumStatusBadSize);
    EXPECT_EQ(lumiGrayToBin_8u1u_C1R(a, 8, b, 0, offset, {8, 1}, 0), lumStatusBadStep);
  }
}

}  // namespace
}  // namespace test
