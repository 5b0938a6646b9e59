// SPDX-License-Identifier: MIT
// The least and the greatest sample of each channel.
#include "lumi/min_max.h"

#include "frame/check.hpp"
#include "frame/results.hpp"
#include "frame/rows.hpp"
#include "kernels/statistics/min_max.hpp"

namespace lumi {
namespace {

using namespace check;

// One kind of extreme, by its kernel.
template <typename Layout, typename T, typename Kernel>
LumStatus extreme(const T* src, int srcStep, LumiSize roi, T* result, Kernel kernel) {
  if (LumStatus fault = firstFault(pointers(src, result), size(roi))) return fault;
  const auto image = pixelRows<Layout>(src, srcStep);
  storeChannels<Layout>(result, kernel(image, fusedExtent(roi, image)));
  return lumStatusOk;
}

template <typename T, typename Layout>
LumStatus leastSample(const T* src, int srcStep, LumiSize roi, T* min) {
  return extreme<Layout>(src, srcStep, roi, min, leastOf<T, Layout::kStored>);
}

template <typename T, typename Layout>
LumStatus greatestSample(const T* src, int srcStep, LumiSize roi, T* max) {
  return extreme<Layout>(src, srcStep, roi, max, greatestOf<T, Layout::kStored>);
}

// Rows stay apart, since not all of them may be read.
LumStatus extremeByte(const Lum8u* src, int srcStep, LumiSize roi, Lum8u* result,
                      uint8_t (*kernel)(SourceRows, Extent)) {
  if (LumStatus fault = firstFault(pointers(src, result), size(roi))) return fault;
  *result = kernel(rows(src, srcStep), {static_cast<size_t>(roi.width), roi.height});
  return lumStatusOk;
}

template <typename T, typename Layout>
LumStatus leastByte(const T* src, int srcStep, LumiSize roi, T* min) {
  return extremeByte(src, srcStep, roi, min, leastByteOf);
}

template <typename T, typename Layout>
LumStatus greatestByte(const T* src, int srcStep, LumiSize roi, T* max) {
  return extremeByte(src, srcStep, roi, max, greatestByteOf);
}

// Widths from which on infinities are not told.
constexpr int kFiniteFrom = 11;

template <typename T, typename Layout>
LumStatus bothExtremes(const T* src, int srcStep, LumiSize roi, T* min, T* max) {
  if (LumStatus fault = firstFault(pointers(src, min, max), size(roi))) return fault;
  const auto image = pixelRows<Layout>(src, srcStep);
  const ChannelRanges<T> ranges =
      rangesOf<T, Layout::kStored>(image, fusedExtent(roi, image), roi.width < kFiniteFrom);
  storeChannels<Layout>(min, ranges.least);
  storeChannels<Layout>(max, ranges.greatest);
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/min_max.inc"
