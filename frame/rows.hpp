// SPDX-License-Identifier: MIT
// Images as rows of bytes, the walk over them, and fusing.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "frame/layout.hpp"
#include "lumi/types.h"

namespace lumi {

using Byte = uint8_t;

// A running row pointer. Steps are bytes, of any sign, and need not be a multiple of the sample.
template <typename B>
struct Rows {
  B* first;
  ptrdiff_t step;

  // By numbers: of rows that are not there, which nothing touches, the address may wrap.
  B* row(int y) const {
    return reinterpret_cast<B*>(reinterpret_cast<uintptr_t>(first) +
                                static_cast<uintptr_t>(y) * static_cast<uintptr_t>(step));
  }
};

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

template <typename Layout, typename T>
auto pixelRows(T* image, int step) {
  using B = std::conditional_t<std::is_const_v<T>, const Byte, Byte>;
  return PixelRows<B>{rows(image, step), kPixelBytes<T, Layout>};
}

// The planes of a planar image: a row is an array of plane rows.
template <typename B, int planes>
struct PlaneRows {
  std::array<B*, planes> first;
  ptrdiff_t step;
  int pixelBytes;

  std::array<B*, planes> row(int y) const {
    auto at = first;
    for (B*& plane : at) plane += y * step;
    return at;
  }
};

template <int planes, typename T>
auto planeRows(T* const* images, int step) {
  using B = std::conditional_t<std::is_const_v<T>, const Byte, Byte>;
  PlaneRows<B, planes> result{{}, step, static_cast<int>(sizeof(T))};
  for (int i = 0; i < planes; ++i) result.first[i] = reinterpret_cast<B*>(images[i]);
  return result;
}

// Calls kernel(row of each image...) for each of the height rows, strictly from the first to the last.
template <typename Kernel, typename... Image>
inline void walkRows(int height, Kernel kernel, Image... images) {
  for (int y = 0; y < height; ++y) kernel(images.row(y)...);
}

// Whether a row of the ROI ends where the next begins.
inline bool isTight(ptrdiff_t step, int width, int pixelBytes) {
  return step == static_cast<int64_t>(width) * pixelBytes;
}

// Calls kernel(row of each image..., pixels) for each row, or once where the rows touch one another in all
// images.
template <typename Kernel, typename... Image>
inline void walkFused(LumiSize roi, Kernel kernel, Image... images) {
  size_t pixels = static_cast<size_t>(roi.width), all = 0;
  const bool fits = !__builtin_mul_overflow(pixels, static_cast<size_t>(roi.height), &all);
  if (fits && (isTight(images.step, roi.width, images.pixelBytes) && ...)) {
    pixels = all;
    roi.height = 1;
  }
  walkRows(
      roi.height, [&](auto... row) { kernel(row..., pixels); }, images...);
}

// The same for an image that becomes one of another sample type: kernel(source row, destination row,
// samples).
template <typename Layout, typename S, typename D, typename Kernel>
inline void walkSamples(const S* src, int srcStep, D* dst, int dstStep, LumiSize roi, Kernel kernel) {
  walkFused(
      roi, [&](const Byte* s, Byte* d, size_t pixels) { kernel(s, d, pixels * Layout::kStored); },
      pixelRows<Layout>(src, srcStep), pixelRows<Layout>(dst, dstStep));
}

// Bytes that a call moves. More than 64 bits hold is no size of any cache, and is cut to the largest.
inline int64_t bytesMoved(LumiSize roi, int bytesPerPixel) {
  int64_t bytes = 0;
  const int64_t area = int64_t{roi.width} * roi.height;  // below 2^62
  return __builtin_mul_overflow(area, bytesPerPixel, &bytes) ? INT64_MAX : bytes;
}

}  // namespace lumi
