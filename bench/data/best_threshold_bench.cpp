// SPDX-License-Identifier: MIT
#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "bench/peers/opencv.hpp"
#include "lumi/best_threshold.h"

namespace bench {
namespace {

// The counts alone, which are most of the work.
Peer loopCount(Image<Lum8u> src) {
  return peer("loop", [=] {
    static Lum32u counts[256];
    for (Lum32u& count : counts) count = 0;
    for (int y = 0; y < src.roi.height; ++y) {
      const Lum8u* s = src.row(y);
      for (int x = 0, width = src.roi.width; x < width; ++x) ++counts[s[x]];
    }
  });
}

const Family family("best_threshold", [](Suite& suite) {
  suite.row("best threshold 8u", kUpToHd, [](Scene& s) {
    const auto src = s.input<Lum8u>(1);
    s.ours([=] {
      static Lum8u threshold;
      lumiComputeThreshold_Otsu_8u_C1R(src.data(), src.step, src.roi, &threshold);
    });
    if (opencv::bestThreshold != nullptr) {
      Peer peer = opencv::bestThreshold(src);
      peer.differs = "stores what is above the threshold, too";
      s.peer(peer);
    }
    Peer peer = loopCount(src);
    peer.differs = "counts alone";
    s.peer(peer);
  });
});

}  // namespace
}  // namespace bench
