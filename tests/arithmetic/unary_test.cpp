// SPDX-License-Identifier: MIT
// Functions of one sample: against the model, every sample of the small types, the error of float results,
// warnings, steps, and sources that are not read.
#include "lumi/unary.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <numeric>
#include <vector>

#include "model/arithmetic/unary.hpp"
#include "support/arena.hpp"
#include "support/fault.hpp"
#include "support/member.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

// Samples that images have; 32s is the complement's alone.
using Samples = Types<Lum8u, Lum16u, Lum16s, Lum32f>;

bool roundsSteps(const Member& m, const std::string& operation) {
  const std::string &type = m.types[0], &layout = m.layouts[0];
  if (layout != "C1" && layout != "C3") return false;
  if (operation == "Sqr") return type == "16s" || type == "16u";
  if (operation == "Abs" || operation == "Sqrt") return type != "8u";
  return false;
}

template <typename List, typename Function, typename Warning>
void addAll(const std::string& operation, List types, Function f, Warning warning) {
  addModelTests(membersOfOneType(
      operation,
      [=](Member& m, auto sample) {
        using T = decltype(sample);
        m.contents = kAnyContents;
        m.mayStream = false;
        m.floatResults = std::is_floating_point_v<T>;
        m.aliasing = m.inPlace ? Aliasing::None : Aliasing::SameImage;
        const bool whole = roundsSteps(m, operation);
        const model::Channels channels = m.channels;
        m.model = [=](const Call& c) {
          const int step = whole ? int{sizeof(T)} : 1;
          return model::unary<T>(
              model::wholeSteps(c.srcImage(), step), model::wholeSteps(c.dstImage(), step), c.roi, channels,
              [&](T x) { return f(x, c.numbers[0]); }, warning);
        };
      },
      types));
}

const auto absolute = [](auto x, int s) { return model::absolute(x, s); };
const auto square = [](auto x, int s) { return model::square(x, s); };
const auto root = [](auto x, int s) { return model::root(x, s); };
const auto logarithm = [](auto x, int s) { return model::logarithm(x, s); };
const auto exponential = [](auto x, int s) { return model::exponential(x, s); };
const auto none = [](auto) -> LumStatus { return lumStatusOk; };

bool addOperations() {
  addAll("Abs", Types<Lum16s, Lum32f>(), absolute, none);
  addAll("Sqr", Samples(), square, none);
  addAll("Sqrt", Samples(), root, [](auto x) { return model::rootStatus(x); });
  addAll("Ln", Samples(), logarithm, [](auto x) { return model::logarithmStatus(x); });
  addAll("Exp", Samples(), exponential, none);
  addAll(
      "Complement", Types<Lum32s>(), [](Lum32s x, int) { return model::signAndMagnitude(x); }, none);
  return true;
}
const bool added = addOperations();

template <typename T>
using Scaled = LumStatus (*)(const T*, int, T*, int, LumiSize, int);

template <typename T>
std::vector<T> between(int first, int last) {
  std::vector<T> all(static_cast<size_t>(last - first + 1));
  std::iota(all.begin(), all.end(), static_cast<T>(first));
  return all;
}
template <typename T>
std::vector<T> everySample() {
  return between<T>(std::numeric_limits<T>::min(), std::numeric_limits<T>::max());
}

// One row of samples at a scale factor.
template <typename T, typename Formula>
void expectRow(Scaled<T> function, Formula formula, const std::vector<T>& samples, int s) {
  std::vector<T> results(samples.size(), T{77});
  const int step = static_cast<int>(samples.size() * sizeof(T));
  ASSERT_GE(function(samples.data(), step, results.data(), step, {static_cast<int>(samples.size()), 1}, s),
            lumStatusOk);
  for (size_t i = 0; i < samples.size(); ++i)
    ASSERT_EQ(results[i], formula(samples[i], s)) << +samples[i] << " at scale factor " << s;
}

