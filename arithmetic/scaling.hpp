// SPDX-License-Identifier: MIT
// What operations with a scale factor share: the choice of a path by the factor, and the result that is zero
// throughout.
#pragma once

#include <algorithm>
#include <limits>
#include <optional>

#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "frame/streaming.hpp"
#include "kernels/chosen.hpp"
#include "kernels/fence.hpp"
#include "kernels/scaling.hpp"
#include "kernels/set.hpp"

namespace lumi {

// The path of a scale factor for results of type T; none where all of them round to zero, from `largest` + 1
// on. A negative factor that shifts out every bit of a sample saturates all but zero, as any lower one does.
template <typename T>
std::optional<Scaling> scalingOf(int scaleFactor, int largest) {
  constexpr int bits = std::numeric_limits<T>::digits;
  if (scaleFactor > largest) return std::nullopt;
  if (scaleFactor > 1) return Scaling{Scaling::Divide, scaleFactor};
  if (scaleFactor == 1) return Scaling{Scaling::Halve, 1};
  if (scaleFactor == 0) return Scaling{Scaling::Saturate, 0};
  return Scaling{Scaling::Multiply, scaleFactor < -bits ? bits : -scaleFactor};
}

// Zeroes the samples that an operation on this layout works on.
template <typename T, typename Layout>
LumStatus fillZero(T* dst, int dstStep, LumiSize roi) {
  constexpr int pixelBytes = kPixelBytes<T, Layout>;
  const Extent extent = fuse(roi, isTight(dstStep, roi.width, pixelBytes));
  if constexpr (Layout::kUsed < Layout::kStored) {
    constexpr Byte zero[kChosenBlock<Layout::kStored>] = {};
    walkRows(
        extent.height,
        [&](Byte* d) { fillChosenRow<sizeof(T), Layout::kStored, Layout::kUsed>(zero, d, extent.pixels); },
        rows(dst, dstStep));
  } else {
    constexpr PixelPattern zero{};
    const bool streaming = streamsOperation(bytesMoved(roi, pixelBytes));
    walkRows(
        extent.height, [&](Byte* d) { fillRow<1>(zero, d, extent.pixels * pixelBytes, streaming); },
        rows(dst, dstStep));
    if (streaming) storeFence();
  }
  return lumStatusOk;
}

}  // namespace lumi
