// SPDX-License-Identifier: MIT
#include "bench/filters/extremes.hpp"

namespace bench {
namespace {

template <typename T>
using Run = LumStatus (*)(const T*, int, T*, int, LumiSize, LumiSize, LumiPoint);

template <bool largest, int C, typename T>
Suite::Build extreme(Run<T> run, LumiSize window) {
  return [=](Scene& scene) {
    const auto dst = scene.output<T>(C);
    const auto src = scene.inputOf<T>(C, around(scene.roi(), window));
    const LumiPoint centre{window.width / 2, window.height / 2};
    scene.ours([=] {
      run(src.row(centre.y) + centre.x * C, src.step, dst.data(), dst.step, dst.roi, window, centre);
    });
    addPeers<largest, C>(scene, src, dst, window);
  };
}

const Family family("filter_extremes", [](Suite& suite) {
  suite.row("max 8u C1 7x7", kEverySize, extreme<true, 1>(lumiFilterMax_8u_C1R, {7, 7}));
  suite.row("max 8u C1 3x3", kUpToHd, extreme<true, 1>(lumiFilterMax_8u_C1R, {3, 3}));
  suite.row("max 8u C1 5x5", kUpToHd, extreme<true, 1>(lumiFilterMax_8u_C1R, {5, 5}));
  suite.row("max 8u C1 15x15", kUpToHd, extreme<true, 1>(lumiFilterMax_8u_C1R, {15, 15}));
  suite.row("max 8u C1 31x31", kUpToHd, extreme<true, 1>(lumiFilterMax_8u_C1R, {31, 31}));
  suite.row("max 8u C1 1x15", kUpToHd, extreme<true, 1>(lumiFilterMax_8u_C1R, {1, 15}));
  suite.row("max 8u C1 15x1", kUpToHd, extreme<true, 1>(lumiFilterMax_8u_C1R, {15, 1}));
  suite.row("max 8u C3 7x7", kUpToHd, extreme<true, 3>(lumiFilterMax_8u_C3R, {7, 7}));
  suite.row("max 16u C1 7x7", kUpToHd, extreme<true, 1>(lumiFilterMax_16u_C1R, {7, 7}));
  suite.row("max 32f C1 5x5", kUpToHd, extreme<true, 1>(lumiFilterMax_32f_C1R, {5, 5}));
  suite.row("max 32f C1 15x15", kUpToHd, extreme<true, 1>(lumiFilterMax_32f_C1R, {15, 15}));
  suite.row("min 16s C1 7x7", kUpToHd, extreme<false, 1>(lumiFilterMin_16s_C1R, {7, 7}));
});

}  // namespace
}  // namespace bench
