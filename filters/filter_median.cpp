// SPDX-License-Identifier: MIT
// Medians of windows whose surroundings are in memory.
#include "lumi/filter_median.h"

#include <cstring>

#include "dispatch/copy.hpp"
#include "filters/large_median.hpp"
#include "filters/median_mask.hpp"
#include "filters/window_checks.hpp"
#include "filters/window_walk.hpp"
#include "frame/check.hpp"
#include "frame/layout.hpp"

namespace lumi {
namespace {

using namespace check;

template <int bits>
LumStatus filterMedianBufferSize(LumiSize area, LumiSize mask, int channels, int* bufferSize) {
  const bool isCount = channels == 1 || channels == 3 || channels == 4;
  if (LumStatus fault = firstFault(pointers(bufferSize), size(area), medianMask(mask),
                                   isCount ? lumStatusOk : lumStatusBadChannelCount))
    return fault;
  const uint32_t samples = static_cast<uint32_t>(mask.width) * static_cast<uint32_t>(mask.height);
  *bufferSize = static_cast<int>(bits == 32 ? samples * 4 : (samples * 17 * 8 + 144) & ~15U);
  return lumStatusOk;
}

LumStatus medianAnchor(LumiPoint anchor, LumiSize mask) {
  return isPixel(mask) ? lumStatusOk : anchorIn(anchor, mask);
}

template <typename T, typename Layout>
LumStatus copyPixels(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  if constexpr (sizeof(T) < 8) return call::CopyR<T, Layout>(src, srcStep, dst, dstStep, roi);
  const auto bytes = static_cast<size_t>(roi.width) * kPixelBytes<T, Layout>;
  for (int y = 0; y < roi.height; ++y)
    std::memcpy(rows(dst, dstStep).row(y), rows(src, srcStep).row(y), bytes);
  return lumStatusOk;
}

// Of arguments that are right.
template <typename T, typename Layout>
LumStatus medians(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiSize mask,
                  LumiPoint anchor) {
  if (isPixel(mask)) return copyPixels<T, Layout>(src, srcStep, dst, dstStep, roi);
  const SourceRows from = rows(src, srcStep);
  const TargetRows to = rows(dst, dstStep);
  constexpr int pixel = kPixelBytes<T, Layout>;
  // The pixels there of the windows.
  const auto inWindows = [&](int column, int row) {
    const Byte* const first = from.row(row - anchor.y) + static_cast<ptrdiff_t>(column - anchor.x) * pixel;
    return SourceRows{first, from.step};
  };
  if constexpr (sizeof(T) < 8)
    if (const auto shape = sortedShape(mask)) {
      const SourceRows centres = inWindows(mask.width / 2, mask.height / 2);
      filterWindows(medianFilter<T>(*shape), centres, to, roi, kShape<Layout>);
      return lumStatusOk;
    }
  const LargeMedian filter{inWindows(0, 0), to, roi, mask, pixel, Layout::kUsed};
  if (!storeMedians<T>(filter)) storeSelectedMedians<T>(filter);
  return lumStatusOk;
}

template <typename T, typename Layout>
LumStatus filterMedian(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiSize mask,
                       LumiPoint anchor) {
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi), steps(srcStep, dstStep), medianMask(mask),
                                   medianAnchor(anchor, mask)))
    return fault;
  return medians<T, Layout>(src, srcStep, dst, dstStep, roi, mask, anchor);
}

// A buffer that no way of doing it has a use for.
template <typename T, typename Layout>
LumStatus filterMedianInBuffer(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiSize mask,
                               LumiPoint anchor, Lum8u* buffer) {
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi), steps(srcStep, dstStep), medianMask(mask),
                                   medianAnchor(anchor, mask), pointers(buffer)))
    return fault;
  return medians<T, Layout>(src, srcStep, dst, dstStep, roi, mask, anchor);
}

template <typename T, typename Layout>
LumStatus filterMedianRows(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiSize mask,
                           LumiPoint anchor, Lum8u* buffer) {
  const auto rowHolds = [&] {
    const int64_t covered = int64_t{roi.width} + mask.width - 1;
    return covered * kPixelBytes<T, Layout> <= srcStep ? lumStatusOk : lumStatusBadStep;
  };
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi), steps(srcStep, dstStep), medianMask(mask),
                                   medianAnchor(anchor, mask), pointers(buffer), rowHolds))
    return fault;
  return medians<T, Layout>(src, srcStep, dst, dstStep, roi, mask, anchor);
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/filter_median.inc"
