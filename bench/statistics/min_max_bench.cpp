// SPDX-License-Identifier: MIT
#include "bench/harness.hpp"
#include "bench/peers/opencv.hpp"
#include "bench/statistics/beatable.hpp"
#include "lumi/min_max.h"

namespace bench {
namespace {

template <typename T>
using One = LumStatus (*)(const T*, int, LumiSize, T*);
template <typename T>
using Two = LumStatus (*)(const T*, int, LumiSize, T*, T*);

// Of the first `used` channels; a result may be absent.
template <int C, int used, typename T>
Peer loopOf(Image<T> src, T* least, T* greatest) {
  return peer("loop", [=] {
    T low[C], high[C];
    std::copy(src.row(0), src.row(0) + C, low);
    std::copy(low, low + C, high);
    for (int y = 0; y < src.roi.height; ++y) {
      const T* s = src.row(y);
      for (int x = 0, width = src.roi.width; x < width; ++x)
        for (int c = 0; c < used; ++c) {
          const T sample = s[x * C + c];
          if (least) low[c] = sample < low[c] ? sample : low[c];
          if (greatest) high[c] = sample > high[c] ? sample : high[c];
        }
    }
    if (least) std::copy(low, low + used, least);
    if (greatest) std::copy(high, high + used, greatest);
  });
}

template <int C, int used = C, typename T>
Suite::Build one(One<T> lumi, bool greatest) {
  return [=](Scene& s) {
    const auto src = beatableInput<T>(s, C);
    const auto result = s.outputOf<T>(1, {used, 1});
    s.ours([=] { lumi(src.data(), src.step, src.roi, result.data()); });
    s.peer(loopOf<C, used>(src, greatest ? nullptr : result.data(), greatest ? result.data() : nullptr));
  };
}

template <int C, typename T>
Suite::Build both(Two<T> lumi) {
  return [=](Scene& s) {
    const auto src = s.input<T>(C);
    const auto min = s.outputOf<T>(1, {C, 1}), max = s.outputOf<T>(1, {C, 1});
    s.ours([=] { lumi(src.data(), src.step, src.roi, min.data(), max.data()); });
    if (C == 1) s.peer(opencv::leastAndGreatest, src, min, max);
    s.peer(loopOf<C, C>(src, min.data(), max.data()));
  };
}

const Family family("min_max", [](Suite& suite) {
  suite.row("min 8u C1", kEverySize, one<1>(lumiMin_8u_C1R, false));
  suite.row("max 8u C1", kUpToHd, one<1>(lumiMax_8u_C1R, true));
  suite.row("max 8u C3", kUpToHd, one<3>(lumiMax_8u_C3R, true));
  suite.row("min 16u C1", kUpToHd, one<1>(lumiMin_16u_C1R, false));
  suite.row("max 16s AC4", kUpToHd, one<4, 3>(lumiMax_16s_AC4R, true));
  suite.row("min 32f C1", kUpToHd, one<1>(lumiMin_32f_C1R, false));
  suite.row("min max 8u C1", kUpToHd, both<1>(lumiMinMax_8u_C1R));
  suite.row("min max 8u C3", kUpToHd, both<3>(lumiMinMax_8u_C3R));
  suite.row("min max 16s C1", kUpToHd, both<1>(lumiMinMax_16s_C1R));
  suite.row("min max 32f C1", kUpToHd, both<1>(lumiMinMax_32f_C1R));
  suite.row("min max 32f C3", kUpToHd, both<3>(lumiMinMax_32f_C3R));
});

}  // namespace
}  // namespace bench
