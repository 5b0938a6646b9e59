// SPDX-License-Identifier: MIT
// What norms are made of, for each channel: the largest magnitude, the sum of magnitudes, the sum of squares.
#pragma once

#include <cstdint>
#include <type_traits>

#include "kernels/channel_totals.hpp"
#include "kernels/rows.hpp"

namespace lumi {

enum class Norm { Inf, L1, L2 };

using NormTotals = ChannelTotals<double>;
struct RelativeTotals {
  NormTotals differences, ofSecond;
};

// Of uint8_t, uint16_t, int16_t or float, of 1, 3 or 4 channels; alpha has a norm too, which nobody takes.
// The largest magnitude is also of int32_t of one channel; magnitudes of unsigned samples are added up as
// sums. Sums of floats are made in Total, float or double, differences too; sums of integers are of 64 bits,
// and go around. The total of one channel is in the first.
template <Norm norm, typename T, typename Total, int channels>
NormTotals normOfImage(SourceRows src, Extent pixels);
template <Norm norm, typename T, typename Total, int channels>
NormTotals normOfDifferences(SourceRows a, SourceRows b, Extent pixels);
// That of the differences and that of the second image, in one walk.
template <Norm norm, typename T, typename Total, int channels>
RelativeTotals relativeNorm(SourceRows a, SourceRows b, Extent pixels);

// To the nearest double.
double squareRootOf(double x);

}  // namespace lumi