template <typename T, typename Formula>
void expectEverySample(Scaled<T> function, Formula formula, int first, int last) {
  const std::vector<T> all = everySample<T>();
  for (int s = first; s <= last; ++s) ASSERT_NO_FATAL_FAILURE(expectRow<T>(function, formula, all, s));
  for (int s : {INT_MIN, -1000, 1000, INT_MAX})
    ASSERT_NO_FATAL_FAILURE(expectRow<T>(function, formula, all, s));
}

// Beyond these factors all results are zero or limited, which the ones next to them show.
TEST(Unary, EverySampleIsSquared) {
  expectEverySample<Lum8u>(lumiSqr_8u_C1RSfs, square, -10, 18);
  expectEverySample<Lum16u>(lumiSqr_16u_C1RSfs, square, -17, 34);
  expectEverySample<Lum16s>(lumiSqr_16s_C1RSfs, square, -17, 32);
}

TEST(Unary, EverySampleHasItsRoot) {
  expectEverySample<Lum8u>(lumiSqrt_8u_C1RSfs, root, -10, 11);
  expectEverySample<Lum16u>(lumiSqrt_16u_C1RSfs, root, -17, 11);
  expectEverySample<Lum16s>(lumiSqrt_16s_C1RSfs, root, -17, 11);
}

TEST(Unary, EverySampleHasItsLogarithm) {
  expectEverySample<Lum8u>(lumiLn_8u_C1RSfs, logarithm, -11, 7);
  expectEverySample<Lum16u>(lumiLn_16u_C1RSfs, logarithm, -19, 7);
  expectEverySample<Lum16s>(lumiLn_16s_C1RSfs, logarithm, -19, 7);
}

// Exponentials are neither zero nor limited for a few samples at each factor: those about (s - 1) ln 2.
template <typename T>
void expectExponentials(Scaled<T> function, int largestScale) {
  using Limits = std::numeric_limits<T>;
  const int lowest = static_cast<int>(Limits::min() * 1.4427) - 30;
  for (int s = lowest; s <= largestScale + 3; s += s < -500 || (s > 500 && s < largestScale - 50) ? 7 : 1) {
    const int about = static_cast<int>(s * 0.6931);
    const int first = std::clamp<int>(about - 16, Limits::min(), Limits::max() - 40);
    ASSERT_NO_FATAL_FAILURE(expectRow<T>(function, exponential, between<T>(first, first + 40), s));
  }
}

TEST(Unary, ExponentialsAtAllScaleFactors) {
  expectEverySample<Lum8u>(lumiExp_8u_C1RSfs, exponential, -10, 371);
  expectEverySample<Lum16u>(lumiExp_16u_C1RSfs, exponential, -2, 2);
  expectEverySample<Lum16s>(lumiExp_16s_C1RSfs, exponential, -2, 2);
  expectExponentials<Lum16u>(lumiExp_16u_C1RSfs, 94548);
  expectExponentials<Lum16s>(lumiExp_16s_C1RSfs, 47273);
}

template <typename T>
T resultOf(Scaled<T> function, T sample, int s, LumStatus expected = lumStatusOk) {
  T result = 77;
  EXPECT_EQ(function(&sample, sizeof(T), &result, sizeof(T), {1, 1}, s), expected);
  return result;
}

