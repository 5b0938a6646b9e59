// SPDX-License-Identifier: MIT
// Scale between sample types: against the model, every sample of the small types, the rounding control, and
// large images about the sizes from which on stores bypass the cache.
#include "lumi/scale.h"

#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <cmath>
#include <limits>
#include <vector>

#include "model/data/scale.hpp"
#include "support/member.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

// The model is called with what a pair of types has besides images.
template <typename S, typename D>
std::function<void(const Call&)> modelOf(model::Channels channels) {
  constexpr bool widens = std::is_same_v<S, Lum8u>, narrows = std::is_same_v<D, Lum8u>;
  using Other = std::conditional_t<widens, D, S>;
  constexpr bool isWide =
      std::is_same_v<Other, Lum16u> || std::is_same_v<Other, Lum16s> || std::is_same_v<Other, Lum32s>;
  if constexpr (widens != narrows && std::is_same_v<Other, Lum32f>)
    return [=](const Call& c) {
      model::scale<S, D>(c.srcImage(), c.dstImage(), c.roi, channels, c.lower, c.upper);
    };
  else if constexpr (narrows && isWide)
    return
        [=](const Call& c) { model::scale<S, D>(c.srcImage(), c.dstImage(), c.roi, channels, c.numbers[0]); };
  else if constexpr (widens && isWide)
    return [=](const Call& c) { model::scale<S, D>(c.srcImage(), c.dstImage(), c.roi, channels); };
  else
    return {};
}

const bool added = addModelTests(membersOf("Scale", [](Member& m, auto src, auto dst) {
  m.contents = kAnyContents;
  m.streamsFrom =
      6 << 20;  // beyond 1398101 pixels; those of several channels are among the large images below
  m.model = modelOf<decltype(src), decltype(dst)>(m.channels);
}));

template <typename S, typename D, typename... More>
using Scale = LumStatus (*)(const S*, int, D*, int, LumiSize, More...);

template <typename T>
model::Image imageOf(const std::vector<T>& samples, int step) {
  return {reinterpret_cast<Byte*>(const_cast<T*>(samples.data())), step};
}

// One row through the export and through the model.
template <typename S, typename D, typename... More>
void expectRow(Scale<S, D, More...> scale, const std::vector<S>& src, More... more) {
  const LumiSize roi{static_cast<int>(src.size()), 1};
  std::vector<D> result(src.size()), expected(src.size());
  ASSERT_EQ(scale(src.data(), roi.width * static_cast<int>(sizeof(S)), result.data(),
                  roi.width * static_cast<int>(sizeof(D)), roi, more...),
            lumStatusOk);
  model::scale<S, D>(imageOf(src, 0), imageOf(expected, 0), roi, {1, 1, 1}, more...);
  for (size_t i = 0; i < src.size(); ++i)
    ASSERT_EQ(std::memcmp(&result[i], &expected[i], sizeof(D)), 0)
        << +src[i] << " gives " << +result[i] << ", not " << +expected[i];
}

template <typename T>
std::vector<T> everySample() {
  std::vector<T> all;
  for (int v = std::numeric_limits<T>::min(); v <= std::numeric_limits<T>::max(); ++v)
    all.push_back(static_cast<T>(v));
  return all;
}

constexpr LumAlgorithmHint kHints[] = {0, 1, 2, 3, -1, 2 + 256, INT32_MIN, INT32_MAX};
constexpr std::pair<float, float> kBounds[] = {{0.0f, 255.0f},     {-1.0f, 1.0f},         {0.0f, 1.0f},
                                               {-0.1f, 1000.7f},   {-3e38f, 3e38f},       {1e-40f, 3e-40f},
                                               {16777216, 1.7e7f}, {-1e9f, -0.9999999e9f}};

TEST(Scale, EveryByteWidens) {
  const auto all = everySample<Lum8u>();
  expectRow(lumiScale_8u16u_C1R, all);
  expectRow(lumiScale_8u16s_C1R, all);
  expectRow(lumiScale_8u32s_C1R, all);
  for (const auto& [lower, upper] : kBounds) expectRow(lumiScale_8u32f_C1R, all, lower, upper);
}

