// SPDX-License-Identifier: MIT
// Images as rows of bytes, the walk over them, and fusing.
#pragma once

#include <climits>
#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "frame/layout.hpp"
#include "kernels/path_count.hpp"
#include "kernels/rows.hpp"
#include "lumi/types.h"

namespace lumi {

using Byte = uint8_t;

template <typename T>
auto rows(T* image, int step) {
  using B = std::conditional_t<std::is_const_v<T>, const Byte, Byte>;
  return Rows<B>{reinterpret_cast<B*>(image), step};
}

// Rows that are fused where they touch one another.
template <typename B>
struct PixelRows : Rows<B> {
  int pixelBytes;
};
template <typename B, int planes>
struct PixelPlaneRows : PlaneRows<B, planes> {
  int pixelBytes;
};

template <typename Layout, typename T>
auto pixelRows(T* image, int step) {
  using B = std::conditional_t<std::is_const_v<T>, const Byte, Byte>;
  return PixelRows<B>{rows(image, step), kPixelBytes<T, Layout>};
}

template <int planes, typename T>
auto planeRows(T* const* images, int step) {
  using B = std::conditional_t<std::is_const_v<T>, const Byte, Byte>;
  PixelPlaneRows<B, planes> result{{{}, step}, static_cast<int>(sizeof(T))};
  for (size_t i = 0; i < planes; ++i) result.first[i] = reinterpret_cast<B*>(images[i]);
  return result;
}

// Whether a row of the ROI ends where the next begins.
inline bool isTight(ptrdiff_t step, int width, int pixelBytes) {
  return width <= INT_MAX / pixelBytes && step == width * pixelBytes;
}

// The pixels of the ROI: of one row where rows touch one another in all images.
template <typename... Image>
inline Extent fusedExtent(LumiSize roi, const Image&... images) {
  const auto width = static_cast<size_t>(roi.width);
  size_t all = 0;
  const bool fits = !__builtin_mul_overflow(width, static_cast<size_t>(roi.height), &all);
  if (!fits || !(isTight(images.step, roi.width, images.pixelBytes) && ...)) return {width, roi.height};
  if (roi.height > 1) countPath(Path::FusedRows);
  return {all, 1};
}

// Calls kernel(rows of each image..., extent in pixels) once: the kernel walks.
template <typename Kernel, typename... Image>
inline void runFused(LumiSize roi, Kernel kernel, Image... images) {
  kernel(images..., fusedExtent(roi, images...));
}

// The same for an image that becomes one of another sample type: kernel(source, destination, extent in
// samples).
template <typename Layout, typename S, typename D, typename Kernel>
inline void runSamples(const S* src, int srcStep, D* dst, int dstStep, LumiSize roi, Kernel kernel) {
  runFused(
      roi, [&](SourceRows s, TargetRows d, Extent pixels) { kernel(s, d, pixels.times(Layout::kStored)); },
      pixelRows<Layout>(src, srcStep), pixelRows<Layout>(dst, dstStep));
}

// Bytes that a call moves. More than 64 bits hold is no size of any cache, and is cut to the largest.
inline int64_t bytesMoved(LumiSize roi, int bytesPerPixel) {
  const int64_t area = int64_t{roi.width} * roi.height;  // below 2^62
  return area > INT64_MAX / bytesPerPixel ? INT64_MAX : area * bytesPerPixel;
}

}  // namespace lumi
