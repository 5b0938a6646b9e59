// SPDX-License-Identifier: MIT
// Transposition: in tiles, past the cache where the images do not fit into it, and in place.
#include "lumi/transpose.h"

#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "frame/streaming.hpp"
#include "kernels/data/transpose.hpp"
#include "kernels/fence.hpp"

namespace lumi {
namespace {

using namespace check;

// Sizes that are transposed past the cache: wider than that, and with sides and a source that are multiples.
struct StreamedShape {
  int widerThan, width, height, source;
};

template <int pixelBytes, int samples>
constexpr StreamedShape kStreamed{};
template <>
constexpr StreamedShape kStreamed<1, 1>{1024, 64, 64, 16};
template <>
constexpr StreamedShape kStreamed<2, 1>{768, 32, 32, 16};
template <>
constexpr StreamedShape kStreamed<4, 4>{512, 16, 16, 16};
template <>
constexpr StreamedShape kStreamed<4, 1>{512, 4, 16, 16};
template <>
constexpr StreamedShape kStreamed<8, 4>{384, 8, 8, 16};
template <>
constexpr StreamedShape kStreamed<12, 3>{256, 4, 16, 8};
template <>
constexpr StreamedShape kStreamed<16, 4>{256, 4, 4, 16};

template <typename T>
bool isMultiple(const T* image, int step, int of) {
  return ((reinterpret_cast<uintptr_t>(image) | static_cast<uintptr_t>(step)) &
          static_cast<uintptr_t>(of - 1)) == 0;
}

// The core library is asked only about images that could go past the cache.
template <typename T, typename Layout>
bool streams(const T* src, int srcStep, const T* dst, int dstStep, LumiSize roi) {
  constexpr int pixelBytes = kPixelBytes<T, Layout>, line = 64;
  constexpr StreamedShape shape = kStreamed<pixelBytes, Layout::kStored>;
  if constexpr (shape.widerThan == 0) {
    return false;
  } else {
    return roi.width > shape.widerThan && roi.width % shape.width == 0 && roi.height % shape.height == 0 &&
           isMultiple(src, srcStep, shape.source) && isMultiple(dst, dstStep, line) &&
           reportedCache() < bytesMoved(roi, 2 * pixelBytes);
  }
}

LumStatus square(LumiSize roi) { return roi.width == roi.height ? lumStatusOk : lumStatusBadSize; }

template <typename T, typename Layout>
LumStatus transposeInPlace(T* image, int step, LumiSize roi) {
  if (LumStatus fault = firstFault(pointers(image), size(roi), square(roi))) return fault;
  transposeSquare<kPixelBytes<T, Layout>>(rows(image, step), roi.width);
  return lumStatusOk;
}

template <typename T, typename Layout>
LumStatus transpose(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  if (src == dst && srcStep == dstStep) return transposeInPlace<T, Layout>(dst, dstStep, roi);
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi))) return fault;
  constexpr int pixelBytes = kPixelBytes<T, Layout>;
  const Extent pixels{static_cast<size_t>(roi.width), roi.height};
  if constexpr (kStreamed<pixelBytes, Layout::kStored>.widerThan != 0) {
    if (streams<T, Layout>(src, srcStep, dst, dstStep, roi)) {
      transposeRowsStreaming<pixelBytes>(rows(src, srcStep), rows(dst, dstStep), pixels);
      storeFence();
      return lumStatusOk;
    }
  }
  transposeRows<pixelBytes>(rows(src, srcStep), rows(dst, dstStep), pixels);
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/transpose.inc"
