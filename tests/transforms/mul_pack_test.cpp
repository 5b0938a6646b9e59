// SPDX-License-Identifier: MIT
// Products of packed spectra: against the model; all choices of edges as parts; known spectra; one image as
// all operands.
#include "lumi/mul_pack.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <vector>

#include "model/transforms/mul_pack.hpp"
#include "support/member.hpp"

namespace test {
namespace {

bool addAll() {
  for (const char* operation : {"MulPack", "MulPackConj"})
    addModelTests(membersOfOneType(
        operation,
        [=](Member& m, auto sample) {
          using T = decltype(sample);
          const model::Channels channels = m.channels;
          const bool conjugate = std::string(operation) == "MulPackConj", scales = !m.numbers.empty();
          m.contents = kAnyContents;
          m.heights = {1, 2, 3, 4, 5, 6};
          m.mayStream = false;
          m.floatResults = std::is_floating_point_v<T>;
          m.separateRows = true;
          m.aliasing = m.inPlace ? Aliasing::None : Aliasing::SameImage;
          m.model = [=](const Call& c) {
            model::mulPack<T>(c.srcImage(), c.src2Image(), c.dstImage(), c.roi, channels,
                              scales ? c.numbers[0] : 0, conjugate);
          };
        },
        Types<Lum16s, Lum32s, Lum32f>()));
  return true;
}
const bool added = addAll();

// Pairs of all choices of four parts, in a row and down the first and last columns, at all scale factors.
template <typename T>
class Edges {
 public:
  explicit Edges(const std::vector<T>& parts) {
    for (T a : parts)
      for (T b : parts)
        for (T c : parts)
          for (T d : parts) {
            first_.insert(first_.end(), {a, b});
            second_.insert(second_.end(), {c, d});
          }
  }

  template <typename Function>
  void expect(Function* function) {
    const auto count = static_cast<int>(first_.size());
    std::vector<int> scales = {INT_MIN, INT_MIN + 1, -1000, 1000, INT_MAX};
    for (int s = -70; s <= 70; ++s) scales.push_back(s);
    for (int s : scales) {
      expectOf(function, {count + 1, 1}, s);
      expectOf(function, {1, count + 1}, s);
    }
  }

 private:
  // After one real number.
  template <typename Function>
  void expectOf(Function* function, LumiSize roi, int s) {
    constexpr int sample = sizeof(T);
    std::vector<T> a = {3}, b = {5};
    a.insert(a.end(), first_.begin(), first_.end());
    b.insert(b.end(), second_.begin(), second_.end());
    std::vector<T> dst(a.size());
    const int step = roi.width * sample;
    ASSERT_EQ(function(a.data(), step, b.data(), step, dst.data(), step, roi, s), lumStatusOk);
    ASSERT_EQ(dst[0], model::scaledDown<T>(15, s));
    for (size_t i = 1; i < a.size(); i += 2) {
      const model::PackedProduct<T> expected(a[i], a[i + 1], b[i], b[i + 1], s, false);
      ASSERT_TRUE(dst[i] == expected.real && dst[i + 1] == expected.imaginary)
          << "(" << a[i] << ", " << a[i + 1] << ") and (" << b[i] << ", " << b[i + 1] << ") at " << s << ": ("
          << dst[i] << ", " << dst[i + 1] << ") for (" << expected.real << ", " << expected.imaginary << ")";
    }
  }

