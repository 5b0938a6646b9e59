// SPDX-License-Identifier: MIT
#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "bench/peers/opencv.hpp"
#include "lumi/extremes.h"

namespace bench {
namespace {

template <typename T>
using Extreme = LumStatus (*)(const T*, int, T*, int, LumiSize);

// The first `used` samples of each pixel of C.
template <int C, int used, typename T>
Peer loopOf(Image<T> src, Image<T> dst, bool larger) {
  const auto run = [=](auto choose) {
    return loop::rows(dst.roi, [=](int y, int width) {
      const T* __restrict s = src.row(y);
      T* __restrict d = dst.row(y);
      if constexpr (used == C) {
        for (int i = 0, n = width * C; i < n; ++i) d[i] = choose(s[i], d[i]);
      } else {
        for (int x = 0; x < width; ++x)
          for (int c = 0; c < used; ++c) d[x * C + c] = choose(s[x * C + c], d[x * C + c]);
      }
    });
  };
  if (larger) return run([](T a, T b) { return a > b ? a : b; });
  return run([](T a, T b) { return a < b ? a : b; });
}

// In place: once done, a result stays what it is.
template <int C, int used = C, typename T>
Suite::Build extremes(Extreme<T> lumi, bool larger) {
  return [=](Scene& s) {
    const auto src = s.input<T>(C), dst = s.output<T>(C);
    s.ours([=] { lumi(src.data(), src.step, dst.data(), dst.step, dst.roi); });
    if (used == C) s.peer(opencv::extreme, src, dst, larger);
    s.peer(loopOf<C, used>(src, dst, larger));
  };
}

const Family family("extremes", [](Suite& suite) {
  suite.row("max every 8u C1", kEverySize, extremes<1>(lumiMaxEvery_8u_C1IR, true));
  suite.row("max every 8u C1 misaligned", kUpToHd, extremes<1>(lumiMaxEvery_8u_C1IR, true),
            Placement::misaligned);
  suite.row("max every 8u AC4", kUpToHd, extremes<4, 3>(lumiMaxEvery_8u_AC4IR, true));
  suite.row("max every 16u C1", kUpToHd, extremes<1>(lumiMaxEvery_16u_C1IR, true));
  suite.row("max every 32f C1", kUpToHd, extremes<1>(lumiMaxEvery_32f_C1IR, true));
  suite.row("min every 16s C1", kUpToHd, extremes<1>(lumiMinEvery_16s_C1IR, false));
  suite.row("min every 32f AC4", kUpToHd, extremes<4, 3>(lumiMinEvery_32f_AC4IR, false));
});

}  // namespace
}  // namespace bench
