// SPDX-License-Identifier: MIT
// Dilation and erosion by a square of 3 x 3.
#include "lumi/morphology3x3.h"

#include "filters/window_checks.hpp"
#include "filters/window_extremes.hpp"
#include "frame/check.hpp"

namespace lumi {
namespace {

using namespace check;

template <Extreme extreme, typename T, typename Layout>
LumStatus morphology3x3(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  constexpr LumiSize kMask{3, 3};
  if (LumStatus fault =
          firstFault(pointers(src, dst), steps(srcStep, dstStep), size(roi),
                     windowsInSteps(srcStep, dstStep, kPixelBytes<T, Layout>, roi.width, kMask.width)))
    return fault;
  return storeExtremes(extremeKernels<T, extreme>(),
                       extremeImage<Layout>(src, srcStep, dst, dstStep, roi, kMask, {1, 1}));
}

template <Extreme extreme, typename T, typename Layout>
LumStatus morphology3x3(T* srcDst, int step, LumiSize roi) {
  return morphology3x3<extreme, T, Layout>(srcDst, step, srcDst, step, roi);
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/morphology3x3.inc"