TEST(Scale, EveryWordNarrows) {
  for (LumAlgorithmHint hint : kHints) {
    expectRow(lumiScale_16s8u_C1R, everySample<Lum16s>(), hint);
    expectRow(lumiScale_16u8u_C1R, everySample<Lum16u>(), hint);
  }
}

// About every step from one result to the next, for both ways, and about powers of two.
TEST(Scale, IntegersNarrowAboutEveryStep) {
  std::vector<Lum32s> src;
  const auto about = [&](int64_t v) {
    for (int64_t near = v - 300; near <= v + 300; ++near)
      if (near >= INT32_MIN && near <= INT32_MAX) src.push_back(static_cast<Lum32s>(near));
  };
  for (int64_t step = 0; step <= 256; ++step) {
    about(INT32_MIN + step * 16843009 - 8421504);
    about(INT32_MIN + step * 16777216);
  }
  for (int bit = 0; bit < 32; ++bit) {
    about(int64_t{1} << bit);
    about(-(int64_t{1} << bit));
  }
  Random random(settings().seed);
  for (int i = 0; i < 1000000; ++i) src.push_back(static_cast<Lum32s>(random.next()));
  for (LumAlgorithmHint hint : kHints) expectRow(lumiScale_32s8u_C1R, src, hint);
}

TEST(Scale, FloatsNarrowAboutEveryStep) {
  using Limits = std::numeric_limits<float>;
  for (const auto& [lower, upper] : kBounds) {
    std::vector<Lum32f> src = {0.0f,
                               -0.0f,
                               Limits::infinity(),
                               -Limits::infinity(),
                               Limits::max(),
                               -Limits::max(),
                               Limits::denorm_min(),
                               Limits::quiet_NaN(),
                               Limits::min(),
                               -Limits::min(),
                               Limits::signaling_NaN(),
                               2147483648.0f,
                               4294967296.0f,
                               -2147483648.0f,
                               -2147483904.0f,
                               2147483392.0f,
                               1e10f,
                               -1e10f,
                               lower,
                               upper};
    const double range = static_cast<double>(upper) - static_cast<double>(lower);
    for (int half = -4; half <= 516; ++half) {
      auto x = static_cast<float>(static_cast<double>(lower) + range * half / 510);
      for (int i = 0; i < 8; ++i) x = std::nextafter(x, -Limits::infinity());
      for (int i = 0; i < 16; ++i, x = std::nextafter(x, Limits::infinity())) src.push_back(x);
    }
    Random random(settings().seed);
    for (int i = 0; i < 100000; ++i) {
      const auto bits = static_cast<uint32_t>(random.next());
      float x = 0;
      std::memcpy(&x, &bits, sizeof x);
      src.push_back(x);
    }
    expectRow(lumiScale_32f8u_C1R, src, lower, upper);
  }
}

TEST(Scale, BeyondTheIntegersFloatsSaturate) {
  const std::vector<Lum32f> src = {
      256,   300,    3e9f,  1e20f,  3e38f, std::numeric_limits<float>::infinity(),
      -0.5f, -0.51f, -3e9f, -3e38f, 2.5f,  3.5f};
  const std::vector<Lum8u> expected = {255, 255, 255, 255, 255, 255, 0, 0, 0, 0, 2, 4};
  std::vector<Lum8u> dst(src.size());
  const LumiSize roi{static_cast<int>(src.size()), 1};
  ASSERT_EQ(lumiScale_32f8u_C1R(src.data(), 4 * roi.width, dst.data(), roi.width, roi, 0, 255), lumStatusOk);
  EXPECT_EQ(dst, expected);
}