  std::vector<T> first_, second_;
};

TEST(MulPack, EdgesOfParts) {
  Edges<Lum16s>({-32768, -32767, -256, -3, 0, 1, 181, 32767}).expect(lumiMulPack_16s_C1RSfs);
  Edges<Lum32s>({INT32_MIN, -INT32_MAX, -65536, -3, 0, 1, 46341, INT32_MAX}).expect(lumiMulPack_32s_C1RSfs);
}

// One pair, after a real number.
template <typename T, typename Function>
std::vector<T> pairOf(Function* function, T a, T b, T c, T d, int s) {
  const T first[] = {0, a, b}, second[] = {0, c, d};
  std::vector<T> dst(3);
  EXPECT_EQ(function(first, sizeof first, second, sizeof first, dst.data(), sizeof first, {3, 1}, s),
            lumStatusOk);
  return {dst[1], dst[2]};
}

TEST(MulPack, KnownPairs) {
  const auto words = [](int a, int b, int c, int d, int s) {
    const std::vector<Lum16s> pair =
        pairOf(lumiMulPack_16s_C1RSfs, static_cast<Lum16s>(a), static_cast<Lum16s>(b), static_cast<Lum16s>(c),
               static_cast<Lum16s>(d), s);
    return std::vector<int>{pair[0], pair[1]};
  };
  using Ints = std::vector<int>;
  EXPECT_EQ(words(1, 2, 3, 4, 0), (Ints{-5, 10}));
  EXPECT_EQ(words(1, 2, 3, 4, 1), (Ints{-3, 5})) << "rounds down";
  EXPECT_EQ(words(1, 2, 3, 4, -2), (Ints{-20, 40}));
  EXPECT_EQ(words(1, 2, 3, 4, 40), (Ints{-1, 0}));
  EXPECT_EQ(words(200, 0, 200, 0, -1), (Ints{32767, 0})) << "limited before and after the shift";
  EXPECT_EQ(words(20000, 0, 1, 0, -1), (Ints{32767, 0}));
  EXPECT_EQ(words(-1, 1, 1, 0, INT_MIN), (Ints{-32768, 32767}));
  // Where a d is 2^30 it is the imaginary part, whatever b c is.
  for (int other : {-32768, -32767, -1, 0, 5, 32767})
    for (int s : {1, 15, 16, 20, 30}) {
      EXPECT_EQ(words(-32768, other, 7, -32768, s)[1], std::min(32767, 1 << (30 - s))) << other << " " << s;
      EXPECT_EQ(words(-32768, -32768, other, -32768, s)[1], std::min(32767, 1 << (30 - s)));
    }
  EXPECT_EQ(words(-32768, -32768, 32767, -32768, 0)[1], 32767);
  EXPECT_EQ(words(-32768, 5, -32768, 5, 20)[1], -1) << "not where it is b c";

  const auto dwords = [](Lum32s x, int s) { return pairOf(lumiMulPack_32s_C1RSfs, x, x, x, x, s); };
  for (int s = 0; s < 64; ++s)
    EXPECT_EQ(dwords(INT32_MIN, s), (std::vector<Lum32s>{0, s <= 32 ? INT32_MAX : 1 << (63 - s)})) << s;
  EXPECT_EQ(dwords(INT32_MIN, 64), (std::vector<Lum32s>{0, 0}));
}

// The spectrum of an image of one row or column is packed along it, and of 2 x 2 there is no pair.
TEST(MulPack, SmallestImages) {
  const Lum32f a[] = {1, 2, 3, 4}, b[] = {5, 6, 7, 8};
  const auto product = [&](LumiSize roi) {
    std::vector<Lum32f> dst(4, 0);
    const int step = roi.width * static_cast<int>(sizeof(Lum32f));
    EXPECT_EQ(lumiMulPack_32f_C1R(a, step, b, step, dst.data(), step, roi), lumStatusOk);
    return dst;
  };
  using Floats = std::vector<Lum32f>;
  EXPECT_EQ(product({1, 1}), (Floats{5, 0, 0, 0}));
  EXPECT_EQ(product({2, 2}), (Floats{5, 12, 21, 32}));
  EXPECT_EQ(product({3, 1}), (Floats{5, 12 - 21, 14 + 18, 0}));
  EXPECT_EQ(product({1, 3}), product({3, 1}));
  EXPECT_EQ(product({4, 1}), (Floats{5, 12 - 21, 14 + 18, 32}));
  EXPECT_EQ(product({1, 4}), product({4, 1}));
}

// Of 5 x 4: no real column but the first one, whose last row is real.
TEST(MulPack, OddWidthEndsInAPair) {
  std::vector<Lum32s> src(5 * 4), dst(src.size());
  for (size_t i = 0; i < src.size(); ++i) src[i] = static_cast<Lum32s>(i) + 1;
  ASSERT_EQ(lumiMulPack_32s_C1RSfs(src.data(), 20, src.data(), 20, dst.data(), 20, {5, 4}, 0), lumStatusOk);
  EXPECT_EQ(dst[0], 1);
  EXPECT_EQ(dst[5], 6 * 6 - 11 * 11);
  EXPECT_EQ(dst[10], 2 * 6 * 11);
  EXPECT_EQ(dst[15], 16 * 16);
  EXPECT_EQ(dst[3], 4 * 4 - 5 * 5);
  EXPECT_EQ(dst[4], 2 * 4 * 5);
  EXPECT_EQ(dst[19], 2 * 19 * 20);
}

// Signs of zeros among real numbers.
TEST(MulPack, RealNumbersAreMultipliedAsSuch) {
  const Lum32f a[] = {0, -2}, b[] = {-3, 0};
  for (auto* multiply : {lumiMulPack_32f_C1R, lumiMulPackConj_32f_C1R}) {
    Lum32f dst[2] = {7, 7};
    ASSERT_EQ(multiply(a, 8, b, 8, dst, 8, {2, 1}), lumStatusOk);
    EXPECT_TRUE(dst[0] == 0 && std::signbit(dst[0]));
    EXPECT_TRUE(dst[1] == 0 && std::signbit(dst[1]));
  }
}

TEST(MulPackConj, ConjugatesTheSecondFactor) {
  const Lum32f a[] = {0, 1, 2}, b[] = {0, 3, 5};
  Lum32f dst[3];
  const auto expectPair = [&](const Lum32f* pair, Lum32f real, Lum32f imaginary) {
    EXPECT_EQ(pair[1], real);
    EXPECT_EQ(pair[2], imaginary);
  };
  ASSERT_EQ(lumiMulPackConj_32f_C1R(a, 12, b, 12, dst, 12, {3, 1}), lumStatusOk);
  expectPair(dst, 1 * 3 + 2 * 5, 2 * 3 - 1 * 5);
  // The destination, where there is one factor besides it.
  Lum32f inPlace[] = {0, 3, 5};
  ASSERT_EQ(lumiMulPackConj_32f_C1IR(a, 12, inPlace, 12, {3, 1}), lumStatusOk);
  expectPair(inPlace, 1 * 3 + 2 * 5, 2 * 3 - 1 * 5);
  // The second one, where the first is the destination too.
  Lum32f first[] = {0, 1, 2};
  ASSERT_EQ(lumiMulPackConj_32f_C1R(first, 12, b, 12, first, 12, {3, 1}), lumStatusOk);
  expectPair(first, 1 * 3 + 2 * 5, 2 * 3 - 1 * 5);
}

// A call in place whose source is the destination squares, or gives squared magnitudes.
TEST(MulPack, OneImageAsAllOperands) {
  for (LumiSize roi : {LumiSize{9, 5}, LumiSize{40, 6}, LumiSize{6, 3}}) {
    const auto count = static_cast<size_t>(roi.width * roi.height);
    const int step = roi.width * 2;
    std::vector<Lum16s> src(count), squared, apart(count);
    for (size_t i = 0; i < count; ++i) src[i] = static_cast<Lum16s>(i * 37 % 301) - 150;
    squared = src;
    ASSERT_EQ(lumiMulPack_16s_C1IRSfs(squared.data(), step, squared.data(), step, roi, 2), lumStatusOk);
    ASSERT_EQ(lumiMulPack_16s_C1RSfs(src.data(), step, src.data(), step, apart.data(), step, roi, 2),
              lumStatusOk);
    EXPECT_EQ(squared, apart);

    std::vector<Lum32f> floats(src.begin(), src.end());
    ASSERT_EQ(lumiMulPackConj_32f_C1IR(floats.data(), 2 * step, floats.data(), 2 * step, roi), lumStatusOk);
    EXPECT_EQ(floats[2], 0) << "no imaginary part";
    EXPECT_EQ(floats[1], static_cast<Lum32f>(src[1] * src[1] + src[2] * src[2]));
  }
}

}  // namespace
}  // namespace test
