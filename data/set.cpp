// SPDX-License-Identifier: MIT
// Fill with a value: plain, one chosen channel, under a mask.
#include "lumi/set.h"

#include <cstring>

#include "frame/check.hpp"
#include "frame/constant.hpp"
#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "frame/streaming.hpp"
#include "kernels/chosen.hpp"
#include "kernels/data/set.hpp"
#include "kernels/fence.hpp"
#include "kernels/masked.hpp"

namespace lumi {
namespace {

using namespace check;

// A pixel over and over, read before any row is touched; bytes that are not stored are left zero.
template <size_t blockBytes, int pixelBytes, int usedBytes>
struct Block {
  Byte bytes[blockBytes] = {};

  explicit Block(const void* samples) {
    for (size_t i = 0; i < blockBytes; i += pixelBytes) std::memcpy(bytes + i, samples, usedBytes);
  }
};

template <typename T, typename Layout, typename Value>
LumStatus fill(Value value, T* dst, int dstStep, LumiSize roi) {
  if (LumStatus fault = firstFault(pointers(value, dst), size(roi))) return fault;
  constexpr int pixelBytes = kPixelBytes<T, Layout>;
  const bool streaming = streamsOperation(bytesMoved(roi, pixelBytes));
  const PixelPattern pattern = patternOf<T, Layout>(value);
  runFused(
      roi,
      [&](TargetRows d, Extent pixels) {
        fillRows<pixelBytes>(pattern, d, pixels.times(pixelBytes), streaming);
      },
      pixelRows<Layout>(dst, dstStep));
  if (streaming) storeFence();
  return lumStatusOk;
}

// Colour without alpha, or one chosen channel.
template <typename T, typename Layout, typename Value>
LumStatus fillChosen(Value value, T* dst, int dstStep, LumiSize roi) {
  if (LumStatus fault = firstFault(pointers(value, dst), size(roi))) return fault;
  constexpr int pixelBytes = kPixelBytes<T, Layout>, usedBytes = kUsedBytes<T, Layout>;
  const Block<kChosenBlock<Layout::kStored>, pixelBytes, usedBytes> block(samplesOf(value));
  runFused(
      roi,
      [&](TargetRows d, Extent pixels) {
        fillChosenRows<sizeof(T), Layout::kStored, Layout::kUsed>(block.bytes, d, pixels);
      },
      pixelRows<Layout>(dst, dstStep));
  return lumStatusOk;
}

template <typename T, typename Layout, typename Value>
LumStatus fillMasked(Value value, T* dst, int dstStep, LumiSize roi, const Lum8u* mask, int maskStep) {
  if (LumStatus fault = firstFault(pointers(value, dst, mask), size(roi))) return fault;
  constexpr int pixelBytes = kPixelBytes<T, Layout>, usedBytes = kUsedBytes<T, Layout>;
  const Block<kMaskBlock * pixelBytes, pixelBytes, usedBytes> block(samplesOf(value));
  runFused(
      roi,
      [&](TargetRows d, SourceRows m, Extent pixels) {
        fillMaskedRows<pixelBytes, usedBytes>(block.bytes, d, m, pixels);
      },
      pixelRows<Layout>(dst, dstStep), pixelRows<C1>(mask, maskStep));
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/set.inc"
