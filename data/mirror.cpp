// SPDX-License-Identifier: MIT
// Mirrors: about axes, also in place, and about diagonals.
#include "lumi/mirror.h"

#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "frame/streaming.hpp"
#include "kernels/chosen.hpp"
#include "kernels/data/copy.hpp"
#include "kernels/data/mirror.hpp"
#include "kernels/data/transpose.hpp"
#include "kernels/fence.hpp"

namespace lumi {
namespace {

using namespace check;

enum Flip { kHorizontal = 0, kVertical = 1, kBoth = 2, kMainDiagonal = 3, kOtherDiagonal = 4 };

// What flips about an axis has two rows or two columns at least, as the axis wants.
LumStatus axis(int flip, LumiSize roi) {
  if (flip < kHorizontal || flip > kBoth) return lumStatusBadMirrorAxis;
  const bool tooLow = flip != kVertical && roi.height < 2, tooNarrow = flip != kHorizontal && roi.width < 2;
  return tooLow || tooNarrow ? lumStatusBadSize : lumStatusOk;
}

// The same rows from the last to the first. The smallest step is its own negative, as addresses count.
template <typename B>
Rows<B> upwards(Rows<B> image, int height) {
  return {image.row(height - 1), static_cast<ptrdiff_t>(0 - static_cast<size_t>(image.step))};
}

template <typename T, typename Layout>
LumStatus mirrorInPlace(T* image, int step, LumiSize roi, int flip) {
  if (LumStatus fault = firstFault(pointers(image), size(roi), axis(flip, roi))) return fault;
  constexpr int pixelBytes = kPixelBytes<T, Layout>, usedBytes = kUsedBytes<T, Layout>;
  const auto width = static_cast<size_t>(roi.width);
  const TargetRows down = rows(image, step), up = upwards(down, roi.height);
  const auto endsOf = [&](TargetRows all) { return TargetRows{all.first + width * pixelBytes, all.step}; };
  // Each row, or the middle one, by itself.
  const auto reverse = [&](TargetRows all, int count) {
    exchangeReversed<pixelBytes, usedBytes>(all, endsOf(all), {width / 2, count});
  };
  if (flip == kHorizontal) {
    constexpr bool whole = usedBytes == pixelBytes;
    constexpr int unit = whole ? 1 : pixelBytes, used = whole ? 1 : usedBytes;
    exchangeRows<unit, used>(down, up, {width * (pixelBytes / unit), roi.height / 2});
  } else if (flip == kVertical) {
    reverse(down, roi.height);
  } else {
    exchangeReversed<pixelBytes, usedBytes>(down, endsOf(up), {width, roi.height / 2});
    if (roi.height % 2 != 0) reverse({down.row(roi.height / 2), down.step}, 1);
  }
  return lumStatusOk;
}

// Images of four channels follow the rule of operations; of what else is copied row by row, all but bytes of
// three channels go past the cache from 2 MiB on.
constexpr int64_t kCopyFloor = 0x200000;

template <typename T, typename Layout>
bool streams(LumiSize roi, int flip) {
  constexpr int pixelBytes = kPixelBytes<T, Layout>;
  if (Layout::kStored == 4) return streamsOperation(bytesMoved(roi, 2 * pixelBytes));
  return flip == kHorizontal && pixelBytes != 3 && bytesMoved(roi, pixelBytes) > kCopyFloor;
}

template <typename T, typename Layout>
void copyOrStream(SourceRows src, TargetRows dst, LumiSize roi, bool streaming) {
  const Extent pixels{static_cast<size_t>(roi.width), roi.height},
      bytes = pixels.times(kPixelBytes<T, Layout>);
  if constexpr (Layout::kUsed < Layout::kStored)
    copyChosenRows<sizeof(T), Layout::kStored, Layout::kUsed>(src, dst, pixels);
  else if (streaming)
    copyRowsStreaming(src, dst, bytes);
  else
    copyRows(src, dst, bytes);
}

template <typename T, typename Layout>
LumStatus mirror(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, int flip) {
  if (src == dst && srcStep == dstStep) return mirrorInPlace<T, Layout>(dst, dstStep, roi, flip);
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi), axis(flip, roi))) return fault;
  const SourceRows down = rows(src, srcStep), from = flip == kVertical ? down : upwards(down, roi.height);
  const TargetRows to = rows(dst, dstStep);
  const bool streaming = Layout::kUsed == Layout::kStored && streams<T, Layout>(roi, flip);
  if (flip == kHorizontal)
    copyOrStream<T, Layout>(from, to, roi, streaming);
  else
    reverseRows<kPixelBytes<T, Layout>, kUsedBytes<T, Layout>>(
        from, to, {static_cast<size_t>(roi.width), roi.height}, streaming);
  if (streaming) storeFence();
  return lumStatusOk;
}

