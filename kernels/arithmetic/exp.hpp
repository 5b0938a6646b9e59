// SPDX-License-Identifier: MIT
#pragma once

#include <limits>
#include <type_traits>

#include "kernels/rows.hpp"

namespace lumi {

// The largest scale factor at which a sample of the type has an exponential that does not round to zero.
template <typename T>
inline constexpr int kLargestScaleOfExp = 0;
template <>
inline constexpr int kLargestScaleOfExp<uint8_t> = 368;
template <>
inline constexpr int kLargestScaleOfExp<uint16_t> = 94548;
template <>
inline constexpr int kLargestScaleOfExp<int16_t> = 47273;

// dst = e^src for floats, or e^src * 2^-scaleFactor for integers, to the nearest integer, ties to even,
// limited to the type; the factor is at most the largest. dst may be src.
template <typename T>
void expRows(SourceRows src, TargetRows dst, Extent samples, int scaleFactor);

}  // namespace lumi
