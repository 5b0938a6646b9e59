// SPDX-License-Identifier: MIT
// The least and the greatest samples of each channel, of uint8_t, uint16_t, int16_t or floats, of 1, 3 or 4
// channels; alpha has extremes too, which nobody takes.
#pragma once

#include "kernels/channel_totals.hpp"
#include "kernels/rows.hpp"

namespace lumi {

// Of floats no more than the greatest finite one, and no less than the least.
template <typename T, int channels>
ChannelTotals<T> leastOf(SourceRows src, Extent pixels);
template <typename T, int channels>
ChannelTotals<T> greatestOf(SourceRows src, Extent pixels);

// Of bytes of one channel. No row is read behind one that holds 0, or 255.
uint8_t leastByteOf(SourceRows src, Extent pixels);
uint8_t greatestByteOf(SourceRows src, Extent pixels);

template <typename T>
struct ChannelRanges {
  ChannelTotals<T> least, greatest;
};
// Both. Of floats that are all infinite the infinity where it may be told, and the finite limit if not.
template <typename T, int channels>
ChannelRanges<T> rangesOf(SourceRows src, Extent pixels, bool tellsInfinities);

}  // namespace lumi
