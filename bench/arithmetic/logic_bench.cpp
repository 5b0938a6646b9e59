// SPDX-License-Identifier: MIT
#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "bench/peers/opencv.hpp"
#include "lumi/logic.h"

namespace bench {
namespace {

template <typename T>
using OfImages = LumStatus (*)(const T*, int, const T*, int, T*, int, LumiSize);
template <typename T>
using WithConstant = LumStatus (*)(const T*, int, T, T*, int, LumiSize);
template <typename T>
using WithConstants = LumStatus (*)(const T*, int, const T*, T*, int, LumiSize);

struct Conjunction {
  static constexpr auto kPeer = opencv::Logic::conjunction;
  template <typename T>
  T operator()(T a, T b) const {
    return static_cast<T>(a & b);
  }
};
struct Disjunction {
  static constexpr auto kPeer = opencv::Logic::disjunction;
  template <typename T>
  T operator()(T a, T b) const {
    return static_cast<T>(a | b);
  }
};
struct Exclusive {
  static constexpr auto kPeer = opencv::Logic::exclusive;
  template <typename T>
  T operator()(T a, T b) const {
    return static_cast<T>(a ^ b);
  }
};

// The first `used` samples of each pixel of C.
template <int C, int used, typename T, typename Op>
Peer loopOf(Image<T> a, Image<T> b, Image<T> dst, Op op) {
  return loop::rows(dst.roi, [=](int y, int width) {
    const T* __restrict p = a.row(y), * __restrict q = b.row(y);
    T* __restrict d = dst.row(y);
    if constexpr (used == C) {
      for (int i = 0, n = width * C; i < n; ++i) d[i] = op(p[i], q[i]);
    } else {
      for (int x = 0; x < width; ++x)
        for (int c = 0; c < used; ++c) d[x * C + c] = op(p[x * C + c], q[x * C + c]);
    }
  });
}

template <int C, int used = C, typename T, typename Op>
Suite::Build images(OfImages<T> lumi, Op op) {
  return [=](Scene& s) {
    const auto a = s.input<T>(C), b = s.input<T>(C), dst = s.output<T>(C);
    s.ours([=] { lumi(a.data(), a.step, b.data(), b.step, dst.data(), dst.step, dst.roi); });
    if (used == C) s.peer(opencv::logic, a, b, dst, Op::kPeer);
    s.peer(loopOf<C, used>(a, b, dst, op));
  };
}

template <int C, int used, typename T, typename Op>
Peer loopOfConstant(Image<T> src, Image<T> dst, Value value, Op op) {
  const auto pixel = loop::samples<C, T>(value);
  return loop::rows(dst.roi, [=](int y, int width) {
    const T* __restrict p = src.row(y);
    T* __restrict d = dst.row(y);
    const auto local = pixel;
    for (int x = 0; x < width; ++x)
      for (int c = 0; c < used; ++c) d[x * C + c] = op(p[x * C + c], local[static_cast<std::size_t>(c)]);
  });
}

template <typename T, typename Op>
Suite::Build constant(WithConstant<T> lumi, Op op) {
  return [=](Scene& s) {
    const auto src = s.input<T>(1), dst = s.output<T>(1);
    s.ours([=] { lumi(src.data(), src.step, T{77}, dst.data(), dst.step, dst.roi); });
    s.peer(opencv::logicConstant, src, dst, Value{77}, Op::kPeer);
    s.peer(loopOfConstant<1, 1>(src, dst, Value{77}, op));
  };
}

template <int C, int used = C, typename T, typename Op>
Suite::Build constants(WithConstants<T> lumi, Op op) {
  return [=](Scene& s) {
    const auto src = s.input<T>(C), dst = s.output<T>(C);
    s.ours([=] {
      const T values[] = {77, 5, 130, 20};
      lumi(src.data(), src.step, values, dst.data(), dst.step, dst.roi);
    });
    const Value value{77, 5, 130, 20};
    if (used == C) s.peer(opencv::logicConstant, src, dst, value, Op::kPeer);
    s.peer(loopOfConstant<C, used>(src, dst, value, op));
  };
}

void inverted(Scene& s) {
  const auto src = s.input<Lum8u>(1), dst = s.output<Lum8u>(1);
  s.ours([=] { lumiNot_8u_C1R(src.data(), src.step, dst.data(), dst.step, dst.roi); });
  s.peer(opencv::invert, src, dst);
  s.peer(loopOfConstant<1, 1>(src, dst, Value{255}, Exclusive()));
}

const std::vector<LumiSize> kInCache{kCall, kSmall, kCached};

const Family family("logic", [](Suite& suite) {
  suite.row("and 8u C1", kEverySize, images<1>(lumiAnd_8u_C1R, Conjunction()));
  suite.row("and 8u C1 misaligned", kUpToHd, images<1>(lumiAnd_8u_C1R, Conjunction()), Placement::misaligned);
  suite.row("and 8u C3", kUpToHd, images<3>(lumiAnd_8u_C3R, Conjunction()));
  suite.row("and 8u AC4", kUpToHd, images<4, 3>(lumiAnd_8u_AC4R, Conjunction()));
  suite.row("and 16u C1", kInCache, images<1>(lumiAnd_16u_C1R, Conjunction()));
  suite.row("and 32s C1", kUpToHd, images<1>(lumiAnd_32s_C1R, Conjunction()));
  suite.row("or 8u C1", kUpToHd, images<1>(lumiOr_8u_C1R, Disjunction()));
  suite.row("xor 8u C1", kUpToHd, images<1>(lumiXor_8u_C1R, Exclusive()));
  suite.row("andC 8u C1", kEverySize, constant(lumiAndC_8u_C1R, Conjunction()));
  suite.row("andC 8u C3", kUpToHd, constants<3>(lumiAndC_8u_C3R, Conjunction()));
  suite.row("andC 8u C4", kInCache, constants<4>(lumiAndC_8u_C4R, Conjunction()));
  suite.row("andC 8u AC4", kInCache, constants<4, 3>(lumiAndC_8u_AC4R, Conjunction()));
  suite.row("orC 16u C3", kInCache, constants<3>(lumiOrC_16u_C3R, Disjunction()));
  suite.row("xorC 32s C1", kUpToHd, constant(lumiXorC_32s_C1R, Exclusive()));
  suite.row("not 8u C1", kEverySize, inverted);
});

}  // namespace
}  // namespace bench
