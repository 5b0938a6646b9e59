// SPDX-License-Identifier: MIT
// Fill with a value: plain, one chosen channel, under a mask.
#include "lumi/set.h"

#include <algorithm>
#include <cstring>
#include <type_traits>

#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "frame/streaming.hpp"
#include "kernels/chosen.hpp"
#include "kernels/fence.hpp"
#include "kernels/masked.hpp"
#include "kernels/set.hpp"

namespace lumi {
namespace {

using namespace check;

// The value's samples in order, whether given by value or by pointer.
template <typename T, int count>
struct Pixel {
  T samples[count];

  explicit Pixel(T value) : samples{value} { static_assert(count == 1); }
  explicit Pixel(const T* values) { std::copy_n(values, count, samples); }
};

template <typename T, typename Layout, typename Value>
LumStatus fill(Value value, T* dst, int dstStep, LumiSize roi) {
  if (LumStatus fault = firstFault(pointers(value, dst), size(roi))) return fault;
  constexpr int pixelBytes = kPixelBytes<T, Layout>;
  const Pixel<T, Layout::kUsed> pixel(value);
  const bool streaming = streamsOperation(bytesMoved(roi, pixelBytes));
  const Extent extent = fuse(roi, isTight(dstStep, roi.width, pixelBytes));
  const FillPattern pattern = makePattern<pixelBytes>(pixel.samples);
  walkRows(
      extent.height, [&](Byte* d) { fillRow(pattern, d, extent.pixels * pixelBytes, streaming); },
      rows(dst, dstStep));
  if (streaming) storeFence();
  return lumStatusOk;
}

// Colour without alpha, or one chosen channel.
template <typename T, typename Layout, typename Value>
LumStatus fillChosen(Value value, T* dst, int dstStep, LumiSize roi) {
  if (LumStatus fault = firstFault(pointers(value, dst), size(roi))) return fault;
  const Pixel<T, Layout::kUsed> pixel(value);
  const Extent extent = fuse(roi, isTight(dstStep, roi.width, kPixelBytes<T, Layout>));
  walkRows(
      extent.height,
      [&](Byte* d) {
        fillChosenRow<sizeof(T), Layout::kStored, Layout::kUsed>(pixel.samples, d, extent.pixels);
      },
      rows(dst, dstStep));
  return lumStatusOk;
}

template <typename T, typename Layout, typename Value>
LumStatus fillMasked(Value value, T* dst, int dstStep, LumiSize roi, const Lum8u* mask, int maskStep) {
  if (LumStatus fault = firstFault(pointers(value, dst, mask), size(roi))) return fault;
  constexpr int pixelBytes = kPixelBytes<T, Layout>, usedBytes = static_cast<int>(sizeof(T)) * Layout::kUsed;
  const Pixel<T, Layout::kUsed> pixel(value);
  Byte block[kMaskBlock * pixelBytes] = {};
  for (size_t i = 0; i < kMaskBlock; ++i) std::memcpy(block + i * pixelBytes, pixel.samples, usedBytes);
  walkRows(
      roi.height,
      [&](Byte* d, const Byte* m) {
        fillMaskedRow<pixelBytes, usedBytes>(block, d, m, static_cast<size_t>(roi.width));
      },
      rows(dst, dstStep), rows(mask, maskStep));
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/set.inc"
