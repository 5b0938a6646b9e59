// SPDX-License-Identifier: MIT
#include "bench/filters/extremes.hpp"

namespace bench {
namespace {

constexpr LumiSize kWindow{3, 3};

template <bool largest, int C, typename T>
Suite::Build square(LumStatus (*run)(const T*, int, T*, int, LumiSize)) {
  return [=](Scene& scene) {
    const auto dst = scene.output<T>(C);
    const auto src = scene.inputOf<T>(C, around(scene.roi(), kWindow));
    scene.ours([=] { run(src.row(1) + C, src.step, dst.data(), dst.step, dst.roi); });
    addPeers<largest, C>(scene, src, dst, kWindow);
  };
}

// The image grows brighter with every run; the peers make it from another one.
template <int C, typename T>
Suite::Build squareInPlace(LumStatus (*run)(T*, int, LumiSize)) {
  return [=](Scene& scene) {
    const auto image = scene.outputOf<T>(C, around(scene.roi(), kWindow));
    const auto src = scene.inputOf<T>(C, around(scene.roi(), kWindow));
    const LumiSize roi = scene.roi();
    scene.ours([=] { run(image.row(1) + C, image.step, roi); });
    if (opencv::morphology == nullptr) return;
    Peer peer = opencv::morphology(src, scene.output<T>(C), std::vector<Lum8u>(9, 1), kWindow, true);
    peer.differs = "makes another image";
    scene.peer(peer);
  };
}

const Family family("morphology3x3", [](Suite& suite) {
  suite.row("dilate 8u C1 3x3", kEverySize, square<true, 1>(lumiDilate3x3_8u_C1R));
  suite.row("dilate 8u C3 3x3", kUpToHd, square<true, 3>(lumiDilate3x3_8u_C3R));
  suite.row("dilate 16u C1 3x3", kUpToHd, square<true, 1>(lumiDilate3x3_16u_C1R));
  suite.row("dilate 32f C1 3x3", kUpToHd, square<true, 1>(lumiDilate3x3_32f_C1R));
  suite.row("erode 8u C4 3x3", kUpToHd, square<false, 4>(lumiErode3x3_8u_C4R));
  suite.row("dilate 8u C1 3x3 in place", kUpToHd, squareInPlace<1>(lumiDilate3x3_8u_C1IR));
});

}  // namespace
}  // namespace bench
