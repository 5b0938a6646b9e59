// SPDX-License-Identifier: MIT
#include "bench/filters/extremes.hpp"

namespace bench {
namespace {

template <typename T>
using Run = LumStatus (*)(const T*, int, T*, int, LumiSize, const Lum8u*, LumiSize, LumiPoint);

using Elements = std::vector<Lum8u>;

Elements whole(int side) { return Elements(static_cast<std::size_t>(side * side), 1); }

// Rows of an ellipse as OpenCV makes it.
Elements disc() {
  Elements mask;
  for (const int reach : {0, 2, 3, 3, 3, 2, 0})
    for (int x = -3; x <= 3; ++x) mask.push_back(x >= -reach && x <= reach ? 1 : 0);
  return mask;
}
Elements cross() { return {0, 1, 0, 1, 1, 1, 0, 1, 0}; }
Elements chequered(int side) {
  Elements mask = whole(side);
  for (std::size_t i = 1; i < mask.size(); i += 2) mask[i] = 0;
  return mask;
}

template <bool largest, int C, typename T>
Suite::Build masked(Run<T> run, int side, const Elements& mask) {
  return [=](Scene& scene) {
    const LumiSize window{side, side};
    const auto dst = scene.output<T>(C);
    const auto src = scene.inputOf<T>(C, around(scene.roi(), window));
    const LumiPoint centre{side / 2, side / 2};
    scene.ours([=] {
      run(src.row(centre.y) + centre.x * C, src.step, dst.data(), dst.step, dst.roi, mask.data(), window,
          centre);
    });
    if (opencv::morphology != nullptr) scene.peer(opencv::morphology(src, dst, mask, window, largest));
    if (mask == whole(side)) scene.peer(loopOfExtremes<largest, C>(src, dst, window));
  };
}

const Family family("morphology", [](Suite& suite) {
  suite.row("dilate 8u C1 disc 7x7", kEverySize, masked<true, 1>(lumiDilate_8u_C1R, 7, disc()));
  suite.row("dilate 8u C1 5x5", kUpToHd, masked<true, 1>(lumiDilate_8u_C1R, 5, whole(5)));
  suite.row("dilate 8u C1 7x7", kUpToHd, masked<true, 1>(lumiDilate_8u_C1R, 7, whole(7)));
  suite.row("dilate 8u C1 15x15", kUpToHd, masked<true, 1>(lumiDilate_8u_C1R, 15, whole(15)));
  suite.row("dilate 8u C1 cross 3x3", kUpToHd, masked<true, 1>(lumiDilate_8u_C1R, 3, cross()));
  suite.row("dilate 8u C1 chequered 7x7", kUpToHd, masked<true, 1>(lumiDilate_8u_C1R, 7, chequered(7)));
  suite.row("dilate 8u C3 disc 7x7", kUpToHd, masked<true, 3>(lumiDilate_8u_C3R, 7, disc()));
  suite.row("dilate 32f C1 disc 7x7", kUpToHd, masked<true, 1>(lumiDilate_32f_C1R, 7, disc()));
  suite.row("erode 16u C1 disc 7x7", kUpToHd, masked<false, 1>(lumiErode_16u_C1R, 7, disc()));
});

}  // namespace
}  // namespace bench
