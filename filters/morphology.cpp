// SPDX-License-Identifier: MIT
// Dilation and erosion by any mask.
#include "lumi/morphology.h"

#include <algorithm>
#include <type_traits>

#include "filters/window_checks.hpp"
#include "filters/window_extremes.hpp"
#include "frame/check.hpp"

namespace lumi {
namespace {

using namespace check;

LumStatus selectsAny(const Lum8u* mask, LumiSize size) {
  const ptrdiff_t elements = static_cast<ptrdiff_t>(size.width) * size.height;
  return std::all_of(mask, mask + elements, [](Lum8u element) { return element == 0; }) ? lumStatusZeroMask
                                                                                        : lumStatusOk;
}

template <Extreme extreme, typename T, typename Layout>
LumStatus morphology(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, const Lum8u* mask,
                     LumiSize size, LumiPoint anchor) {
  if (LumStatus fault = firstFault(
          pointers(src, dst, mask), steps(srcStep, dstStep), check::size(roi), maskSize(size),
          [=] { return selectsAny(mask, size); }, anchorIn(anchor, size),
          windowsInSteps(srcStep, dstStep, kPixelBytes<T, Layout>, roi.width, size.width)))
    return fault;
  return storeExtremes(extremeKernels<T, extreme, std::is_floating_point_v<T>>(),
                       extremeImage<Layout>(src, srcStep, dst, dstStep, roi, size, anchor), mask);
}

template <Extreme extreme, typename T, typename Layout>
LumStatus morphology(T* srcDst, int step, LumiSize roi, const Lum8u* mask, LumiSize size, LumiPoint anchor) {
  return morphology<extreme, T, Layout>(srcDst, step, srcDst, step, roi, mask, size, anchor);
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/morphology.inc"
