// SPDX-License-Identifier: MIT
#include <utility>

#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "bench/peers/opencv.hpp"
#include "bench/peers/yuv.hpp"

namespace bench {
namespace {

template <int C, typename T>
Peer loopTransposed(Image<T> src, Image<T> dst) {
  return loop::rows(dst.roi, [=](int y, int width) {
    T* __restrict d = dst.row(y);
    for (int x = 0; x < width; ++x) {
      const T* __restrict s = src.row(x) + y * C;
      for (int c = 0; c < C; ++c) d[x * C + c] = s[c];
    }
  });
}

template <int C, typename T>
Suite::Build transpose(LumStatus (*lumi)(const T*, int, T*, int, LumiSize)) {
  return [=](Scene& s) {
    const auto src = s.inputOf<T>(C, {s.roi().height, s.roi().width});
    const auto dst = s.output<T>(C);
    s.ours([=] { lumi(src.data(), src.step, dst.data(), dst.step, src.roi); });
    s.peer(opencv::transpose, src, dst);
    s.peer(yuv::transpose, src, dst);
    s.peer(loopTransposed<C>(src, dst));
  };
}

template <typename T>
Suite::Build transposeInPlace(LumStatus (*lumi)(T*, int, LumiSize)) {
  return [=](Scene& s) {
    const auto image = s.output<T>(1);
    s.ours([=] { lumi(image.data(), image.step, image.roi); });
    s.peer(opencv::transpose, image, image);
    s.peer(loop::rows(image.roi, [=](int y, int width) {
      for (int x = y + 1; x < width; ++x) std::swap(image.row(y)[x], image.row(x)[y]);
    }));
  };
}

const Family family("transpose", [](Suite& suite) {
  constexpr LumiSize kSquare{1024, 1024};
  suite.row("transpose 8u C1", kEverySize, transpose<1>(lumiTranspose_8u_C1R));
  suite.row("transpose 8u C3", kUpToHd, transpose<3>(lumiTranspose_8u_C3R));
  suite.row("transpose 8u C4", kUpToHd, transpose<4>(lumiTranspose_8u_C4R));
  suite.row("transpose 16u C1", kUpToHd, transpose<1>(lumiTranspose_16u_C1R));
  suite.row("transpose 16u C3", kCachedAndHd, transpose<3>(lumiTranspose_16u_C3R));
  suite.row("transpose 16u C4", kCachedAndHd, transpose<4>(lumiTranspose_16u_C4R));
  suite.row("transpose 32f C1", kEverySize, transpose<1>(lumiTranspose_32f_C1R));
  suite.row("transpose 32f C3", kCachedAndHd, transpose<3>(lumiTranspose_32f_C3R));
  suite.row("transpose 32f C4", kCachedAndHd, transpose<4>(lumiTranspose_32f_C4R));
  suite.row("transpose 8u C1 in place", {kCall, kSmall, kSquare}, transposeInPlace(lumiTranspose_8u_C1IR));
  suite.row("transpose 32f C1 in place", {kSmall, kSquare}, transposeInPlace(lumiTranspose_32f_C1IR));
});

}  // namespace
}  // namespace bench
