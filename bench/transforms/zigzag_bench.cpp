// SPDX-License-Identifier: MIT
#include "bench/harness.hpp"
#include "lumi/zigzag.h"

namespace bench {
namespace {

constexpr unsigned char kOrder[64] = {0,  1,  8,  16, 9,  2,  3,  10, 17, 24, 32, 25, 18, 11, 4,  5,
                                      12, 19, 26, 33, 40, 48, 41, 34, 27, 20, 13, 6,  7,  14, 21, 28,
                                      35, 42, 49, 56, 57, 50, 43, 36, 29, 22, 15, 23, 30, 37, 44, 51,
                                      58, 59, 52, 45, 38, 31, 39, 46, 53, 60, 61, 54, 47, 55, 62, 63};

// An image's memory as blocks, one behind the other.
template <bool inverse>
Suite::Build order(LumStatus (*call)(const Lum16s*, Lum16s*)) {
  return [=](Scene& s) {
    const auto src = s.input<Lum16s>(1), dst = s.output<Lum16s>(1);
    const int blocks = src.roi.width * src.roi.height / 64;
    s.ours([=] {
      for (int i = 0; i < blocks; ++i) call(src.data() + 64 * i, dst.data() + 64 * i);
    });
    s.peer(peer("loop", [=] {
      for (int i = 0; i < blocks; ++i) {
        const Lum16s* __restrict from = src.data() + 64 * i;
        Lum16s* __restrict to = dst.data() + 64 * i;
        for (int k = 0; k < 64; ++k) to[inverse ? kOrder[k] : k] = from[inverse ? k : kOrder[k]];
      }
    }));
  };
}

const Family family("zigzag", [](Suite& suite) {
  const std::vector<LumiSize> sizes{kCall, kSmall, {128, 64}, {512, 512}, kHd};
  suite.row("zigzag 16s", sizes, order<false>(lumiZigzagFwd8x8_16s_C1));
  suite.row("zigzag 16s back", sizes, order<true>(lumiZigzagInv8x8_16s_C1));
});

}  // namespace
}  // namespace bench
