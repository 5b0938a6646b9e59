// SPDX-License-Identifier: MIT
#include <algorithm>

#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "bench/peers/opencv.hpp"
#include "lumi/best_threshold.h"

namespace bench {
namespace {

Lum8u bestOf(const double* counts) {
  double total = 0, sum = 0;
  for (int i = 0; i < 256; ++i) {
    total += counts[i];
    sum += counts[i] * (i + 0.5);
  }
  double below = 0, mean = 0, best = 0;
  int threshold = 0;
  for (int i = 0; i < 256; ++i) {
    const double p = counts[i] / total;
    mean *= below;
    below += p;
    const double above = 1 - below;
    if (std::min(below, above) < 0x1p-23) continue;
    mean = (mean + p * (i + 0.5)) / below;
    const double d = mean - (sum / total - mean * below) / above, variance = below * above * d * d;
    if (variance > best) {
      best = variance;
      threshold = i;
    }
  }
  return static_cast<Lum8u>(threshold);
}

// The method as its definition says, with one table of counts.
Peer loopThreshold(Image<Lum8u> src, Image<Lum8u> result) {
  return peer("loop", [=] {
    Lum32u counts[256] = {};
    for (int y = 0; y < src.roi.height; ++y) {
      const Lum8u* s = src.row(y);
      for (int x = 0, width = src.roi.width; x < width; ++x) ++counts[s[x]];
    }
    double wide[256];
    std::copy(counts, counts + 256, wide);
    *result.data() = bestOf(wide);
  });
}

const Family family("best_threshold", [](Suite& suite) {
  suite.row("best threshold 8u", kUpToHd, [](Scene& s) {
    const auto src = s.input<Lum8u>(1);
    const auto result = s.outputOf<Lum8u>(1, {1, 1});
    s.ours([=] { lumiComputeThreshold_Otsu_8u_C1R(src.data(), src.step, src.roi, result.data()); });
    if (opencv::bestThreshold != nullptr) {
      Peer peer = opencv::bestThreshold(src);
      peer.differs = "stores what is above the threshold, too";
      s.peer(peer);
    }
    s.peer(loopThreshold(src, result));
  });
});

}  // namespace
}  // namespace bench
