// SPDX-License-Identifier: MIT
// Images as rows of bytes, the walk over them, and fusing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "lumi/types.h"

namespace lumi {

using Byte = uint8_t;

// A running row pointer. Steps are bytes, of any sign, and need not be a multiple of the sample.
template <typename B>
struct Rows {
  B* first;
  ptrdiff_t step;

  B* row(int y) const { return first + y * step; }
};

template <typename T>
auto rows(T* image, int step) {
  using B = std::conditional_t<std::is_const_v<T>, const Byte, Byte>;
  return Rows<B>{reinterpret_cast<B*>(image), step};
}

// Calls kernel(row of each image...) for each of the height rows, strictly from the first to the last.
template <typename Kernel, typename... B>
inline void walkRows(int height, Kernel kernel, Rows<B>... images) {
  for (int y = 0; y < height; ++y) kernel(images.row(y)...);
}

// Rows of equal length; `pixels` is in whatever unit the family's kernel counts.
struct Extent {
  size_t pixels;
  int height;
};

// Rows that touch one another in every image run as one long row.
template <typename... Fits>
inline Extent fuse(LumiSize roi, Fits... tight) {
  const Extent apart{static_cast<size_t>(roi.width), roi.height};
  size_t all = 0;
  if (!(tight && ...) || __builtin_mul_overflow(apart.pixels, static_cast<size_t>(roi.height), &all))
    return apart;
  return {all, 1};
}

// Whether a row of the ROI ends where the next begins.
inline bool isTight(int step, int width, int pixelBytes) {
  return step == static_cast<int64_t>(width) * pixelBytes;
}

// Bytes that a call moves; no product of two sizes and a pixel of up to 48 bytes leaves 64 bits by much:
// 2^31 * 2^31 * 48 < 2^68 is capped, as everything above the largest cache is alike.
inline uint64_t bytesMoved(LumiSize roi, int bytesPerPixel) {
  const uint64_t area = static_cast<uint64_t>(roi.width) * static_cast<uint64_t>(roi.height);
  uint64_t bytes = 0;
  return __builtin_mul_overflow(area, static_cast<uint64_t>(bytesPerPixel), &bytes) ? UINT64_MAX : bytes;
}

}  // namespace lumi
