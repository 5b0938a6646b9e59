// SPDX-License-Identifier: MIT
#include <algorithm>

#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "bench/peers/opencv.hpp"
#include "lumi/threshold.h"

namespace bench {
namespace {

template <typename T, typename... Constant>
using Threshold = LumStatus (*)(const T*, int, T*, int, LumiSize, Constant...);

// Makes each of the first `used` samples of pixels by function(sample, channel).
template <int C, int used, typename T, typename Function>
Peer loopOf(Image<T> src, Image<T> dst, Function function) {
  return loop::rows(dst.roi, [=](int y, int width) {
    const T* __restrict p = src.row(y);
    T* __restrict d = dst.row(y);
    const Function local = function;
    for (int x = 0; x < width; ++x)
      for (std::size_t c = 0; c < used; ++c)
        d[x * C + static_cast<int>(c)] = local(p[x * C + static_cast<int>(c)], c);
  });
}

// Samples of all types, about their middle.
template <typename T>
std::array<T, 4> levels(int first) {
  constexpr int unit = sizeof(T) == 2 && std::is_unsigned_v<T> ? 256 : 1;
  return {static_cast<T>(first * unit), static_cast<T>((first + 9) * unit),
          static_cast<T>((first - 20) * unit), static_cast<T>((first + 31) * unit)};
}

template <typename T>
Value valueOf(const std::array<T, 4>& samples) {
  Value value;
  std::copy(samples.begin(), samples.end(), value.begin());
  return value;
}

template <typename T>
Suite::Build limited(Threshold<T, T> lumi) {
  return [=](Scene& s) {
    const auto src = s.input<T>(1), dst = s.output<T>(1);
    const T t = levels<T>(77)[0];
    s.ours([=] { lumi(src.data(), src.step, dst.data(), dst.step, dst.roi, t); });
    s.peer(opencv::limitAbove, src, dst, Value{static_cast<double>(t)});
    s.peer(loopOf<1, 1>(src, dst, [=](T x, std::size_t) { return x < t ? x : t; }));
  };
}

template <int C, int used = C, typename T>
Suite::Build limitedByChannel(Threshold<T, const T*> lumi) {
  return [=](Scene& s) {
    const auto src = s.input<T>(C), dst = s.output<T>(C);
    const auto t = levels<T>(77);
    s.ours([=] { lumi(src.data(), src.step, dst.data(), dst.step, dst.roi, t.data()); });
    if (used == C) s.peer(opencv::limitAbove, src, dst, valueOf(t));
    s.peer(loopOf<C, used>(src, dst, [=](T x, std::size_t c) { return x < t[c] ? x : t[c]; }));
  };
}

// The other library has only 0.
template <typename T>
Suite::Build replaced(Threshold<T, T, T> lumi) {
  return [=](Scene& s) {
    const auto src = s.input<T>(1), dst = s.output<T>(1);
    const T t = levels<T>(77)[0], value = 0;
    s.ours([=] { lumi(src.data(), src.step, dst.data(), dst.step, dst.roi, t, value); });
    s.peer(opencv::zeroAbove, src, dst, static_cast<double>(t));
    s.peer(loopOf<1, 1>(src, dst, [=](T x, std::size_t) { return x > t ? value : x; }));
  };
}

template <int C, int used = C, typename T>
Suite::Build replacedByChannel(Threshold<T, const T*, const T*> lumi) {
  return [=](Scene& s) {
    const auto src = s.input<T>(C), dst = s.output<T>(C);
    const auto t = levels<T>(77), value = levels<T>(20);
    s.ours([=] { lumi(src.data(), src.step, dst.data(), dst.step, dst.roi, t.data(), value.data()); });
    s.peer(loopOf<C, used>(src, dst, [=](T x, std::size_t c) { return x > t[c] ? value[c] : x; }));
  };
}

template <typename T>
Suite::Build replacedBoth(Threshold<T, T, T, T, T> lumi) {
  return [=](Scene& s) {
    const auto src = s.input<T>(1), dst = s.output<T>(1);
    const T low = levels<T>(50)[0], below = levels<T>(20)[0], high = levels<T>(77)[0],
            above = levels<T>(99)[0];
    s.ours([=] { lumi(src.data(), src.step, dst.data(), dst.step, dst.roi, low, below, high, above); });
    s.peer(loopOf<1, 1>(src, dst, [=](T x, std::size_t) { return x > high ? above : x < low ? below : x; }));
  };
}

template <int C, int used = C, typename T>
Suite::Build replacedBothByChannel(Threshold<T, const T*, const T*, const T*, const T*> lumi) {
  return [=](Scene& s) {
    const auto src = s.input<T>(C), dst = s.output<T>(C);
    const auto low = levels<T>(50), below = levels<T>(20), high = levels<T>(77), above = levels<T>(99);
    s.ours([=] {
      lumi(src.data(), src.step, dst.data(), dst.step, dst.roi, low.data(), below.data(), high.data(),
           above.data());
    });
    s.peer(loopOf<C, used>(src, dst, [=](T x, std::size_t c) {
      return x > high[c] ? above[c] : x < low[c] ? below[c] : x;
    }));
  };
}

const Family family("threshold", [](Suite& suite) {
  suite.row("threshold 8u C1", kEverySize, limited(lumiThreshold_GT_8u_C1R));
  suite.row("threshold 8u C1 misaligned", kUpToHd, limited(lumiThreshold_GT_8u_C1R), Placement::misaligned);
  suite.row("threshold 16u C1", kEverySize, limited(lumiThreshold_GT_16u_C1R));
  suite.row("threshold 16s C1", kUpToHd, limited(lumiThreshold_GT_16s_C1R));
  suite.row("threshold 32f C1", kEverySize, limited(lumiThreshold_GT_32f_C1R));
  suite.row("threshold 8u C3", kUpToHd, limitedByChannel<3>(lumiThreshold_GT_8u_C3R));
  suite.row("threshold 8u AC4", kUpToHd, limitedByChannel<4, 3>(lumiThreshold_GT_8u_AC4R));
  suite.row("threshold 32f C3", kUpToHd, limitedByChannel<3>(lumiThreshold_GT_32f_C3R));
  suite.row("threshold value 8u C1", kUpToHd, replaced(lumiThreshold_GTVal_8u_C1R));
  suite.row("threshold value 16u C1", kUpToHd, replaced(lumiThreshold_GTVal_16u_C1R));
  suite.row("threshold value 16s C1", kUpToHd, replaced(lumiThreshold_GTVal_16s_C1R));
  suite.row("threshold value 32f C1", kUpToHd, replaced(lumiThreshold_GTVal_32f_C1R));
  suite.row("threshold value 8u C3", kUpToHd, replacedByChannel<3>(lumiThreshold_GTVal_8u_C3R));
  suite.row("threshold value 8u C4", kUpToHd, replacedByChannel<4>(lumiThreshold_GTVal_8u_C4R));
  suite.row("threshold value 32f C3", kUpToHd, replacedByChannel<3>(lumiThreshold_GTVal_32f_C3R));
  suite.row("threshold both 8u C1", kUpToHd, replacedBoth(lumiThreshold_LTValGTVal_8u_C1R));
  suite.row("threshold both 16s C1", kUpToHd, replacedBoth(lumiThreshold_LTValGTVal_16s_C1R));
  suite.row("threshold both 32f C1", kUpToHd, replacedBoth(lumiThreshold_LTValGTVal_32f_C1R));
  suite.row("threshold both 8u C3", kUpToHd, replacedBothByChannel<3>(lumiThreshold_LTValGTVal_8u_C3R));
  suite.row("threshold both 8u AC4", kUpToHd, replacedBothByChannel<4, 3>(lumiThreshold_LTValGTVal_8u_AC4R));
});

}  // namespace
}  // namespace bench
