// SPDX-License-Identifier: MIT
// Bytes against means of their surroundings.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumi {

struct AdaptiveRule {
  uint8_t above, notAbove;
  float delta;  // times the window's pixels, in what compares with sums
  float area = 0;
  int16_t ninth = 0;  // nine deltas, rounded up, under 3 x 3
};

// Above where area * src > sum - delta, in floats. Sum is uint16_t, uint32_t or float. Neither the sums, of
// which some behind the last one are read, nor the source are in the destination.
template <typename Sum>
void compareWithSums(const AdaptiveRule& rule, const uint8_t* sums, const uint8_t* src, uint8_t* dst,
                     size_t count);
// Where 9 * src > sum - ninth, in integers; sums of 16 bits.
void compareWithNinths(const AdaptiveRule& rule, const uint8_t* sums, const uint8_t* src, uint8_t* dst,
                       size_t count);

// The most rows that are weighed at a time.
inline constexpr int kWeighedRows = 8;

// sums(i) = weights[0] * rows[0](i) + weights[1] * rows[1](i) and so on, in that order, and behind what is
// there already, unless they are the first. Sums are floats at any address.
void weighRows(const uint8_t* const* rows, const float* weights, int count, bool first, uint8_t* sums,
               size_t samples);

// Above where src(i) > weights[0] * columns(i) + weights[1] * columns(i + 1) and so on, less delta.
void compareWithWeighed(const AdaptiveRule& rule, const uint8_t* columns, const float* weights, int taps,
                        const uint8_t* src, uint8_t* dst, size_t count);

}  // namespace lumi
