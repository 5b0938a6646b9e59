// SPDX-License-Identifier: MIT
// The least or the greatest samples of each channel and where they are first, of uint8_t, uint16_t, int16_t
// or floats, of 1, 3 or 4 channels.
#pragma once

#include "kernels/channel_totals.hpp"
#include "kernels/rows.hpp"

namespace lumi {

template <typename T>
struct PlacedExtremes {
  ChannelTotals<T> value;
  ChannelTotals<int> x, y;
};

// Of the first `used` channels. No row is read behind one with which integers of all of them have come to the
// limit of the type. Floats of one channel are within the finite values, at (0, 0) where none is.
template <typename T, int channels>
PlacedExtremes<T> placedLeastOf(SourceRows src, Extent pixels, size_t used);
template <typename T, int channels>
PlacedExtremes<T> placedGreatestOf(SourceRows src, Extent pixels, size_t used);

}  // namespace lumi
