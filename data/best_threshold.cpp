// SPDX-License-Identifier: MIT
// The threshold that parts an image best.
#include "lumi/best_threshold.h"

#include <algorithm>
#include <climits>

#include "frame/check.hpp"
#include "frame/rows.hpp"
#include "kernels/byte_counts.hpp"
#include "kernels/data/best_threshold.hpp"

namespace lumi {
namespace {

using namespace check;

// Images of any size: they are counted in parts of fewer than 2^31 pixels, whose counts do not go around.
Histogram histogramOf(const Lum8u* src, int step, LumiSize roi) {
  Histogram histogram{};
  const int most = INT_MAX / roi.width;
  for (int y = 0, height = 0; y < roi.height; y += height) {
    height = std::min(most, roi.height - y);
    runFused(
        {roi.width, height},
        [&](SourceRows part, Extent pixels) {
          ByteCounts counts;
          countBytes<1, 1>(part, pixels, &counts);
          for (size_t i = 0; i < 256; ++i) histogram.of[i] += counts.of[i];
        },
        pixelRows<C1>(src + static_cast<ptrdiff_t>(y) * step, step));
  }
  return histogram;
}

template <typename T, typename Layout>
LumStatus bestThreshold(const T* src, int srcStep, LumiSize roi, Lum8u* threshold) {
  if (LumStatus fault = firstFault(pointers(src, threshold), size(roi),
                                   srcStep < roi.width ? lumStatusBadStep : lumStatusOk))
    return fault;
  *threshold = bestThreshold(histogramOf(src, srcStep, roi));
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/best_threshold.inc"
