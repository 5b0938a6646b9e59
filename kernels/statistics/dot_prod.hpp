// SPDX-License-Identifier: MIT
// Sums of products of two images' samples, and of weighted rows.
#pragma once

#include <cstddef>
#include <cstdint>

#include "kernels/channel_totals.hpp"
#include "kernels/rows.hpp"

namespace lumi {

// Of 8-bit, 16-bit or 32-bit integers or floats, of 1, 3 or 4 channels; alpha has a sum too, which nobody
// takes. Products and sums are made in Total, float for floats or double. Those of 8-bit and 16-bit integers
// are exact as long as no sum reaches 2^53. The total of one channel is in the first.
template <typename T, typename Total, int channels>
ChannelTotals<double> dotProducts(SourceRows a, SourceRows b, Extent pixels);

// dst = rows[0] * weights[0] + rows[1] * weights[1] + ..., of floats or doubles, each product and each sum
// rounded, in this order. dst overlaps no row.
template <typename T>
void addWeightedRows(const T* const* rows, const T* weights, size_t count, T* dst, size_t width);

}  // namespace lumi
