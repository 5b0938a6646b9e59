// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>

#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "bench/peers/opencv.hpp"

namespace bench {
namespace {

// Applies f to each of C samples, or to the first three of four with alpha.
template <int C, bool alpha, typename S, typename D, typename F>
Peer loopOf(Image<S> src, Image<D> dst, F f) {
  return loop::rows(src.roi, [=](int y, int width) {
    const S* __restrict s = src.row(y);
    D* __restrict d = dst.row(y);
    const F local = f;
    for (int i = 0; i < width * C; i += alpha ? 4 : 1) {
      for (int c = 0; c < (alpha ? 3 : 1); ++c) d[i + c] = local(s[i + c]);
    }
  });
}

// A line that OpenCV's own conversion takes; it has no images with an alpha that stays.
struct Line {
  double alpha, beta;
  const char* differs = "";
};

template <int C, bool alpha, typename S, typename D, typename F, typename... More>
Suite::Build scale(LumStatus (*lumi)(const S*, int, D*, int, LumiSize, More...), Line line, F f,
                   More... more) {
  return [=](Scene& s) {
    const auto src = s.input<S>(C);
    const auto dst = s.output<D>(C);
    s.ours([=] { lumi(src.data(), src.step, dst.data(), dst.step, src.roi, more...); });
    if (!alpha && opencv::scale != nullptr) {
      Peer peer = opencv::scale(src, dst, line.alpha, line.beta);
      peer.differs = line.differs;
      s.peer(peer);
    }
    s.peer(loopOf<C, alpha>(src, dst, f));
  };
}

constexpr float kLower = -128, kUpper = 128;

const auto toWords = [](Lum8u v) { return static_cast<Lum16u>(v * 257); };
const auto toSignedWords = [](Lum8u v) { return static_cast<Lum16s>(v * 257 - 32768); };
const auto toLongs = [](Lum8u v) { return static_cast<Lum32s>((v * 16843009U) ^ 0x80000000U); };
const auto toFloats = [](Lum8u v) { return kLower + static_cast<float>(v) * ((kUpper - kLower) / 255); };
const auto fast = [](auto v) {
  const int w = std::is_unsigned_v<decltype(v)> ? v - 32768 : v;
  return static_cast<Lum8u>(((w - (w >> 8)) >> (8 * sizeof v - 8)) + 128);
};
const auto accurate = [](auto v) {
  if constexpr (sizeof v == 2) {
    const auto w = static_cast<float>(std::is_signed_v<decltype(v)> ? v + 32768 : v);
    return static_cast<Lum8u>(std::nearbyint(w * 0.0038910506F));
  } else {
    return static_cast<Lum8u>(std::nearbyint(v * 5.937181414556033e-08 + 127.5000000296859));
  }
};
const auto fromFloats = [](float v) {
  constexpr float f = 255 / (kUpper - kLower);
  return static_cast<Lum8u>(std::nearbyint(std::clamp(v * f - f * kLower, 0.0F, 255.0F)));
};

constexpr const char* kRounds = "computes the line in other steps";
constexpr const char* kNearest = "always to the nearest";

const Family family("scale", [](Suite& suite) {
  constexpr Line words{1.0 / 257, 0}, signedWords{1.0 / 257, 32768.0 / 257},
      longs{5.937181414556033e-08, 127.5000000296859, kRounds}, fastWords{1.0 / 257, 0, kNearest},
      fastSignedWords{1.0 / 257, 32768.0 / 257, kNearest},
      fastLongs{5.937181414556033e-08, 127.5000000296859, kNearest}, floats{255.0 / 256, 127.5, kRounds},
      backToFloats{256.0 / 255, kLower, kRounds};
  suite.row("scale 8u16u C1", kEverySize, scale<1, false>(lumiScale_8u16u_C1R, {257, 0}, toWords));
  suite.row("scale 8u16s C1", kEverySize, scale<1, false>(lumiScale_8u16s_C1R, {257, -32768}, toSignedWords));
  suite.row("scale 8u32s C1", kEverySize,
            scale<1, false>(lumiScale_8u32s_C1R, {16843009, -2147483648.0, kRounds}, toLongs));
  suite.row("scale 8u32f C1", kEverySize,
            scale<1, false>(lumiScale_8u32f_C1R, backToFloats, toFloats, kLower, kUpper));
  suite.row("scale 16u8u C1", kEverySize, scale<1, false>(lumiScale_16u8u_C1R, fastWords, fast, 1));
  suite.row("scale 16u8u C1 accurate", kEverySize, scale<1, false>(lumiScale_16u8u_C1R, words, accurate, 2));
  suite.row("scale 16s8u C1", kUpToHd, scale<1, false>(lumiScale_16s8u_C1R, fastSignedWords, fast, 1));
  suite.row("scale 16s8u C1 accurate", kUpToHd,
            scale<1, false>(lumiScale_16s8u_C1R, signedWords, accurate, 2));
  suite.row("scale 32s8u C1", kUpToHd, scale<1, false>(lumiScale_32s8u_C1R, fastLongs, fast, 1));
  suite.row("scale 32s8u C1 accurate", kUpToHd, scale<1, false>(lumiScale_32s8u_C1R, longs, accurate, 2));
  suite.row("scale 32f8u C1", kEverySize,
            scale<1, false>(lumiScale_32f8u_C1R, floats, fromFloats, kLower, kUpper));
  suite.row("scale 8u16u AC4", kCachedAndHd, scale<4, true>(lumiScale_8u16u_AC4R, {}, toWords));
  suite.row("scale 8u32f AC4", kCachedAndHd,
            scale<4, true>(lumiScale_8u32f_AC4R, {}, toFloats, kLower, kUpper));
  suite.row("scale 16u8u AC4", kCachedAndHd, scale<4, true>(lumiScale_16u8u_AC4R, {}, fast, 1));
  suite.row("scale 32f8u AC4", kCachedAndHd,
            scale<4, true>(lumiScale_32f8u_AC4R, {}, fromFloats, kLower, kUpper));
});

}  // namespace
}  // namespace bench
