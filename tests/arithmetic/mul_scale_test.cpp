// SPDX-License-Identifier: MIT
// Multiplication of fractions, against the model; all pairs of bytes, and all words with the constants about
// every limit.
#include "lumi/mul_scale.h"

#include "arithmetic/combine_support.hpp"
#include "model/arithmetic/mul_scale.hpp"

namespace test {
namespace {

template <typename T>
T multiply(T a, T b) {
  return model::multiplyFractions(a, b);
}

bool addAll() {
  for (const char* operation : {"MulScale", "MulCScale"})
    addModelTests(membersOfOneType(
        operation,
        [](Member& m, auto sample) {
          using T = decltype(sample);
          describeCombination<T>(m, [](T a, T b, int) { return multiply(a, b); });
        },
        Types<Lum8u, Lum16u>()));
  return true;
}
const bool added = addAll();

TEST(MulScale, AllPairsOfBytes) { PairsOfBytes().expect(lumiMulScale_8u_C1R, multiply<Lum8u>); }

TEST(MulScale, AllConstantsAndBytes) { expectBytesWithConstants(lumiMulCScale_8u_C1R, multiply<Lum8u>); }

TEST(MulScale, AllWordsWithEdges) {
  constexpr int count = 1 << 16;
  std::vector<Lum16u> src(count), dst(count);
  for (size_t i = 0; i < src.size(); ++i) src[i] = static_cast<Lum16u>(i);
  for (Lum16u value : edges<Lum16u>()) {
    ASSERT_EQ(lumiMulCScale_16u_C1R(src.data(), 1, value, dst.data(), 1, {count, 1}), lumStatusOk);
    for (size_t i = 0; i < src.size(); ++i)
      ASSERT_EQ(dst[i], multiply(src[i], value)) << i << " and " << value;
  }
}

// Products that are a multiple of the largest sample, or one less.
TEST(MulScale, WordsAboutWholeResults) {
  std::vector<Lum16u> a, b;
  for (int factor : {3, 5, 15, 17, 51, 85, 255, 257, 771, 1285, 3855, 4369, 13107, 21845})
    for (int i = 1; i * factor < 65536; ++i)
      for (int other = 65535 / factor; other < 65536; other += 65535 / factor * 7)
        a.push_back(static_cast<Lum16u>(i * factor)), b.push_back(static_cast<Lum16u>(other));
  std::vector<Lum16u> dst(a.size());
  const LumiSize roi{static_cast<int>(a.size()), 1};
  ASSERT_EQ(lumiMulScale_16u_C1R(a.data(), 1, b.data(), 1, dst.data(), 1, roi), lumStatusOk);
  for (size_t i = 0; i < a.size(); ++i) ASSERT_EQ(dst[i], multiply(a[i], b[i])) << a[i] << " and " << b[i];
}

TEST(MulScale, KnownResults) {
  const auto bytes = [](Lum8u a, Lum8u b) {
    Lum8u d = 77;
    EXPECT_EQ(lumiMulScale_8u_C1R(&a, 1, &b, 1, &d, 1, {1, 1}), lumStatusOk);
    return int{d};
  };
  EXPECT_EQ(bytes(255, 255), 255);
  EXPECT_EQ(bytes(128, 255), 128);
  EXPECT_EQ(bytes(1, 1), 0);
  const auto words = [](Lum16u a, Lum16u b) {
    Lum16u d = 77;
    EXPECT_EQ(lumiMulScale_16u_C1R(&a, 2, &b, 2, &d, 2, {1, 1}), lumStatusOk);
    return int{d};
  };
  EXPECT_EQ(words(65535, 65535), 65535);
  EXPECT_EQ(words(0, 65535), 0);
  EXPECT_EQ(words(32768, 65535), 32768);
}

TEST(MulScale, OverlappingRowsAreDoneInOrder) {
  expectInOrder<Lum8u, Lum8u>(lumiMulScale_8u_C1R, multiply<Lum8u>);
  expectInOrder<Lum16u, Lum16u>(lumiMulScale_16u_C1R, multiply<Lum16u>);
}

// Steps are looked at before the size, and the width of several channels before all.
TEST(MulScale, OrderOfFaults) {
  Lum8u s = 0;
  EXPECT_EQ(lumiMulScale_8u_C1R(&s, 0, &s, 1, &s, 1, {0, 1}), lumStatusBadStep);
  EXPECT_EQ(lumiMulScale_8u_C1R(nullptr, 0, &s, 1, &s, 1, {0, 1}), lumStatusNullPointer);
  EXPECT_EQ(lumiMulScale_8u_C3R(nullptr, 0, &s, 1, &s, 1, {0, 1}), lumStatusBadSize);
  EXPECT_EQ(lumiMulScale_8u_C3R(&s, 0, &s, 1, &s, 1, {1, 0}), lumStatusBadStep);
  EXPECT_EQ(lumiMulScale_8u_AC4R(nullptr, 0, &s, 1, &s, 1, {0, 1}), lumStatusNullPointer);
  EXPECT_EQ(lumiMulCScale_8u_C3R(&s, 0, &s, &s, 1, {0, 1}), lumStatusBadStep);
}

}  // namespace
}  // namespace test
