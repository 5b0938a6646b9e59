// SPDX-License-Identifier: MIT
// Sums and means: against the model; by hand what lanes hold at most, and floats: which form is taken, how
// far each may be off, and what is not a number.
#include "lumi/sum.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "model/statistics/sum.hpp"
#include "support/member.hpp"
#include "support/random.hpp"

namespace test {
namespace {

using SumTypes = Types<Lum8u, Lum16u, Lum16s, Lum32f>;

template <typename Of>
std::vector<Member> reductions(const char* operation, const char* result, Of of) {
  return membersOfOneType(
      operation,
      [=](Member& m, auto sample) {
        using T = decltype(sample);
        const int stored = m.channels.src, used = m.channels.moved;
        const std::string layout = m.layouts.front();
        m.contents = kAnyContents;
        m.floatResults = std::is_floating_point_v<T>;
        m.mayStream = false;
        m.results(result, "64f");
        m.model = [=](const Call& c) {
          const double unit = model::sumUnit(layout, c.roi.width, c.numbers[0]);
          for (int channel = 0; channel < used; ++channel) {
            const auto [right, tolerance] =
                of(model::sumOf<T>(c.srcImage(), c.roi, stored, channel, unit), c.roi, stored);
            c.block(result).storeWithin(channel, right, tolerance);
          }
        };
      },
      SumTypes());
}

const bool sumsAdded =
    addModelTests(reductions("Sum", "sum", [](model::Sum sum, LumiSize, int) { return sum; }));
const bool meansAdded = addModelTests(reductions("Mean", "mean", model::meanOf));

template <typename T>
using SumOfIntegers = LumStatus (*)(const T*, int, LumiSize, Lum64f*);
using SumOfFloats = LumStatus (*)(const Lum32f*, int, LumiSize, Lum64f*, int);

// More equal samples than any lanes hold, in a long row and in rows by themselves.
template <typename T>
void expectExact(SumOfIntegers<T> sum, int channels, T sample) {
  constexpr int kWidth = 300001, kHeight = 5;
  const std::vector<T> image(size_t{kWidth} * kHeight * static_cast<size_t>(channels), sample);
  const auto row = kWidth * channels * static_cast<int>(sizeof(T));
  for (const int step : {row, 0}) {
    Lum64f sums[4] = {};
    ASSERT_EQ(sum(image.data(), step, {kWidth, kHeight}, sums), lumStatusOk);
    for (int c = 0; c < channels; ++c) EXPECT_EQ(sums[c], 1.0 * kWidth * kHeight * sample) << channels;
  }
}
template <typename T>
void expectExact(SumOfIntegers<T> one, SumOfIntegers<T> three, SumOfIntegers<T> four) {
  for (const T sample : {std::numeric_limits<T>::max(), std::numeric_limits<T>::min()}) {
    expectExact(one, 1, sample);
    expectExact(three, 3, sample);
    expectExact(four, 4, sample);
  }
}

TEST(Sum, LanesDoNotOverflow) {
  expectExact<Lum8u>(lumiSum_8u_C1R, lumiSum_8u_C3R, lumiSum_8u_C4R);
  expectExact<Lum16u>(lumiSum_16u_C1R, lumiSum_16u_C3R, lumiSum_16u_C4R);
  expectExact<Lum16s>(lumiSum_16s_C1R, lumiSum_16s_C3R, lumiSum_16s_C4R);
}

TEST(Sum, OfManySamplesIsExact) {
  constexpr int kSide = 70000;
  const std::vector<Lum16u> row(kSide, 65535);
  Lum64f sum = 0;
  ASSERT_EQ(lumiSum_16u_C1R(row.data(), 0, {kSide, kSide}, &sum), lumStatusOk);
  EXPECT_EQ(sum, static_cast<Lum64f>(int64_t{kSide} * kSide * 65535));
}

// A large sample first, which takes the others in where its lane has single precision. Twice a one is lost
// too, as is their sum beside it.
constexpr Lum32f kLarge = 1 << 30;
std::vector<Lum32f> largeAndOnes(int width, int channels) {
  std::vector<Lum32f> row(static_cast<size_t>(width) * static_cast<size_t>(channels), 1);
  for (int c = 0; c < channels; ++c) row[static_cast<size_t>(c)] = kLarge;
  return row;
}

bool losesOnes(SumOfFloats sum, int channels, int width, int hint) {
  const std::vector<Lum32f> row = largeAndOnes(width, channels);
  Lum64f sums[4] = {};
  EXPECT_EQ(sum(row.data(), 0, {width, 1}, sums, hint), lumStatusOk);
  const Lum64f exact = kLarge + (width - 1.0);
  for (int c = 1; c < std::min(channels, 3); ++c) EXPECT_EQ(sums[c], sums[0]) << c;
  return sums[0] != exact;
}

TEST(Sum, HintAndWidthChooseThePrecision) {
  for (const int hint : {-1, 0, 1, 2, 3, 1 << 20}) {
    for (const int width : {5, 13, 14, 16, 17, 64}) {
      EXPECT_EQ(losesOnes(lumiSum_32f_C1R, 1, width, hint), hint != 2 && width > 16) << hint << " " << width;
      EXPECT_EQ(losesOnes(lumiSum_32f_C3R, 3, width, hint), hint != 2 && width > 13) << hint << " " << width;
      EXPECT_EQ(losesOnes(lumiSum_32f_C4R, 4, width, hint), hint == 1) << hint << " " << width;
      EXPECT_EQ(losesOnes(lumiSum_32f_AC4R, 4, width, hint), hint != 2) << hint << " " << width;
    }
  }
}

// 2^24 + 1 ones.
TEST(Sum, SinglePrecisionLosesUnitSteps) {
  constexpr int kWidth = 257, kHeight = 65281, kOnes = (1 << 24) + 1;
  static_assert(kWidth * kHeight == kOnes);
  const std::vector<Lum32f> row(4 * kWidth, 1);
  const auto sum = [&](SumOfFloats f, int hint) {
    Lum64f sums[4];
    EXPECT_EQ(f(row.data(), 0, {kWidth, kHeight}, sums, hint), lumStatusOk);
    return sums[0];
  };
  EXPECT_NE(sum(lumiSum_32f_C1R, 0), kOnes);
  EXPECT_EQ(sum(lumiSum_32f_C1R, 2), kOnes);
  EXPECT_NE(sum(lumiSum_32f_C3R, 0), kOnes);
  EXPECT_EQ(sum(lumiSum_32f_C3R, 2), kOnes);
  EXPECT_NE(sum(lumiSum_32f_C4R, 1), kOnes);
  EXPECT_EQ(sum(lumiSum_32f_C4R, 0), kOnes);
  EXPECT_EQ(sum(lumiSum_32f_AC4R, 0), kOnes);  // its rows are short
  EXPECT_EQ(sum(lumiSum_32f_AC4R, 2), kOnes);
}

// In any order of additions the error is at most (n - 1) u sum|x|, u half a unit of the last place, and terms
// of u^2; the last conversion adds one u of doubles.
TEST(Sum, FloatsAreNear) {
  Random random(7);
  const struct {
    SumOfFloats sum;
    int channels, exactHint, fastHint;
  } forms[] = {{lumiSum_32f_C1R, 1, 2, 0},
               {lumiSum_32f_C3R, 3, 2, 0},
               {lumiSum_32f_C4R, 4, 0, 1},
               {lumiSum_32f_AC4R, 4, 2, 0}};
  for (const auto& form : forms)
    for (const int width : {3, 17, 40, 331}) {
      const LumiSize roi{width, 5};
      const int row = width * form.channels;
      std::vector<Lum32f> image(static_cast<size_t>(row) * 5);
      for (Lum32f& x : image)
        x = std::ldexp(static_cast<Lum32f>(random.between(-9999, 9999)), random.between(-20, 9));
      for (const int hint : {form.exactHint, form.fastHint}) {
        Lum64f sums[4];
        ASSERT_EQ(form.sum(image.data(), row * 4, roi, sums, hint), lumStatusOk);
        for (int c = 0; c < std::min(form.channels, form.sum == lumiSum_32f_AC4R ? 3 : 4); ++c) {
          long double exact = 0, magnitude = 0;
          for (size_t i = static_cast<size_t>(c); i < image.size(); i += static_cast<size_t>(form.channels)) {
            exact += image[i];
            magnitude += std::abs(image[i]);
          }
          const long double u = std::ldexp(1.0L, hint == form.exactHint ? -53 : -24);
          EXPECT_LE(std::abs(sums[c] - exact), 5 * width * u * magnitude) << form.channels << " " << width;
        }
      }
    }
}

TEST(Sum, NoFloatIsLeftOutAndAlphaIsNotRead) {
  constexpr Lum32f inf = std::numeric_limits<Lum32f>::infinity(),
                   nan = std::numeric_limits<Lum32f>::quiet_NaN();
  constexpr int kWidth = 37;
  std::vector<Lum32f> image(4 * kWidth, 1);
  for (size_t i = 3; i < image.size(); i += 4) image[i] = i % 8 == 3 ? nan : inf;
  for (const int hint : {0, 1, 2}) {
    Lum64f sums[4] = {0, 0, 0, 5};
    ASSERT_EQ(lumiSum_32f_AC4R(image.data(), 0, {kWidth, 2}, sums, hint), lumStatusOk);
    for (int c = 0; c < 3; ++c) EXPECT_EQ(sums[c], 2 * kWidth);
    EXPECT_EQ(sums[3], 5);
    ASSERT_EQ(lumiMean_32f_AC4R(image.data(), 0, {kWidth, 2}, sums, hint), lumStatusOk);
    EXPECT_NEAR(sums[2], 1, 1e-12);
    ASSERT_EQ(lumiSum_32f_C4R(image.data(), 0, {kWidth, 2}, sums, hint), lumStatusOk);
    EXPECT_EQ(sums[2], 2 * kWidth);
    EXPECT_TRUE(std::isnan(sums[3]));
  }
  image[8] = inf;
  Lum64f sums[3];
  ASSERT_EQ(lumiSum_32f_AC4R(image.data(), 0, {kWidth, 2}, sums, 0), lumStatusOk);
  EXPECT_EQ(sums[0], inf);
  EXPECT_EQ(sums[1], 2 * kWidth);
}

// The number of pixels is a product of 32 bits.
TEST(Mean, OfTooManyPixels) {
  const std::vector<Lum8u> row(1 << 16, 3);
  Lum64f mean = 0;
  ASSERT_EQ(lumiMean_8u_C1R(row.data(), 0, {1 << 16, 1 << 15}, &mean), lumStatusOk);
  EXPECT_EQ(mean, -3);
}

TEST(Mean, HasTheSumOfItsHint) {
  const std::vector<Lum32f> row = largeAndOnes(64, 1);
  Lum64f sum, mean;
  for (const int hint : {0, 2}) {
    ASSERT_EQ(lumiSum_32f_C1R(row.data(), 0, {64, 3}, &sum, hint), lumStatusOk);
    ASSERT_EQ(lumiMean_32f_C1R(row.data(), 0, {64, 3}, &mean, hint), lumStatusOk);
    EXPECT_EQ(mean, sum / 192);
  }
}

}  // namespace
}  // namespace test
