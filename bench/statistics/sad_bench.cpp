// SPDX-License-Identifier: MIT
#include <cmath>

#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "lumi/sad.h"

namespace bench {
namespace {

// Sums for each window; those of integers by vectors of neighbouring windows, as the compiler makes them.
template <typename T, typename D>
Peer loopSad(Image<T> src, Image<T> tpl, Image<D> dst) {
  return loop::rows(dst.roi, [=](int y, int width) {
    D* __restrict d = dst.row(y);
    for (int x = 0; x < width; ++x) d[x] = 0;
    for (int j = 0; j < tpl.roi.height; ++j)
      for (int i = 0; i < tpl.roi.width; ++i) {
        const T* __restrict s = src.row(y + j) + i;
        const T tap = tpl.row(j)[i];
        for (int x = 0; x < width; ++x)
          if constexpr (std::is_same_v<T, Lum32f>)
            d[x] += std::fabs(s[x] - tap);
          else
            d[x] += s[x] > tap ? s[x] - tap : tap - s[x];
      }
  });
}

template <typename T, typename D, int side, typename Call>
Suite::Build sad(Call call) {
  return [=](Scene& s) {
    const LumiSize size = s.roi();
    const auto src = s.inputOf<T>(1, {size.width + side - 1, size.height + side - 1});
    const auto tpl = s.inputOf<T>(1, {side, side});
    const auto dst = s.output<D>(1);
    s.ours([=] { call(src, tpl, dst); });
    s.peer(loopSad(src, tpl, dst));
  };
}

// The size is that of the destination.
template <typename T, int side>
Suite::Build integers(LumStatus (*lumi)(const T*, int, LumiSize, const T*, int, LumiSize, Lum32s*, int, int,
                                        int, Lum8u*)) {
  return sad<T, Lum32s, side>([=](const auto& src, const auto& tpl, const auto& dst) {
    lumi(src.data(), src.step, src.roi, tpl.data(), tpl.step, tpl.roi, dst.data(), dst.step, 0x10000, 0,
         nullptr);
  });
}

template <int side>
Suite::Build floats() {
  return sad<Lum32f, Lum32f, side>([=](const auto& src, const auto& tpl, const auto& dst) {
    lumiSAD_32f_C1R(src.data(), src.step, src.roi, tpl.data(), tpl.step, tpl.roi, dst.data(), dst.step,
                    0x10000, nullptr);
  });
}

const std::vector<LumiSize> kSizes{kCall, kSmall, kCached};

const Family family("sad", [](Suite& suite) {
  suite.row("sad 8u 8x8", kSizes, integers<Lum8u, 8>(lumiSAD_8u32s_C1RSfs));
  suite.row("sad 8u 16x16", kSizes, integers<Lum8u, 16>(lumiSAD_8u32s_C1RSfs));
  suite.row("sad 16u 8x8", kSizes, integers<Lum16u, 8>(lumiSAD_16u32s_C1RSfs));
  suite.row("sad 32f 8x8", kSizes, floats<8>());
});

}  // namespace
}  // namespace bench
