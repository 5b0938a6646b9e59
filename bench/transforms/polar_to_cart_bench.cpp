// SPDX-License-Identifier: MIT
#include <cmath>

#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "bench/peers/opencv.hpp"
#include "lumi/polar_to_cart.h"

namespace bench {
namespace {

// Phases of noise: from -32 to 32.
Image<Lum32f> phases(Scene& s, int channels) {
  const auto image = s.input<Lum32f>(channels);
  for (int y = 0; y < image.roi.height; ++y)
    for (int i = 0; i < image.roi.width * channels; ++i) image.row(y)[i] /= 4;
  return image;
}

template <typename T>
T stored(float x) {
  if constexpr (std::is_floating_point_v<T>)
    return x;
  else
    return static_cast<T>(std::nearbyint(x));
}

template <int C, typename T>
Peer loopOf(Image<Lum32f> magnitude, Image<Lum32f> phase, Image<T> dst) {
  Peer peer = loop::rows(dst.roi, [=](int y, int width) {
    const Lum32f* __restrict m = magnitude.row(y), * __restrict p = phase.row(y);
    T* __restrict d = dst.row(y);
    for (int i = 0; i < width * C; ++i) {
      d[2 * i] = stored<T>(m[i] * std::cos(p[i]));
      d[2 * i + 1] = stored<T>(m[i] * std::sin(p[i]));
    }
  });
  peer.differs = "computes it in other steps";
  return peer;
}

Suite::Build ofFloats() {
  return [](Scene& s) {
    const auto m = s.input<Lum32f>(1), p = phases(s, 1), d = s.output<Lum32f>(2);
    s.ours([=] {
      lumiPolarToCart_32f32fc_P2C1R(m.data(), p.data(), m.step, reinterpret_cast<Lum32fc*>(d.data()), d.step,
                                    d.roi);
    });
    s.peer(opencv::polarToCart, m, p);
    s.peer(loopOf<1>(m, p, d));
  };
}

template <int C, typename Complex, typename T>
Suite::Build ofIntegers(LumStatus (*lumi)(const Lum32f*, const Lum32f*, int, int, LumiSize, Complex*, int)) {
  return [=](Scene& s) {
    const auto m = s.input<Lum32f>(C), p = phases(s, C);
    const auto d = s.output<T>(2 * C);
    s.ours([=] { lumi(m.data(), p.data(), m.step, 0, d.roi, reinterpret_cast<Complex*>(d.data()), d.step); });
    s.peer(loopOf<C>(m, p, d));
  };
}

const Family family("polar_to_cart", [](Suite& suite) {
  suite.row("polar to cart 32f", kEverySize, ofFloats());
  suite.row("polar to cart 32f padded", kUpToHd, ofFloats(), Placement::padded);
  suite.row("polar to cart 16s C1", kUpToHd, ofIntegers<1, Lum16sc, Lum16s>(lumiPolarToCart_16sc_C1R));
  suite.row("polar to cart 32s C3", kCachedAndHd, ofIntegers<3, Lum32sc, Lum32s>(lumiPolarToCart_32sc_C3R));
});

}  // namespace
}  // namespace bench
