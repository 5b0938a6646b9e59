// SPDX-License-Identifier: MIT
// Networks of exchanges sort, merge or select what has any order as soon as they do so with zeros and ones.
// Each is tried on all of those that it may be given: a network that follows another one only on what is
// sorted.
#include "kernels/filters/median_networks.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace test {
namespace {

struct Bit {
  int value;
};
Bit min(Bit a, Bit b) { return {a.value & b.value}; }
Bit max(Bit a, Bit b) { return {a.value | b.value}; }

// Calls f(bits, how many are ones) with all bits of so many.
template <int n, typename F>
void forAllBits(const F& f) {
  for (int x = 0; x < 1 << n; ++x) {
    Bit bits[n];
    int ones = 0;
    for (int i = 0; i < n; ++i) ones += bits[i].value = x >> i & 1;
    f(bits, ones);
  }
}

// So many bits in order, of which that many are ones.
template <int n>
lumi::Sorted<Bit, n> inOrder(int ones) {
  lumi::Sorted<Bit, n> result;
  for (int i = 0; i < n; ++i) result.at[i].value = i >= n - ones ? 1 : 0;
  return result;
}

// Places from `first` on of so many bits in order.
template <int n>
void expectPlaces(const lumi::Sorted<Bit, n>& result, int first, int all, int ones) {
  for (int i = 0; i < n; ++i) EXPECT_EQ(result.at[i].value, first + i >= all - ones) << i << " of " << ones;
}

template <int a, int b, typename F>
void forAllSorted(const F& f) {
  for (int i = 0; i <= a; ++i)
    for (int j = 0; j <= b; ++j) f(inOrder<a>(i), inOrder<b>(j), i + j);
}

TEST(MedianNetworks, Sort) {
  forAllBits<2>([](const Bit* x, int ones) { expectPlaces(lumi::sorted(x[0], x[1]), 0, 2, ones); });
  forAllBits<3>([](const Bit* x, int ones) { expectPlaces(lumi::sorted(x[0], x[1], x[2]), 0, 3, ones); });
  forAllBits<5>(
      [](const Bit* x, int ones) { expectPlaces(lumi::sorted(x[0], x[1], x[2], x[3], x[4]), 0, 5, ones); });
}

TEST(MedianNetworks, MediansOfThreeFiveAndNine) {
  forAllBits<3>([](const Bit* x, int ones) { EXPECT_EQ(lumi::median(x[0], x[1], x[2]).value, ones >= 2); });
  forAllBits<5>(
      [](const Bit* x, int ones) { EXPECT_EQ(lumi::median(x[0], x[1], x[2], x[3], x[4]).value, ones >= 3); });
  forAllBits<9>([](const Bit* x, int ones) {
    const lumi::TwoOfThreeTriples<Bit> two(lumi::sorted(x[0], x[1], x[2]), lumi::sorted(x[3], x[4], x[5]));
    EXPECT_EQ(two.medianWith(lumi::sorted(x[6], x[7], x[8])).value, ones >= 5);
  });
}

TEST(MedianNetworks, Merge) {
  forAllSorted<2, 2>(
      [](const auto& a, const auto& b, int ones) { expectPlaces(lumi::merged(a, b), 0, 4, ones); });
  forAllSorted<3, 3>(
      [](const auto& a, const auto& b, int ones) { expectPlaces(lumi::merged(a, b), 0, 6, ones); });
  forAllSorted<5, 5>([](const auto& a, const auto& b, int ones) {
    lumi::Sorted<Bit, 10> result;
    lumi::merge(a, b, result);
    expectPlaces(result, 0, 10, ones);
  });
}

TEST(MedianNetworks, MiddlesOfMerges) {
  forAllSorted<2, 2>(
      [](const auto& a, const auto& b, int ones) { expectPlaces(lumi::middleOf(a, b), 1, 4, ones); });
  forAllSorted<3, 3>(
      [](const auto& a, const auto& b, int ones) { expectPlaces(lumi::middleOf(a, b), 2, 6, ones); });
  forAllSorted<10, 10>(
      [](const auto& a, const auto& b, int ones) { expectPlaces(lumi::middleOf(a, b), 7, 20, ones); });
}

// Four rows of five have the six in the middle of their twenty, and the fifth row makes a median of them.
TEST(MedianNetworks, MedianOfTwentyFive) {
  for (int ofFour = 0; ofFour <= 20; ++ofFour)
    for (int ofFifth = 0; ofFifth <= 5; ++ofFifth) {
      lumi::Sorted<Bit, 6> middle;
      for (int i = 0; i < 6; ++i) middle.at[i].value = 7 + i >= 20 - ofFour ? 1 : 0;
      EXPECT_EQ(lumi::medianOf(middle, inOrder<5>(ofFifth)).value, ofFour + ofFifth >= 13);
    }
}

TEST(MedianNetworks, PlacesOfEight) {
  forAllSorted<6, 2>([](const auto& six, const auto& two, int ones) {
    const auto expectBoth = [&](const lumi::Sorted<Bit, 2>& places, int k) {
      EXPECT_EQ(places.at[0].value, ones > 8 - k) << k;
      EXPECT_EQ(places.at[1].value, ones >= k) << k;
    };
    expectBoth(lumi::placesOf<1>(six, two), 1);
    expectBoth(lumi::placesOf<2>(six, two), 2);
    expectBoth(lumi::placesOf<3>(six, two), 3);
  });
}

// As vectors do: the second one where there is no order.
struct Number {
  float value;
};
Number min(Number a, Number b) { return a.value < b.value ? a : b; }
Number max(Number a, Number b) { return a.value > b.value ? a : b; }

TEST(MedianNetworks, ExchangesKeepWhatHasNoOrder) {
  Number low{0.0F}, high{-0.0F};
  lumi::exchange(low, high);
  EXPECT_NE(std::signbit(low.value), std::signbit(high.value));
  low.value = std::numeric_limits<float>::quiet_NaN();
  high.value = 3;
  lumi::exchange(low, high);
  EXPECT_NE(std::isnan(low.value), std::isnan(high.value));
}

}  // namespace
}  // namespace test
