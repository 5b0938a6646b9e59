// SPDX-License-Identifier: MIT
// Multiplication, against the model; all pairs of bytes; edges of the other types, and of all four parts of
// complex samples; overlap; sources that are not read.
#include "lumi/mul.h"

#include "arithmetic/combine_support.hpp"
#include "model/arithmetic/mul.hpp"

namespace test {
namespace {

using Complex16 = model::Complex<Lum16s>;
using Complex32 = model::Complex<Lum32s>;
template <typename T>
T multiplied(T a, T b, int s) {
  return model::multiply(a, b, s);
}

bool addAll() {
  for (const char* operation : {"Mul", "MulC"})
    addModelTests(membersOfOneType(
        operation,
        [](Member& m, auto sample) {
          using T = decltype(sample);
          if constexpr (std::is_signed_v<T>)
            if (m.components == 2)
              return describeCombination<model::Complex<T>>(m, multiplied<model::Complex<T>>);
          describeCombination<T>(m, multiplied<T>);
        },
        Types<Lum8u, Lum16u, Lum16s, Lum32s, Lum32f>()));
  return true;
}
const bool added = addAll();

TEST(Mul, AllPairsOfBytesAtAllScaleFactors) {
  PairsOfBytes pairs;
  for (int s : scaleFactors()) {
    SCOPED_TRACE(s);
    pairs.expect(lumiMul_8u_C1RSfs, multiplied<Lum8u>, s);
  }
}

TEST(Mul, AllConstantsAndBytesAtAllScaleFactors) {
  for (int s : scaleFactors()) {
    SCOPED_TRACE(s);
    expectBytesWithConstants(lumiMulC_8u_C1RSfs, multiplied<Lum8u>, s);
  }
}

TEST(Mul, EdgesOfWiderTypesAtAllScaleFactors) {
  expectEdges<Lum16u>(lumiMul_16u_C1RSfs, multiplied<Lum16u>);
  expectEdges<Lum16s>(lumiMul_16s_C1RSfs, multiplied<Lum16s>);
}

// Products of 16-bit samples that are a tie, or next to one, at their scale factor: odd multiples of 2^(s-1)
// that have factors of the type, and what lies about them.
template <typename T, typename Function>
void expectTies(Function* function) {
  constexpr int digits = std::numeric_limits<T>::digits;
  std::vector<T> a, b;
  Random random(5);
  for (int s = 1; s < 2 * digits; ++s)
    for (int i = 0; i < 1000; ++i) {
      const int bits = random.between(std::max(0, s - digits), std::min(s, digits) - 1);
      const auto near = [&](int shift) {
        const int64_t odd = random.between(0, 1 << 15) * 2 + 1;
        const int64_t x = (odd << shift) % (int64_t{1} << digits);
        return static_cast<T>(random.oneIn(3) ? x + random.between(-1, 1) : x);
      };
      a.push_back(near(bits));
      b.push_back(near(s - 1 - bits));
    }
  std::vector<T> dst(a.size());
  for (int s = 1; s <= 2 * digits; ++s) {
    const LumiSize roi{static_cast<int>(a.size()), 1};
    ASSERT_EQ(function(a.data(), 1, b.data(), 1, dst.data(), 1, roi, s), lumStatusOk);
    for (size_t i = 0; i < a.size(); ++i)
      ASSERT_EQ(dst[i], multiplied<T>(a[i], b[i], s)) << +a[i] << " * " << +b[i] << " at " << s;
  }
}

TEST(Mul, TiesOfWords) {
  expectTies<Lum16u>(lumiMul_16u_C1RSfs);
  expectTies<Lum16s>(lumiMul_16s_C1RSfs);
}

TEST(Mul, EdgesOfComplexParts) {
  expectEdgesOfParts<Lum16sc, Lum16s>(lumiMul_16sc_C1RSfs, multiplied<Complex16>, lumStatusOk,
                                      {-32768, -32767, -256, -3, 0, 1, 181, 16384, 32767});
  expectEdgesOfParts<Lum32sc, Lum32s>(
      lumiMul_32sc_C1RSfs, multiplied<Complex32>, lumStatusOk,
      {INT32_MIN, -INT32_MAX, -(1 << 30), -65536, -3, -1, 0, 1, 2, 46341, 1 << 30, INT32_MAX});
}

int product(Lum8u a, Lum8u b, int s) {
  Lum8u d = 77;
  EXPECT_EQ(lumiMul_8u_C1RSfs(&a, 1, &b, 1, &d, 1, {1, 1}, s), lumStatusOk);
  return int{d};
}

int product(Lum16s a, Lum16s b, int s) {
  Lum16s d = 77;
  EXPECT_EQ(lumiMul_16s_C1RSfs(&a, 1, &b, 1, &d, 1, {1, 1}, s), lumStatusOk);
  return int{d};
}

TEST(Mul, KnownResults) {
  EXPECT_EQ(product(Lum8u{16}, Lum8u{16}, 0), 255);
  EXPECT_EQ(product(Lum8u{16}, Lum8u{16}, 1), 128);
  EXPECT_EQ(product(Lum8u{16}, Lum8u{16}, 8), 1);
  EXPECT_EQ(product(Lum8u{255}, Lum8u{255}, 16), 1);
  EXPECT_EQ(product(Lum8u{255}, Lum8u{255}, 17), 0);
  EXPECT_EQ(product(Lum8u{3}, Lum8u{1}, 1), 2);
  EXPECT_EQ(product(Lum8u{5}, Lum8u{1}, 1), 2);
  EXPECT_EQ(product(Lum8u{1}, Lum8u{1}, -8), 255);
  EXPECT_EQ(product(Lum8u{0}, Lum8u{9}, -8), 0);
  EXPECT_EQ(product(Lum16s{-32768}, Lum16s{-32768}, 30), 1);
  EXPECT_EQ(product(Lum16s{-32768}, Lum16s{-32768}, 31), 0);
  EXPECT_EQ(product(Lum16s{-32768}, Lum16s{32767}, 15), -32767);
  EXPECT_EQ(product(Lum16s{-1}, Lum16s{1}, -15), -32768);
  EXPECT_EQ(product(Lum16s{-1}, Lum16s{1}, INT32_MIN), -32768);
}

TEST(Mul, KnownComplexResults) {
  const Lum32fc one{1, 2}, two{3, 4};
  Lum32fc three{};
  EXPECT_EQ(lumiMul_32fc_C1R(&one, 8, &two, 8, &three, 8, {1, 1}), lumStatusOk);
  EXPECT_EQ(three.re, -5);
  EXPECT_EQ(three.im, 10);
  const Lum16sc lowest{-32768, -32768};
  const auto imaginary = [&](int s) {
    Lum16sc d{7, 7};
    EXPECT_EQ(lumiMul_16sc_C1RSfs(&lowest, 4, &lowest, 4, &d, 4, {1, 1}, s), lumStatusOk);
    EXPECT_EQ(d.re, 0);
    return int{d.im};
  };
  EXPECT_EQ(imaginary(0), 32767);
  EXPECT_EQ(imaginary(-1), 32767);
  EXPECT_EQ(imaginary(16), 32767);
  EXPECT_EQ(imaginary(17), 16384);
  EXPECT_EQ(imaginary(31), 1);
  EXPECT_EQ(imaginary(32), 0);
  const Lum32sc largest{INT32_MIN, INT32_MIN};
  Lum32sc d{7, 7};
  EXPECT_EQ(lumiMul_32sc_C1RSfs(&largest, 8, &largest, 8, &d, 8, {1, 1}, 32), lumStatusOk);
  EXPECT_EQ(d.re, 0);
  EXPECT_EQ(d.im, INT32_MAX);
  EXPECT_EQ(lumiMul_32sc_C1RSfs(&largest, 8, &largest, 8, &d, 8, {1, 1}, 33), lumStatusOk);
  EXPECT_EQ(d.im, 0);
}

TEST(Mul, OverlappingRowsAreDoneInOrder) {
  for (int s : {0, 7, -1}) {
    expectInOrder<Lum8u, Lum8u>(lumiMul_8u_C1RSfs, multiplied<Lum8u>, s);
    expectInOrder<Lum16u, Lum16u>(lumiMul_16u_C1RSfs, multiplied<Lum16u>, s + 15);
    expectInOrder<Lum16s, Lum16s>(lumiMul_16s_C1RSfs, multiplied<Lum16s>, s + 15);
    expectInOrder<Lum16sc, Complex16>(lumiMul_16sc_C1RSfs, multiplied<Complex16>, s + 15);
    expectInOrder<Lum32sc, Complex32>(lumiMul_32sc_C1RSfs, multiplied<Complex32>, s + 25);
  }
}

TEST(Mul, ResultsThatAreAllZeroReadNoSource) {
  expectAllZeroFrom({"lumiMul"}, 54, [](const Member& m) {
    return m.types[0] == "8u" ? 16 : m.types[0] == "16s" ? 30 : m.types[0] == "16sc" ? 31 : 32;
  });
}

TEST(Mul, ZeroConstantReadsNoSource) {
  for (int s : scaleFactors()) {
    expectFilledUnread<Lum8u>(lumiMulC_8u_C1RSfs, 0, s, 0);
    expectFilledUnread<Lum16u>(lumiMulC_16u_C1RSfs, 0, s, 0);
    expectFilledUnread<Lum16s>(lumiMulC_16s_C1RSfs, 0, s, 0);
  }
  Lum8u sample = 7;
  EXPECT_EQ(lumiMulC_8u_C1RSfs(nullptr, 1, 0, &sample, 1, {1, 1}, 0), lumStatusNullPointer);
  EXPECT_EQ(lumiMulC_8u_C1RSfs(&sample, 1, 0, nullptr, 1, {1, 1}, 0), lumStatusNullPointer);
  EXPECT_EQ(lumiMulC_8u_C1RSfs(&sample, 1, 0, &sample, 1, {1, 0}, 0), lumStatusBadSize);
  EXPECT_EQ(sample, 7);
}

// Of floats it is a factor like others.
TEST(Mul, ZeroConstantOfFloatsMultiplies) {
  const Lum32f src[] = {-1, std::numeric_limits<Lum32f>::infinity(), 3};
  Lum32f dst[3] = {};
  EXPECT_EQ(lumiMulC_32f_C1R(src, 12, 0, dst, 12, {3, 1}), lumStatusOk);
  EXPECT_TRUE(std::signbit(dst[0]));
  EXPECT_TRUE(std::isnan(dst[1]));
  EXPECT_EQ(dst[2], 0);
}

TEST(Mul, OneInPlaceTouchesNothing) {
  Arena closed(4096);
  closed.setAccessible(closed.begin(), closed.end(), false);
  auto* const bytes = closed.begin();
  EXPECT_EQ(lumiMulC_8u_C1IRSfs(1, bytes, 64, {64, 2}, 0), lumStatusOk);
  EXPECT_EQ(lumiMulC_16s_C1IRSfs(1, reinterpret_cast<Lum16s*>(bytes), 64, {32, 2}, 0), lumStatusOk);
  EXPECT_EQ(lumiMulC_16u_C1IRSfs(1, reinterpret_cast<Lum16u*>(bytes), 64, {32, 2}, 0), lumStatusOk);
  EXPECT_EQ(lumiMulC_8u_C1IRSfs(1, nullptr, 64, {64, 2}, 0), lumStatusNullPointer);
  EXPECT_EQ(lumiMulC_8u_C1IRSfs(1, bytes, 64, {0, 2}, 0), lumStatusBadSize);
}

}  // namespace
}  // namespace test
