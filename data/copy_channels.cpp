// SPDX-License-Identifier: MIT
// Copy between channel layouts: colour with and without alpha, planes and channels, pixels and planes.
#include "lumi/copy_channels.h"

#include <tuple>

#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "frame/streaming.hpp"
#include "kernels/copy_channels.hpp"
#include "kernels/fence.hpp"
#include "kernels/planes.hpp"

namespace lumi {
namespace {

using namespace check;

// A kernel that counts pixels; images whose rows touch one another run as one row.
template <int srcPixelBytes, int dstPixelBytes, typename T, typename Kernel>
LumStatus copyBetween(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, Kernel kernel) {
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi))) return fault;
  const Extent extent =
      fuse(roi, isTight(srcStep, roi.width, srcPixelBytes), isTight(dstStep, roi.width, dstPixelBytes));
  walkRows(
      extent.height, [&](const Byte* s, Byte* d) { kernel(s, d, extent.pixels); }, rows(src, srcStep),
      rows(dst, dstStep));
  return lumStatusOk;
}

template <typename T, typename From, typename To>
LumStatus copyColourBetween(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  constexpr int n = sizeof(T);
  if constexpr (std::is_same_v<To, AC4>)
    return copyBetween<3 * n, 4 * n>(src, srcStep, dst, dstStep, roi, copyColourToAlphaRow<n>);
  else
    return copyBetween<4 * n, 3 * n>(src, srcStep, dst, dstStep, roi, copyColourFromAlphaRow<n>);
}

template <typename T, typename From, typename To>
LumStatus copyPlaneToChannel(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  constexpr int n = sizeof(T), channels = To::kStored;
  return copyBetween<n, n * channels>(src, srcStep, dst, dstStep, roi, planeToChannelRow<n, channels>);
}

template <typename T, typename From, typename To>
LumStatus copyChannelToPlane(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  constexpr int n = sizeof(T), channels = From::kStored;
  return copyBetween<n * channels, n>(src, srcStep, dst, dstStep, roi, channelToPlaneRow<n, channels>);
}

template <typename T, typename From, typename To>
LumStatus duplicatePlane(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  constexpr int channels = To::kStored;
  return copyBetween<1, channels>(src, srcStep, dst, dstStep, roi, duplicateRow<channels>);
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
  const Extent extent = fuse(roi, tight);
  const auto planes = planeRows<channels>(dst, dstStep);
  const bool streaming = std::apply([&](auto... p) { return allAligned(dstStep, p...); }, planes.first) &&
                         streamsSplit<T>(bytesMoved(roi, 2 * pixelBytes), tight);
  walkRows(
      extent.height,
      [&](const Byte* s, const auto& d) {
        splitRow<sizeof(T), channels>(s, d.data(), extent.pixels, streaming);
      },
      rows(src, srcStep), planes);
  if (streaming) storeFence();
  return lumStatusOk;
}

template <typename T, typename From, typename To>
LumStatus mergePlanes(const T* const* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  constexpr int channels = To::kStored, pixelBytes = kPixelBytes<T, To>;
  if (LumStatus fault = firstFault(planePointers<channels>(src), pointers(dst), size(roi))) return fault;
  const Extent extent =
      fuse(roi, isTight(srcStep, roi.width, sizeof(T)), isTight(dstStep, roi.width, pixelBytes));
  const bool streaming =
      allAligned(dstStep, dst) && streamsMerge<T>(bytesMoved(roi, 2 * pixelBytes), roi.width);
  walkRows(
      extent.height,
      [&](const auto& s, Byte* d) { mergeRow<sizeof(T), channels>(s.data(), d, extent.pixels, streaming); },
      planeRows<channels>(src, srcStep), rows(dst, dstStep));
  if (streaming) storeFence();
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/copy_channels.inc"
