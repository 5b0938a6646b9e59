// SPDX-License-Identifier: MIT
#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "lumi/shift.h"

namespace bench {
namespace {

template <typename T>
using OneCount = LumStatus (*)(const T*, int, Lum32u, T*, int, LumiSize);
template <typename T>
using CountEach = LumStatus (*)(const T*, int, const Lum32u*, T*, int, LumiSize);

struct ToLeft {
  template <typename T>
  T operator()(T x, unsigned count) const {
    return static_cast<T>(static_cast<unsigned>(x) << count);
  }
};
struct ToRight {
  template <typename T>
  T operator()(T x, unsigned count) const {
    return static_cast<T>(x >> count);
  }
};

template <typename T, typename Op>
Suite::Build oneCount(OneCount<T> lumi, Op op) {
  return [=](Scene& s) {
    const auto src = s.input<T>(1), dst = s.output<T>(1);
    s.ours([=] { lumi(src.data(), src.step, 3, dst.data(), dst.step, dst.roi); });
    s.peer(loop::rows(dst.roi, [=](int y, int width) {
      const T* __restrict p = src.row(y);
      T* __restrict d = dst.row(y);
      for (int x = 0; x < width; ++x) d[x] = op(p[x], 3);
    }));
  };
}

// The loop's counts are not known when it is compiled.
template <int C, int used = C, typename T, typename Op>
Suite::Build countEach(CountEach<T> lumi, Op op) {
  return [=](Scene& s) {
    const auto src = s.input<T>(C), dst = s.output<T>(C);
    static const volatile Lum32u given[] = {3, 1, 4, 2};
    s.ours([=] {
      const Lum32u counts[] = {3, 1, 4, 2};
      lumi(src.data(), src.step, counts, dst.data(), dst.step, dst.roi);
    });
    s.peer(loop::rows(dst.roi, [=](int y, int width) {
      const T* __restrict p = src.row(y);
      T* __restrict d = dst.row(y);
      const Lum32u counts[] = {given[0], given[1], given[2], given[3]};
      for (int x = 0; x < width; ++x)
        for (int c = 0; c < used; ++c) d[x * C + c] = op(p[x * C + c], counts[c]);
    }));
  };
}

const std::vector<LumiSize> kInCache{kCall, kSmall, kCached};

const Family family("shift", [](Suite& suite) {
  suite.row("lshiftC 8u C1", kEverySize, oneCount(lumiLShiftC_8u_C1R, ToLeft()));
  suite.row("lshiftC 16u C1", kInCache, oneCount(lumiLShiftC_16u_C1R, ToLeft()));
  suite.row("lshiftC 32s C1", kInCache, oneCount(lumiLShiftC_32s_C1R, ToLeft()));
  suite.row("rshiftC 8u C1", kUpToHd, oneCount(lumiRShiftC_8u_C1R, ToRight()));
  suite.row("rshiftC 16u C1", kUpToHd, oneCount(lumiRShiftC_16u_C1R, ToRight()));
  suite.row("rshiftC 16s C1", kInCache, oneCount(lumiRShiftC_16s_C1R, ToRight()));
  suite.row("rshiftC 32s C1", kInCache, oneCount(lumiRShiftC_32s_C1R, ToRight()));
  suite.row("lshiftC 8u C3", kUpToHd, countEach<3>(lumiLShiftC_8u_C3R, ToLeft()));
  suite.row("lshiftC 8u C4", kInCache, countEach<4>(lumiLShiftC_8u_C4R, ToLeft()));
  suite.row("rshiftC 8u AC4", kInCache, countEach<4, 3>(lumiRShiftC_8u_AC4R, ToRight()));
  suite.row("rshiftC 16u C3", kInCache, countEach<3>(lumiRShiftC_16u_C3R, ToRight()));
  suite.row("rshiftC 32s C4", kInCache, countEach<4>(lumiRShiftC_32s_C4R, ToRight()));
});

}  // namespace
}  // namespace bench
