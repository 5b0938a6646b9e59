// SPDX-License-Identifier: MIT
#include <algorithm>

#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "lumi/count_in_range.h"

namespace bench {
namespace {

template <int C, typename T>
Peer loopCounts(Image<T> src, Image<Lum32s> counts) {
  return peer("loop", [=] {
    Lum32s sums[C] = {};
    for (int y = 0; y < src.roi.height; ++y) {
      const T* s = src.row(y);
      for (int x = 0, width = src.roi.width; x < width; ++x)
        for (int c = 0; c < C; ++c) sums[c] += s[x * C + c] >= T{60} && s[x * C + c] <= T{190};
    }
    std::copy(sums, sums + C, counts.data());
  });
}

template <typename T>
Suite::Build oneChannel(LumStatus (*lumi)(const T*, int, LumiSize, Lum32s*, T, T)) {
  return [=](Scene& s) {
    const auto src = s.input<T>(1);
    const auto counts = s.outputOf<Lum32s>(1, {1, 1});
    s.ours([=] { lumi(src.data(), src.step, src.roi, counts.data(), T{60}, T{190}); });
    s.peer(loopCounts<1>(src, counts));
  };
}

template <typename T>
Suite::Build threeChannels(LumStatus (*lumi)(const T*, int, LumiSize, Lum32s*, const T*, const T*)) {
  return [=](Scene& s) {
    const auto src = s.input<T>(3);
    const auto counts = s.outputOf<Lum32s>(1, {3, 1});
    s.ours([=] {
      const T lower[] = {60, 60, 60}, upper[] = {190, 190, 190};
      lumi(src.data(), src.step, src.roi, counts.data(), lower, upper);
    });
    s.peer(loopCounts<3>(src, counts));
  };
}

const Family family("count_in_range", [](Suite& suite) {
  suite.row("count in range 8u C1", kUpToHd, oneChannel(lumiCountInRange_8u_C1R));
  suite.row("count in range 8u C3", kUpToHd, threeChannels(lumiCountInRange_8u_C3R));
  suite.row("count in range 32f C1", kUpToHd, oneChannel(lumiCountInRange_32f_C1R));
});

}  // namespace
}  // namespace bench
