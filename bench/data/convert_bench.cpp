// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>
#include <limits>

#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "bench/peers/opencv.hpp"
#include "bench/peers/yuv.hpp"

namespace bench {
namespace {

template <typename S, typename D, typename... Rest>
using Convert = LumStatus (*)(const S*, int, D*, int, LumiSize, Rest...);

// Limited to D; floats to the nearest integer, ties to even.
template <typename D, typename S>
D limited(S x) {
  using Limits = std::numeric_limits<D>;
  if constexpr (std::is_same_v<D, float>) {
    return static_cast<D>(x);
  } else if constexpr (std::is_same_v<S, float>) {
    const float high = std::min(x, static_cast<float>(Limits::max()));
    return static_cast<D>(std::nearbyintf(std::max(high, static_cast<float>(Limits::min()))));
  } else {
    const auto low = std::max<int64_t>(Limits::min(), std::numeric_limits<S>::min());
    const auto high = std::min<int64_t>(Limits::max(), std::numeric_limits<S>::max());
    return static_cast<D>(std::clamp(x, static_cast<S>(low), static_cast<S>(high)));
  }
}

template <int C, typename S, typename D>
Peer loopConvert(Image<S> src, Image<D> dst) {
  return loop::rows(src.roi, [=](int y, int width) {
    const S* __restrict s = src.row(y);
    D* __restrict d = dst.row(y);
    for (int i = 0; i < width * C; ++i) d[i] = limited<D>(s[i]);
  });
}

// x / 2^s to nearest, ties to even, limited to D.
template <typename S, typename D>
Peer loopScaled(Image<S> src, Image<D> dst, int s) {
  return loop::rows(src.roi, [=](int y, int width) {
    const S* __restrict from = src.row(y);
    D* __restrict d = dst.row(y);
    const int shift = s, bias = (1 << (s - 1)) - 1;
    for (int i = 0; i < width; ++i) {
      const int x = from[i], magnitude = std::abs(x);
      const int quotient = (magnitude + bias + ((magnitude >> shift) & 1)) >> shift;
      d[i] = limited<D>(x < 0 ? -quotient : quotient);
    }
  });
}

template <int C, typename S, typename D, typename... Rest>
Suite::Build convert(Convert<S, D, Rest...> lumi, Rest... rest) {
  return [=](Scene& scene) {
    const auto src = scene.input<S>(C);
    const auto dst = scene.output<D>(C);
    scene.ours([=] { lumi(src.data(), src.step, dst.data(), dst.step, src.roi, rest...); });
    scene.peer(opencv::convert, src, dst);
    scene.peer(yuv::convert, src, dst);
    scene.peer(loopConvert<C>(src, dst));
  };
}

template <typename S, typename D>
Suite::Build convertScaled(Convert<S, D, LumRoundMode, int> lumi, int s) {
  return [=](Scene& scene) {
    const auto src = scene.input<S>(1);
    const auto dst = scene.output<D>(1);
    scene.ours([=] { lumi(src.data(), src.step, dst.data(), dst.step, src.roi, lumRoundNearestEven, s); });
    scene.peer(opencv::scale, src, dst, std::ldexp(1.0, -s), 0.0);
    scene.peer(loopScaled(src, dst, s));
  };
}

constexpr LumRoundMode kEven = lumRoundNearestEven;

const Family family("convert", [](Suite& suite) {
  suite.row("convert 8u32f C1", kEverySize, convert<1>(lumiConvert_8u32f_C1R));
  suite.row("convert 32f8u C1", kEverySize, convert<1>(lumiConvert_32f8u_C1R, kEven));
  suite.row("convert 8u16s C1", kEverySize, convert<1>(lumiConvert_8u16s_C1R));
  suite.row("convert 16s8u C1", kEverySize, convert<1>(lumiConvert_16s8u_C1R));
  suite.row("convert 16u8u C1", kEverySize, convert<1>(lumiConvert_16u8u_C1R));
  suite.row("convert 8u32s C1", kUpToHd, convert<1>(lumiConvert_8u32s_C1R));
  suite.row("convert 16s32f C1", kEverySize, convert<1>(lumiConvert_16s32f_C1R));
  suite.row("convert 16u32f C3", kUpToHd, convert<3>(lumiConvert_16u32f_C3R));
  suite.row("convert 32s8u C1", kUpToHd, convert<1>(lumiConvert_32s8u_C1R));
  suite.row("convert 32s32f C1", kUpToHd, convert<1>(lumiConvert_32s32f_C1R));
  suite.row("convert 32f16s C1", kEverySize, convert<1>(lumiConvert_32f16s_C1R, kEven));
  suite.row("convert 32f16u C3", kUpToHd, convert<3>(lumiConvert_32f16u_C3R, kEven));
  suite.row("convert 32f8u C1 padded", kCachedAndHd, convert<1>(lumiConvert_32f8u_C1R, kEven),
            Placement::padded);
  suite.row("convert 8u32f C1 misaligned", kCachedAndHd, convert<1>(lumiConvert_8u32f_C1R),
            Placement::misaligned);
  suite.row("convert 16s16u C1", kUpToHd, convert<1>(lumiConvert_16s16u_C1Rs));
  suite.row("convert scaled 32s16s C1", kUpToHd, convertScaled(lumiConvert_32s16s_C1RSfs, 7));
  suite.row("convert scaled 16u16s C1", kUpToHd, convertScaled(lumiConvert_16u16s_C1RSfs, 3));
  suite.row("convert scaled 32s16u C1", kUpToHd, convertScaled(lumiConvert_32s16u_C1RSfs, 7));
});

}  // namespace
}  // namespace bench
