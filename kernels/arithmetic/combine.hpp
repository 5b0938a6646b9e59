// SPDX-License-Identifier: MIT
// Row kernels of the operations that combine two images, or an image and a constant, sample by sample. Op is
// the operation's tag, T what its samples are: real ones, or complex ones where parts are not made apart.
#pragma once

#include "kernels/pattern.hpp"
#include "kernels/rows.hpp"
#include "kernels/scaling.hpp"

namespace lumi {

// What the function of an operation is chosen by: a scaling, unless the operation says otherwise.
template <typename Op>
struct Choice {
  using Type = Scaling;
};
template <typename Op>
using ChoiceOf = typename Choice<Op>::Type;

// dst = a op b; where alpha is not 0, it is the number of samples at the end of every pixel (of four times as
// many) that stay. What has no scale factor takes no scaling. dst may be a or b; where rows overlap
// otherwise, their samples are made one by one in order. Returns whether any sample was marked as bad.
template <typename Op, typename T, int alpha>
bool combineRows(SourceRows a, SourceRows b, TargetRows dst, Extent samples, ChoiceOf<Op> choice);

// The same with a constant pixel as the first operand: of three samples, real or complex, or of a power of
// two. A streaming kernel's stores bypass the cache.
template <typename Op, typename T, int alpha, bool ofThree, bool streaming = false>
void combineWithConstant(const PixelPattern& a, SourceRows b, TargetRows dst, Extent samples,
                         ChoiceOf<Op> choice);

}  // namespace lumi