TEST(Scale, EndsOfTheRanges) {
  const Lum8u bytes[] = {0, 255};
  Lum16s words[2];
  ASSERT_EQ(lumiScale_8u16s_C1R(bytes, 2, words, 4, {2, 1}), lumStatusOk);
  EXPECT_EQ(words[0], -32768);
  EXPECT_EQ(words[1], 32767);
  Lum32s longs[2];
  ASSERT_EQ(lumiScale_8u32s_C1R(bytes, 2, longs, 8, {2, 1}), lumStatusOk);
  EXPECT_EQ(longs[0], INT32_MIN);
  EXPECT_EQ(longs[1], INT32_MAX);
  Lum8u back[2];
  for (LumAlgorithmHint hint : kHints) {
    ASSERT_EQ(lumiScale_16s8u_C1R(words, 4, back, 2, {2, 1}, hint), lumStatusOk);
    EXPECT_EQ(back[0], 0);
    EXPECT_EQ(back[1], 255);
    ASSERT_EQ(lumiScale_32s8u_C1R(longs, 8, back, 2, {2, 1}, hint), lumStatusOk);
    EXPECT_EQ(back[0], 0);
    EXPECT_EQ(back[1], 255);
  }
}

// Infinite differences pass.
TEST(Scale, BoundsAreTestedFirst) {
  constexpr float nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
  constexpr std::pair<float, float> refused[] = {{1, 1},     {0, -0.0f},   {2, 1},   {nan, 1},   {0, nan},
                                                 {inf, inf}, {-inf, -inf}, {inf, 0}, {nan, nan}, {0, -inf}};
  for (const auto& [lower, upper] : refused) {
    EXPECT_EQ(lumiScale_32f8u_C1R(nullptr, 0, nullptr, 0, {0, 0}, lower, upper), lumStatusBadDataRange);
    EXPECT_EQ(lumiScale_8u32f_C1R(nullptr, 0, nullptr, 0, {0, 0}, lower, upper), lumStatusBadDataRange);
  }
  EXPECT_EQ(lumiScale_32f8u_C1R(nullptr, 0, nullptr, 0, {0, 0}, -3e38f, 3e38f), lumStatusNullPointer);
  EXPECT_EQ(lumiScale_8u32f_C3R(nullptr, 0, nullptr, 0, {0, 0}, 0, inf), lumStatusNullPointer);
}

// The rounding of this thread's vector unit, put back at the end of a test.
class RoundingTest : public testing::Test {
 protected:
  static constexpr unsigned kField = 0x6000;
  static constexpr unsigned kStates[] = {0, 0x2000, 0x4000, 0x6000};

  static void set(unsigned state) { _mm_setcsr((_mm_getcsr() & ~kField) | state); }
  static unsigned get() { return _mm_getcsr() & kField; }
  void TearDown() override { _mm_setcsr(before_); }

  // Samples that tell one rounding from another, and what they give with the unit to nearest.
  template <typename S, typename D, typename... More>
  void expectSameInEveryState(Scale<S, D, More...> scale, const std::vector<S>& src, More... more) {
    const LumiSize roi{static_cast<int>(src.size()), 1};
    std::vector<D> expected(src.size());
    model::scale<S, D>(imageOf(src, 0), imageOf(expected, 0), roi, {1, 1, 1}, more...);
    for (unsigned state : kStates) {
      std::vector<D> dst(src.size());
      set(state);
      const LumStatus status =
          scale(src.data(), roi.width * static_cast<int>(sizeof(S)), dst.data(), roi.width, roi, more...);
      const unsigned after = get();
      set(0);
      EXPECT_EQ(status, lumStatusOk);
      EXPECT_EQ(after, state);
      EXPECT_EQ(dst, expected) << "in state " << state;
    }
  }