TEST(Unary, KnownResults) {
  Lum16s smallest = -32768, largest = 0;
  EXPECT_EQ(lumiAbs_16s_C1R(&smallest, 2, &largest, 2, {1, 1}), lumStatusOk);
  EXPECT_EQ(largest, 32767);
  EXPECT_EQ(resultOf<Lum8u>(lumiSqr_8u_C1RSfs, 16, 0), 255);
  EXPECT_EQ(resultOf<Lum8u>(lumiSqr_8u_C1RSfs, 15, 0), 225);
  EXPECT_EQ(resultOf<Lum8u>(lumiSqr_8u_C1RSfs, 255, 16), 1);
  EXPECT_EQ(resultOf<Lum8u>(lumiSqr_8u_C1RSfs, 255, 17), 0);
  EXPECT_EQ(resultOf<Lum8u>(lumiSqr_8u_C1RSfs, 5, 1), 12);  // 12.5
  EXPECT_EQ(resultOf<Lum16s>(lumiSqr_16s_C1RSfs, -32768, 30), 1);
  EXPECT_EQ(resultOf<Lum16s>(lumiSqr_16s_C1RSfs, -32768, 31), 0);
  EXPECT_EQ(resultOf<Lum16u>(lumiSqr_16u_C1RSfs, 65535, 32), 1);
  EXPECT_EQ(resultOf<Lum8u>(lumiSqrt_8u_C1RSfs, 143, 3), 1);
  EXPECT_EQ(resultOf<Lum8u>(lumiSqrt_8u_C1RSfs, 144, 3), 2);  // 1.5
  EXPECT_EQ(resultOf<Lum8u>(lumiSqrt_8u_C1RSfs, 16, 3), 0);   // 0.5
  EXPECT_EQ(resultOf<Lum8u>(lumiSqrt_8u_C1RSfs, 17, 3), 1);
  EXPECT_EQ(resultOf<Lum16s>(lumiSqrt_16s_C1RSfs, -1, 0, lumStatusSqrtOfNegative), 0);
  EXPECT_EQ(resultOf<Lum16s>(lumiSqrt_16s_C1RSfs, -1, 100, lumStatusSqrtOfNegative), 0);
  EXPECT_EQ(resultOf<Lum8u>(lumiLn_8u_C1RSfs, 0, 0, lumStatusLogOfZero), 0);
  EXPECT_EQ(resultOf<Lum8u>(lumiLn_8u_C1RSfs, 163, -4), 82);  // 81.500003
  EXPECT_EQ(resultOf<Lum16s>(lumiLn_16s_C1RSfs, -5, -3, lumStatusLogOfZero), 0);
  EXPECT_EQ(resultOf<Lum16u>(lumiLn_16u_C1RSfs, 65535, 0), 11);
  EXPECT_EQ(resultOf<Lum8u>(lumiExp_8u_C1RSfs, 0, -7), 128);
  EXPECT_EQ(resultOf<Lum8u>(lumiExp_8u_C1RSfs, 1, -7), 255);
  EXPECT_EQ(resultOf<Lum8u>(lumiExp_8u_C1RSfs, 0, 1), 0);  // 0.5
  EXPECT_EQ(resultOf<Lum8u>(lumiExp_8u_C1RSfs, 255, 368), 1);
  EXPECT_EQ(resultOf<Lum16s>(lumiExp_16s_C1RSfs, -1, -16), 24109);
  Lum32s samples[] = {0, 5, -5, INT32_MIN, INT32_MAX, -INT32_MAX};
  EXPECT_EQ(lumiComplement_32s_C1IR(samples, sizeof samples, {6, 1}), lumStatusOk);
  const uint32_t complements[] = {0, 5, 0x80000005, 0x80000000, 0x7FFFFFFF, 0xFFFFFFFF};
  EXPECT_EQ(std::memcmp(samples, complements, sizeof samples), 0);
}

// Distance from the exact result in units of its last place.
double errorOf(float result, double exact) {
  if (std::isinf(result)) result = std::copysign(std::numeric_limits<float>::max(), result);
  int exponent = 0;
  std::frexp(exact, &exponent);
  const double place = std::ldexp(1.0, std::max(exponent, -125) - 24);
  return std::abs(result - exact) / place;
}

// Both ends and both sides of every binade of arguments, and others between; where a result cannot be told
// from infinity or zero is among them.
std::vector<float> argumentsOf(float sign) {
  std::vector<float> all;
  Random random(settings().seed);
  for (uint32_t binade = 0; binade < 255; ++binade)
    for (int i = 0; i < 200; ++i) {
      const uint32_t low = i < 8 ? static_cast<uint32_t>(i) : static_cast<uint32_t>(random.next());
      const uint32_t bits = (binade << 23) | ((i % 2 != 0 ? ~low : low) & 0x7FFFFF);
      float x;
      std::memcpy(&x, &bits, sizeof x);
      all.push_back(std::copysign(x, sign));
    }
  return all;
}

