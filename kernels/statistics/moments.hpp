// SPDX-License-Identifier: MIT
// Moments of the channels of an image up to the third order.
#pragma once

#include <cstdint>

#include "kernels/rows.hpp"

namespace lumi {

// The moment of x^p * y^q is at 4 * q + p, where p + q is at most 3; the others are 0.
template <typename N>
struct ChannelMoments {
  N of[16];
};

// Of the first `used` channels of pixels of `stored` samples, which are uint8_t, uint16_t or float. As N:
//
//   uint64_t  of integers: modulo 2^64
//   double    sums of integers are exact up to 2^53. Beyond, and of floats, there are at most
//             5 * (columns + rows) + 200 roundings of nothing but sums of products x^p * y^q * sample
template <typename T, typename N>
void momentsOf(SourceRows src, Extent pixels, int stored, int used, ChannelMoments<N>* moments);

}  // namespace lumi