  // Every check that fails, and what the rounding is then.
  template <typename S, typename D, typename... More>
  void expectAfterFailure(Scale<S, D, More...> scale, bool setsNearest, More... more) {
    S src[4] = {};
    D dst[4] = {};
    constexpr int srcStep = sizeof src, dstStep = sizeof dst;
    const auto after = [&](unsigned state, LumStatus expected, const S* s, int sStep, D* d, int dStep,
                           LumiSize roi) {
      set(state);
      const LumStatus status = scale(s, sStep, d, dStep, roi, more...);
      const unsigned rounding = get();
      set(0);
      EXPECT_EQ(status, expected);
      EXPECT_EQ(rounding, setsNearest ? 0 : state);
    };
    for (unsigned state : kStates) {
      after(state, lumStatusNullPointer, nullptr, srcStep, dst, dstStep, {1, 1});
      after(state, lumStatusNullPointer, src, srcStep, nullptr, dstStep, {1, 1});
      after(state, lumStatusBadSize, src, srcStep, dst, dstStep, {0, 1});
      after(state, lumStatusBadSize, src, srcStep, dst, dstStep, {1, -1});
      after(state, lumStatusBadStep, src, 0, dst, dstStep, {1, 1});
      after(state, lumStatusBadStep, src, srcStep, dst, -1, {1, 1});
    }
  }

  const unsigned before_ = _mm_getcsr();
};

TEST_F(RoundingTest, SuccessPutsItBack) {
  std::vector<Lum32f> floats;
  for (int i = -3; i < 515; ++i) floats.push_back(static_cast<float>(i) * 0.5f);
  expectSameInEveryState(lumiScale_32f8u_C1R, floats, 0.0f, 255.0f);
  expectSameInEveryState(lumiScale_32f8u_C1R, floats, -0.1f, 200.7f);
  expectSameInEveryState(lumiScale_32f8u_C1R, {-3e38f, 3e38f, 1e38f, -1e38f, 0.0f}, -3e38f, 3e38f);
  for (LumAlgorithmHint hint : kHints) {
    expectSameInEveryState(lumiScale_16s8u_C1R, everySample<Lum16s>(), hint);
    expectSameInEveryState(lumiScale_16u8u_C1R, everySample<Lum16u>(), hint);
    std::vector<Lum32s> longs;
    for (int64_t v = INT32_MIN; v <= INT32_MAX; v += 8421504) longs.push_back(static_cast<Lum32s>(v));
    expectSameInEveryState(lumiScale_32s8u_C1R, longs, hint);
  }
}

TEST_F(RoundingTest, FailureLeavesItToNearest) {
  for (LumAlgorithmHint hint : kHints) {
    expectAfterFailure(lumiScale_16s8u_C1R, hint == 2, hint);
    expectAfterFailure(lumiScale_16u8u_C3R, hint == 2, hint);
    expectAfterFailure(lumiScale_32s8u_C4R, hint == 2, hint);
    expectAfterFailure(lumiScale_16s8u_AC4R, hint == 2, hint);
  }
  expectAfterFailure(lumiScale_32f8u_C1R, true, 0.0f, 1.0f);
  expectAfterFailure(lumiScale_32f8u_AC4R, true, 0.0f, 1.0f);
  expectAfterFailure(lumiScale_8u32f_C1R, false, 0.0f, 1.0f);
  expectAfterFailure(lumiScale_8u16u_C1R, false);
  for (unsigned state : kStates) {
    set(state);
    EXPECT_EQ(lumiScale_32f8u_C1R(nullptr, 0, nullptr, 0, {0, 0}, 1, 1), lumStatusBadDataRange);
    EXPECT_EQ(get(), 0u);
    set(state);
    EXPECT_EQ(lumiScale_8u32f_C1R(nullptr, 0, nullptr, 0, {0, 0}, 1, 1), lumStatusBadDataRange);
    EXPECT_EQ(get(), state);
  }
}

// Widening to floats leaves the rounding alone, and follows it.
TEST_F(RoundingTest, WideningToFloatsFollowsIt) {
  const auto all = everySample<Lum8u>();
  for (unsigned state : kStates)
    for (const auto& [lower, upper] : kBounds) {
      set(state);
      expectRow(lumiScale_8u32f_C1R, all, lower, upper);
      EXPECT_EQ(get(), state);
    }
}

