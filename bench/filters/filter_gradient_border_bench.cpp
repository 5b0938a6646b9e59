// SPDX-License-Identifier: MIT
#include <memory>
#include <vector>

#include "bench/harness.hpp"
#include "bench/peers/opencv.hpp"
#include "lumi/filter_gradient_border.h"

namespace bench {
namespace {

template <typename S, typename D>
using Run = LumStatus (*)(const S*, int, D*, int, LumiSize, LumiMaskSize, LumiBorderType, S, Lum8u*);

template <typename S, typename D>
Suite::Build whole(Run<S, D> run, LumiMaskSize mask, opencv::Gradient kind) {
  return [=](Scene& scene) {
    const auto src = scene.input<S>(1);
    const auto dst = scene.output<D>(1);
    constexpr LumiDataType srcType = sizeof(S) == 1 ? lumiData8u : sizeof(S) == 2 ? lumiData16s : lumiData32f;
    constexpr LumiDataType dstType = sizeof(D) == 2 ? lumiData16s : lumiData32f;
    int bytes = 0;
    lumiFilterSobelVertBorderGetBufferSize(src.roi, mask, srcType, dstType, 1, &bytes);
    const auto buffer = std::make_shared<std::vector<Lum8u>>(static_cast<size_t>(bytes));
    scene.ours([=] {
      run(src.data(), src.step, dst.data(), dst.step, src.roi, mask, lumiBorderMirror, 0, buffer->data());
    });
    if (opencv::gradient == nullptr) return;
    Peer peer = opencv::gradient(src, dst, 0, kind, mask == lumiMask3x3 ? 3 : 5);
    peer.differs = "other signs";
    scene.peer(peer);
  };
}

const Family family("filter_gradient_border", [](Suite& suite) {
  using opencv::Gradient;
  const auto bytes = whole<Lum8u, Lum16s>(lumiFilterSobelVertBorder_8u16s_C1R, lumiMask3x3, Gradient::sobelX);
  suite.row("sobel border 8u16s 3x3", kUpToHd, bytes);
  suite.row("sobel border 8u16s 5x5", kUpToHd,
            whole<Lum8u, Lum16s>(lumiFilterSobelHorizBorder_8u16s_C1R, lumiMask5x5, Gradient::sobelY));
  suite.row("scharr border 16s", kUpToHd,
            whole<Lum16s, Lum16s>(lumiFilterScharrVertMaskBorder_16s_C1R, lumiMask3x3, Gradient::scharrX));
  suite.row("sobel border 32f 3x3", kUpToHd,
            whole<Lum32f, Lum32f>(lumiFilterSobelVertBorder_32f_C1R, lumiMask3x3, Gradient::sobelX));
});

}  // namespace
}  // namespace bench
