// SPDX-License-Identifier: MIT
// Comparisons of vectors, and choices by them: every sample type, about its limits.
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <vector>

#include "kernels/simd/floats.hpp"

namespace test {
namespace {

using namespace lumi::simd;

// What comparisons of vectors of T tell of two samples: masks of all bits, and choices.
template <typename T>
void expectComparisons(T a, T b) {
  const T yes = 1, no = 2;
  const auto everywhere = [](T x) {
    if constexpr (std::is_same_v<T, float>)
      return broadcastFloat<Floats8>(x);
    else
      return broadcast(x);
  };
  const auto first = [](auto v) {
    alignas(32) Byte bytes[32] = {};
    const auto raw = bytesOf(v);
    std::memcpy(bytes, &raw, sizeof raw);
    T sample;
    std::memcpy(&sample, bytes + sizeof raw - sizeof sample, sizeof sample);
    return sample;
  };
  const auto isMask = [&](auto v, bool holds) {
    const T mask = first(v);
    Byte bytes[sizeof(T)];
    std::memcpy(bytes, &mask, sizeof mask);
    return std::all_of(bytes, bytes + sizeof bytes, [=](Byte byte) { return byte == (holds ? 0xFF : 0); });
  };
  const auto x = everywhere(a), y = everywhere(b);
  EXPECT_TRUE(isMask(isAbove(x, y), a > b)) << +a << " above " << +b;
  EXPECT_TRUE(isMask(isAtLeast(x, y), a >= b)) << +a << " at least " << +b;
  EXPECT_TRUE(isMask(isEqual(x, y), a == b)) << +a << " equal to " << +b;
  EXPECT_EQ(first(ifAboveThenElse(x, y, everywhere(yes), everywhere(no))), a > b ? yes : no)
      << +a << " " << +b;
  EXPECT_EQ(first(ifAtLeastThenElse(x, y, everywhere(yes), everywhere(no))), a >= b ? yes : no)
      << +a << " " << +b;
}

template <typename T>
void expectComparisonsOfLimits() {
  using Limits = std::numeric_limits<T>;
  std::vector<T> samples = {Limits::lowest(), 0, 1, 2, 100, Limits::max() / 2, Limits::max()};
  if (std::is_signed_v<T>) samples.insert(samples.end(), {static_cast<T>(-1), static_cast<T>(-100)});
  if (Limits::has_quiet_NaN)
    samples.insert(samples.end(), {Limits::quiet_NaN(), Limits::infinity(), static_cast<T>(-0.0F)});
  for (T a : samples)
    for (T b : samples) expectComparisons(a, b);
}

TEST(VectorWords, ComparisonsOfEverySampleType) {
  expectComparisonsOfLimits<uint8_t>();
  expectComparisonsOfLimits<int8_t>();
  expectComparisonsOfLimits<uint16_t>();
  expectComparisonsOfLimits<int16_t>();
  expectComparisonsOfLimits<uint32_t>();
  expectComparisonsOfLimits<int32_t>();
  expectComparisonsOfLimits<float>();
}

}  // namespace
}  // namespace test
