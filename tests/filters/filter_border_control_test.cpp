// SPDX-License-Identifier: MIT
// The caller's control register: where no sum is rounded, or where rounding it otherwise moves it nowhere
// near to another result, an Init and a run may each find any rounding mode in it.
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <algorithm>
#include <string>

#include "filters/filter_border_calls.hpp"
#include "support/random.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

using model::FilterKernel;

// To nearest, down, up, to zero; the last ones also flush denormals, in results and in operands.
constexpr unsigned kControls[] = {0x1F80, 0x3F80, 0x5F80, 0x7F80, 0x9FC0, 0xFFC0};
constexpr LumiSize kRoi{41, 9};

template <typename T>
std::vector<T> filtered(const FilterKernel& kernel, int channels, std::vector<T>& src, unsigned atInit,
                        unsigned atRun) {
  const unsigned before = _mm_getcsr();
  _mm_setcsr(atInit);
  filter::Work work(kernel, filter::dataType<T>(), channels, kRoi);
  std::vector<T> dst(src.size());
  const int step = kRoi.width * channels * static_cast<int>(sizeof(T));
  const T value[4] = {};
  const NamedCall call =
      filter::apply<T>(channels, filter::imageOf(src, step), filter::imageOf(dst, step), kRoi,
                       lumiBorderReplicate, value, work.spec.data(), work.buffer.data());
  _mm_setcsr(atRun);
  const LumStatus status = call.run();
  _mm_setcsr(before);
  EXPECT_EQ(status, lumStatusOk);
  return dst;
}

template <typename T>
void compareModes(const FilterKernel& kernel, Random& random) {
  for (const int channels : filter::kChannels) {
    // Then the taps become floats, which are rounded.
    if (!kernel.integers.empty() && sizeof(T) == 2 && channels != 1) continue;
    std::vector<T> src(static_cast<size_t>(kRoi.width * kRoi.height * channels));
    for (T& sample : src) sample = static_cast<T>(random.below(256));
    const std::vector<T> usual = filtered(kernel, channels, src, kControls[0], kControls[0]);
    for (const unsigned atInit : kControls)
      for (const unsigned atRun : kControls)
        ASSERT_TRUE(filtered(kernel, channels, src, atInit, atRun) == usual)
            << "samples of " << sizeof(T) << " bytes, C" << channels << ", kernel " << kernel.size.width
            << "x" << kernel.size.height << (kernel.integers.empty() ? " of floats" : " of integers")
            << ", divisor " << kernel.divisor << ", mode " << kernel.roundMode << ", control " << atInit
            << " at Init and " << atRun << " at the run";
  }
}

// Sums of multiples of 1/8 are exact, and some of them are ties.
TEST(FilterBorderControl, ExactSumsOfFloatsRoundToNearestInEveryMode) {
  for (int i = 0; i < settings().scaled(20); ++i) {
    Random random(mixSeed(settings().seed, "filter control floats", i));
    for (const LumiSize size : {LumiSize{3, 3}, {5, 1}, {9, 2}}) {
      FilterKernel kernel{size, {}, {}, 1, random.below(3)};
      kernel.floats.resize(static_cast<size_t>(size.width * size.height));
      for (Lum32f& tap : kernel.floats) tap = static_cast<float>(random.between(-3, 6)) / 8;
      compareModes<Lum8u>(kernel, random);
      compareModes<Lum16u>(kernel, random);
      compareModes<Lum16s>(kernel, random);
      compareModes<Lum32f>(kernel, random);
      if (HasFatalFailure()) return;
    }
  }
}

// No quotient by an odd divisor is a tie, or near to one.
TEST(FilterBorderControl, QuotientsOfIntegersRoundToNearestInEveryMode) {
  for (int i = 0; i < settings().scaled(20); ++i) {
    Random random(mixSeed(settings().seed, "filter control integers", i));
    for (const int divisor : {1, 2, 16, 3, 7, 255})
      for (const LumiSize size : {LumiSize{3, 3}, {5, 1}}) {
        FilterKernel kernel{size, {}, {}, divisor, random.below(3)};
        kernel.integers.resize(static_cast<size_t>(size.width * size.height));
        for (Lum16s& tap : kernel.integers) tap = static_cast<Lum16s>(random.between(-2, 9));
        compareModes<Lum8u>(kernel, random);
        compareModes<Lum16s>(kernel, random);
        if (HasFatalFailure()) return;
      }
  }
}

}  // namespace
}  // namespace test
