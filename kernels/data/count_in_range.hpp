// SPDX-License-Identifier: MIT
// How many samples of each channel lie in a range.
#pragma once

#include <cstdint>

#include "kernels/channel_totals.hpp"
#include "kernels/rows.hpp"

namespace lumi {

// The bounds and the counts of each channel; counts go around at 2^32.
template <typename T>
struct Ranges {
  T lower[4], upper[4];
};
using ChannelCounts = ChannelTotals<uint32_t>;

// Of bytes or floats, of 1, 3 or 4 channels, all of which have a range.
template <typename T, int channels>
ChannelCounts countInRanges(SourceRows src, Extent pixels, const Ranges<T>& ranges);

}  // namespace lumi