// An image with positive steps, by addresses.
struct Place {
  uintptr_t first;
  int64_t step, rowBytes;
  int height, sampleBytes;

  int64_t lastRow() const { return step * (height - 1); }
  // Where rows overlap, the last one that begins at or before the address reaches farthest.
  bool holds(uintptr_t address) const {
    if (address < first) return false;
    const auto distance = static_cast<int64_t>(address - first);
    const int64_t row = distance / step < height ? distance / step : height - 1;
    return distance - row * step < rowBytes;
  }
  bool holdsCornerOf(const Place& other) const {
    const uintptr_t right = other.first + static_cast<uintptr_t>(other.rowBytes - other.sampleBytes);
    const auto below = static_cast<uintptr_t>(other.lastRow());
    return holds(other.first) || holds(right) || holds(other.first + below) || holds(right + below);
  }
  bool isBefore(const Place& other) const {
    return first <= other.first && static_cast<int64_t>(other.first - first) >= lastRow() + rowBytes;
  }
};

template <typename T>
Place placeOf(const T* image, int step, LumiSize size) {
  return {reinterpret_cast<uintptr_t>(image), step, int64_t{size.width} * int64_t{sizeof(T)}, size.height,
          int{sizeof(T)}};
}

bool overlap(const Place& a, const Place& b) {
  if (a.isBefore(b) || b.isBefore(a)) return false;
  return a.holdsCornerOf(b) || b.holdsCornerOf(a);
}

template <typename T>
LumStatus wholeSamples(int srcStep, int dstStep) {
  constexpr int sample = sizeof(T);
  return srcStep % sample != 0 || dstStep % sample != 0 ? lumStatusBadStep : lumStatusOk;
}

// The second diagonal is the first one between the rows of both images from the last to the first.
template <typename T>
LumStatus mirrorDiagonally(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, int flip) {
  if (LumStatus fault = firstFault(pointers(src, dst), steps(srcStep, dstStep),
                                   wholeSamples<T>(srcStep, dstStep), size(roi)))
    return fault;
  if (overlap(placeOf(src, srcStep, roi), placeOf(dst, dstStep, {roi.height, roi.width})))
    return lumStatusUnsupportedMode;
  const Extent pixels{static_cast<size_t>(roi.width), roi.height};
  const SourceRows from = rows(src, srcStep);
  const TargetRows to = rows(dst, dstStep);
  if (flip == kMainDiagonal)
    transposeRows<sizeof(T)>(from, to, pixels);
  else
    transposeRows<sizeof(T)>(upwards(from, roi.height), upwards(to, roi.width), pixels);
  return lumStatusOk;
}

template <typename T, typename Layout>
LumStatus mirrorOrTranspose(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, int flip) {
  if (flip == kMainDiagonal || flip == kOtherDiagonal)
    return mirrorDiagonally(src, srcStep, dst, dstStep, roi, flip);
  return mirror<T, Layout>(src, srcStep, dst, dstStep, roi, flip);
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/mirror.inc"
