// SPDX-License-Identifier: MIT
#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "lumi/lbp.h"

namespace bench {
namespace {

struct Offset {
  int dx, dy;
};

// With the pixels around in memory.
template <typename S, typename D, int count>
Peer loopPattern(Image<S> around, Image<D> dst, const Offset (&neighbours)[count]) {
  return loop::rows(dst.roi, [=](int y, int width) {
    D* __restrict d = dst.row(y);
    const S* __restrict centre = around.row(y + 2) + 2;
    const S* rows[5];
    for (int i = 0; i < 5; ++i) rows[i] = around.row(y + i) + 2;
    for (int x = 0; x < width; ++x) {
      int bits = 0;
      for (int k = 0; k < count; ++k)
        bits |= static_cast<int>(!(rows[neighbours[k].dy + 2][x + neighbours[k].dx] < centre[x])) << k;
      d[x] = static_cast<D>(bits);
    }
  });
}

template <typename T>
Peer loopDistance(Image<T> a, Image<T> b, Image<T> dst) {
  return loop::rows(dst.roi, [=](int y, int width) {
    T* __restrict d = dst.row(y);
    for (int x = 0; x < width; ++x) {
      int sum = 0;
      for (int dy = 0; dy < 5; ++dy)
        for (int dx = 0; dx < 5; ++dx)
          sum += __builtin_popcount(static_cast<unsigned>(a.row(y + dy)[x + dx] ^ b.row(y + dy)[x + dx]));
      d[x] = static_cast<T>(sum);
    }
  });
}

constexpr Offset kOf3[] = {{-1, -1}, {0, -1}, {1, -1}, {1, 0}, {1, 1}, {0, 1}, {-1, 1}, {-1, 0}};
constexpr Offset kOf5[] = {{-1, -1}, {0, -2}, {1, -1}, {2, 0}, {1, 1}, {0, 2}, {-1, 1}, {-2, 0}};
constexpr Offset kOf5By16[] = {{-2, -1}, {-1, -1}, {-1, -2}, {0, -2}, {1, -2}, {1, -1}, {2, -1}, {2, 0},
                               {2, 1},   {1, 1},   {1, 2},   {0, 2},  {-1, 2}, {-1, 1}, {-2, 1}, {-2, 0}};

template <typename S, typename D>
using Run = LumStatus (*)(const S*, int, D*, int, LumiSize, LumiBorderType, S);

template <typename S>
Image<S> around(Scene& scene) {
  const LumiSize roi = scene.roi();
  return scene.inputOf<S>(1, {roi.width + 4, roi.height + 4});
}

template <typename S, typename D, int count>
Suite::Build patterns(Run<S, D> run, const Offset (&neighbours)[count]) {
  return [=, &neighbours](Scene& scene) {
    const auto src = around<S>(scene);
    const auto dst = scene.output<D>(1);
    scene.ours([=] { run(src.row(2) + 2, src.step, dst.data(), dst.step, dst.roi, lumiBorderInMemory, 0); });
    scene.peer(loopPattern(src, dst, neighbours));
  };
}

template <typename T, typename Distance>
Suite::Build distances(Distance run) {
  return [=](Scene& scene) {
    const auto a = around<T>(scene), b = around<T>(scene);
    const auto dst = scene.output<T>(1);
    scene.ours([=] {
      run(a.row(2) + 2, a.step, b.row(2) + 2, b.step, dst.data(), dst.step, dst.roi, 0, lumiBorderInMemory,
          0);
    });
    scene.peer(loopDistance(a, b, dst));
  };
}

const Family family("lbp", [](Suite& suite) {
  suite.row("lbp 8u 3x3", kUpToHd, patterns<Lum8u, Lum8u>(lumiLBPImage3x3_8u_C1R, kOf3));
  suite.row("lbp 8u 5x5", kUpToHd, patterns<Lum8u, Lum8u>(lumiLBPImage5x5_8u_C1R, kOf5));
  suite.row("lbp 8u16u 5x5", kUpToHd, patterns<Lum8u, Lum16u>(lumiLBPImage5x5_8u16u_C1R, kOf5By16));
  suite.row("lbp 32f8u 3x3", kUpToHd, patterns<Lum32f, Lum8u>(lumiLBPImage3x3_32f8u_C1R, kOf3));
  suite.row("lbp 32f16u 5x5", kUpToHd, patterns<Lum32f, Lum16u>(lumiLBPImage5x5_32f16u_C1R, kOf5By16));
  suite.row("lbp distance 8u", kUpToHd, distances<Lum8u>(lumiLBPImageHorizCorr_8u_C1R));
  suite.row("lbp distance 16u", kUpToHd, distances<Lum16u>(lumiLBPImageHorizCorr_16u_C1R));
});

}  // namespace
}  // namespace bench
