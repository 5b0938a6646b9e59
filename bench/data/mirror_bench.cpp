// SPDX-License-Identifier: MIT
#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "bench/peers/opencv.hpp"
#include "bench/peers/yuv.hpp"

namespace bench {
namespace {

using opencv::Flip;

template <int C, typename T>
Peer loopFlipped(Image<T> src, Image<T> dst, Flip axis) {
  const bool down = axis == Flip::vertical, across = axis != Flip::horizontal;
  return loop::rows(dst.roi, [=](int y, int width) {
    const T* __restrict s = src.row(down ? y : src.roi.height - 1 - y);
    T* __restrict d = dst.row(y);
    if (across)
      for (int x = 0; x < width; ++x)
        for (int c = 0; c < C; ++c) d[x * C + c] = s[(width - 1 - x) * C + c];
    else
      for (int i = 0; i < width * C; ++i) d[i] = s[i];
  });
}

template <typename T>
using Mirror = LumStatus (*)(const T*, int, T*, int, LumiSize, int);

template <int C, typename T>
Suite::Build mirror(Mirror<T> lumi, Flip axis) {
  return [=](Scene& s) {
    const auto src = s.input<T>(C);
    const auto dst = s.output<T>(C);
    const int flip = static_cast<int>(axis);
    s.ours([=] { lumi(src.data(), src.step, dst.data(), dst.step, src.roi, flip); });
    s.peer(opencv::flip, src, dst, axis);
    if (axis == Flip::vertical) s.peer(yuv::mirror, src, dst);
    if (axis == Flip::both) s.peer(yuv::halfTurn, src, dst);
    s.peer(loopFlipped<C>(src, dst, axis));
  };
}

template <int C, typename T>
Suite::Build mirrorInPlace(LumStatus (*lumi)(T*, int, LumiSize, int), Flip axis) {
  return [=](Scene& s) {
    const auto image = s.output<T>(C);
    const int flip = static_cast<int>(axis);
    s.ours([=] { lumi(image.data(), image.step, image.roi, flip); });
    s.peer(opencv::flip, image, image, axis);
  };
}

template <typename T>
Suite::Build aboutDiagonal(Mirror<T> lumi) {
  return [=](Scene& s) {
    const auto src = s.inputOf<T>(1, {s.roi().height, s.roi().width});
    const auto dst = s.output<T>(1);
    constexpr int diagonal = 4;
    s.ours([=] { lumi(src.data(), src.step, dst.data(), dst.step, src.roi, diagonal); });
    s.peer(loop::rows(dst.roi, [=](int y, int width) {
      T* __restrict d = dst.row(y);
      const T* last = src.row(src.roi.height - 1) + (src.roi.width - 1 - y);
      const int step = src.step / static_cast<int>(sizeof(T));
      for (int x = 0; x < width; ++x) d[x] = last[-std::ptrdiff_t{x} * step];
    }));
  };
}

const Family family("mirror", [](Suite& suite) {
  constexpr Flip x = Flip::vertical, y = Flip::horizontal, both = Flip::both;
  suite.row("mirror x 8u C1", kEverySize, mirror<1>(lumiMirror_8u_C1R, x));
  suite.row("mirror x 8u C3", kUpToHd, mirror<3>(lumiMirror_8u_C3R, x));
  suite.row("mirror x 8u C4", kUpToHd, mirror<4>(lumiMirror_8u_C4R, x));
  suite.row("mirror x 16u C1", kCachedAndHd, mirror<1>(lumiMirror_16u_C1R, x));
  suite.row("mirror x 16u C3", kCachedAndHd, mirror<3>(lumiMirror_16u_C3R, x));
  suite.row("mirror x 16u C4", kCachedAndHd, mirror<4>(lumiMirror_16u_C4R, x));
  suite.row("mirror x 32f C1", kCachedAndHd, mirror<1>(lumiMirror_32f_C1R, x));
  suite.row("mirror x 32f C3", kCachedAndHd, mirror<3>(lumiMirror_32f_C3R, x));
  suite.row("mirror x 32f C4", kCachedAndHd, mirror<4>(lumiMirror_32f_C4R, x));
  suite.row("mirror y 8u C1", kEverySize, mirror<1>(lumiMirror_8u_C1R, y));
  suite.row("mirror y 8u C3", kCachedAndHd, mirror<3>(lumiMirror_8u_C3R, y));
  suite.row("mirror y 32f C1", kEverySize, mirror<1>(lumiMirror_32f_C1R, y));
  suite.row("mirror y 32f C4", kCachedAndHd, mirror<4>(lumiMirror_32f_C4R, y));
  suite.row("mirror xy 8u C1", kUpToHd, mirror<1>(lumiMirror_8u_C1R, both));
  suite.row("mirror xy 8u C4", kCachedAndHd, mirror<4>(lumiMirror_8u_C4R, both));
  suite.row("mirror diagonal 8u C1", kCachedAndHd, aboutDiagonal(lumiMirror_8u_C1R));
  suite.row("mirror x 8u C1 in place", kCachedAndHd, mirrorInPlace<1>(lumiMirror_8u_C1IR, x));
  suite.row("mirror x 8u C3 in place", kCachedAndHd, mirrorInPlace<3>(lumiMirror_8u_C3IR, x));
  suite.row("mirror y 8u C1 in place", kCachedAndHd, mirrorInPlace<1>(lumiMirror_8u_C1IR, y));
  suite.row("mirror xy 32f C1 in place", kCachedAndHd, mirrorInPlace<1>(lumiMirror_32f_C1IR, both));
});

}  // namespace
}  // namespace bench