// Images of so many pixels and one less; rows tight or not, on boundaries or not even at whole samples.
template <typename S, typename D, typename... More>
void expectLarge(Scale<S, D, More...> scale, model::Channels channels, int limit, More... more) {
  Random random(settings().seed);
  const int srcPixel = channels.src * static_cast<int>(sizeof(S)),
            dstPixel = channels.dst * static_cast<int>(sizeof(D));
  std::vector<Byte> src(static_cast<size_t>(srcPixel) * static_cast<size_t>(limit) + 4096);
  std::vector<Byte> result(static_cast<size_t>(dstPixel) * static_cast<size_t>(limit) + 4096);
  random.fill(src.data(), src.size());
  // A vector less than the boundary, the boundary, a sample and a byte behind it.
  constexpr int phases[] = {0, 64 - 16, sizeof(D), 1};
  int next = random.below(4);
  for (const LumiSize& roi : {LumiSize{limit, 1}, {limit - 1, 1}, {limit / 3 + 1, 3}, {limit / 20, 20}}) {
    const int phase = phases[next++ % 4];
    const int gap = roi.height > 1 && random.oneIn(2) ? 7 : 0;
    const int srcStep = roi.width * srcPixel + gap, dstStep = roi.width * dstPixel + gap;
    random.fill(result.data(), result.size());
    std::vector<Byte> expected = result;
    Byte* const dst = result.data() + phase;
    ASSERT_EQ(scale(reinterpret_cast<const S*>(src.data() + 3), srcStep, reinterpret_cast<D*>(dst), dstStep,
                    roi, more...),
              lumStatusOk);
    model::scale<S, D>({src.data() + 3, srcStep}, {expected.data() + phase, dstStep}, roi, channels, more...);
    ASSERT_TRUE(result == expected) << roi.width << " x " << roi.height << " at phase " << phase;
  }
}

TEST(ScaleLarge, Widening) {
  expectLarge(lumiScale_8u16u_C1R, {1, 1, 1}, 1398101);
  expectLarge(lumiScale_8u16s_C3R, {3, 3, 3}, 1398101);
  expectLarge(lumiScale_8u16s_AC4R, {4, 4, 3}, 1398101);
  expectLarge(lumiScale_8u32s_C1R, {1, 1, 1}, 838860);
  expectLarge(lumiScale_8u32s_C4R, {4, 4, 4}, 838860);
  expectLarge(lumiScale_8u32s_AC4R, {4, 4, 3}, 838860);
}

TEST(ScaleLarge, WideningToFloats) {
  expectLarge(lumiScale_8u32f_C1R, {1, 1, 1}, 838860, -1.0f, 1.0f);
  expectLarge(lumiScale_8u32f_C3R, {3, 3, 3}, 838860, 0.0f, 1.0f);
  expectLarge(lumiScale_8u32f_AC4R, {4, 4, 3}, 838860, 0.0f, 1.0f);
}

TEST(ScaleLarge, Narrowing) {
  expectLarge(lumiScale_16s8u_C1R, {1, 1, 1}, 1398101, LumAlgorithmHint{1});
  expectLarge(lumiScale_16u8u_C3R, {3, 3, 3}, 1398101, LumAlgorithmHint{1});
  expectLarge(lumiScale_16u8u_AC4R, {4, 4, 3}, 1398101, LumAlgorithmHint{0});
  expectLarge(lumiScale_32s8u_C1R, {1, 1, 1}, 1398101, LumAlgorithmHint{3});
  expectLarge(lumiScale_32s8u_C1R, {1, 1, 1}, 1398101, LumAlgorithmHint{2});
  expectLarge(lumiScale_16s8u_AC4R, {4, 4, 3}, 1398101, LumAlgorithmHint{2});
  expectLarge(lumiScale_32f8u_C1R, {1, 1, 1}, 1398101, -1e9f, 1e9f);
}

}  // namespace
}  // namespace test
