// SPDX-License-Identifier: MIT
// Dot products: against the model; more samples of extreme values than lanes hold, hints, steps and alpha by
// hand; weighted rows of every width between unmapped pages.
#include "lumi/dot_prod.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "model/statistics/dot_prod.hpp"
#include "statistics/interval_results.hpp"
#include "support/member.hpp"
#include "support/object_memory.hpp"

namespace test {
namespace {

constexpr double kInf = std::numeric_limits<double>::infinity(),
                 kNaN = std::numeric_limits<double>::quiet_NaN();

template <typename T>
void describe(Member& m) {
  const int stored = m.channels.src, used = m.channels.moved;
  const bool isFloat = std::is_same_v<T, Lum32f>, mayBeFast = isFloat && (stored == 1 || stored == 3);
  m.contents = kAnyContents;
  m.floatResults = isFloat;
  m.mayStream = false;
  m.results("product", "64f");
  m.model = [=](const Call& c) {
    const Call::Block& product = c.block("product");
    const model::Image a = c.srcImage(), b = c.src2Image();
    for (int channel = 0; channel < used; ++channel) {
      if constexpr (sizeof(T) <= 2) {
        const int64_t sum = model::exactDotProduct<T>(a, b, c.roi, stored, channel);
        model::store<Lum64f>(product.data, channel, static_cast<double>(sum));
      } else {
        const bool isFast = mayBeFast && c.numbers[0] != 2;
        storeWithin(product, channel,
                    model::dotProduct<T>(a, b, c.roi, stored, channel)
                        .inPrecision(isFast ? model::precisionOf<float>() : model::precisionOf<double>()));
      }
    }
  };
}

const bool added = addModelTests(membersOf(
    "DotProd", [](Member& m, auto sample, auto) { describe<decltype(sample)>(m); },
    Types<Lum8u, Lum8s, Lum16u, Lum16s, Lum32u, Lum32s, Lum32f, Lum64f>()));

template <typename T>
using DotProd = LumStatus (*)(const T*, int, const T*, int, LumiSize, Lum64f*);

// Of equal samples, in rows that lie over one another.
template <typename T>
void expectExactSums(DotProd<T> dotProd, int channels, int used, T a, T b) {
  constexpr int kWidth = 1 << 17, kHeight = 9;
  const std::vector<T> first(static_cast<size_t>((kWidth + kHeight) * channels), a);
  const std::vector<T> second(first.size(), b);
  const int step = channels * static_cast<int>(sizeof(T));
  const LumiSize roi{kWidth - 1, kHeight};
  Lum64f sums[4] = {kNaN, kNaN, kNaN, kNaN};
  ASSERT_EQ(dotProd(first.data(), step, second.data(), step, roi, sums), lumStatusOk);
  for (int c = 0; c < used; ++c)
    EXPECT_EQ(sums[c], static_cast<double>(int64_t{a} * b * roi.width * roi.height)) << channels << " " << c;
}

template <typename T>
void expectExactExtremes(DotProd<T> c1, DotProd<T> c3, DotProd<T> c4, DotProd<T> ac4) {
  constexpr T low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
  for (const auto& [a, b] : {std::pair(low, low), std::pair(low, high), std::pair(high, high)}) {
    expectExactSums(c1, 1, 1, a, b);
    expectExactSums(c3, 3, 3, a, b);
    expectExactSums(c4, 4, 4, a, b);
    expectExactSums(ac4, 4, 3, a, b);
  }
}

TEST(DotProd, LanesHoldWhatTheyTake) {
  expectExactExtremes<Lum8u>(lumiDotProd_8u64f_C1R, lumiDotProd_8u64f_C3R, lumiDotProd_8u64f_C4R,
                             lumiDotProd_8u64f_AC4R);
  expectExactExtremes<Lum8s>(lumiDotProd_8s64f_C1R, lumiDotProd_8s64f_C3R, lumiDotProd_8s64f_C4R,
                             lumiDotProd_8s64f_AC4R);
  expectExactExtremes<Lum16u>(lumiDotProd_16u64f_C1R, lumiDotProd_16u64f_C3R, lumiDotProd_16u64f_C4R,
                              lumiDotProd_16u64f_AC4R);
  expectExactExtremes<Lum16s>(lumiDotProd_16s64f_C1R, lumiDotProd_16s64f_C3R, lumiDotProd_16s64f_C4R,
                              lumiDotProd_16s64f_AC4R);
}

// 2^24 takes no single one in single precision.
TEST(DotProd, HintTwoAsksForDoubles) {
  const Lum32f column[3][3] = {{4096, 4096, 4096}, {1, 1, 1}, {1, 1, 1}};
  Lum64f sums[3];
  for (const int hint : {2, 0, 1, 3, -2}) {
    const double expected = hint == 2 ? 16777218 : 16777216;
    ASSERT_EQ(lumiDotProd_32f64f_C1R(column[0], 12, column[0], 12, {1, 3}, sums, hint), lumStatusOk);
    EXPECT_EQ(sums[0], expected) << hint;
    ASSERT_EQ(lumiDotProd_32f64f_C3R(column[0], 12, column[0], 12, {1, 3}, sums, hint), lumStatusOk);
    for (const double sum : sums) EXPECT_EQ(sum, expected) << hint;
  }
}

TEST(DotProd, FourChannelsAlwaysAreInDoubles) {
  const Lum32f column[3][4] = {{4096, 4096, 4096, 4096}, {1, 1, 1, 1}, {1, 1, 1, 1}};
  Lum64f sums[4];
  for (const int hint : {0, 2}) {
    ASSERT_EQ(lumiDotProd_32f64f_C4R(column[0], 16, column[0], 16, {1, 3}, sums, hint), lumStatusOk);
    for (const double sum : sums) EXPECT_EQ(sum, 16777218) << hint;
    ASSERT_EQ(lumiDotProd_32f64f_AC4R(column[0], 16, column[0], 16, {1, 3}, sums, hint), lumStatusOk);
    EXPECT_EQ(sums[2], 16777218) << hint;
  }
}

// Samples of no exact sums: the fast one is as near as any order of additions is.
TEST(DotProd, SinglePrecisionIsNearEnough) {
  constexpr int kWidth = 1000, kHeight = 7;
  std::vector<Lum32f> a(kWidth * kHeight), b(a.size());
  Random random(1);
  for (size_t i = 0; i < a.size(); ++i) {
    a[i] = static_cast<Lum32f>(random.between(-1000000, 1000000)) / 3000;
    b[i] = static_cast<Lum32f>(random.between(-1000000, 1000000)) / 7000;
  }
  const auto expectNear = [&](Lum64f sum, int width, int channels, int channel) {
    const auto image = [](std::vector<Lum32f>& v) {
      return model::Image{reinterpret_cast<Byte*>(v.data()), kWidth * 4};
    };
    const auto right = model::dotProduct<Lum32f>(image(a), image(b), {width, kHeight}, channels, channel)
                           .inPrecision(model::precisionOf<float>());
    EXPECT_GE(sum, static_cast<double>(right.low)) << channels << " " << channel;
    EXPECT_LE(sum, static_cast<double>(right.high)) << channels << " " << channel;
  };
  constexpr int step = 4 * kWidth;
  Lum64f sums[3];
  ASSERT_EQ(lumiDotProd_32f64f_C1R(a.data(), step, b.data(), step, {kWidth - 1, kHeight}, sums, 0),
            lumStatusOk);
  expectNear(sums[0], kWidth - 1, 1, 0);
  ASSERT_EQ(lumiDotProd_32f64f_C3R(a.data(), step, b.data(), step, {333, kHeight}, sums, 0), lumStatusOk);
  for (int c = 0; c < 3; ++c) expectNear(sums[c], 333, 3, c);
}

TEST(DotProd, ZeroStepsAreABadSize) {
  const Lum8u image[12] = {1, 2, 3};
  Lum64f sum = -1;
  EXPECT_EQ(lumiDotProd_8u64f_C1R(image, 0, image, 1, {1, 1}, &sum), lumStatusBadSize);
  EXPECT_EQ(lumiDotProd_8u64f_C1R(image, 1, image, 0, {1, 1}, &sum), lumStatusBadSize);
  EXPECT_EQ(sum, -1);
  EXPECT_EQ(lumiDotProd_8u64f_C1R(image + 2, -1, image, 1, {1, 3}, &sum), lumStatusOk);
  EXPECT_EQ(sum, 3 * 1 + 2 * 2 + 1 * 3);
}

TEST(DotProd, AlphaIsNotLookedAt) {
  const auto nan = static_cast<Lum32f>(kNaN);
  const Lum32f image[3][4] = {{1, 2, 3, nan}, {4, 5, 6, nan}, {7, 8, 9, static_cast<Lum32f>(kInf)}};
  Lum64f sums[3];
  ASSERT_EQ(lumiDotProd_32f64f_AC4R(image[0], 48, image[0], 48, {3, 1}, sums, 0), lumStatusOk);
  EXPECT_EQ(sums[0], 1 + 16 + 49);
  EXPECT_EQ(sums[1], 4 + 25 + 64);
  EXPECT_EQ(sums[2], 9 + 36 + 81);
}

// The largest unsigned sum that a total of 64 bits would lose.
TEST(DotProd, SumsBeyondIntegersAreDoubles) {
  constexpr Lum32u most = std::numeric_limits<Lum32u>::max();
  const std::vector<Lum32u> image(100, most);
  Lum64f sum = 0;
  ASSERT_EQ(lumiDotProd_32u64f_C1R(image.data(), 400, image.data(), 400, {100, 1}, &sum), lumStatusOk);
  EXPECT_NEAR(sum, 100 * (double{most} * most), 100 * 0x1p64 * 102 * 0x1p-53);
}

template <typename T>
using DotProdCol = LumStatus (*)(const T* const*, const T*, int, T*, int);

// Rows, weights and destination of exact sizes, at any address.
template <typename T>
void expectWeightedRows(const char* name, int count, int width, Random& random) {
  const int bytes = width * static_cast<int>(sizeof(T));
  const auto phase = [&] { return random.oneIn(2) ? 0 : random.below(64); };
  std::vector<GuardedBlock> rows;
  std::vector<const void*> pointers;
  GuardedBlock weights(count * static_cast<int>(sizeof(T)), phase(), random), dst(bytes, phase(), random);
  const auto fill = [&](const GuardedBlock& block, int samples) {
    for (int i = 0; i < samples; ++i)
      model::store<T>(block.at(), i, static_cast<T>(random.between(-1000000, 1000000)) / T{700});
  };
  fill(weights, count);
  rows.reserve(static_cast<size_t>(count));
  for (int k = 0; k < count; ++k) {
    rows.emplace_back(bytes, phase(), random);
    fill(rows.back(), width);
    pointers.push_back(rows.back().at());
  }
  NamedCall call(name);
  call.pointer("rows", pointers.data()).pointer("weights", weights.at()).number("count", count);
  call.pointer("dst", dst.at()).number("length", width);
  ASSERT_EQ(call.run(), lumStatusOk);
  EXPECT_TRUE(dst.staysInside()) << name << " " << count << " rows of " << width;
  for (int x = 0; x < width; ++x) {
    T sum = model::load<T>(rows[0].at(), x) * model::load<T>(weights.at(), 0);
    for (int k = 1; k < count; ++k) {
      const T product =
          model::load<T>(rows[static_cast<size_t>(k)].at(), x) * model::load<T>(weights.at(), k);
      sum = sum + product;
    }
    ASSERT_EQ(model::load<T>(dst.at(), x), sum) << name << " " << count << " rows of " << width << ", " << x;
  }
}

TEST(DotProdCol, AddsWeightedRowsInTheirOrder) {
  Random random(5);
  for (int width = 1; width <= 70; ++width) {
    const int count = 1 + width * 7 % 19;
    expectWeightedRows<Lum32f>("lumiDotProdCol_32f_L2", count, width, random);
    expectWeightedRows<Lum64f>("lumiDotProdCol_64f_L2", count, width, random);
  }
  expectWeightedRows<Lum32f>("lumiDotProdCol_32f_L2", 40, 517, random);
}

TEST(DotProdCol, NullRowsAreFoundLast) {
  const Lum32f row[4] = {1, 2, 3, 4}, weights[3] = {1, 1, 1};
  const Lum32f* const rows[3] = {row, row, nullptr};
  Lum32f dst[4] = {-1, -1, -1, -1};
  EXPECT_EQ(lumiDotProdCol_32f_L2(rows, weights, 3, dst, 0), lumStatusBadSize);
  EXPECT_EQ(lumiDotProdCol_32f_L2(rows, weights, 0, dst, 4), lumStatusBadSize);
  EXPECT_EQ(lumiDotProdCol_32f_L2(rows, weights, 3, dst, 4), lumStatusNullPointer);
  EXPECT_EQ(dst[0], -1);
  EXPECT_EQ(lumiDotProdCol_32f_L2(rows, weights, 2, dst, 4), lumStatusOk);
  EXPECT_EQ(dst[3], 8);
}

const bool covered = addCovered({"lumiDotProdCol_32f_L2", "lumiDotProdCol_64f_L2"});

}  // namespace
}  // namespace test
