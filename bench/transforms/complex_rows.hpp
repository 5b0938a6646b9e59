// SPDX-License-Identifier: MIT
// Rows of operations that make a real sample of each complex one.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "bench/peers/opencv.hpp"

namespace bench {

using ComplexAdapter = Peer (*)(View, View);

// T is what either part is. The loop stores f(re, im), cast by `store`.
template <int C, typename Complex, typename T, typename F, typename Store>
Peer complexLoop(Image<T> src, Image<T> dst, F f, Store store) {
  return loop::rows(dst.roi, [=](int y, int width) {
    const T* __restrict s = src.row(y);
    T* __restrict d = dst.row(y);
    const Store local = store;
    for (int i = 0; i < width * C; ++i) d[i] = local(f(s[2 * i], s[2 * i + 1]));
  });
}

template <int C, typename Complex, typename T, typename F>
Suite::Build complexRow(LumStatus (*lumi)(const Complex*, int, T*, int, LumiSize), F f, const char* differs,
                        ComplexAdapter opencv) {
  return [=](Scene& s) {
    const auto src = s.input<T>(2 * C), dst = s.output<T>(C);
    s.ours(
        [=] { lumi(reinterpret_cast<const Complex*>(src.data()), src.step, dst.data(), dst.step, dst.roi); });
    if (opencv != nullptr) s.peer(opencv(src, dst));
    Peer peer = complexLoop<C, Complex>(src, dst, f, [](T x) { return x; });
    peer.differs = differs;
    s.peer(peer);
  };
}

// Of integers, with a scale factor.
template <int C, typename Complex, typename T, typename F>
Suite::Build scaledComplexRow(LumStatus (*lumi)(const Complex*, int, T*, int, LumiSize, int), int scaleFactor,
                              F f, const char* differs) {
  return [=](Scene& s) {
    const auto src = s.input<T>(2 * C), dst = s.output<T>(C);
    s.ours([=] {
      lumi(reinterpret_cast<const Complex*>(src.data()), src.step, dst.data(), dst.step, dst.roi,
           scaleFactor);
    });
    const double factor = std::ldexp(1.0, -scaleFactor);
    Peer peer = complexLoop<C, Complex>(src, dst, f, [factor](double x) {
      return static_cast<T>(
          std::min(std::max(std::nearbyint(x * factor), double{std::numeric_limits<T>::min()}),
                   double{std::numeric_limits<T>::max()}));
    });
    peer.differs = differs;
    s.peer(peer);
  };
}

}  // namespace bench
