// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

#include "bench/harness.hpp"
#include "bench/peers/opencv.hpp"

namespace bench {
namespace {

template <typename T>
using Run = LumStatus (*)(const T*, int, T*, int, LumiSize, LumiBorderType, const T*,
                          const LumiFilterBorderSpec*, Lum8u*);

template <typename T>
constexpr LumiDataType dataType() {
  return std::is_same_v<T, Lum8u> ? lumiData8u : std::is_same_v<T, Lum16s> ? lumiData16s : lumiData32f;
}

struct Memory {
  std::vector<Lum8u> spec, buffer;
  const LumiFilterBorderSpec* object() const {
    return reinterpret_cast<const LumiFilterBorderSpec*>(spec.data());
  }
  LumiFilterBorderSpec* object() { return reinterpret_cast<LumiFilterBorderSpec*>(spec.data()); }
};

// Weights of a smooth hill, alike in every direction; they add up to 2^shift or a little less.
std::vector<Lum16s> hill(int side, int shift) {
  std::vector<double> row(1, 1.0);
  while (static_cast<int>(row.size()) < side) {
    row.push_back(0);
    for (size_t i = row.size() - 1; i > 0; --i) row[i] += row[i - 1];
  }
  std::vector<Lum16s> taps;
  for (const double a : row)
    for (const double b : row)
      taps.push_back(static_cast<Lum16s>(std::floor(std::ldexp(a * b, shift - 2 * (side - 1)))));
  return taps;
}

template <typename T>
std::shared_ptr<Memory> prepare(LumiSize size, LumiSize roi, LumiDataType taps, int channels) {
  auto memory = std::make_shared<Memory>();
  int spec = 0, buffer = 0;
  lumiFilterBorderGetSize(size, roi, dataType<T>(), taps, channels, &spec, &buffer);
  memory->spec.resize(static_cast<size_t>(spec));
  memory->buffer.resize(static_cast<size_t>(buffer));
  return memory;
}

// The plain loop over the middle of the image; edges by clamped coordinates.
template <int C, typename T>
Peer loopFilter(Image<T> src, Image<T> dst, std::vector<float> taps, int side) {
  return peer("loop", [=] {
    const int reach = side / 2, width = src.roi.width, height = src.roi.height;
    std::vector<float> sums(static_cast<size_t>(width * C));
    for (int y = 0; y < height; ++y) {
      std::fill(sums.begin(), sums.end(), 0.0F);
      for (int r = 0; r < side; ++r)
        for (int c = 0; c < side; ++c) {
          const float tap = taps[static_cast<size_t>(r * side + c)];
          const T* __restrict s = src.row(std::clamp(y + r - reach, 0, height - 1));
          float* __restrict sum = sums.data();
          const int first = std::max(0, reach - c), end = std::min(width, width + reach - c);
          for (int i = 0; i < first * C; ++i) sum[i] += tap * static_cast<float>(s[i % C]);
          for (int i = first * C; i < end * C; ++i)
            sum[i] += tap * static_cast<float>(s[i + (c - reach) * C]);
          for (int i = end * C; i < width * C; ++i)
            sum[i] += tap * static_cast<float>(s[(width - 1) * C + i % C]);
        }
      T* __restrict d = dst.row(y);
      for (int i = 0; i < width * C; ++i) {
        if constexpr (std::is_same_v<T, float>) {
          d[i] = sums[static_cast<size_t>(i)];
        } else {
          using Limits = std::numeric_limits<T>;
          const float limited = std::clamp(sums[static_cast<size_t>(i)], static_cast<float>(Limits::min()),
                                           static_cast<float>(Limits::max()));
          d[i] = static_cast<T>(std::nearbyintf(limited));
        }
      }
    }
  });
}

Peer allowed(Peer peer, const char* differs) {
  if (peer.run) peer.differs = differs;
  return peer;
}

template <int C, typename T>
void candidates(Scene& scene, Run<T> run, Image<T> src, Image<T> dst, std::shared_ptr<Memory> memory,
                const std::vector<float>& taps, int side) {
  scene.ours([=] {
    const T value[4] = {};
    run(src.data(), src.step, dst.data(), dst.step, src.roi, lumiBorderReplicate, value, memory->object(),
        memory->buffer.data());
  });
  constexpr auto kDiffers = "sums of floats in another order";
  if (opencv::filter != nullptr) scene.peer(allowed(opencv::filter(src, dst, taps, {side, side}), kDiffers));
  scene.peer(allowed(loopFilter<C>(src, dst, taps, side), kDiffers));
}

// Integer taps and a power of two.
template <int C, typename T>
Suite::Build whole(Run<T> run, int side, int shift) {
  return [=](Scene& scene) {
    const auto src = scene.input<T>(C), dst = scene.output<T>(C);
    const LumiSize size{side, side};
    const auto memory = prepare<T>(size, src.roi, lumiData16s, C);
    const std::vector<Lum16s> taps = hill(side, shift);
    lumiFilterBorderInit_16s(taps.data(), size, 1 << shift, dataType<T>(), C, lumRoundNearestEven,
                             memory->object());
    std::vector<float> floats;
    for (const Lum16s tap : taps) floats.push_back(std::ldexp(static_cast<float>(tap), -shift));
    candidates<C>(scene, run, src, dst, memory, floats, side);
  };
}

template <int C, typename T>
Suite::Build floats(Run<T> run, int side) {
  return [=](Scene& scene) {
    const auto src = scene.input<T>(C), dst = scene.output<T>(C);
    const LumiSize size{side, side};
    const auto memory = prepare<T>(size, src.roi, lumiData32f, C);
    std::vector<float> taps;
    for (const Lum16s tap : hill(side, 14)) taps.push_back(static_cast<float>(tap) / 16384);
    lumiFilterBorderInit_32f(taps.data(), size, dataType<T>(), C, lumRoundNearestEven, memory->object());
    candidates<C>(scene, run, src, dst, memory, taps, side);
  };
}

const Family family("filter_border", [](Suite& suite) {
  suite.row("filter 8u C1 3x3", kEverySize, whole<1>(lumiFilterBorder_8u_C1R, 3, 4));
  suite.row("filter 8u C1 5x5", kEverySize, whole<1>(lumiFilterBorder_8u_C1R, 5, 8));
  suite.row("filter 8u C1 9x9", kUpToHd, whole<1>(lumiFilterBorder_8u_C1R, 9, 14));
  suite.row("filter 8u C3 3x3", kUpToHd, whole<3>(lumiFilterBorder_8u_C3R, 3, 4));
  suite.row("filter 8u C3 5x5", kUpToHd, whole<3>(lumiFilterBorder_8u_C3R, 5, 8));
  suite.row("filter 8u C3 9x9", kUpToHd, whole<3>(lumiFilterBorder_8u_C3R, 9, 14));
  suite.row("filter 16s C1 3x3", kUpToHd, whole<1>(lumiFilterBorder_16s_C1R, 3, 4));
  suite.row("filter 16s C1 5x5", kUpToHd, whole<1>(lumiFilterBorder_16s_C1R, 5, 8));
  suite.row("filter 16s C1 9x9", kUpToHd, whole<1>(lumiFilterBorder_16s_C1R, 9, 14));
  suite.row("filter 8u C1 5x5 float taps", kUpToHd, floats<1>(lumiFilterBorder_8u_C1R, 5));
  suite.row("filter 8u C3 5x5 float taps", kUpToHd, floats<3>(lumiFilterBorder_8u_C3R, 5));
  suite.row("filter 32f C1 3x3", kEverySize, floats<1>(lumiFilterBorder_32f_C1R, 3));
  suite.row("filter 32f C1 5x5", kEverySize, floats<1>(lumiFilterBorder_32f_C1R, 5));
  suite.row("filter 32f C1 9x9", kUpToHd, floats<1>(lumiFilterBorder_32f_C1R, 9));
  suite.row("filter 32f C3 3x3", kUpToHd, floats<3>(lumiFilterBorder_32f_C3R, 3));
});

}  // namespace
}  // namespace bench
