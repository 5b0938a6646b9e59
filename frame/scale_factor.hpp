// SPDX-License-Identifier: MIT
// The scale factor of integer results: x / 2^s, nearest, ties to even, then saturated.
#pragma once

#include <cstdint>
#include <limits>

namespace lumi {

template <typename T>
constexpr T saturate(int64_t x) {
  constexpr int64_t low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
  return static_cast<T>(x < low ? low : x > high ? high : x);
}

// x / 2^s for s >= 1, ties to the even neighbour. 2^(s-1) - 1 carries over the half, and the bit that
// would be the result's last one carries a tie only into an odd result.
// |x| < 2^62 keeps the sum inside 64 bits for s <= 62; beyond, every |x| below 2^62 rounds to zero.
constexpr int64_t roundShift(int64_t x, int s) {
  if (s > 62) return 0;
  return (x + ((int64_t{1} << (s - 1)) - 1) + ((x >> s) & 1)) >> s;
}

// x * 2^-s saturated to T. A shift that leaves 64 bits has left T long before: |x| * 2^32 is beyond
// every T of up to 32 bits for any x but 0.
template <typename T>
constexpr T scaleAndSaturate(int64_t x, int s) {
  static_assert(sizeof(T) <= 4);
  if (s == 0) return saturate<T>(x);
  if (s > 0) return saturate<T>(roundShift(x, s));
  // Operands of one call fit 32 bits and a sign, so that x * 2^30 fits 64 bits.
  constexpr int kLargestShift = 30;
  const int64_t low = saturate<T>(INT64_MIN), high = saturate<T>(INT64_MAX);
  if (s < -kLargestShift) return static_cast<T>(x == 0 ? 0 : x < 0 ? low : high);
  return saturate<T>(x * (int64_t{1} << -s));
}

}  // namespace lumi
