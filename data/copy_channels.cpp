// SPDX-License-Identifier: MIT
// Copy between channel layouts: colour with and without alpha, planes and channels, pixels and planes.
#include "lumi/copy_channels.h"

#include <tuple>

#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "frame/streaming.hpp"
#include "kernels/data/copy_channels.hpp"
#include "kernels/fence.hpp"
#include "kernels/planes.hpp"

namespace lumi {
namespace {

using namespace check;

template <typename From, typename To, typename T>
LumStatus copyBetween(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi,
                      void (&kernel)(SourceRows, TargetRows, Extent)) {
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi))) return fault;
  runFused(roi, kernel, pixelRows<From>(src, srcStep), pixelRows<To>(dst, dstStep));
  return lumStatusOk;
}

template <typename T, typename From, typename To>
LumStatus copyColourBetween(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  if constexpr (std::is_same_v<To, AC4>)
    return copyBetween<From, To>(src, srcStep, dst, dstStep, roi, copyColourToAlphaRows<sizeof(T)>);
  else
    return copyBetween<From, To>(src, srcStep, dst, dstStep, roi, copyColourFromAlphaRows<sizeof(T)>);
}

template <typename T, typename From, typename To>
LumStatus copyPlaneToChannel(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  return copyBetween<From, To>(src, srcStep, dst, dstStep, roi, planeToChannelRows<sizeof(T), To::kStored>);
}

template <typename T, typename From, typename To>
LumStatus copyChannelToPlane(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  return copyBetween<From, To>(src, srcStep, dst, dstStep, roi, channelToPlaneRows<sizeof(T), From::kStored>);
}

template <typename T, typename From, typename To>
LumStatus duplicatePlane(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  return copyBetween<From, To>(src, srcStep, dst, dstStep, roi, duplicateRows<To::kStored>);
}

// What a split or merge moves against what the cache holds. Samples of 32 bits follow the rule of every
// operation; the narrower ones have limits of their own.
constexpr int64_t kSplitFloor = 0x600000;
constexpr int kMergeWidth = 512;

template <typename T>
bool streamsSplit(int64_t bytes, bool tight) {
  if (sizeof(T) == 4) return streamsOperation(bytes);
  if (!tight || bytes <= kSplitFloor) return false;
  const auto cache = largestCache();
  return cache && bytes > *cache;
}

template <typename T>
bool streamsMerge(int64_t bytes, int width) {
  if (sizeof(T) == 4) return streamsOperation(bytes);
  if (width < kMergeWidth || bytes <= kStreamingFloor) return false;
  const int64_t cache = reportedCache();
  return cache > 0 && bytes > cache / 2;
}

// Streaming stores take whole vectors only.
template <typename... Image>
bool allAligned(int step, Image... images) {
  constexpr uintptr_t vector = 32;
  return ((reinterpret_cast<uintptr_t>(images) | ...) | static_cast<uintptr_t>(step)) % vector == 0;
}

template <typename T, typename From, typename To>
LumStatus splitPlanes(const T* src, int srcStep, T* const* dst, int dstStep, LumiSize roi) {
  constexpr int channels = From::kStored, pixelBytes = kPixelBytes<T, From>;
  if (LumStatus fault = firstFault(pointers(src), planePointers<channels>(dst), size(roi))) return fault;
  const bool tight = isTight(srcStep, roi.width, pixelBytes) && isTight(dstStep, roi.width, sizeof(T));
  const auto planes = planeRows<channels>(dst, dstStep);
  const bool streaming = std::apply([&](auto... p) { return allAligned(dstStep, p...); }, planes.first) &&
                         streamsSplit<T>(bytesMoved(roi, 2 * pixelBytes), tight);
  runFused(
      roi,
      [&](SourceRows s, const auto& d, Extent pixels) {
        splitRows<sizeof(T), channels>(s, d, pixels, streaming);
      },
      pixelRows<From>(src, srcStep), planes);
  if (streaming) storeFence();
  return lumStatusOk;
}

template <typename T, typename From, typename To>
LumStatus mergePlanes(const T* const* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  constexpr int channels = To::kStored, pixelBytes = kPixelBytes<T, To>;
  if (LumStatus fault = firstFault(planePointers<channels>(src), pointers(dst), size(roi))) return fault;
  const bool streaming =
      allAligned(dstStep, dst) && streamsMerge<T>(bytesMoved(roi, 2 * pixelBytes), roi.width);
  runFused(
      roi,
      [&](const auto& s, TargetRows d, Extent pixels) {
        mergeRows<sizeof(T), channels>(s, d, pixels, streaming);
      },
      planeRows<channels>(src, srcStep), pixelRows<To>(dst, dstStep));
  if (streaming) storeFence();
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/copy_channels.inc"
