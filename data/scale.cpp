// SPDX-License-Identifier: MIT
// Scale: the full range of one sample type onto that of another.
#include "lumi/scale.h"

#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "frame/rounding_control.hpp"
#include "frame/rows.hpp"
#include "kernels/data/scale.hpp"
#include "kernels/fence.hpp"

namespace lumi {
namespace {

using namespace check;

// From 4 MiB (less a byte) that a pixel of one channel would move at three or five bytes; 32s8u counts as
// three. The cache is not asked for, and more channels do not count.
template <typename D>
bool streamsScale(LumiSize roi) {
  constexpr int64_t pixels = sizeof(D) == 4 ? 838860 : 1398101;
  return int64_t{roi.width} * roi.height >= pixels;
}

template <typename Layout>
inline constexpr bool kHasAlpha = kAlpha<Lum8u, Layout> != 0;

template <typename S, typename D, typename Layout>
LumStatus widen(const S* src, int srcStep, D* dst, int dstStep, LumiSize roi) {
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi), steps(srcStep, dstStep))) return fault;
  const bool streaming = streamsScale<D>(roi);
  runSamples<Layout>(src, srcStep, dst, dstStep, roi, [&](SourceRows s, TargetRows d, Extent samples) {
    widenRows<D, kHasAlpha<Layout>>(s, d, samples, streaming);
  });
  if (streaming) storeFence();
  return lumStatusOk;
}

// The accurate way is defined by floats rounded to nearest. Its kernel has no need of them, but a refused
// call leaves the unit rounding so: that is part of the interface.
template <typename S, typename D, typename Layout>
LumStatus narrow(const S* src, int srcStep, D* dst, int dstStep, LumiSize roi, LumAlgorithmHint hint) {
  const bool accurate = hint == 2;
  const unsigned before = accurate ? setRounding(Rounding::Nearest) : 0;
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi), steps(srcStep, dstStep))) return fault;
  const bool streaming = !accurate && streamsScale<D>(roi);
  runSamples<Layout>(src, srcStep, dst, dstStep, roi, [&](SourceRows s, TargetRows d, Extent samples) {
    narrowRows<S, kHasAlpha<Layout>>(s, d, samples, accurate, streaming);
  });
  if (streaming) storeFence();
  if (accurate) restoreRounding(before);
  return lumStatusOk;
}

template <typename S, typename D, typename Layout>
LumStatus widenToFloats(const S* src, int srcStep, D* dst, int dstStep, LumiSize roi, Lum32f lower,
                        Lum32f upper) {
  if (LumStatus fault =
          firstFault(range(lower, upper), pointers(src, dst), size(roi), steps(srcStep, dstStep)))
    return fault;
  const bool streaming = streamsScale<D>(roi);
  const LinearMap map = bytesToFloats(lower, upper);
  runSamples<Layout>(src, srcStep, dst, dstStep, roi, [&](SourceRows s, TargetRows d, Extent samples) {
    widenToFloatsRows<kHasAlpha<Layout>>(s, d, samples, map, streaming);
  });
  if (streaming) storeFence();
  return lumStatusOk;
}

// The rounding is set before anything else, and left so by a refused call. What is rounded by it is computed
// in functions that are compiled apart, so that none of it can move before the setting.
template <typename S, typename D, typename Layout>
LumStatus narrowFloats(const S* src, int srcStep, D* dst, int dstStep, LumiSize roi, Lum32f lower,
                       Lum32f upper) {
  const unsigned before = setRounding(Rounding::Nearest);
  if (LumStatus fault =
          firstFault(range(lower, upper), pointers(src, dst), size(roi), steps(srcStep, dstStep)))
    return fault;
  const LinearMap map = floatsToBytes(lower, upper);
  runSamples<Layout>(src, srcStep, dst, dstStep, roi, [&](SourceRows s, TargetRows d, Extent samples) {
    narrowFloatsRows<kHasAlpha<Layout>>(s, d, samples, map);
  });
  restoreRounding(before);
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/scale.inc"
