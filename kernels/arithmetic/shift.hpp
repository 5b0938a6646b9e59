// SPDX-License-Identifier: MIT
// Row kernels of shifts. Counts are at most the bits of a sample, and one less where signed samples go to the
// right. dst may be src; where rows overlap otherwise, their samples are made one by one in order.
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

struct Left {};
struct Right {};

// All samples by one count; with alpha, of pixels of four, all but the last one of each.
template <typename Op, typename T, bool alpha>
void shiftRows(SourceRows src, TargetRows dst, Extent samples, int bits);

// The first `used` of every `stored` samples, each by its own count; the others stay.
template <typename Op, typename T, int stored, int used>
void shiftChannels(SourceRows src, TargetRows dst, Extent samples, const int* bits);

}  // namespace lumi
