// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>
#include <memory>
#include <type_traits>
#include <vector>

#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "lumi/filter_wiener.h"

namespace bench {
namespace {

template <typename T>
using Run = LumStatus (*)(const T*, int, T*, int, LumiSize, LumiSize, LumiPoint, Lum32f*, Lum8u*);

template <typename T>
constexpr float kNoise = std::is_floating_point_v<T> ? 0.01F
                         : sizeof(T) == 1            ? 65.025F
                                                     : 42948362.24F;

// With the pixels around in memory; each window by itself, in floats.
template <typename T, int channels>
Peer loopWiener(Image<T> around, Image<T> dst, int side) {
  Peer result = loop::rows(dst.roi, [=](int y, int width) {
    const int reach = side / 2;
    const float n = static_cast<float>(side * side);
    for (int i = 0; i < width * channels; ++i) {
      float sum = 0, squares = 0;
      for (int dy = 0; dy < side; ++dy)
        for (int dx = 0; dx < side; ++dx) {
          const auto x = static_cast<float>(around.row(y + dy)[i + dx * channels]);
          sum += x;
          squares += x * x;
        }
      const auto x = static_cast<float>(around.row(y + reach)[i + reach * channels]);
      const float mean = sum / n, variance = std::max(squares / n - mean * mean, kNoise<T>);
      const float value = x + (mean - x) * kNoise<T> / variance;
      if constexpr (std::is_floating_point_v<T>)
        dst.row(y)[i] = value;
      else
        dst.row(y)[i] = static_cast<T>(std::lrint(value));
    }
  });
  result.differs = "rounds sums to floats";
  return result;
}

template <typename T, int channels>
Suite::Build wiener(Run<T> run, int side) {
  return [=](Scene& scene) {
    const LumiSize roi = scene.roi();
    const auto src = scene.inputOf<T>(channels, {roi.width + side - 1, roi.height + side - 1});
    const auto dst = scene.output<T>(channels);
    int bytes = 0;
    lumiFilterWienerGetBufferSize(roi, {side, side}, channels, &bytes);
    const auto buffer = std::make_shared<std::vector<Lum8u>>(static_cast<size_t>(bytes));
    const int reach = side / 2;
    scene.ours([=] {
      float noise[4];
      std::fill(noise, noise + 4, std::is_floating_point_v<T> ? 0.01F : sizeof(T) == 1 ? 0.001F : 0.01F);
      run(src.row(reach) + reach * channels, src.step, dst.data(), dst.step, dst.roi, {side, side},
          {reach, reach}, noise, buffer->data());
    });
    scene.peer(loopWiener<T, channels>(src, dst, side));
  };
}

const Family family("filter_wiener", [](Suite& suite) {
  suite.row("wiener 8u 5x5", kUpToHd, wiener<Lum8u, 1>(lumiFilterWiener_8u_C1R, 5));
  suite.row("wiener 8u 11x11", kCachedAndHd, wiener<Lum8u, 1>(lumiFilterWiener_8u_C1R, 11));
  suite.row("wiener 8u C3 5x5", kUpToHd, wiener<Lum8u, 3>(lumiFilterWiener_8u_C3R, 5));
  suite.row("wiener 16s 5x5", kUpToHd, wiener<Lum16s, 1>(lumiFilterWiener_16s_C1R, 5));
  suite.row("wiener 32f 5x5", kUpToHd, wiener<Lum32f, 1>(lumiFilterWiener_32f_C1R, 5));
});

}  // namespace
}  // namespace bench
