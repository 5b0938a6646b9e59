// SPDX-License-Identifier: MIT
#include <algorithm>
#include <memory>
#include <type_traits>
#include <vector>

#include "bench/harness.hpp"
#include "bench/peers/opencv.hpp"

namespace bench {
namespace {

template <typename T>
using Run = LumStatus (*)(const T*, int, T*, int, LumiSize, LumiSize, LumiBorderType, const T*, Lum8u*);

Peer allowed(Peer peer) {
  if (peer.run) peer.differs = "rounds otherwise";
  return peer;
}

template <int C, typename T>
Suite::Build box(Run<T> run, int side, LumiBorderType border = lumiBorderReplicate) {
  return [=](Scene& scene) {
    const auto src = scene.input<T>(C), dst = scene.output<T>(C);
    const LumiSize mask{side, side};
    constexpr LumiDataType type = std::is_same_v<T, Lum8u> ? lumiData8u : lumiData32f;
    int bytes = 0;
    lumiFilterBoxBorderGetBufferSize(src.roi, mask, type, C, &bytes);
    const auto buffer = std::make_shared<std::vector<Lum8u>>(static_cast<size_t>(bytes));
    scene.ours([=] {
      const T value[4] = {};
      run(src.data(), src.step, dst.data(), dst.step, src.roi, mask, border, value, buffer->data());
    });
    if (opencv::boxFilter != nullptr) scene.peer(allowed(opencv::boxFilter(src, dst, mask)));
  };
}

const Family family("filter_box_border", [](Suite& suite) {
  suite.row("box border 8u C1 15x15", kUpToHd, box<1>(lumiFilterBoxBorder_8u_C1R, 15));
  suite.row("box border 8u C1 3x3", kUpToHd, box<1>(lumiFilterBoxBorder_8u_C1R, 3));
  suite.row("box border 8u C1 5x5 constant", kUpToHd, box<1>(lumiFilterBoxBorder_8u_C1R, 5, lumiBorderConst));
  suite.row("box border 8u C3 7x7", kUpToHd, box<3>(lumiFilterBoxBorder_8u_C3R, 7));
  suite.row("box border 8u C1 31x31", kUpToHd, box<1>(lumiFilterBoxBorder_8u_C1R, 31));
  suite.row("box border 32f C1 5x5", kUpToHd, box<1>(lumiFilterBoxBorder_32f_C1R, 5));
});

}  // namespace
}  // namespace bench
