// SPDX-License-Identifier: MIT
// The threshold that parts an image best.
#include "lumi/best_threshold.h"

#include <algorithm>
#include <climits>

#include "frame/check.hpp"
#include "frame/rows.hpp"
#include "kernels/data/best_threshold.hpp"

namespace lumi {
namespace {

using namespace check;

constexpr int kLevels = 256;

// Pixels of each level. Images of any size fit, for they are counted in parts of fewer than 2^32 pixels.
struct Histogram {
  double of[kLevels] = {};

  Histogram(const Lum8u* src, int step, LumiSize roi) {
    const auto most =
        static_cast<int>(std::min<uint32_t>(INT_MAX, UINT32_MAX / static_cast<uint32_t>(roi.width)));
    for (int y = 0, height = 0; y < roi.height; y += height) {
      height = std::min(most, roi.height - y);
      runFused(
          {roi.width, height}, [&](SourceRows part, Extent pixels) { add(part, pixels); },
          pixelRows<C1>(src + static_cast<ptrdiff_t>(y) * step, step));
    }
  }

 private:
  void add(SourceRows src, Extent pixels) {
    const ByteCounts counts = countBytes(src, pixels);
    for (int i = 0; i < kLevels; ++i) of[i] += counts.of[i];
  }
};

// The variance between two classes, level by level. The steps and their order are part of the result.
Lum8u bestThreshold(const Histogram& histogram) {
  // Shares this close to none or all do not make a class: 2^-23 and 1 - 2^-23.
  constexpr double kLeast = 0x1p-23, kMost = 1 - 0x1p-23;
  const auto centre = [](int i) { return i + 0.5; };
  double total = 0, weighted = 0;
  for (int i = 0; i < kLevels; ++i) {
    total += histogram.of[i];
    weighted += histogram.of[i] * centre(i);
  }
  const double inverse = total > kLeast ? 1 / total : 0, mean = weighted * inverse;
  double q1 = 0, mu = 0, best = 0;
  int threshold = 0;
  for (int i = 0; i < kLevels; ++i) {
    const double p = inverse * histogram.of[i];
    mu *= q1;
    q1 += p;
    const double q2 = 1 - q1;
    // What is skipped leaves mu a sum that has not become a mean again, and adds nothing to it.
    if (q1 > kMost) break;  // as all that follow
    if (std::min(q1, q2) < kLeast || q2 > kMost) continue;
    mu = (mu + p * centre(i)) / q1;
    const double d = mu - (mean - mu * q1) / q2, variance = q1 * q2 * d * d;
    if (variance > best) {
      best = variance;
      threshold = i;
    }
  }
  return static_cast<Lum8u>(threshold);
}

template <typename T, typename Layout>
LumStatus bestThreshold(const T* src, int srcStep, LumiSize roi, Lum8u* threshold) {
  if (LumStatus fault = firstFault(pointers(src, threshold), size(roi),
                                   srcStep < roi.width ? lumStatusBadStep : lumStatusOk))
    return fault;
  *threshold = bestThreshold(Histogram(src, srcStep, roi));
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/best_threshold.inc"