template <typename Function, typename Exact>
void expectErrors(Function* function, Exact exact, const std::vector<float>& arguments, double bound) {
  std::vector<float> results(arguments.size());
  const LumiSize roi{static_cast<int>(arguments.size()), 1};
  ASSERT_GE(function(arguments.data(), 4 * roi.width, results.data(), 4 * roi.width, roi), lumStatusOk);
  for (size_t i = 0; i < arguments.size(); ++i) {
    const double right =
        std::clamp(exact(double{arguments[i]}), -1e300, double{std::numeric_limits<float>::max()});
    if (arguments[i] == 0 && right < -1e200)
      ASSERT_EQ(results[i], -std::numeric_limits<float>::infinity());
    else
      ASSERT_LT(errorOf(results[i], right), bound)
          << "of " << std::hexfloat << arguments[i] << ": " << results[i];
  }
}

TEST(Unary, FloatLogarithmsAndExponentialsAreExactToAUnit) {
  const auto exp = [](double x) { return std::exp(x); };
  const auto ln = [](double x) { return std::log(x); };
  std::vector<float> about;  // where exponentials leave the floats, and the denormals
  for (float x : {88.722839F, -87.336548F, -103.278930F, -103.972084F, 0.34657359F, -0.34657359F})
    for (int i = -50; i <= 50; ++i) about.push_back(x + static_cast<float>(i) * std::ldexp(x, -23));
  for (int i = -3000; i <= 3000; ++i) about.push_back(static_cast<float>(i) * 0.03514F);
  expectErrors(lumiExp_32f_C1R, exp, argumentsOf(1), 1);
  expectErrors(lumiExp_32f_C1R, exp, argumentsOf(-1), 1);
  expectErrors(lumiExp_32f_C1R, exp, about, 1);
  expectErrors(lumiLn_32f_C1R, ln, argumentsOf(1), 1);
}

TEST(Unary, FloatsThatAreNoOrdinaryNumbers) {
  constexpr float infinity = std::numeric_limits<float>::infinity(),
                  nan = std::numeric_limits<float>::quiet_NaN();
  const auto of = [](auto* function, float x, LumStatus status) {
    float result = 77;
    EXPECT_EQ(function(&x, 4, &result, 4, {1, 1}), status) << x;
    return result;
  };
  EXPECT_EQ(of(lumiLn_32f_C1R, infinity, lumStatusOk), infinity);
  EXPECT_TRUE(std::isnan(of(lumiLn_32f_C1R, nan, lumStatusOk)));
  EXPECT_TRUE(std::isnan(of(lumiLn_32f_C1R, -1, lumStatusLogDomain)));
  EXPECT_TRUE(std::isnan(of(lumiLn_32f_C1R, -infinity, lumStatusLogDomain)));
  EXPECT_EQ(of(lumiLn_32f_C1R, 0, lumStatusLogSingularity), -infinity);
  EXPECT_EQ(of(lumiLn_32f_C1R, -0.0F, lumStatusLogSingularity), -infinity);
  EXPECT_EQ(std::signbit(of(lumiLn_32f_C1R, 1, lumStatusOk)), false);
  EXPECT_EQ(of(lumiLn_32f_C1R, 1, lumStatusOk), 0);
  EXPECT_EQ(of(lumiExp_32f_C1R, infinity, lumStatusOk), infinity);
  EXPECT_EQ(of(lumiExp_32f_C1R, -infinity, lumStatusOk), 0);
  EXPECT_EQ(of(lumiExp_32f_C1R, 0, lumStatusOk), 1);
  EXPECT_TRUE(std::isnan(of(lumiExp_32f_C1R, nan, lumStatusOk)));
  EXPECT_EQ(std::signbit(of(lumiSqrt_32f_C1R, -0.0F, lumStatusOk)), true);
  EXPECT_TRUE(std::isnan(of(lumiSqrt_32f_C1R, -1e-45F, lumStatusSqrtOfNegative)));
  EXPECT_TRUE(std::isnan(of(lumiSqrt_32f_C1R, nan, lumStatusOk)));
  EXPECT_EQ(std::signbit(of(lumiAbs_32f_C1R, std::copysign(nan, -1.0F), lumStatusOk)), false);
}

