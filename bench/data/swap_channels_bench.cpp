// SPDX-License-Identifier: MIT
#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "bench/peers/opencv.hpp"
#include "bench/peers/yuv.hpp"

namespace bench {
namespace {

// Red and blue exchanged, alpha as it is.
constexpr Lum32s kSwapped[] = {2, 1, 0, 3};

template <int S, int D, typename T>
Peer loopSwapped(Image<T> src, Image<T> dst, T inserted) {
  return loop::rows(dst.roi, [=](int y, int width) {
    const T* __restrict s = src.row(y);
    T* __restrict d = dst.row(y);
    for (int x = 0; x < width; ++x) {
      for (int c = 0; c < 3; ++c) d[x * D + c] = s[x * S + 2 - c];
      if (D == 4) d[x * D + 3] = S == 4 ? s[x * S + 3] : inserted;
    }
  });
}

template <typename T>
using Swap = LumStatus (*)(const T*, int, T*, int, LumiSize, const Lum32s*);

template <int S, int D, typename T>
Suite::Build swap(Swap<T> lumi) {
  return [=](Scene& s) {
    const auto src = s.input<T>(S), dst = s.output<T>(D);
    s.ours([=] { lumi(src.data(), src.step, dst.data(), dst.step, src.roi, kSwapped); });
    s.peer(opencv::swapRedBlue, src, dst);
    s.peer(opencv::permute, src, dst, std::vector<int>(kSwapped, kSwapped + D));
    s.peer(yuv::swapRedBlue, src, dst);
    s.peer(loopSwapped<S, D>(src, dst, T{}));
  };
}

// What fills an inserted channel is what OpenCV's conversions fill it with.
template <typename T>
Suite::Build insert(LumStatus (*lumi)(const T*, int, T*, int, LumiSize, const Lum32s*, T), T opaque) {
  return [=](Scene& s) {
    const auto src = s.input<T>(3), dst = s.output<T>(4);
    s.ours([=] { lumi(src.data(), src.step, dst.data(), dst.step, src.roi, kSwapped, opaque); });
    s.peer(opencv::swapRedBlue, src, dst);
    s.peer(loopSwapped<3, 4>(src, dst, opaque));
  };
}

// Alpha stays.
template <typename T>
Suite::Build swapColour(Swap<T> lumi) {
  return [=](Scene& s) {
    const auto src = s.input<T>(4), dst = s.output<T>(4);
    s.ours([=] { lumi(src.data(), src.step, dst.data(), dst.step, src.roi, kSwapped); });
    s.peer(opencv::permute, src, dst, std::vector<int>(kSwapped, kSwapped + 3));
    s.peer(loop::rows(dst.roi, [=](int y, int width) {
      for (int x = 0; x < width; ++x)
        for (int c = 0; c < 3; ++c) dst.row(y)[x * 4 + c] = src.row(y)[x * 4 + 2 - c];
    }));
  };
}

Suite::Build swapInPlace() {
  return [](Scene& s) {
    const auto image = s.output<Lum8u>(3);
    s.ours([=] { lumiSwapChannels_8u_C3IR(image.data(), image.step, image.roi, kSwapped); });
    s.peer(opencv::swapRedBlue, image, image);
    s.peer(yuv::swapRedBlue, image, image);
  };
}

const Family family("swap_channels", [](Suite& suite) {
  suite.row("swap 8u C3", kEverySize, swap<3, 3>(lumiSwapChannels_8u_C3R));
  suite.row("swap 8u C4", kUpToHd, swap<4, 4>(lumiSwapChannels_8u_C4R));
  suite.row("swap 16u C3", kCachedAndHd, swap<3, 3>(lumiSwapChannels_16u_C3R));
  suite.row("swap 16u C4", kCachedAndHd, swap<4, 4>(lumiSwapChannels_16u_C4R));
  suite.row("swap 32f C3", kCachedAndHd, swap<3, 3>(lumiSwapChannels_32f_C3R));
  suite.row("swap 32f C4", kCachedAndHd, swap<4, 4>(lumiSwapChannels_32f_C4R));
  suite.row("swap 8u C3C4", kUpToHd, insert<Lum8u>(lumiSwapChannels_8u_C3C4R, 255));
  suite.row("swap 32f C3C4", kCachedAndHd, insert<Lum32f>(lumiSwapChannels_32f_C3C4R, 1));
  suite.row("swap 8u C4C3", kUpToHd, swap<4, 3>(lumiSwapChannels_8u_C4C3R));
  suite.row("swap 16u C4C3", kCachedAndHd, swap<4, 3>(lumiSwapChannels_16u_C4C3R));
  suite.row("swap 32f C4C3", kCachedAndHd, swap<4, 3>(lumiSwapChannels_32f_C4C3R));
  suite.row("swap 8u AC4", kUpToHd, swapColour(lumiSwapChannels_8u_AC4R));
  suite.row("swap 32f AC4", kCachedAndHd, swapColour(lumiSwapChannels_32f_AC4R));
  suite.row("swap 8u C3 in place", kCachedAndHd, swapInPlace());
});

}  // namespace
}  // namespace bench
