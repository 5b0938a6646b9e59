// SPDX-License-Identifier: MIT
// Images that are zero throughout.
#pragma once

#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "frame/streaming.hpp"
#include "kernels/chosen.hpp"
#include "kernels/data/set.hpp"
#include "kernels/fence.hpp"

namespace lumi {

// Zeroes the samples that an operation on this layout works on.
template <typename T, typename Layout>
LumStatus fillZero(T* dst, int dstStep, LumiSize roi) {
  if constexpr (Layout::kUsed < Layout::kStored) {
    constexpr Byte zero[kChosenBlock<Layout::kStored>] = {};
    runFused(
        roi,
        [&](TargetRows d, Extent pixels) {
          fillChosenRows<sizeof(T), Layout::kStored, Layout::kUsed>(zero, d, pixels);
        },
        pixelRows<Layout>(dst, dstStep));
  } else {
    constexpr int pixelBytes = kPixelBytes<T, Layout>;
    constexpr PixelPattern zero{};
    const bool streaming = streamsOperation(bytesMoved(roi, pixelBytes));
    runFused(
        roi, [&](TargetRows d, Extent pixels) { fillRows<1>(zero, d, pixels.times(pixelBytes), streaming); },
        pixelRows<Layout>(dst, dstStep));
    if (streaming) storeFence();
  }
  return lumStatusOk;
}

}  // namespace lumi
