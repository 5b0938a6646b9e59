// SPDX-License-Identifier: MIT
// Division of integers, against the model; all pairs of bytes at all scale factors; ties and edges of words;
// zeros that divide; overlap; sources that are not read.
#include "lumi/div.h"

#include <xmmintrin.h>

#include "arithmetic/combine_support.hpp"
#include "model/arithmetic/div.hpp"

namespace test {
namespace {

using model::Round;

template <typename T>
T divided(T d, T n, int s) {
  return model::divide(d, n, s);
}

// What a division of this many samples returns, besides its results.
LumStatus warning(bool anyZero) { return anyZero ? lumStatusDivideByZeroWarning : lumStatusOk; }

template <typename T>
void describeImages(Member& m, bool hasMode) {
  describeCombination<T>(m, divided<T>);
  const model::Channels channels = m.channels;
  m.model = [=](const Call& c) -> LumStatus {
    const int mode = hasMode ? c.numbers[0] : 1, s = c.numbers[hasMode ? 1 : 0];
    if (mode < 0 || mode > 2) return lumStatusBadRoundMode;
    bool anyZero = false;
    const auto divide = [&](T d, T n) {
      anyZero = anyZero || model::warns(d);
      return model::divide(d, n, s, static_cast<Round>(mode));
    };
    model::combine<T>(c.srcImage(), c.src2Image(), c.dstImage(), c.roi, channels, 1, divide);
    return warning(anyZero);
  };
}

template <typename T>
void describeConstant(Member& m) {
  describeCombination<T>(m, [](T d, T n, int s) { return model::divideByConstant(d, n, s); });
  m.mayStream = false;
  const auto divide = m.model;
  const int count = m.channels.moved;
  m.model = [=](const Call& c) -> LumStatus {
    for (int i = 0; i < count; ++i)
      if (model::isRefused(model::load<T>(c.values, i))) return lumStatusDivisionByZero;
    return divide(c);
  };
}

template <typename T>
void describe(Member& m, const std::string& operation) {
  if (operation == "DivC") return describeConstant<T>(m);
  describeImages<T>(m, operation == "Div_Round");
}

bool addAll() {
  for (const std::string operation : {"Div", "Div_Round", "DivC"})
    addModelTests(membersOfOneType(
        operation,
        [=](Member& m, auto sample) {
          using T = decltype(sample);
          if constexpr (std::is_signed_v<T>)
            if (m.components == 2) return describe<model::Complex<T>>(m, operation);
          if constexpr (!std::is_same_v<T, Lum32s>) describe<T>(m, operation);
        },
        Types<Lum8u, Lum16u, Lum16s, Lum32s, Lum32f>()));
  return true;
}
const bool added = addAll();

// Expects the quotients of every pair, one row for each divisor.
template <typename T, typename Function, typename... Mode>
void expectQuotients(Function* function, const std::vector<T>& divisors, const std::vector<T>& dividends,
                     int s, Mode... mode) {
  const Round round{(1 + ... + (mode - 1))};
  const int width = static_cast<int>(dividends.size()), step = width * static_cast<int>(sizeof(T));
  std::vector<T> dst(dividends.size()), divisor(dividends.size());
  for (T d : divisors) {
    std::fill(divisor.begin(), divisor.end(), d);
    ASSERT_EQ(function(divisor.data(), step, dividends.data(), step, dst.data(), step, LumiSize{width, 1},
                       mode..., s),
              warning(d == 0));
    for (size_t i = 0; i < dst.size(); ++i)
      ASSERT_EQ(dst[i], model::divide(d, dividends[i], s, round))
          << +dividends[i] << " / " << +d << " at scale factor " << s;
  }
}

std::vector<Lum8u> allBytes() {
  std::vector<Lum8u> all(256);
  for (size_t i = 0; i < all.size(); ++i) all[i] = static_cast<Lum8u>(i);
  return all;
}

TEST(Div, AllPairsOfBytesAtAllScaleFactors) {
  const std::vector<Lum8u> all = allBytes();
  for (int s : scaleFactors()) {
    expectQuotients(lumiDiv_8u_C1RSfs, all, all, s);
    for (LumRoundMode mode : {0, 1, 2}) {
      SCOPED_TRACE(mode);
      expectQuotients(lumiDiv_Round_8u_C1RSfs, all, all, s, mode);
    }
  }
}

template <typename T, typename Function>
void expectQuotientsByConstants(Function* function, const std::vector<T>& divisors,
                                const std::vector<T>& dividends) {
  const int width = static_cast<int>(dividends.size()), step = width * static_cast<int>(sizeof(T));
  std::vector<T> dst(dividends.size());
  for (int s : scaleFactors())
    for (T d : divisors) {
      if (d == 0) continue;
      ASSERT_EQ(function(dividends.data(), step, d, dst.data(), step, LumiSize{width, 1}, s), lumStatusOk);
      for (size_t i = 0; i < dst.size(); ++i)
        ASSERT_EQ(dst[i], divided(d, dividends[i], s)) << +dividends[i] << " / " << +d << " at " << s;
    }
}

TEST(Div, AllConstantsAndBytesAtAllScaleFactors) {
  expectQuotientsByConstants(lumiDivC_8u_C1RSfs, allBytes(), allBytes());
}

// Numbers about the limits, the powers of two and, for the divisor, the ties and integers of its quotients.
template <typename T>
std::vector<T> dividendsOf(T d) {
  using Limits = std::numeric_limits<T>;
  std::vector<T> all = edges<T>();
  Random random(static_cast<uint64_t>(d) + 7);
  for (int i = 0; i < 100; ++i) {
    const int64_t halves = random.between(-131072, 131072) >> random.between(0, 16);
    const int64_t near = halves * d / 2 + random.between(-1, 1);
    if (near >= Limits::min() && near <= Limits::max()) all.push_back(static_cast<T>(near));
  }
  return all;
}

template <typename T, typename Function, typename RoundFunction, typename ConstantFunction>
void expectWords(Function* function, RoundFunction* withMode, ConstantFunction* byConstant) {
  for (T d : edges<T>()) {
    const std::vector<T> dividends = dividendsOf(d);
    if (d % 3 == 0) expectQuotientsByConstants(byConstant, std::vector<T>{d}, dividends);
    for (int s : scaleFactors()) {
      expectQuotients(function, {d}, dividends, s);
      for (LumRoundMode mode : {0, 1, 2}) {
        SCOPED_TRACE(mode);
        expectQuotients(withMode, {d}, dividends, s, mode);
      }
    }
  }
}

TEST(Div, EdgesAndTiesOfWordsAtAllScaleFactors) {
  expectWords<Lum16u>(lumiDiv_16u_C1RSfs, lumiDiv_Round_16u_C1RSfs, lumiDivC_16u_C1RSfs);
  expectWords<Lum16s>(lumiDiv_16s_C1RSfs, lumiDiv_Round_16s_C1RSfs, lumiDivC_16s_C1RSfs);
}

template <typename T, typename Function, typename... Mode>
std::pair<int, LumStatus> quotient(Function* function, int divisor, int dividend, int s, Mode... mode) {
  const T d = static_cast<T>(divisor), n = static_cast<T>(dividend);
  T dst = 77;
  const int step = sizeof(T);
  const LumStatus status = function(&d, step, &n, step, &dst, step, LumiSize{1, 1}, mode..., s);
  return {dst, status};
}

TEST(Div, KnownResults) {
  using Result = std::pair<int, LumStatus>;
  const LumStatus zero = lumStatusDivideByZeroWarning;
  EXPECT_EQ(quotient<Lum8u>(lumiDiv_8u_C1RSfs, 0, 5, 0), Result(255, zero));
  EXPECT_EQ(quotient<Lum8u>(lumiDiv_8u_C1RSfs, 0, 0, 0), Result(0, zero));
  EXPECT_EQ(quotient<Lum8u>(lumiDiv_8u_C1RSfs, 0, 5, 100), Result(255, zero));
  EXPECT_EQ(quotient<Lum8u>(lumiDiv_8u_C1RSfs, 0, 0, -100), Result(0, zero));
  EXPECT_EQ(quotient<Lum8u>(lumiDiv_8u_C1RSfs, 2, 5, 0), Result(2, 0));
  EXPECT_EQ(quotient<Lum16u>(lumiDiv_16u_C1RSfs, 0, 5, 17), Result(65535, zero));
  for (int s : {0, 16, -31, INT32_MAX, INT32_MIN}) {
    EXPECT_EQ(quotient<Lum16s>(lumiDiv_16s_C1RSfs, 0, 5, s), Result(32767, zero));
    EXPECT_EQ(quotient<Lum16s>(lumiDiv_16s_C1RSfs, 0, -5, s), Result(-32768, zero));
    EXPECT_EQ(quotient<Lum16s>(lumiDiv_16s_C1RSfs, 0, 0, s), Result(0, zero));
  }
  EXPECT_EQ(quotient<Lum16s>(lumiDiv_16s_C1RSfs, -1, -32768, 0), Result(32767, 0));
  EXPECT_EQ(quotient<Lum16s>(lumiDiv_Round_16s_C1RSfs, 1, -32768, 16, 2), Result(0, 0));
  EXPECT_EQ(quotient<Lum16s>(lumiDiv_Round_16s_C1RSfs, 2, -5, 0, 0), Result(-2, 0));
  EXPECT_EQ(quotient<Lum16s>(lumiDiv_Round_16s_C1RSfs, 2, -5, 0, 2), Result(-3, 0));
  EXPECT_EQ(quotient<Lum8u>(lumiDiv_Round_8u_C1RSfs, 2, 5, 0, 0), Result(2, 0));
  EXPECT_EQ(quotient<Lum8u>(lumiDiv_Round_8u_C1RSfs, 2, 5, 0, 1), Result(2, 0));
  EXPECT_EQ(quotient<Lum8u>(lumiDiv_Round_8u_C1RSfs, 2, 5, 0, 2), Result(3, 0));
  EXPECT_EQ(quotient<Lum8u>(lumiDiv_Round_8u_C1RSfs, 2, 5, 0, 3), Result(77, lumStatusBadRoundMode));
}

// A zero anywhere warns, and every row is written; alpha is none of the divisors.
TEST(Div, ZerosInOneRow) {
  constexpr int kWidth = 37, kHeight = 3, kStep = 4 * kWidth;
  for (int row = 0; row < kHeight; ++row)
    for (int at : {0, 1, 77, 4 * kWidth - 2, 4 * kWidth - 1}) {
      std::vector<Lum8u> d(kStep * kHeight, 3), n(d.size(), 30), dst(d.size(), 77);
      d[static_cast<size_t>(row * kStep + at)] = 0;
      const bool isAlpha = at % 4 == 3;
      EXPECT_EQ(lumiDiv_8u_C4RSfs(d.data(), kStep, n.data(), kStep, dst.data(), kStep, {kWidth, kHeight}, 0),
                lumStatusDivideByZeroWarning);
      for (size_t i = 0; i < dst.size(); ++i) ASSERT_EQ(dst[i], d[i] == 0 ? 255 : 10);
      std::fill(dst.begin(), dst.end(), Lum8u{77});
      EXPECT_EQ(lumiDiv_8u_AC4RSfs(d.data(), kStep, n.data(), kStep, dst.data(), kStep, {kWidth, kHeight}, 0),
                warning(!isAlpha));
      for (size_t i = 0; i < dst.size(); ++i) ASSERT_EQ(dst[i], i % 4 == 3 ? 77 : d[i] == 0 ? 255 : 10);
    }
}

TEST(Div, OverlappingRowsAreDoneInOrder) {
  for (int s : {0, 3, -2}) {
    expectInOrder<Lum8u, Lum8u>(lumiDiv_8u_C1RSfs, divided<Lum8u>, s);
    expectInOrder<Lum16u, Lum16u>(lumiDiv_16u_C1RSfs, divided<Lum16u>, s);
    expectInOrder<Lum16s, Lum16s>(lumiDiv_16s_C1RSfs, divided<Lum16s>, s);
  }
}

TEST(Div, ConstantZeroIsTheLastFault) {
  Lum8u sample = 7;
  EXPECT_EQ(lumiDivC_8u_C1RSfs(&sample, 1, 0, &sample, 1, {1, 1}, 0), lumStatusDivisionByZero);
  EXPECT_EQ(lumiDivC_8u_C1RSfs(&sample, 1, 0, &sample, 1, {1, 1}, 9), lumStatusDivisionByZero);
  EXPECT_EQ(lumiDivC_8u_C1RSfs(nullptr, 1, 0, &sample, 1, {1, 1}, 0), lumStatusNullPointer);
  EXPECT_EQ(lumiDivC_8u_C1RSfs(&sample, 1, 0, &sample, 1, {1, 0}, 0), lumStatusBadSize);
  EXPECT_EQ(lumiDivC_8u_C1RSfs(&sample, 0, 0, &sample, 1, {1, 1}, 0), lumStatusBadStep);
  Lum16u word = 7;
  EXPECT_EQ(lumiDivC_16u_C1RSfs(&word, 0, 0, &word, 0, {1, 1}, 0), lumStatusDivisionByZero);
  EXPECT_EQ(lumiDivC_16u_C1RSfs(&word, 0, 0, &word, 0, {1, 1}, 17), lumStatusDivisionByZero);
  EXPECT_EQ(lumiDivC_16u_C1RSfs(nullptr, 0, 3, &word, 0, {1, 1}, 17), lumStatusNullPointer);
  EXPECT_EQ(lumiDivC_16u_C1RSfs(&word, 0, 3, nullptr, 0, {1, 1}, 17), lumStatusNullPointer);
  for (size_t zero = 0; zero < 3; ++zero) {
    Lum8u constants[] = {1, 2, 3}, pixel[] = {7, 7, 7, 7};
    constants[zero] = 0;
    EXPECT_EQ(lumiDivC_8u_C3IRSfs(constants, pixel, 3, {1, 1}, 0), lumStatusDivisionByZero);
    EXPECT_EQ(lumiDivC_8u_AC4IRSfs(constants, pixel, 4, {1, 1}, 0), lumStatusDivisionByZero);
    for (Lum8u p : pixel) EXPECT_EQ(p, 7);
  }
  EXPECT_EQ(sample, 7);
  EXPECT_EQ(word, 7);
}

TEST(Div, ConstantsReadNoSourceBeyondTheScale) {
  for (int more : {0, 1, 1000}) {
    expectFilledUnread<Lum8u>(lumiDivC_8u_C1RSfs, 3, 9 + more, 0);
    expectFilledUnread<Lum16u>(lumiDivC_16u_C1RSfs, 3, 17 + more, 0);
    expectFilledUnread<Lum16s>(lumiDivC_16s_C1RSfs, 3, 16 + more, 0);
  }
}

// Div goes by the rounding control, Div_Round by its argument; neither writes it.
TEST(Div, RoundingControl) {
  const unsigned before = _mm_getcsr();
  constexpr unsigned truncating = 0x6000, down = 0x2000;
  _mm_setcsr((before & ~truncating) | truncating);
  const auto cut = quotient<Lum16s>(lumiDiv_16s_C1RSfs, 3, -5, 0);
  const auto nearest = quotient<Lum16s>(lumiDiv_Round_16s_C1RSfs, 3, -5, 0, 1);
  const auto cutBytes = quotient<Lum8u>(lumiDiv_8u_C1RSfs, 3, 5, 0);
  _mm_setcsr((before & ~truncating) | down);
  const auto floor = quotient<Lum16s>(lumiDiv_16s_C1RSfs, 3, -4, 0);
  std::vector<Lum8u> zeros(32, 0), dst(32, 7);
  const std::vector<Lum8u> fives(32, 5);
  lumiDiv_8u_C1RSfs(zeros.data(), 32, fives.data(), 32, dst.data(), 32, {32, 1}, 0);
  const unsigned after = _mm_getcsr() & truncating;
  _mm_setcsr(before);
  EXPECT_EQ(cut.first, -1);
  EXPECT_EQ(nearest.first, -2);
  EXPECT_EQ(cutBytes.first, 1);
  EXPECT_EQ(floor.first, -2);
  EXPECT_EQ(dst, std::vector<Lum8u>(32, 255));
  EXPECT_EQ(after, down);
}

}  // namespace
}  // namespace test
