// SPDX-License-Identifier: MIT
// Filters with kernels of the library's own, whose source has its surroundings in memory.
#include "lumi/filter_fixed.h"

#include "dispatch/add_sub.hpp"
#include "filters/window_walk.hpp"
#include "frame/check.hpp"
#include "kernels/filters/fixed_filters.hpp"

namespace lumi {
namespace {

using namespace check;

constexpr LumStatus maskOfThreeOrFive(LumiMaskSize mask) {
  return mask == lumiMask3x3 || mask == lumiMask5x5 ? lumStatusOk : lumStatusBadMaskSize;
}

template <FixedFilter three, typename S, typename D, typename Layout>
LumStatus filterFixed(const S* src, int srcStep, D* dst, int dstStep, LumiSize roi) {
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi), steps(srcStep, dstStep))) return fault;
  filterWindows(fixedFilter<S, D>(three), rows(src, srcStep), rows(dst, dstStep), roi, kShape<Layout>);
  return lumStatusOk;
}
template <FixedFilter three, typename T, typename Layout>
LumStatus filterFixed(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  return filterFixed<three, T, T, Layout>(src, srcStep, dst, dstStep, roi);
}

template <FixedFilter three, FixedFilter five, typename S, typename D, typename Layout>
LumStatus filterFixed(const S* src, int srcStep, D* dst, int dstStep, LumiSize roi, LumiMaskSize mask) {
  if (LumStatus fault =
          firstFault(pointers(src, dst), size(roi), steps(srcStep, dstStep), maskOfThreeOrFive(mask)))
    return fault;
  const FixedFilter filter = mask == lumiMask3x3 ? three : five;
  filterWindows(fixedFilter<S, D>(filter), rows(src, srcStep), rows(dst, dstStep), roi, kShape<Layout>);
  return lumStatusOk;
}
template <FixedFilter three, FixedFilter five, typename T, typename Layout>
LumStatus filterFixed(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiMaskSize mask) {
  return filterFixed<three, five, T, T, Layout>(src, srcStep, dst, dstStep, roi, mask);
}

template <FixedFilter three, FixedFilter five, typename T, typename Layout>
LumStatus filterFixedOfAnyMask(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi,
                               LumiMaskSize mask) {
  return filterFixed<three, five, T, T, Layout>(src, srcStep, dst, dstStep, roi,
                                                mask == lumiMask3x3 ? lumiMask3x3 : lumiMask5x5);
}

// The first operand is subtracted: the pixel above, on that side.
template <int side, typename T, typename Layout>
LumStatus filterRoberts(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi), steps(srcStep, dstStep))) return fault;
  const auto* const other = reinterpret_cast<const T*>(rows(src, srcStep).row(-1) +
                                                       static_cast<ptrdiff_t>(side) * kPixelBytes<T, Layout>);
  if constexpr (std::is_floating_point_v<T>)
    return call::SubR<T, Layout>(other, srcStep, src, srcStep, dst, dstStep, roi);
  else
    return call::SubRSfs<T, Layout>(other, srcStep, src, srcStep, dst, dstStep, roi, 0);
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/filter_fixed.inc"
