// SPDX-License-Identifier: MIT
// Means of windows: what the sum of a window comes to.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumi {

// Sums and results lie at any address, and a row of results may be stored over its own sums.
struct WindowMean {
  using Row = void (*)(const WindowMean& mean, const uint8_t* sums, uint8_t* dst, size_t samples);

  Row row;
  uint32_t factor = 0, half = 0;
  int up = 0, down = 0;
  double reciprocal = 0;
};

// Of bytes: (sum * factor + half) >> shift, from sums of 16 bits, where that is below 2^32 and sum << up
// below 2^16 for the least `up` that makes shift + up at least 17; and from sums of 32 bits.
WindowMean wordMean(uint32_t factor, bool rounded, int shift, int up);
WindowMean dwordMean(uint32_t factor, int shift);

// Of sums below 2^31: sum * reciprocal to the nearest integer, ties to even, limited to T; and, for bytes,
// what is left of sum * reciprocal + 9e-6f without its fraction. Sum is uint16_t, uint32_t or float.
template <typename T, typename Sum>
WindowMean nearestMean(float reciprocal);
template <typename Sum>
WindowMean truncatedMean(float reciprocal);

// sum * reciprocal of floats or doubles, and of the same type.
template <typename F>
WindowMean floatMean(F reciprocal);

// Sums as floats, rounded once; of signed samples the sums are signed.
template <typename T, typename Sum>
WindowMean floatSum();

}  // namespace lumi
