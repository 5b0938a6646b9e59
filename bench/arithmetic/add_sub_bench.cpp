// SPDX-License-Identifier: MIT
#include <limits>
#include <type_traits>

#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "bench/peers/opencv.hpp"

namespace bench {
namespace {

template <typename T, typename... Rest>
using Binary = LumStatus (*)(const T*, int, const T*, int, T*, int, LumiSize, Rest...);
template <typename T, typename... Rest>
using WithConstant = LumStatus (*)(const T*, int, T, T*, int, LumiSize, Rest...);
template <typename T, typename... Rest>
using WithConstants = LumStatus (*)(const T*, int, const T*, T*, int, LumiSize, Rest...);

struct Sum {
  template <typename T>
  auto operator()(T a, T b) const {
    return a + b;
  }
};
struct Difference {
  template <typename T>
  auto operator()(T a, T b) const {
    return b - a;
  }
};

// Limited to the type; floats are what they are.
template <typename T, typename Wide>
T limited(Wide x) {
  if constexpr (std::is_integral_v<T>) {
    constexpr Wide low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
    x = x < low ? low : x > high ? high : x;
  }
  return static_cast<T>(x);
}

// The scale factor's rule, written out.
template <typename T>
T scaled(int x, int s) {
  if (s > 0) x = (x + (1 << (s - 1)) - 1 + ((x >> s) & 1)) >> s;
  if (s < 0) x *= 1 << -s;
  return limited<T>(x);
}

template <typename T, typename Function>
Peer loopOf(Image<T> a, Image<T> b, Image<T> dst, Function function) {
  return loop::rows(dst.roi, [=](int y, int width) {
    const T* __restrict p = a.row(y), * __restrict q = b.row(y);
    T* __restrict d = dst.row(y);
    for (int i = 0, n = width * dst.channels; i < n; ++i) d[i] = limited<T>(function(p[i], q[i]));
  });
}

template <int C, typename Op, typename T, typename... Rest>
Suite::Build images(Binary<T, Rest...> lumi, Op op, Rest... rest) {
  return [=](Scene& s) {
    const auto a = s.input<T>(C), b = s.input<T>(C), dst = s.output<T>(C);
    s.ours([=] { lumi(a.data(), a.step, b.data(), b.step, dst.data(), dst.step, dst.roi, rest...); });
    s.peer(std::is_same_v<Op, Sum> ? opencv::add : opencv::subtract, a, b, dst);
    s.peer(loopOf(a, b, dst, op));
  };
}

template <typename T>
Suite::Build scaledImages(Binary<T, int> lumi, int scale) {
  return [=](Scene& s) {
    const auto a = s.input<T>(1), b = s.input<T>(1), dst = s.output<T>(1);
    s.ours([=] { lumi(a.data(), a.step, b.data(), b.step, dst.data(), dst.step, dst.roi, scale); });
    s.peer(loop::rows(dst.roi, [=](int y, int width) {
      const T* __restrict p = a.row(y), * __restrict q = b.row(y);
      T* __restrict d = dst.row(y);
      const int local = scale;
      for (int i = 0; i < width; ++i) d[i] = scaled<T>(p[i] + q[i], local);
    }));
  };
}

template <int C, typename T>
Peer loopOfConstant(Image<T> src, Image<T> dst, Value value) {
  const auto pixel = loop::samples<C, T>(value);
  return loop::rows(dst.roi, [=](int y, int width) {
    const T* __restrict p = src.row(y);
    T* __restrict d = dst.row(y);
    const auto local = pixel;
    for (int x = 0; x < width; ++x)
      for (int c = 0; c < C; ++c)
        d[x * C + c] = limited<T>(p[x * C + c] + local[static_cast<std::size_t>(c)]);
  });
}

template <typename T, typename... Rest>
Suite::Build constant(WithConstant<T, Rest...> lumi, Rest... rest) {
  return [=](Scene& s) {
    const auto src = s.input<T>(1), dst = s.output<T>(1);
    s.ours([=] { lumi(src.data(), src.step, T{77}, dst.data(), dst.step, dst.roi, rest...); });
    s.peer(opencv::addConstant, src, dst, Value{77});
    s.peer(loopOfConstant<1>(src, dst, Value{77}));
  };
}

template <int C, typename T, typename... Rest>
Suite::Build constants(WithConstants<T, Rest...> lumi, Rest... rest) {
  return [=](Scene& s) {
    const auto src = s.input<T>(C), dst = s.output<T>(C);
    s.ours([=] {
      const T values[] = {77, 5, 130, 20};
      lumi(src.data(), src.step, values, dst.data(), dst.step, dst.roi, rest...);
    });
    s.peer(opencv::addConstant, src, dst, Value{77, 5, 130, 20});
    s.peer(loopOfConstant<C>(src, dst, Value{77, 5, 130, 20}));
  };
}

const Family family("add_sub", [](Suite& suite) {
  suite.row("add 8u C1", kEverySize, images<1>(lumiAdd_8u_C1RSfs, Sum(), 0));
  suite.row("add 8u C1 padded", kCachedAndHd, images<1>(lumiAdd_8u_C1RSfs, Sum(), 0), Placement::padded);
  suite.row("add 8u C1 misaligned", kUpToHd, images<1>(lumiAdd_8u_C1RSfs, Sum(), 0), Placement::misaligned);
  suite.row("add 8u C3", kUpToHd, images<3>(lumiAdd_8u_C3RSfs, Sum(), 0));
  suite.row("add 16s C1", kEverySize, images<1>(lumiAdd_16s_C1RSfs, Sum(), 0));
  suite.row("add 16u C1", kUpToHd, images<1>(lumiAdd_16u_C1RSfs, Sum(), 0));
  suite.row("add 32f C1", kEverySize, images<1>(lumiAdd_32f_C1R, Sum()));
  suite.row("sub 8u C1", kEverySize, images<1>(lumiSub_8u_C1RSfs, Difference(), 0));
  suite.row("sub 16s C1", kUpToHd, images<1>(lumiSub_16s_C1RSfs, Difference(), 0));
  suite.row("sub 32f C1", kUpToHd, images<1>(lumiSub_32f_C1R, Difference()));
  for (int scale : {1, 3, -2}) {
    const std::string at = " scale " + std::to_string(scale);
    suite.row("add 8u C1" + at, kUpToHd, scaledImages(lumiAdd_8u_C1RSfs, scale));
    suite.row("add 16s C1" + at, kUpToHd, scaledImages(lumiAdd_16s_C1RSfs, scale));
  }
  suite.row("addC 8u C1", kEverySize, constant(lumiAddC_8u_C1RSfs, 0));
  suite.row("addC 8u C3", kUpToHd, constants<3>(lumiAddC_8u_C3RSfs, 0));
  suite.row("addC 8u C4", kUpToHd, constants<4>(lumiAddC_8u_C4RSfs, 0));
  suite.row("addC 16s C1", kUpToHd, constant(lumiAddC_16s_C1RSfs, 0));
  suite.row("addC 32f C1", kUpToHd, constant(lumiAddC_32f_C1R));
  suite.row("addC 32f C3", kUpToHd, constants<3>(lumiAddC_32f_C3R));
});

}  // namespace
}  // namespace bench
