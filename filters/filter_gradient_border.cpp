// SPDX-License-Identifier: MIT
// Gradients of the library's own kernels, with a border.
#include "lumi/filter_gradient_border.h"

#include <algorithm>

#include "filters/window_walk.hpp"
#include "frame/check.hpp"
#include "kernels/filters/fixed_filters.hpp"

namespace lumi {
namespace {

using namespace check;

enum class Masks { Three, ThreeOrFive };

template <Masks masks>
LumStatus maskOf(LumiMaskSize mask) {
  const bool offered = mask == lumiMask3x3 || (masks == Masks::ThreeOrFive && mask == lumiMask5x5);
  return offered ? lumStatusOk : lumStatusBadMaskSize;
}

// Of 8u sources only the results' steps are tested.
template <typename S, typename D>
LumStatus sampleSteps(int srcStep, int dstStep) {
  constexpr int src = sizeof(S), dst = sizeof(D);
  return srcStep % src != 0 || dstStep % dst != 0 ? lumStatusOddStep : lumStatusOk;
}

LumStatus borderType(LumiBorderType border) {
  const bool offered = BorderMode(border).isOneOf(lumiBorderConst, lumiBorderReplicate, lumiBorderMirror,
                                                  lumiBorderMirrorEdge, lumiBorderInMemory);
  return offered && border <= 255 ? lumStatusOk : lumStatusBadArgument;
}

template <FixedFilter three, FixedFilter five, typename S, typename D>
LumStatus filterGradient(const S* src, int srcStep, D* dst, int dstStep, LumiSize roi, LumiMaskSize mask,
                         LumiBorderType border, S borderValue, Lum8u* buffer) {
  constexpr Masks masks = three == five ? Masks::Three : Masks::ThreeOrFive;
  if (LumStatus fault = firstFault(pointers(src, dst, buffer), size(roi), sampleSteps<S, D>(srcStep, dstStep),
                                   maskOf<masks>(mask), borderType(border)))
    return fault;
  const WindowFilter filter = fixedFilter<S, D>(mask == lumiMask3x3 ? three : five);
  const BorderedImage<sizeof(S)> image(rows(src, srcStep), roi, BorderMode(border), &borderValue);
  filterWindows(filter, image, rows(dst, dstStep), buffer);
  return lumStatusOk;
}
template <FixedFilter three, FixedFilter five, typename S, typename D, typename Layout>
LumStatus filterGradient(const S* src, int srcStep, D* dst, int dstStep, LumiSize roi, LumiMaskSize mask,
                         LumiBorderType border, S borderValue, Lum8u* buffer) {
  return filterGradient<three, five>(src, srcStep, dst, dstStep, roi, mask, border, borderValue, buffer);
}
template <FixedFilter three, FixedFilter five, typename T, typename Layout>
LumStatus filterGradient(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiMaskSize mask,
                         LumiBorderType border, T borderValue, Lum8u* buffer) {
  return filterGradient<three, five>(src, srcStep, dst, dstStep, roi, mask, border, borderValue, buffer);
}

// Sizes are modulo 2^32.
uint64_t padded(uint64_t bytes) { return (bytes + 31) & ~uint64_t{31}; }

void storeSize(LumiSize area, LumiMaskSize mask, LumiDataType type, int* bufferSize) {
  const auto width = static_cast<uint64_t>(area.width), height = static_cast<uint64_t>(area.height);
  const uint64_t around = mask == lumiMask3x3 ? 2 : 4, held = mask == lumiMask3x3 ? 3 : 7;
  const uint64_t samples = (std::max(width, height) + around) * held;
  const uint64_t bytes = type == lumiData16s ? 2 : 4;
  const uint64_t sum = type == lumiData8u ? padded(samples)
                                          : padded(padded(samples * bytes) + around * padded(4 * width) +
                                                   padded((width + height) * around * bytes));
  *bufferSize = static_cast<int>(sum + 32);
}

LumStatus dataTypes(LumiDataType src, LumiDataType dst) {
  const bool words = dst == lumiData16s && (src == lumiData8u || src == lumiData16s);
  return words || (dst == lumiData32f && src == lumiData32f) ? lumStatusOk : lumStatusBadDataType;
}

// Where there is but one mask, it is tested before all else.
template <Masks masks>
LumStatus gradientBufferSize(LumiSize area, LumiMaskSize mask, LumiDataType srcType, LumiDataType dstType,
                             int channels, int* bufferSize) {
  const LumStatus before = masks == Masks::Three ? maskOf<masks>(mask) : lumStatusOk;
  if (LumStatus fault =
          firstFault(before, pointers(bufferSize), size(area), maskOf<masks>(mask),
                     dataTypes(srcType, dstType), channels == 1 ? lumStatusOk : lumStatusBadChannelCount))
    return fault;
  storeSize(area, mask, srcType, bufferSize);
  return lumStatusOk;
}

template <typename S, typename D, typename Layout>
LumStatus sobelBufferSize(LumiSize roi, LumiMaskSize mask, int* bufferSize) {
  if (LumStatus fault = firstFault(pointers(bufferSize), size(roi), maskOf<Masks::ThreeOrFive>(mask)))
    return fault;
  storeSize(roi, mask, lumiData8u, bufferSize);
  return lumStatusOk;
}
template <typename T, typename Layout>
LumStatus sobelBufferSize(LumiSize roi, LumiMaskSize mask, int* bufferSize) {
  return gradientBufferSize<Masks::ThreeOrFive>(roi, mask, lumiData32f, lumiData32f, 1, bufferSize);
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/filter_gradient_border.inc"