// A bad sample anywhere, in rows of any width, is found, and the others are done.
TEST(Unary, OneBadSampleIsFoundWhereverItIs) {
  constexpr int rows = 3;
  for (int width : {1, 2, 3, 5, 7, 8, 9, 16, 17, 31, 33, 64, 100})
    for (int step : {width, width + 5})
      for (int y = 0; y < rows; ++y)
        for (int x = 0; x < width; ++x) {
          std::vector<Lum32f> src(static_cast<size_t>(step * rows), 4), dst(src.size());
          std::vector<Lum16s> words(src.size(), 4), results(src.size());
          const auto at = static_cast<size_t>(y * step + x);
          // Gaps hold bad samples of the other kind, which nobody looks at.
          for (size_t i = 0; i < src.size(); ++i)
            if (i % static_cast<size_t>(step) >= static_cast<size_t>(width)) src[i] = -1, words[i] = -1;
          src[at] = -9;
          words[at] = -9;
          const LumiSize roi{width, rows};
          ASSERT_EQ(lumiSqrt_32f_C1R(src.data(), 4 * step, dst.data(), 4 * step, roi),
                    lumStatusSqrtOfNegative);
          ASSERT_EQ(lumiSqrt_16s_C1RSfs(words.data(), 2 * step, results.data(), 2 * step, roi, 0),
                    lumStatusSqrtOfNegative);
          for (int v = 0; v < rows; ++v)
            for (int u = 0; u < width; ++u) {
              const auto i = static_cast<size_t>(v * step + u);
              ASSERT_EQ(results[i], i == at ? 0 : 2);
              ASSERT_TRUE(i == at ? std::isnan(dst[i]) : dst[i] == 2);
            }
          ASSERT_EQ(lumiLn_32f_C1R(src.data(), 4 * step, dst.data(), 4 * step, roi), lumStatusLogDomain);
          ASSERT_EQ(lumiLn_16s_C1RSfs(words.data(), 2 * step, results.data(), 2 * step, roi, 0),
                    lumStatusLogOfZero);
          src[at] = words[at] = 4;
          ASSERT_EQ(lumiSqrt_32f_C1R(src.data(), 4 * step, dst.data(), 4 * step, roi), lumStatusOk);
          ASSERT_EQ(lumiLn_32f_C1R(src.data(), 4 * step, dst.data(), 4 * step, roi), lumStatusOk);
          ASSERT_EQ(lumiLn_16s_C1RSfs(words.data(), 2 * step, results.data(), 2 * step, roi, 0), lumStatusOk);
        }
}

// Rows that touch one another stay apart where two warnings are possible.
TEST(Unary, TheFirstRowThatWarnsDecides) {
  for (int width : {1, 3, 8, 40}) {
    const LumiSize roi{width, 3};
    const auto statusOf = [&](float first, float second, float third) {
      std::vector<float> image(static_cast<size_t>(3 * width), 1);
      image[static_cast<size_t>(width - 1)] = first;
      image[static_cast<size_t>(width)] = second;
      image[static_cast<size_t>(3 * width - 1)] = third;
      return lumiLn_32f_C1IR(image.data(), 4 * width, roi);
    };
    EXPECT_EQ(statusOf(1, 0, -1), lumStatusLogSingularity);
    EXPECT_EQ(statusOf(1, -1, 0), lumStatusLogDomain);
    EXPECT_EQ(statusOf(0, -1, -1), lumStatusLogSingularity);
    EXPECT_EQ(statusOf(-1, 0, 0), lumStatusLogDomain);
    EXPECT_EQ(statusOf(1, 1, -1), lumStatusLogDomain);
  }
}

