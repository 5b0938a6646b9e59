// SPDX-License-Identifier: MIT
#include "kernels/filters/median_colour.hpp"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "kernels/filters/sample_vectors.hpp"

namespace lumi {
namespace {

using namespace simd;

template <typename V>
[[gnu::always_inline]] inline V absoluteDifference(V a, V b) {
  if constexpr (std::is_same_v<V, Floats8>)
    return magnitude(a - b);
  else
    return {magnitude(a - b).v};
}

template <typename Sum>
[[gnu::always_inline]] inline void storeSums(Sum* p, Vector<Sum> x) {
  store(reinterpret_cast<Byte*>(p), x);
}

template <typename Sum>
Vector<Sum> constantOf(int x) {
  if constexpr (std::is_floating_point_v<Sum>)
    return broadcastFloat<Floats8>(static_cast<float>(x));
  else
    return broadcast(static_cast<Sum>(x));
}

}  // namespace

template <typename T, int side>
void ColourMedian<T, side>::take(const uint8_t* row, size_t pixelBytes, size_t pixels) {
  auto& channels = channels_[taken_];
  for (size_t i = 0; i < pixels + side - 1; ++i) {
    T samples[3];
    std::memcpy(samples, row + i * pixelBytes, sizeof samples);
    for (size_t c = 0; c < 3; ++c) channels[c][kAround + i] = samples[c];
  }
  taken_ = (taken_ + 1) % side;
  for (int down = 0; down < side; ++down) formDistances(down, pixels);
}

// Of the row taken last and the one so many rows above it.
template <typename T, int side>
void ColourMedian<T, side>::formDistances(int down, size_t pixels) {
  const int last = slot(side - 1);
  const auto &upper = channels_[slot(side - 1 - down)], &lower = channels_[last];
  for (size_t i = kAround; i < kAround + pixels + side - 1; i += kLanesOf<Sum>) {
    const auto red = loadAt(upper[0] + i), green = loadAt(upper[1] + i), blue = loadAt(upper[2] + i);
    for (int right = down == 0 ? 1 : 1 - side; right < side; ++right) {
      const auto difference = [&](int c, Vector<Sum> x) __attribute__((always_inline)) {
        return absoluteDifference(x, loadAt(lower[c] + i + right));
      };
      storeSums(distances_[last][pair(down, right)] + i,
                (difference(0, red) + difference(1, green)) + difference(2, blue));
    }
  }
}

// For each place of a window, where its distances to all the others begin.
template <typename T, int side>
void ColourMedian<T, side>::findTerms(Terms& terms) const {
  const auto distance = [&](int row, int column, int otherRow, int otherColumn) {
    const int down = std::abs(row - otherRow);
    const bool isFirst = row < otherRow || (row == otherRow && column < otherColumn);
    const int first = isFirst ? column : otherColumn, second = isFirst ? otherColumn : column;
    return distances_[slot(std::max(row, otherRow))][pair(down, second - first)] + kAround + first;
  };
  for (int place = 0; place < kPlaces; ++place)
    for (int other = 0, term = 0; other < kPlaces; ++other)
      if (other != place)
        terms[place][term++] = distance(place / side, place % side, other / side, other % side);
}

template <typename T, int side>
void ColourMedian<T, side>::results(Sum* places, size_t pixels) const {
  Terms terms;
  findTerms(terms);
  for (size_t i = 0; i < pixels; i += kLanesOf<Sum>) {
    Vector<Sum> least, winner;
    for (int place = 0; place < kPlaces; ++place) {
      Vector<Sum> sum = loadAt(terms[place][0] + i);
      for (int term = 1; term < kPlaces - 1; ++term) sum = sum + loadAt(terms[place][term] + i);
      const Vector<Sum> here = constantOf<Sum>(place);
      if (place == 0) {
        least = sum;
        winner = here;
      } else {
        const Vector<Sum> isLess = isAbove(least, sum);
        least = ifThenElse(isLess, sum, least);
        winner = ifThenElse(isLess, here, winner);
      }
    }
    storeSums(places + i, winner);
  }
}

template class ColourMedian<uint8_t, 3>;
template class ColourMedian<uint8_t, 5>;
template class ColourMedian<int16_t, 3>;
template class ColourMedian<int16_t, 5>;
template class ColourMedian<float, 3>;
template class ColourMedian<float, 5>;

}  // namespace lumi
