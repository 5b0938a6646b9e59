// SPDX-License-Identifier: MIT
#include <cmath>

#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "bench/peers/opencv.hpp"
#include "lumi/compare.h"

namespace bench {
namespace {

template <typename T>
using OfImages = LumStatus (*)(const T*, int, const T*, int, Lum8u*, int, LumiSize, LumCmpOp);
template <typename T, typename Value>
using WithConstant = LumStatus (*)(const T*, int, Value, Lum8u*, int, LumiSize, LumCmpOp);

// holds(x, c) of the first `used` samples of each pixel of C.
template <int C, int used, typename Holds>
void maskRow(Lum8u* __restrict d, int width, Holds holds) {
  for (int x = 0; x < width; ++x) {
    bool all = true;
    for (int c = 0; c < used; ++c) {
      const bool one = holds(x * C + c, c);
      all = all && one;
    }
    d[x] = all ? 255 : 0;
  }
}

template <int C, int used, typename T, typename Relation>
Peer loopOf(Image<T> a, Image<T> b, Image<Lum8u> dst, Relation relation) {
  return loop::rows(dst.roi, [=](int y, int width) {
    const T* __restrict p = a.row(y), * __restrict q = b.row(y);
    maskRow<C, used>(dst.row(y), width, [=](int i, int) { return relation(p[i], q[i]); });
  });
}

constexpr auto kGreater = [](auto a, auto b) { return a > b; };
constexpr auto kLessEqual = [](auto a, auto b) { return a <= b; };
constexpr auto kEqual = [](auto a, auto b) { return a == b; };

// The other library has a mask for each channel: a peer for one channel alone.
template <int C, int used = C, typename T, typename Relation>
Suite::Build images(OfImages<T> lumi, LumCmpOp op, Relation relation) {
  return [=](Scene& s) {
    const auto a = s.input<T>(C), b = s.input<T>(C);
    const auto dst = s.output<Lum8u>(1);
    s.ours([=] { lumi(a.data(), a.step, b.data(), b.step, dst.data(), dst.step, dst.roi, op); });
    if (C == 1) s.peer(opencv::compare, a, b, dst, static_cast<int>(op));
    s.peer(loopOf<C, used>(a, b, dst, relation));
  };
}

template <typename T>
Suite::Build constant(WithConstant<T, T> lumi) {
  return [=](Scene& s) {
    const auto src = s.input<T>(1);
    const auto dst = s.output<Lum8u>(1);
    const T value = 77;
    s.ours([=] { lumi(src.data(), src.step, value, dst.data(), dst.step, dst.roi, lumCmpOpGreater); });
    s.peer(opencv::compareConstant, src, dst, 77.0, static_cast<int>(lumCmpOpGreater));
    s.peer(loop::rows(dst.roi, [=](int y, int width) {
      const T* __restrict p = src.row(y);
      const T local = value;
      maskRow<1, 1>(dst.row(y), width, [=](int i, int) { return p[i] > local; });
    }));
  };
}

template <int C, int used = C, typename T>
Suite::Build constants(WithConstant<T, const T*> lumi) {
  return [=](Scene& s) {
    const auto src = s.input<T>(C);
    const auto dst = s.output<Lum8u>(1);
    s.ours([=] {
      const T values[] = {77, 5, 130, 20};
      lumi(src.data(), src.step, values, dst.data(), dst.step, dst.roi, lumCmpOpGreater);
    });
    s.peer(loop::rows(dst.roi, [=](int y, int width) {
      const T* __restrict p = src.row(y);
      const T values[] = {77, 5, 130, 20};
      maskRow<C, used>(dst.row(y), width, [&](int i, int c) { return p[i] > values[c]; });
    }));
  };
}

template <int C>
Suite::Build within(LumStatus (*lumi)(const Lum32f*, int, const Lum32f*, int, Lum8u*, int, LumiSize,
                                      Lum32f)) {
  return [=](Scene& s) {
    const auto a = s.input<Lum32f>(C), b = s.input<Lum32f>(C);
    const auto dst = s.output<Lum8u>(1);
    s.ours([=] { lumi(a.data(), a.step, b.data(), b.step, dst.data(), dst.step, dst.roi, 9); });
    s.peer(loopOf<C, C>(a, b, dst, [](float p, float q) { return std::fabs(p - q) <= 9; }));
  };
}

const Family family("compare", [](Suite& suite) {
  suite.row("compare 8u C1", kEverySize, images<1>(lumiCompare_8u_C1R, lumCmpOpGreater, kGreater));
  suite.row("compare 8u C1 misaligned", kUpToHd, images<1>(lumiCompare_8u_C1R, lumCmpOpGreater, kGreater),
            Placement::misaligned);
  suite.row("compare 8u C3", kUpToHd, images<3>(lumiCompare_8u_C3R, lumCmpOpLessEqual, kLessEqual));
  suite.row("compare 8u AC4", kUpToHd, images<4, 3>(lumiCompare_8u_AC4R, lumCmpOpGreater, kGreater));
  suite.row("compare 16u C1", kUpToHd, images<1>(lumiCompare_16u_C1R, lumCmpOpGreater, kGreater));
  suite.row("compare 16s C1", kUpToHd, images<1>(lumiCompare_16s_C1R, lumCmpOpLessEqual, kLessEqual));
  suite.row("compare 32f C1", kUpToHd, images<1>(lumiCompare_32f_C1R, lumCmpOpGreater, kGreater));
  suite.row("compare 32f C3", kUpToHd, images<3>(lumiCompare_32f_C3R, lumCmpOpGreater, kGreater));
  suite.row("compare equal 8u C4", kUpToHd, images<4>(lumiCompare_8u_C4R, lumCmpOpEqual, kEqual));
  suite.row("compareC 8u C1", kUpToHd, constant(lumiCompareC_8u_C1R));
  suite.row("compareC 16s C1", kUpToHd, constant(lumiCompareC_16s_C1R));
  suite.row("compareC 32f C1", kUpToHd, constant(lumiCompareC_32f_C1R));
  suite.row("compareC 8u C3", kUpToHd, constants<3>(lumiCompareC_8u_C3R));
  suite.row("compareC 16u C4", kUpToHd, constants<4>(lumiCompareC_16u_C4R));
  suite.row("compare eps 32f C1", kUpToHd, within<1>(lumiCompareEqualEps_32f_C1R));
  suite.row("compare eps 32f C4", kUpToHd, within<4>(lumiCompareEqualEps_32f_C4R));
});

}  // namespace
}  // namespace bench
