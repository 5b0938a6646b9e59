// SPDX-License-Identifier: MIT
#include <algorithm>

#include "bench/harness.hpp"
#include "lumi/block_min_max.h"

namespace bench {
namespace {

template <typename T>
using Blocks = LumStatus (*)(const T*, int, LumiSize, T*, int, T*, int, LumiSize, T*, T*);

// Of all pixels of a block, block by block.
template <typename T>
Peer loopOf(Image<T> src, Image<T> min, Image<T> max, Image<T> all, int side) {
  return peer("loop", [=] {
    T least = src.row(0)[0], greatest = least;
    for (int top = 0; top < src.roi.height; top += side)
      for (int left = 0; left < src.roi.width; left += side) {
        T low = src.row(top)[left], high = low;
        const int right = std::min(left + side, src.roi.width);
        for (int y = top; y < std::min(top + side, src.roi.height); ++y) {
          const T* s = src.row(y);
          for (int x = left; x < right; ++x) {
            low = s[x] < low ? s[x] : low;
            high = s[x] > high ? s[x] : high;
          }
        }
        min.row(top / side)[left / side] = low;
        max.row(top / side)[left / side] = high;
        least = std::min(low, least);
        greatest = std::max(high, greatest);
      }
    all.data()[0] = least;
    all.data()[1] = greatest;
  });
}

template <typename T>
Suite::Build blocks(Blocks<T> lumi, int side) {
  return [=](Scene& s) {
    const auto src = s.input<T>(1);
    const LumiSize maps{(src.roi.width - 1) / side + 1, (src.roi.height - 1) / side + 1};
    const auto min = s.outputOf<T>(1, maps), max = s.outputOf<T>(1, maps), all = s.outputOf<T>(1, {2, 1});
    s.ours([=] {
      lumi(src.data(), src.step, src.roi, min.data(), min.step, max.data(), max.step, {side, side},
           all.data(), all.data() + 1);
    });
    s.peer(loopOf(src, min, max, all, side));
  };
}

const Family family("block_min_max", [](Suite& suite) {
  suite.row("block min max 8u 16x16", kUpToHd, blocks(lumiBlockMinMax_8u_C1R, 16));
  suite.row("block min max 8u 4x4", kUpToHd, blocks(lumiBlockMinMax_8u_C1R, 4));
  suite.row("block min max 16s 16x16", kUpToHd, blocks(lumiBlockMinMax_16s_C1R, 16));
  suite.row("block min max 32f 16x16", kUpToHd, blocks(lumiBlockMinMax_32f_C1R, 16));
});

}  // namespace
}  // namespace bench
