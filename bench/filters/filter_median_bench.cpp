// SPDX-License-Identifier: MIT
#include <algorithm>
#include <vector>

#include "bench/harness.hpp"
#include "bench/peers/opencv.hpp"

namespace bench {
namespace {

template <typename T>
using Run = LumStatus (*)(const T*, int, T*, int, LumiSize, LumiSize, LumiPoint);

// As the standard library selects it.
template <int C, typename T>
Peer loopMedian(Image<T> src, Image<T> dst, int side) {
  return peer("loop", [=, window = std::vector<T>()]() mutable {
    for (int y = 0; y < dst.roi.height; ++y)
      for (int i = 0; i < dst.roi.width * C; ++i) {
        window.clear();
        for (int row = 0; row < side; ++row)
          for (int column = 0; column < side; ++column) window.push_back(src.row(y + row)[i + column * C]);
        const auto middle = window.begin() + side * side / 2;
        std::nth_element(window.begin(), middle, window.end());
        dst.row(y)[i] = *middle;
      }
  });
}

LumiSize around(LumiSize roi, int side) { return {roi.width + side - 1, roi.height + side - 1}; }

// The loop takes seconds for a large image.
template <int C, typename T>
Suite::Build median(Run<T> run, int side) {
  return [=](Scene& scene) {
    const auto dst = scene.output<T>(C);
    const auto src = scene.inputOf<T>(C, around(scene.roi(), side));
    const int centre = side / 2;
    scene.ours([=] {
      run(src.row(centre) + centre * C, src.step, dst.data(), dst.step, dst.roi, {side, side},
          {centre, centre});
    });
    const bool isOffered = sizeof(T) == 1 || side <= 5;
    if (isOffered && opencv::medianBlur != nullptr) scene.peer(opencv::medianBlur(src, dst, side));
    if (!isOffered && scene.roi().height <= 64) scene.peer(loopMedian<C>(src, dst, side));
  };
}

// The same pixels around the ROI as the peer's.
template <typename T>
using RunBorder = LumStatus (*)(const T*, int, T*, int, LumiSize, LumiSize, LumiBorderType, T, Lum8u*);

template <typename T>
Suite::Build medianBorder(RunBorder<T> run, LumiDataType type, int side, bool inPlace) {
  return [=](Scene& scene) {
    const auto dst = scene.output<T>(1);
    const auto src = inPlace ? dst : scene.input<T>(1);
    int bytes = 0;
    lumiFilterMedianBorderGetBufferSize(dst.roi, {side, side}, type, 1, &bytes);
    const auto buffer = scene.outputOf<Lum8u>(1, {bytes, 1});
    scene.ours([=] {
      run(src.data(), src.step, dst.data(), dst.step, dst.roi, {side, side}, lumiBorderReplicate, 0,
          buffer.data());
    });
    if (opencv::medianBlur == nullptr) return;
    Peer peer = opencv::medianBlur(src, dst, side);
    if (inPlace) peer.differs = "what is filtered was filtered before";
    scene.peer(peer);
  };
}

const Family family("filter_median", [](Suite& suite) {
  suite.row("median 8u C1 3x3", kEverySize, median<1>(lumiFilterMedian_8u_C1R, 3));
  suite.row("median 8u C1 5x5", kUpToHd, median<1>(lumiFilterMedian_8u_C1R, 5));
  suite.row("median 8u C1 9x9", kUpToHd, median<1>(lumiFilterMedian_8u_C1R, 9));
  suite.row("median 8u C1 21x21", kUpToHd, median<1>(lumiFilterMedian_8u_C1R, 21));
  suite.row("median 8u C3 3x3", kUpToHd, median<3>(lumiFilterMedian_8u_C3R, 3));
  suite.row("median 8u C3 9x9", kUpToHd, median<3>(lumiFilterMedian_8u_C3R, 9));
  suite.row("median 8u C4 5x5", kUpToHd, median<4>(lumiFilterMedian_8u_C4R, 5));
  suite.row("median 16u C1 3x3", kUpToHd, median<1>(lumiFilterMedian_16u_C1R, 3));
  suite.row("median 16u C1 5x5", kUpToHd, median<1>(lumiFilterMedian_16u_C1R, 5));
  suite.row("median 16u C1 9x9", kUpToHd, median<1>(lumiFilterMedian_16u_C1R, 9));
  suite.row("median 32f C1 3x3", kUpToHd, median<1>(lumiFilterMedian_32f_C1R, 3));
  suite.row("median 32f C1 5x5", kUpToHd, median<1>(lumiFilterMedian_32f_C1R, 5));
  suite.row("median 32f C1 9x9", kUpToHd, median<1>(lumiFilterMedian_32f_C1R, 9));
  suite.row("median border 8u C1 3x3", kUpToHd,
            medianBorder(lumiFilterMedianBorder_8u_C1R, lumiData8u, 3, false));
  suite.row("median border 8u C1I 3x3", kUpToHd,
            medianBorder(lumiFilterMedianBorder_8u_C1R, lumiData8u, 3, true));
  suite.row("median border 8u C1 9x9", kUpToHd,
            medianBorder(lumiFilterMedianBorder_8u_C1R, lumiData8u, 9, false));
});

}  // namespace
}  // namespace bench
