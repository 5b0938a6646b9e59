// SPDX-License-Identifier: MIT
// Copy between channel layouts: colour with and without alpha, planes and channels, pixels and planes.
#include "lumi/copy_channels.h"

#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "frame/streaming.hpp"
#include "kernels/copy_channels.hpp"

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

template <typename T, typename From, typename To>
LumStatus splitPlanes(const T* src, int srcStep, T* const* dst, int dstStep, LumiSize roi) {
  constexpr int channels = From::kStored;
  if (LumStatus fault = firstFault(pointers(src), planePointers<channels>(dst), size(roi))) return fault;
  for (int y = 0; y < roi.height; ++y) {
    Byte* planes[channels];
    for (int c = 0; c < channels; ++c) planes[c] = rows(dst[c], dstStep).row(y);
    splitRow<sizeof(T), channels>(rows(src, srcStep).row(y), planes, static_cast<size_t>(roi.width), false);
  }
  return lumStatusOk;
}

template <typename T, typename From, typename To>
LumStatus mergePlanes(const T* const* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  constexpr int channels = To::kStored;
  if (LumStatus fault = firstFault(planePointers<channels>(src), pointers(dst), size(roi))) return fault;
  for (int y = 0; y < roi.height; ++y) {
    const Byte* planes[channels];
    for (int c = 0; c < channels; ++c) planes[c] = rows(src[c], srcStep).row(y);
    mergeRow<sizeof(T), channels>(planes, rows(dst, dstStep).row(y), static_cast<size_t>(roi.width), false);
  }
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/copy_channels.inc"
