// SPDX-License-Identifier: MIT
// Vector medians: of the colours in a square, the one whose distances to all the others have the least sum. A
// distance is the sum of the differences of three channels.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace lumi {

// Of the differences. Words hold 24 distances of bytes, 18360 at the most, dwords as many of words.
template <typename T>
using ColourSum = std::conditional_t<sizeof(T) == 1, int16_t,
                                     std::conditional_t<std::is_floating_point_v<T>, float, int32_t>>;

// Goes down a strip of an image. The distance of two pixels is formed once, when the lower one's row is
// taken, and kept as long as windows cover both.
template <typename T, int side>
class ColourMedian {
 public:
  using Sum = ColourSum<T>;
  static constexpr size_t kMostPixels = 128 / sizeof(Sum);  // of a strip

  // Takes the next row at its first pixel under a window of the strip: as many pixels as the strip and
  // side - 1 more.
  void take(const uint8_t* row, size_t pixelBytes, size_t pixels);

  // The place in its window, in reading order, of the result of each pixel of the strip; the rows of the
  // windows are those taken last. The first one of equal sums wins. Distances are added in reading order.
  void results(Sum* places, size_t pixels) const;

 private:
  static constexpr int kPlaces = side * side;
  static constexpr size_t kAround = 8;  // on both sides of a row: no less than windows reach
  static constexpr size_t kRow = kAround + kMostPixels + kAround + 32 / sizeof(Sum);
  static constexpr int kPairs = 2 * side * (side - 1);

  // Pairs of a pixel and another one, `down` rows below and `right` columns beside it.
  static constexpr int pair(int down, int right) {
    return down == 0 ? right - 1 : side - 1 + (down - 1) * (2 * side - 1) + right + side - 1;
  }
  int slot(int row) const { return (taken_ + row) % side; }  // of the last ones, from the first on

  void formDistances(int down, size_t pixels);
  using Terms = const Sum* [kPlaces][kPlaces - 1];
  void findTerms(Terms& terms) const;

  // By slots, each of a row that was taken: its pixels, and their distances to those above and beside them,
  // at the place of the upper, or the left, one.
  alignas(32) Sum channels_[side][3][kRow] = {};
  alignas(32) Sum distances_[side][kPairs][kRow];
  int taken_ = 0;  // modulo side
};

}  // namespace lumi
