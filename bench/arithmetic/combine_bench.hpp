// SPDX-License-Identifier: MIT
// Rows of operations on two images, or on an image and a constant. An operation is a function of two samples
// that gives the exact result.
#pragma once

#include <limits>
#include <type_traits>

#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "bench/peers/opencv.hpp"

namespace bench {

template <typename T, typename... Rest>
using OfImages = LumStatus (*)(const T*, int, const T*, int, T*, int, LumiSize, Rest...);
template <typename T, typename... Rest>
using WithConstant = LumStatus (*)(const T*, int, T, T*, int, LumiSize, Rest...);
template <typename T, typename... Rest>
using WithConstants = LumStatus (*)(const T*, int, const T*, T*, int, LumiSize, Rest...);
using ImagesPeer = Peer (*)(View, View, View);
using ConstantPeer = Peer (*)(View, View, Value);

// Limited to the type; floats are what they are.
template <typename T, typename Wide>
T limited(Wide x) {
  if constexpr (std::is_integral_v<T>) {
    constexpr Wide low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
    x = x < low ? low : x > high ? high : x;
  }
  return static_cast<T>(x);
}

// The scale factor's rule, written out. What leaves the type does so before it is multiplied, too.
template <typename T, typename Wide>
T scaled(Wide x, int s) {
  if (s > 0) x = (x + (Wide{1} << (s - 1)) - 1 + ((x >> s) & 1)) >> s;
  if (s < 0) return limited<T>(limited<T>(x) * (1 << -s));
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

template <int C, typename T, typename Function>
Peer loopOfConstant(Image<T> src, Image<T> dst, Value value, Function function) {
  const auto pixel = loop::samples<C, T>(value);
  return loop::rows(dst.roi, [=](int y, int width) {
    const T* __restrict p = src.row(y);
    T* __restrict d = dst.row(y);
    const auto local = pixel;
    for (int x = 0; x < width; ++x)
      for (int c = 0; c < C; ++c)
        d[x * C + c] = limited<T>(function(p[x * C + c], local[static_cast<std::size_t>(c)]));
  });
}

template <int C, typename Op, typename T, typename... Rest>
Suite::Build images(OfImages<T, Rest...> lumi, ImagesPeer opencv, Op op, Rest... rest) {
  return [=](Scene& s) {
    const auto a = s.input<T>(C), b = s.input<T>(C), dst = s.output<T>(C);
    s.ours([=] { lumi(a.data(), a.step, b.data(), b.step, dst.data(), dst.step, dst.roi, rest...); });
    s.peer(opencv, a, b, dst);
    s.peer(loopOf(a, b, dst, op));
  };
}

template <typename Op, typename T>
Suite::Build scaledImages(OfImages<T, int> lumi, Op op, int scale) {
  return [=](Scene& s) {
    const auto a = s.input<T>(1), b = s.input<T>(1), dst = s.output<T>(1);
    s.ours([=] { lumi(a.data(), a.step, b.data(), b.step, dst.data(), dst.step, dst.roi, scale); });
    s.peer(loop::rows(dst.roi, [=](int y, int width) {
      const T* __restrict p = a.row(y), * __restrict q = b.row(y);
      T* __restrict d = dst.row(y);
      const int local = scale;
      for (int i = 0; i < width; ++i) d[i] = scaled<T>(op(p[i], q[i]), local);
    }));
  };
}

template <typename Op, typename T, typename... Rest>
Suite::Build constant(WithConstant<T, Rest...> lumi, ConstantPeer opencv, Op op, Rest... rest) {
  return [=](Scene& s) {
    const auto src = s.input<T>(1), dst = s.output<T>(1);
    s.ours([=] { lumi(src.data(), src.step, T{77}, dst.data(), dst.step, dst.roi, rest...); });
    s.peer(opencv, src, dst, Value{77});
    s.peer(loopOfConstant<1>(src, dst, Value{77}, op));
  };
}

template <int C, typename Op, typename T, typename... Rest>
Suite::Build constants(WithConstants<T, Rest...> lumi, ConstantPeer opencv, Op op, Rest... rest) {
  return [=](Scene& s) {
    const auto src = s.input<T>(C), dst = s.output<T>(C);
    s.ours([=] {
      const T values[] = {77, 5, 130, 20};
      lumi(src.data(), src.step, values, dst.data(), dst.step, dst.roi, rest...);
    });
    s.peer(opencv, src, dst, Value{77, 5, 130, 20});
    s.peer(loopOfConstant<C>(src, dst, Value{77, 5, 130, 20}, op));
  };
}

}  // namespace bench
