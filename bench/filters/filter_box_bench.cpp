// SPDX-License-Identifier: MIT
#include <cmath>
#include <type_traits>
#include <vector>

#include "bench/harness.hpp"
#include "bench/peers/opencv.hpp"

namespace bench {
namespace {

template <typename T>
using Run = LumStatus (*)(const T*, int, T*, int, LumiSize, LumiSize, LumiPoint);
template <typename T>
using RunInPlace = LumStatus (*)(T*, int, LumiSize, LumiSize, LumiPoint);

Peer allowed(Peer peer) {
  if (peer.run) peer.differs = "rounds otherwise";
  return peer;
}

// Sums of columns that lose a row and win one, and of these along the row.
template <int C, typename T>
Peer loopBox(Image<T> src, Image<T> dst, int side) {
  using Sum = std::conditional_t<std::is_floating_point_v<T>, double, int>;
  return peer("loop", [=, columns = std::vector<Sum>()]() mutable {
    const int width = dst.roi.width, covered = (width + side - 1) * C;
    columns.assign(static_cast<size_t>(covered), Sum{});
    Sum* __restrict sums = columns.data();
    for (int y = 0; y < side - 1; ++y)
      for (int i = 0; i < covered; ++i) sums[i] += static_cast<Sum>(src.row(y)[i]);
    const float scale = 1.0F / static_cast<float>(side * side);
    for (int y = 0; y < dst.roi.height; ++y) {
      const T* __restrict in = src.row(y + side - 1);
      const T* __restrict out = src.row(y > 0 ? y - 1 : 0);
      for (int i = 0; i < covered; ++i) sums[i] += static_cast<Sum>(in[i]);
      if (y > 0)
        for (int i = 0; i < covered; ++i) sums[i] -= static_cast<Sum>(out[i]);
      T* __restrict d = dst.row(y);
      for (int c = 0; c < C; ++c) {
        Sum sum{};
        for (int x = 0; x < side - 1; ++x) sum += sums[x * C + c];
        for (int x = 0; x < width; ++x) {
          sum += sums[(x + side - 1) * C + c];
          const float mean = static_cast<float>(sum) * scale;
          if constexpr (std::is_floating_point_v<T>)
            d[x * C + c] = mean;
          else
            d[x * C + c] = static_cast<T>(std::lrintf(mean));
          sum -= sums[x * C + c];
        }
      }
    }
  });
}

LumiSize around(LumiSize roi, int side) { return {roi.width + side - 1, roi.height + side - 1}; }

template <int C, typename T>
Suite::Build box(Run<T> run, int side) {
  return [=](Scene& scene) {
    const auto dst = scene.output<T>(C);
    const auto src = scene.inputOf<T>(C, around(scene.roi(), side));
    const int centre = side / 2;
    scene.ours([=] {
      run(src.row(centre) + centre * C, src.step, dst.data(), dst.step, dst.roi, {side, side},
          {centre, centre});
    });
    if (opencv::boxFilter != nullptr) scene.peer(allowed(opencv::boxFilter(src, dst, {side, side})));
    scene.peer(allowed(loopBox<C>(src, dst, side)));
  };
}

// The image blurs more and more; the peer makes it from another one.
template <typename T>
Suite::Build boxInPlace(RunInPlace<T> run, int side) {
  return [=](Scene& scene) {
    const auto image = scene.outputOf<T>(1, around(scene.roi(), side));
    const auto src = scene.inputOf<T>(1, around(scene.roi(), side));
    const LumiSize roi = scene.roi();
    const int centre = side / 2;
    scene.ours([=] { run(image.row(centre) + centre, image.step, roi, {side, side}, {centre, centre}); });
    if (opencv::boxFilter != nullptr) scene.peer(allowed(opencv::boxFilter(src, image, {side, side})));
  };
}

const Family family("filter_box", [](Suite& suite) {
  suite.row("box 8u C1 15x15", kEverySize, box<1>(lumiFilterBox_8u_C1R, 15));
  suite.row("box 8u C1 3x3", kEverySize, box<1>(lumiFilterBox_8u_C1R, 3));
  suite.row("box 8u C1 5x5", kUpToHd, box<1>(lumiFilterBox_8u_C1R, 5));
  suite.row("box 8u C1 7x7", kUpToHd, box<1>(lumiFilterBox_8u_C1R, 7));
  suite.row("box 8u C1 31x31", kUpToHd, box<1>(lumiFilterBox_8u_C1R, 31));
  suite.row("box 8u C1 101x101", kUpToHd, box<1>(lumiFilterBox_8u_C1R, 101));
  suite.row("box 8u C3 3x3", kUpToHd, box<3>(lumiFilterBox_8u_C3R, 3));
  suite.row("box 8u C3 15x15", kUpToHd, box<3>(lumiFilterBox_8u_C3R, 15));
  suite.row("box 8u C4 15x15", kUpToHd, box<4>(lumiFilterBox_8u_C4R, 15));
  suite.row("box 16u C1 15x15", kUpToHd, box<1>(lumiFilterBox_16u_C1R, 15));
  suite.row("box 16s C1 15x15", kUpToHd, box<1>(lumiFilterBox_16s_C1R, 15));
  suite.row("box 32f C1 3x3", kUpToHd, box<1>(lumiFilterBox_32f_C1R, 3));
  suite.row("box 32f C1 15x15", kUpToHd, box<1>(lumiFilterBox_32f_C1R, 15));
  suite.row("box 32f C1 101x101", kUpToHd, box<1>(lumiFilterBox_32f_C1R, 101));
  suite.row("box 32f C3 15x15", kUpToHd, box<3>(lumiFilterBox_32f_C3R, 15));
  suite.row("box 8u C1 15x15 in place", kUpToHd, boxInPlace(lumiFilterBox_8u_C1IR, 15));
});

}  // namespace
}  // namespace bench
