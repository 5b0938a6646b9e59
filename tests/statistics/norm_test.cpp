// SPDX-License-Identifier: MIT
// Norms: against the model; more samples of extreme values than lanes hold, strips of wide images, hints,
// zero denominators, alpha and the statuses' orders by hand.
#include "lumi/norm.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "model/statistics/norm.hpp"
#include "statistics/interval_results.hpp"
#include "support/member.hpp"

namespace test {
namespace {

using model::Norm;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// Results of integers, and of floats that are compared, follow from totals by operations that are rounded
// once each.
double normOf(Norm norm, double total) { return norm == Norm::L2 ? std::sqrt(total) : total; }

template <typename T, typename Of>
double exactly(Norm norm, const Of& of, LumiSize roi, int stored, int c) {
  if constexpr (std::is_same_v<T, Lum32f>)
    return double{model::largestFloat(of, roi, stored, c)};
  else
    return static_cast<double>(model::exactTotal<T>(norm, of, roi, stored, c));
}

template <typename T, typename Of>
void storeExact(Norm norm, const Call& call, const Of& of, int stored, int used) {
  for (int c = 0; c < used; ++c)
    model::store<Lum64f>(call.block("norm").data, c, normOf(norm, exactly<T>(norm, of, call.roi, stored, c)));
}

template <typename T>
LumStatus storeRelative(Norm norm, const Call& call, int stored, int used) {
  const model::OfDifferences differences{call.srcImage(), call.src2Image()};
  const model::OfOne second{call.src2Image()};
  for (int c = 0; c < used; ++c)
    if (exactly<T>(norm, second, call.roi, stored, c) == 0)
      return storeExact<T>(norm, call, differences, stored, used), lumStatusDivideByZeroWarning;
  for (int c = 0; c < used; ++c) {
    const double quotient =
        exactly<T>(norm, differences, call.roi, stored, c) / exactly<T>(norm, second, call.roi, stored, c);
    model::store<Lum64f>(call.block("norm").data, c, normOf(norm, quotient));
  }
  return lumStatusOk;
}

model::Interval normOf(Norm norm, const model::Interval& total) {
  return norm == Norm::L2 ? rootOf(total) : total;
}

// The same of sums of floats in numbers of type V.
template <typename V, typename Of>
void storeSums(Norm norm, const Call& call, const Of& of, int stored, int used) {
  for (int c = 0; c < used; ++c)
    storeWithin(call.block("norm"), c, normOf(norm, model::floatTotal<V>(norm, of, call.roi, stored, c)));
}

template <typename V>
LumStatus storeRelativeSums(Norm norm, const Call& call, int stored, int used) {
  const model::OfDifferences differences{call.srcImage(), call.src2Image()};
  const model::OfOne second{call.src2Image()};
  for (int c = 0; c < used; ++c)
    if (model::isZero<V>(norm, second, call.roi, stored, c))
      return storeSums<V>(norm, call, differences, stored, used), lumStatusDivideByZeroWarning;
  for (int c = 0; c < used; ++c) {
    const auto total = [&](const auto& of) { return model::floatTotal<V>(norm, of, call.roi, stored, c); };
    storeWithin(call.block("norm"), c, normOf(norm, quotientOf(total(differences), total(second))));
  }
  return lumStatusOk;
}

template <typename Run>
LumStatus inPrecisionOf(int hint, Run run) {
  return hint == 2 ? run(double()) : run(float());
}

template <typename T>
model::Norm describe(Member& m, const std::string& operation) {
  const Norm norm = operation.back() == 'f' ? Norm::Inf : operation.back() == '1' ? Norm::L1 : Norm::L2;
  m.contents = kAnyContents;
  m.floatResults = std::is_same_v<T, Lum32f>;
  m.mayStream = false;
  m.results("norm", "64f");
  return norm;
}

template <typename T, typename ImagesOf>
void describeSums(Member& m, const std::string& operation, ImagesOf imagesOf) {
  const Norm norm = describe<T>(m, operation);
  m.model = [=, stored = m.channels.src, used = m.channels.moved](const Call& c) {
    const auto of = imagesOf(c);
    if constexpr (std::is_same_v<T, Lum32f>)
      if (norm != Norm::Inf)
        return inPrecisionOf(c.numbers[0], [&](auto v) {
          return storeSums<decltype(v)>(norm, c, of, stored, used), lumStatusOk;
        });
    return storeExact<T>(norm, c, of, stored, used), LumStatus{lumStatusOk};
  };
}

template <typename T>
void describeImage(Member& m, const std::string& operation) {
  describeSums<T>(m, operation, [](const Call& c) { return model::OfOne{c.srcImage()}; });
}

template <typename T>
void describeDifferences(Member& m, const std::string& operation) {
  describeSums<T>(m, operation, [](const Call& c) {
    return model::OfDifferences{c.srcImage(), c.src2Image()};
  });
}

template <typename T>
void describeRelative(Member& m, const std::string& operation) {
  const Norm norm = describe<T>(m, operation);
  m.model = [=, stored = m.channels.src, used = m.channels.moved](const Call& c) {
    if constexpr (std::is_same_v<T, Lum32f>)
      if (norm != Norm::Inf)
        return inPrecisionOf(c.numbers[0],
                             [&](auto v) { return storeRelativeSums<decltype(v)>(norm, c, stored, used); });
    return storeRelative<T>(norm, c, stored, used);
  };
}

template <typename Describe, typename List>
void addMembers(const char* operation, Describe describeMember, List types) {
  for (const char* norm : {"_Inf", "_L1", "_L2"}) {
    const std::string name = std::string(operation) + norm;
    addModelTests(membersOfOneType(
        name, [&](Member& m, auto sample) { describeMember(m, name, sample); }, types));
  }
}

const bool added = [] {
  using Four = Types<Lum8u, Lum16u, Lum16s, Lum32f>;
  addMembers(
      "Norm",
      [](Member& m, const std::string& name, auto sample) { describeImage<decltype(sample)>(m, name); },
      Types<Lum8u, Lum16u, Lum16s, Lum32s, Lum32f>());
  addMembers(
      "NormDiff",
      [](Member& m, const std::string& name, auto sample) { describeDifferences<decltype(sample)>(m, name); },
      Four());
  addMembers(
      "NormRel",
      [](Member& m, const std::string& name, auto sample) { describeRelative<decltype(sample)>(m, name); },
      Four());
  return true;
}();

// Images of equal samples, in rows that lie over one another: more than lanes take before they are emptied.
constexpr int kLongWidth = 1 << 17, kLongHeight = 9;

template <typename T>
std::vector<T> longImage(int channels, T value) {
  return std::vector<T>(static_cast<size_t>((kLongWidth + kLongHeight) * channels), value);
}

template <typename T>
using OfImage = LumStatus (*)(const T*, int, LumiSize, Lum64f*);
template <typename T>
using OfTwo = LumStatus (*)(const T*, int, const T*, int, LumiSize, Lum64f*);

constexpr LumiSize kLong{kLongWidth - 1, kLongHeight};
constexpr double kPixels = double{kLongWidth - 1} * kLongHeight;

template <typename T>
void expectNorms(OfImage<T> norm, int channels, int used, T value, double expected) {
  const auto image = longImage(channels, value);
  Lum64f results[4] = {kNaN, kNaN, kNaN, kNaN};
  ASSERT_EQ(norm(image.data(), channels * static_cast<int>(sizeof(T)), kLong, results), lumStatusOk);
  for (int c = 0; c < used; ++c) EXPECT_EQ(results[c], expected) << channels << " " << c;
}

template <typename T>
void expectNorms(OfTwo<T> norm, int channels, int used, T a, T b, double expected) {
  const auto first = longImage(channels, a), second = longImage(channels, b);
  const int step = channels * static_cast<int>(sizeof(T));
  Lum64f results[4] = {kNaN, kNaN, kNaN, kNaN};
  ASSERT_EQ(norm(first.data(), step, second.data(), step, kLong, results), lumStatusOk);
  for (int c = 0; c < used; ++c) EXPECT_EQ(results[c], expected) << channels << " " << c;
}

TEST(Norm, SumsOfLargestSamplesAreExact) {
  expectNorms<Lum16s>(lumiNorm_L1_16s_C1R, 1, 1, -32768, 32768 * kPixels);
  expectNorms<Lum16s>(lumiNorm_L1_16s_C3R, 3, 3, -32768, 32768 * kPixels);
  expectNorms<Lum16s>(lumiNorm_L1_16s_AC4R, 4, 3, -32768, 32768 * kPixels);
  expectNorms<Lum8u>(lumiNormDiff_L1_8u_C1R, 1, 1, 0, 255, 255 * kPixels);
  expectNorms<Lum8u>(lumiNormDiff_L1_8u_C3R, 3, 3, 255, 0, 255 * kPixels);
  expectNorms<Lum8u>(lumiNormDiff_L1_8u_C4R, 4, 4, 255, 0, 255 * kPixels);
  expectNorms<Lum16s>(lumiNormDiff_L1_16s_C1R, 1, 1, -32768, 32767, 65535 * kPixels);
  expectNorms<Lum16s>(lumiNormDiff_L1_16s_C3R, 3, 3, 32767, -32768, 65535 * kPixels);
  expectNorms<Lum16u>(lumiNormDiff_L1_16u_C4R, 4, 4, 0, 65535, 65535 * kPixels);
}

TEST(Norm, SumsOfLargestSquaresAreExact) {
  const double ofWords = std::sqrt(65535.0 * 65535 * kPixels), low = std::sqrt(32768.0 * 32768 * kPixels),
               ofBytes = std::sqrt(65025 * kPixels);
  expectNorms<Lum16u>(lumiNorm_L2_16u_C1R, 1, 1, 65535, ofWords);
  expectNorms<Lum16u>(lumiNorm_L2_16u_C3R, 3, 3, 65535, ofWords);
  expectNorms<Lum16u>(lumiNorm_L2_16u_C4R, 4, 4, 65535, ofWords);
  expectNorms<Lum16s>(lumiNorm_L2_16s_C1R, 1, 1, -32768, low);
  expectNorms<Lum16s>(lumiNorm_L2_16s_C3R, 3, 3, -32768, low);
  expectNorms<Lum16s>(lumiNorm_L2_16s_AC4R, 4, 3, -32768, low);
  expectNorms<Lum16s>(lumiNormDiff_L2_16s_C1R, 1, 1, -32768, 32767, ofWords);
  expectNorms<Lum16s>(lumiNormDiff_L2_16s_C3R, 3, 3, 32767, -32768, ofWords);
  expectNorms<Lum8u>(lumiNormDiff_L2_8u_C1R, 1, 1, 0, 255, ofBytes);
  expectNorms<Lum8u>(lumiNorm_L2_8u_C3R, 3, 3, 255, ofBytes);
  expectNorms<Lum8u>(lumiNormDiff_L2_8u_C4R, 4, 4, 255, 0, ofBytes);
}

TEST(Norm, RelativeSumsAreExact) {
  expectNorms<Lum8u>(lumiNormRel_L1_8u_C1R, 1, 1, 0, 255, 1);
  expectNorms<Lum8u>(lumiNormRel_L2_8u_C3R, 3, 3, 255, 85, 2);
  expectNorms<Lum16s>(lumiNormRel_L2_16s_C1R, 1, 1, 32767, -32767, 2);
  expectNorms<Lum16u>(lumiNormRel_L1_16u_C4R, 4, 4, 65535, 21845, 2);
  expectNorms<Lum16u>(lumiNormRel_Inf_16u_C3R, 3, 3, 65535, 21845, 2);
}

// The sum of 2^63 and more is an unsigned number.
TEST(Norm, SquaresOfWordsFillUnsignedTotals) {
  constexpr int width = 1 << 16, height = 1 << 15;
  const std::vector<Lum16u> image(width + height + 3, 65535);
  Lum64f norm = 0;
  ASSERT_EQ(lumiNorm_L2_16u_C1R(image.data(), 2, {width, height + 3}, &norm), lumStatusOk);
  const uint64_t total = 65535ull * 65535 * width * (height + 3);
  ASSERT_GT(total, uint64_t{1} << 63);
  EXPECT_EQ(norm, std::sqrt(static_cast<double>(total)));
}

// Two strips whose roots are no integers: the sum of their squares differs from that of all squares.
TEST(Norm, WideBytesAreDoneInStrips) {
  std::vector<Lum8u> image(3 * 32768, 0);
  image[0] = 3, image[1] = 1;          // 10
  image[32768] = 1, image[40000] = 1;  // 2
  image[65535] = 1;                    // 1
  image[65536] = 2, image[65540] = 1;  // 5
  const auto squared = [](double x) { return std::sqrt(x) * std::sqrt(x); };
  Lum64f norm = 0;
  const auto normOfWidth = [&](int width) {
    EXPECT_EQ(lumiNorm_L2_8u_C1R(image.data(), width, {width, 1}, &norm), lumStatusOk);
    return norm;
  };
  const double strips = std::sqrt((squared(10) + squared(3)) + squared(5));
  ASSERT_NE(strips, std::sqrt(18.0));
  EXPECT_EQ(normOfWidth(3 * 32768), strips);
  EXPECT_EQ(normOfWidth(32768), std::sqrt(10.0));
  EXPECT_EQ(normOfWidth(32769), std::sqrt(squared(10) + 1));
}

TEST(Norm, LowestIntegersCountInFull) {
  const Lum16s words[] = {32767, -32768, 5};
  const Lum32s dwords[] = {7, INT32_MIN, INT32_MAX};
  Lum64f norm = 0;
  ASSERT_EQ(lumiNorm_Inf_16s_C1R(words, 6, {3, 1}, &norm), lumStatusOk);
  EXPECT_EQ(norm, 32768);
  ASSERT_EQ(lumiNorm_Inf_32s_C1R(dwords, 12, {3, 1}, &norm), lumStatusOk);
  EXPECT_EQ(norm, 2147483648.0);
}

// 2^24 takes no single one in single precision; with hint 2, differences have more bits too.
TEST(Norm, HintTwoAsksForDoubles) {
  const Lum32f large[] = {16777216, 1, 1}, zeros[] = {0, 0, 0}, below[] = {-1, 0, 0};
  Lum64f norm = 0;
  for (const int hint : {2, 0, 1, -2}) {
    const bool exact = hint == 2;
    ASSERT_EQ(lumiNorm_L1_32f_C1R(large, 4, {1, 3}, &norm, hint), lumStatusOk);
    EXPECT_EQ(norm, exact ? 16777218 : 16777216);
    ASSERT_EQ(lumiNormDiff_L1_32f_C1R(large, 4, below, 4, {1, 1}, &norm, hint), lumStatusOk);
    EXPECT_EQ(norm, exact ? 16777217 : 16777216);
    ASSERT_EQ(lumiNormRel_L2_32f_C1R(large, 4, zeros, 4, {1, 1}, &norm, hint), lumStatusDivideByZeroWarning);
    EXPECT_EQ(norm, 16777216);
  }
}

TEST(Norm, SmallSquaresVanishInSinglePrecision) {
  const Lum32f tiny[] = {1e-30f}, two[] = {2e-30f};
  Lum64f norm = -1;
  EXPECT_EQ(lumiNormRel_L2_32f_C1R(two, 4, tiny, 4, {1, 1}, &norm, 0), lumStatusDivideByZeroWarning);
  EXPECT_EQ(norm, 0);
  EXPECT_EQ(lumiNormRel_L2_32f_C1R(two, 4, tiny, 4, {1, 1}, &norm, 2), lumStatusOk);
  EXPECT_NEAR(norm, 1, 1e-7);
  EXPECT_EQ(lumiNormRel_L1_32f_C1R(two, 4, tiny, 4, {1, 1}, &norm, 0), lumStatusOk);
  EXPECT_NEAR(norm, 1, 1e-7);
}

TEST(NormRel, ZeroDenominatorsLeaveAllNumerators) {
  const Lum8u first[2][4] = {{10, 20, 30, 7}, {1, 2, 3, 9}};
  const Lum8u second[2][4] = {{4, 0, 5, 0}, {4, 0, 5, 0}}, zeros[8] = {};
  Lum64f norms[3] = {};
  EXPECT_EQ(lumiNormRel_Inf_8u_AC4R(first[0], 4, second[0], 4, {1, 2}, norms), lumStatusDivideByZeroWarning);
  EXPECT_EQ(norms[0], 6);
  EXPECT_EQ(norms[1], 20);
  EXPECT_EQ(norms[2], 25);
  EXPECT_EQ(lumiNormRel_L1_8u_AC4R(first[0], 4, second[0], 4, {1, 2}, norms), lumStatusDivideByZeroWarning);
  EXPECT_EQ(norms[0], 9);
  EXPECT_EQ(norms[1], 22);
  EXPECT_EQ(norms[2], 27);
  EXPECT_EQ(lumiNormRel_L2_8u_C3R(first[0], 4, second[0], 4, {1, 2}, norms), lumStatusDivideByZeroWarning);
  EXPECT_EQ(norms[0], std::sqrt(45.0));
  EXPECT_EQ(lumiNormRel_L1_8u_C1R(first[0], 8, zeros, 8, {8, 1}, norms), lumStatusDivideByZeroWarning);
  EXPECT_EQ(norms[0], 82);
  // A zero alpha is no denominator.
  const Lum8u opaque[4] = {5, 4, 3, 0};
  EXPECT_EQ(lumiNormRel_Inf_8u_AC4R(first[0], 4, opaque, 4, {1, 1}, norms), lumStatusOk);
  EXPECT_EQ(norms[0], 1);
  EXPECT_EQ(norms[1], 4);
  EXPECT_EQ(norms[2], 9);
}

TEST(Norm, AlphaIsNotLookedAt) {
  const auto nan = static_cast<Lum32f>(kNaN);
  const Lum32f image[2][4] = {{3, -4, 12, nan}, {4, 3, -5, nan}};
  Lum64f norms[3];
  for (const int hint : {0, 2}) {
    ASSERT_EQ(lumiNorm_L2_32f_AC4R(image[0], 32, {2, 1}, norms, hint), lumStatusOk);
    EXPECT_EQ(norms[0], 5);
    EXPECT_EQ(norms[2], 13);
    ASSERT_EQ(lumiNormRel_L1_32f_AC4R(image[0], 32, image[0], 32, {2, 1}, norms, hint), lumStatusOk);
    EXPECT_EQ(norms[1], 0);
  }
  ASSERT_EQ(lumiNorm_Inf_32f_AC4R(image[0], 32, {2, 1}, norms), lumStatusOk);
  EXPECT_EQ(norms[1], 4);
}

TEST(Norm, WhatIsNoNumberIsNotTheLargest) {
  const auto nan = static_cast<Lum32f>(kNaN);
  const std::vector<Lum32f> image = {nan, -3, 2, nan, 0, 1, nan, nan, nan};
  Lum64f norm = 0;
  for (const int width : {1, 4, 9}) {
    ASSERT_EQ(lumiNorm_Inf_32f_C1R(image.data(), 36, {width, 1}, &norm), lumStatusOk);
    EXPECT_EQ(norm, width == 1 ? 0 : 3) << width;
  }
}

TEST(Norm, StepsComeFirstForSumsOfWords) {
  const Lum16u image[4] = {1, 2, 3, 4};
  Lum64f norm = -1;
  EXPECT_EQ(lumiNorm_L1_16u_C1R(nullptr, 0, {1, 1}, &norm), lumStatusBadStep);
  EXPECT_EQ(lumiNorm_L1_16u_C1R(nullptr, 2, {0, 1}, &norm), lumStatusNullPointer);
  EXPECT_EQ(lumiNorm_L2_16u_C1R(image, 0, {0, 1}, &norm), lumStatusBadStep);
  EXPECT_EQ(lumiNorm_L2_16u_C1R(nullptr, 0, {0, 1}, &norm), lumStatusNullPointer);
  EXPECT_EQ(lumiNorm_L2_16s_C1R(reinterpret_cast<const Lum16s*>(image), 0, {0, 1}, &norm), lumStatusBadSize);
  EXPECT_EQ(norm, -1);
}

}  // namespace
}  // namespace test
