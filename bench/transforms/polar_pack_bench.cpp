// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>
#include <limits>

#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"

namespace bench {
namespace {

template <typename T, typename... Rest>
using OfSpectrum = LumStatus (*)(const T*, int, T*, int, LumiSize, Rest...);

// Float results of floats, and double ones of integers, to nearest and limited.
template <typename T, typename F>
T made(const F& f, T re, T im) {
  if constexpr (std::is_floating_point_v<T>) {
    return f(re, im);
  } else {
    constexpr double low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
    return static_cast<T>(
        std::clamp(std::nearbyint(f(static_cast<double>(re), static_cast<double>(im))), low, high));
  }
}

// Of every number once: `sign` makes its conjugate's result of a number's.
template <int sign, typename T, typename F>
Peer loopOf(Image<T> src, Image<T> dst, F f) {
  return peer("loop", [=] {
    const int width = dst.roi.width, height = dst.roi.height;
    for (int y = 0; y < height; ++y) {
      const T* __restrict s = src.row(y);
      T* __restrict d = dst.row(y);
      T* __restrict mirrored = dst.row(y == 0 ? 0 : height - y) + width;
      for (int k = 1; k <= (width - 1) / 2; ++k) {
        const T result = made(f, s[2 * k - 1], s[2 * k]);
        d[k] = result;
        mirrored[-k] = static_cast<T>(sign * result);
      }
    }
    const auto down = [&](int from, int to) {
      dst.row(0)[to] = made(f, src.row(0)[from], T{0});
      for (int j = 1; 2 * j < height; ++j) {
        const T result = made(f, src.row(2 * j - 1)[from], src.row(2 * j)[from]);
        dst.row(j)[to] = result;
        dst.row(height - j)[to] = static_cast<T>(sign * result);
      }
      if (height % 2 == 0) dst.row(height / 2)[to] = made(f, src.row(height - 1)[from], T{0});
    };
    down(0, 0);
    if (width % 2 == 0) down(width - 1, width / 2);
  });
}

struct Magnitude {
  template <typename T>
  T operator()(T re, T im) const {
    return std::sqrt(re * re + im * im);
  }
};
struct Phase {
  template <typename T>
  T operator()(T re, T im) const {
    return std::atan2(im, re);
  }
};

template <typename F, int sign, typename T, typename... Rest>
Suite::Build ofSpectrum(OfSpectrum<T, Rest...> lumi, const char* differs, Rest... scale) {
  return [=](Scene& s) {
    const auto src = s.input<T>(1), dst = s.output<T>(1);
    s.ours([=] { lumi(src.data(), src.step, dst.data(), dst.step, dst.roi, scale...); });
    Peer loop = loopOf<sign>(src, dst, F());
    loop.differs = differs;
    s.peer(loop);
  };
}

const Family family("polar_pack", [](Suite& suite) {
  suite.row("magnitudePack 32f C1", kUpToHd, ofSpectrum<Magnitude, 1>(lumiMagnitudePack_32f_C1R, ""));
  suite.row("magnitudePack 16s C1", kUpToHd, ofSpectrum<Magnitude, 1>(lumiMagnitudePack_16s_C1RSfs, "", 0));
  suite.row("phasePack 32f C1", kUpToHd,
            ofSpectrum<Phase, -1>(lumiPhasePack_32f_C1R, "the C library's last bits are others"));
  suite.row("phasePack 16s C1", kUpToHd,
            ofSpectrum<Phase, -1>(lumiPhasePack_16s_C1RSfs, "of integers on the negative axis", 0));
});

}  // namespace
}  // namespace bench
