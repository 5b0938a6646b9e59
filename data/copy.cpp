// SPDX-License-Identifier: MIT
// Copy: plain rows, colour without alpha, one chosen channel, under a mask; the managed copy.
#include "lumi/copy.h"

#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "kernels/chosen.hpp"
#include "kernels/data/copy.hpp"
#include "kernels/fence.hpp"
#include "kernels/masked.hpp"

namespace lumi {
namespace {

using namespace check;

template <typename T, typename Layout>
LumStatus copy(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi))) return fault;
  runFused(
      roi,
      [](SourceRows s, TargetRows d, Extent pixels) { copyRows(s, d, pixels.times(kPixelBytes<T, Layout>)); },
      pixelRows<Layout>(src, srcStep), pixelRows<Layout>(dst, dstStep));
  return lumStatusOk;
}

template <typename T, typename Layout>
LumStatus copyManaged(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, int flags) {
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi))) return fault;
  const CacheUse use{(flags & 1) != 0, (flags & 2) != 0};
  runFused(
      roi, [&](SourceRows s, TargetRows d, Extent bytes) { copyRowsManaged(s, d, bytes, use); },
      pixelRows<Layout>(src, srcStep), pixelRows<Layout>(dst, dstStep));
  if (use.streamingStores) storeFence();
  return lumStatusOk;
}

// Colour without alpha, or one chosen channel.
template <typename T, typename Layout>
LumStatus copyChosen(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi))) return fault;
  runFused(roi, copyChosenRows<sizeof(T), Layout::kStored, Layout::kUsed>, pixelRows<Layout>(src, srcStep),
           pixelRows<Layout>(dst, dstStep));
  return lumStatusOk;
}

template <typename T, typename Layout>
LumStatus copyMasked(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, const Lum8u* mask,
                     int maskStep) {
  if (LumStatus fault = firstFault(pointers(src, dst, mask), size(roi))) return fault;
  constexpr int pixelBytes = kPixelBytes<T, Layout>, usedBytes = kUsedBytes<T, Layout>;
  runFused(roi, copyMaskedRows<pixelBytes, usedBytes>, pixelRows<Layout>(src, srcStep),
           pixelRows<Layout>(dst, dstStep), pixelRows<C1>(mask, maskStep));
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/copy.inc"
