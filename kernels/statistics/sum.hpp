// SPDX-License-Identifier: MIT
// Sums of the samples of each channel, of 1, 3 or 4 channels; alpha has a sum too, which nobody takes.
#pragma once

#include "kernels/channel_totals.hpp"
#include "kernels/rows.hpp"

namespace lumi {

using ChannelSums = ChannelTotals<double>;

// Of uint8_t, uint16_t or int16_t: exact but for the last rounding.
template <typename T, int channels>
ChannelSums sumsOfIntegers(SourceRows src, Extent pixels);

// Of floats: in doubles, or in floats that are kept over all rows.
template <int channels>
ChannelSums sumsInDoubles(SourceRows src, Extent pixels);
template <int channels>
ChannelSums sumsInFloats(SourceRows src, Extent pixels);

// Of floats of four channels: each row in floats, the rows in extended precision.
ChannelSums sumsOfRowsInFloats(SourceRows src, Extent pixels);

}  // namespace lumi