TEST(Unary, AlphaNeverWarns) {
  for (int width = 1; width <= 40; ++width) {
    std::vector<Lum16s> words(static_cast<size_t>(4 * width), 9);
    std::vector<Lum32f> floats(words.size(), 9);
    for (size_t i = 3; i < words.size(); i += 4) words[i] = -9, floats[i] = -9;
    EXPECT_EQ(lumiSqrt_16s_AC4IRSfs(words.data(), 8 * width, {width, 1}, 0), lumStatusOk);
    EXPECT_EQ(lumiSqrt_32f_AC4IR(floats.data(), 16 * width, {width, 1}), lumStatusOk);
    for (size_t i = 0; i < words.size(); ++i) {
      EXPECT_EQ(words[i], i % 4 == 3 ? -9 : 3);
      EXPECT_EQ(floats[i], i % 4 == 3 ? -9 : 3);
    }
    words[static_cast<size_t>(4 * width - 2)] = -9;
    EXPECT_EQ(lumiSqrt_16s_AC4IRSfs(words.data(), 8 * width, {width, 1}, 0), lumStatusSqrtOfNegative);
  }
}

// The first byte of the second row's first sample, where bytes tell their own places.
template <typename T, typename... Rest>
int secondRowBegins(LumStatus (*function)(const T*, int, T*, int, LumiSize, Rest...), int step,
                    Rest... rest) {
  alignas(8) Byte src[64], dst[64] = {};
  std::iota(std::begin(src), std::end(src), Byte{0});
  EXPECT_EQ(function(reinterpret_cast<const T*>(src), step, reinterpret_cast<T*>(dst), 32, {1, 2}, rest...),
            lumStatusOk);
  return dst[32];
}

TEST(Unary, StepsOfSomeMembersAreWholeSamples) {
  EXPECT_EQ(secondRowBegins(lumiAbs_16s_C1R, 5), 4);
  EXPECT_EQ(secondRowBegins(lumiAbs_16s_C3R, 7), 6);
  EXPECT_EQ(secondRowBegins(lumiAbs_16s_C4R, 9), 9);
  EXPECT_EQ(secondRowBegins(lumiAbs_16s_AC4R, 9), 9);
  EXPECT_EQ(secondRowBegins(lumiAbs_32f_C1R, 7), 4);
  EXPECT_EQ(secondRowBegins(lumiAbs_32f_C4R, 17), 17);
}

// Beyond the limits of a scale factor no source is read: it is closed.
template <typename T>
void expectUnread(Scaled<T> function, int largest) {
  const Arena closed(1 << 12);
  closed.setAccessible(closed.begin(), closed.end(), false);
  for (int s : {largest + 1, INT_MAX}) {
    std::vector<T> dst(40 * 2, 7);
    LumStatus status = 0;
    ASSERT_FALSE(faultOf([&] {
      status = function(reinterpret_cast<const T*>(closed.begin()), 128, dst.data(), 40 * int{sizeof(T)},
                        {37, 2}, s);
    })) << s;
    ASSERT_EQ(status, lumStatusOk);
    for (size_t i = 0; i < dst.size(); ++i) ASSERT_EQ(dst[i], i % 40 < 37 ? 0 : 7) << i;
  }
}

TEST(Unary, ResultsThatAreAllZeroReadNoSource) {
  expectUnread<Lum8u>(lumiSqr_8u_C1RSfs, 16);
  expectUnread<Lum16u>(lumiSqr_16u_C1RSfs, 32);
  expectUnread<Lum16s>(lumiSqr_16s_C1RSfs, 30);
  expectUnread<Lum8u>(lumiExp_8u_C1RSfs, 368);
  expectUnread<Lum16u>(lumiExp_16u_C1RSfs, 94548);
  expectUnread<Lum16s>(lumiExp_16s_C1RSfs, 47273);
}

}  // namespace
}  // namespace test
