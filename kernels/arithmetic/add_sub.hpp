// SPDX-License-Identifier: MIT
// Row kernels of addition and subtraction.
#pragma once

#include "kernels/pattern.hpp"
#include "kernels/rows.hpp"
#include "kernels/scaling.hpp"

namespace lumi {

// a + b.
struct Add {};
// b - a: the first operand is subtracted from the second. Unsigned differences below zero count as zero
// before they are scaled.
struct Sub {};

// dst = a op b for samples of type T; where alpha is not 0, it is the number of samples at the end of every
// pixel (of four times as many) that stay. Floats take no scaling. dst may be a or b; where rows overlap
// otherwise, their samples are made one by one in order.
template <typename Op, typename T, int alpha>
void combineRows(SourceRows a, SourceRows b, TargetRows dst, Extent samples, Scaling scaling);

// The same with a constant pixel as the first operand: of three samples, real or complex, or of a power of
// two. A streaming kernel's stores bypass the cache.
template <typename Op, typename T, int alpha, bool ofThree, bool streaming = false>
void combineWithConstant(const PixelPattern& a, SourceRows b, TargetRows dst, Extent samples,
                         Scaling scaling);

}  // namespace lumi
