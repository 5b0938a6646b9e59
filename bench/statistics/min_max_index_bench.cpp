// SPDX-License-Identifier: MIT
#include "bench/harness.hpp"
#include "bench/peers/opencv.hpp"
#include "bench/statistics/beatable.hpp"
#include "lumi/min_max_index.h"

namespace bench {
namespace {

template <typename T>
using Find = LumStatus (*)(const T*, int, LumiSize, T*, Lum32s*, Lum32s*);

template <int C, typename T>
Peer loopOf(Image<T> src, Image<T> value, Image<Lum32s> atX, Image<Lum32s> atY, bool greatest) {
  const auto run = [=](auto isBeyond) {
    return peer("loop", [=] {
      T best[C];
      Lum32s placeX[C] = {}, placeY[C] = {};
      std::copy(src.row(0), src.row(0) + C, best);
      for (int y = 0; y < src.roi.height; ++y) {
        const T* s = src.row(y);
        for (int x = 0, width = src.roi.width; x < width; ++x)
          for (int c = 0; c < C; ++c)
            if (isBeyond(s[x * C + c], best[c])) {
              best[c] = s[x * C + c];
              placeX[c] = x;
              placeY[c] = y;
            }
      }
      std::copy(best, best + C, value.data());
      std::copy(placeX, placeX + C, atX.data());
      std::copy(placeY, placeY + C, atY.data());
    });
  };
  if (greatest) return run([](T a, T b) { return a > b; });
  return run([](T a, T b) { return a < b; });
}

template <int C, typename T>
Suite::Build place(Find<T> lumi, bool greatest) {
  return [=](Scene& s) {
    const auto src = beatableInput<T>(s, C);
    const auto value = s.outputOf<T>(1, {C, 1});
    const auto x = s.outputOf<Lum32s>(1, {C, 1}), y = s.outputOf<Lum32s>(1, {C, 1});
    s.ours([=] { lumi(src.data(), src.step, src.roi, value.data(), x.data(), y.data()); });
    if (C == 1) s.peer(opencv::extremePlace, src, value, x, y, greatest);
    s.peer(loopOf<C>(src, value, x, y, greatest));
  };
}

const Family family("min_max_index", [](Suite& suite) {
  suite.row("min index 8u C1", kUpToHd, place<1>(lumiMinIndx_8u_C1R, false));
  suite.row("max index 8u C1", kUpToHd, place<1>(lumiMaxIndx_8u_C1R, true));
  suite.row("max index 8u C3", kUpToHd, place<3>(lumiMaxIndx_8u_C3R, true));
  suite.row("min index 16u C1", kUpToHd, place<1>(lumiMinIndx_16u_C1R, false));
  suite.row("max index 16s C4", kUpToHd, place<4>(lumiMaxIndx_16s_C4R, true));
  suite.row("min index 32f C1", kUpToHd, place<1>(lumiMinIndx_32f_C1R, false));
});

}  // namespace
}  // namespace bench
