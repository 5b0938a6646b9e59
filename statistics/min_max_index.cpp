// SPDX-License-Identifier: MIT
// The least and the greatest sample of each channel, and where they are.
#include "lumi/min_max_index.h"

#include "frame/check.hpp"
#include "frame/results.hpp"
#include "frame/rows.hpp"
#include "kernels/statistics/min_max_index.hpp"

namespace lumi {
namespace {

using namespace check;

// Rows stay apart, since not all of them may be read.
template <typename Layout, typename T, typename Kernel>
LumStatus placed(const T* src, int srcStep, LumiSize roi, T* value, Lum32s* x, Lum32s* y, Kernel kernel) {
  if (LumStatus fault = firstFault(pointers(src, value, x, y), size(roi))) return fault;
  const PlacedExtremes<T> found =
      kernel(rows(src, srcStep), {static_cast<size_t>(roi.width), roi.height}, Layout::kUsed);
  storeChannels<Layout>(value, found.value);
  storeChannels<Layout>(x, found.x);
  storeChannels<Layout>(y, found.y);
  return lumStatusOk;
}

template <typename T, typename Layout>
LumStatus placedLeast(const T* src, int srcStep, LumiSize roi, T* min, Lum32s* x, Lum32s* y) {
  return placed<Layout>(src, srcStep, roi, min, x, y, placedLeastOf<T, Layout::kStored>);
}

template <typename T, typename Layout>
LumStatus placedGreatest(const T* src, int srcStep, LumiSize roi, T* max, Lum32s* x, Lum32s* y) {
  return placed<Layout>(src, srcStep, roi, max, x, y, placedGreatestOf<T, Layout::kStored>);
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/min_max_index.inc"
