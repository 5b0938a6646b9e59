// SPDX-License-Identifier: MIT
// The largest and the smallest sample of a rectangle.
#include "lumi/filter_extremes.h"

#include "dispatch/copy.hpp"
#include "filters/window_checks.hpp"
#include "filters/window_extremes.hpp"
#include "frame/check.hpp"

namespace lumi {
namespace {

using namespace check;

template <Extreme extreme, typename T, typename Layout>
LumStatus filterExtreme(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiSize mask,
                        LumiPoint anchor) {
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi), steps(srcStep, dstStep), maskSize(mask),
                                   anchorIn(anchor, mask)))
    return fault;
  if (mask.width == 1 && mask.height == 1) return call::CopyR<T, Layout>(src, srcStep, dst, dstStep, roi);
  return storeExtremes(extremeKernels<T, extreme>(),
                       extremeImage<Layout>(src, srcStep, dst, dstStep, roi, mask, anchor));
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/filter_extremes.inc"
