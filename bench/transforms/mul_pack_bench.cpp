// SPDX-License-Identifier: MIT
#include <algorithm>
#include <limits>

#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "bench/peers/opencv.hpp"

namespace bench {
namespace {

template <typename T, typename... Rest>
using OfSpectra = LumStatus (*)(const T*, int, const T*, int, T*, int, LumiSize, Rest...);
// Of a transform that fits the cache, and of a larger one, besides the sizes of other rows.
const std::vector<LumiSize> kSpectra{kCall, kSmall, kCached, {512, 512}, kHd};

template <typename T>
using Wide = std::conditional_t<std::is_same_v<T, Lum32s>, int64_t,
                                std::conditional_t<std::is_same_v<T, Lum16s>, int32_t, float>>;

template <typename T>
T limited(Wide<T> x, int scale) {
  if constexpr (std::is_integral_v<T>) {
    constexpr Wide<T> low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
    return static_cast<T>(std::clamp(x >> scale, low, high));
  } else {
    return x;
  }
}

// Pairs of samples that lie a distance apart, each pair as many samples after the one before.
template <bool conjugate, typename T>
[[gnu::always_inline]] inline void multiplyPair(const T* a, const T* b, T* d, std::ptrdiff_t apart,
                                                int scale) {
  const Wide<T> ar = a[0], ai = a[apart], br = b[0], bi = b[apart];
  d[0] = limited<T>(conjugate ? ar * br + ai * bi : ar * br - ai * bi, scale);
  d[apart] = limited<T>(conjugate ? ai * br - ar * bi : ar * bi + ai * br, scale);
}

template <int C, bool conjugate, typename T>
Peer loopOf(Image<T> a, Image<T> b, Image<T> dst, int scale) {
  return peer("loop", [=] {
    const int width = dst.roi.width, height = dst.roi.height;
    for (int y = 0; y < height; ++y) {
      const T* __restrict p = a.row(y), * __restrict q = b.row(y);
      T* __restrict d = dst.row(y);
      const int local = scale;
      for (int x = 1; x + 1 < width; x += 2)
        for (int c = 0; c < C; ++c)
          multiplyPair<conjugate>(p + x * C + c, q + x * C + c, d + x * C + c, C, local);
    }
    const auto down = [&](int column) {
      const auto real = [&](int y) {
        const Wide<T> x = a.row(y)[column], z = b.row(y)[column];
        dst.row(y)[column] = limited<T>(x * z, scale);
      };
      real(0);
      const auto samples = static_cast<std::ptrdiff_t>(dst.step / static_cast<int>(sizeof(T)));
      for (int y = 1; y + 1 < height; y += 2)
        multiplyPair<conjugate>(a.row(y) + column, b.row(y) + column, dst.row(y) + column, samples, scale);
      if (height % 2 == 0) real(height - 1);
    };
    for (int c = 0; c < C; ++c) {
      down(c);
      if (width % 2 == 0) down((width - 1) * C + c);
    }
  });
}

template <int C, bool conjugate = false, typename T, typename... Rest>
Suite::Build products(OfSpectra<T, Rest...> lumi, Rest... scale) {
  return [=](Scene& s) {
    const auto a = s.input<T>(C), b = s.input<T>(C), dst = s.output<T>(C);
    s.ours([=] { lumi(a.data(), a.step, b.data(), b.step, dst.data(), dst.step, dst.roi, scale...); });
    if (std::is_same_v<T, Lum32f> && C == 1) s.peer(opencv::multiplySpectra, a, b, dst, conjugate);
    s.peer(loopOf<C, conjugate>(a, b, dst, (0 + ... + scale)));
  };
}

const Family family("mul_pack", [](Suite& suite) {
  suite.row("mulPack 32f C1", kSpectra, products<1>(lumiMulPack_32f_C1R));
  suite.row("mulPack 32f C1 padded", {kCached, {512, 512}, kHd}, products<1>(lumiMulPack_32f_C1R),
            Placement::padded);
  suite.row("mulPack 32f C3", kUpToHd, products<3>(lumiMulPack_32f_C3R));
  suite.row("mulPack 32f C4", kUpToHd, products<4>(lumiMulPack_32f_C4R));
  suite.row("mulPack 16s C1", kSpectra, products<1>(lumiMulPack_16s_C1RSfs, 0));
  suite.row("mulPack 16s C1 scale 8", kUpToHd, products<1>(lumiMulPack_16s_C1RSfs, 8));
  suite.row("mulPack 16s C3", kUpToHd, products<3>(lumiMulPack_16s_C3RSfs, 0));
  suite.row("mulPack 16s C4", kUpToHd, products<4>(lumiMulPack_16s_C4RSfs, 0));
  suite.row("mulPack 32s C1", kSpectra, products<1>(lumiMulPack_32s_C1RSfs, 0));
  suite.row("mulPack 32s C1 scale 20", kUpToHd, products<1>(lumiMulPack_32s_C1RSfs, 20));
  suite.row("mulPack 32s C3", kUpToHd, products<3>(lumiMulPack_32s_C3RSfs, 0));
  suite.row("mulPackConj 32f C1", kSpectra, products<1, true>(lumiMulPackConj_32f_C1R));
});

}  // namespace
}  // namespace bench
