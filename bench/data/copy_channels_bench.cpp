// SPDX-License-Identifier: MIT
#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "bench/peers/opencv.hpp"
#include "bench/peers/yuv.hpp"

namespace bench {
namespace {

template <typename T>
using Move = LumStatus (*)(const T*, int, T*, int, LumiSize);

template <int C, typename T>
Suite::Build split(LumStatus (*lumi)(const T*, int, T* const*, int, LumiSize)) {
  return [=](Scene& s) {
    const auto src = s.input<T>(C);
    const auto dst = s.outputPlanes<T>(C);
    s.ours([=] { lumi(src.data(), src.step, dst.data, dst.step, src.roi); });
    s.peer(opencv::split, src, dst.views);
    s.peer(yuv::split, src, dst.views);
    s.peer(loop::split<C>(src, dst));
  };
}

template <int C, typename T>
Suite::Build merge(LumStatus (*lumi)(const T* const*, int, T*, int, LumiSize)) {
  return [=](Scene& s) {
    const auto src = s.inputPlanes<T>(C);
    const auto dst = s.output<T>(C);
    s.ours([=] { lumi(src.data, src.step, dst.data(), dst.step, dst.roi); });
    s.peer(opencv::merge, src.views, dst);
    s.peer(yuv::merge, src.views, dst);
    s.peer(loop::merge<C>(src, dst));
  };
}

// N channels from channel `from` of S channels to channel `to` of D channels; the others stay.
template <int S, int D, int N, typename T>
Suite::Build move(Move<T> lumi, int from = 0, int to = 0) {
  return [=](Scene& s) {
    const auto src = s.input<T>(S);
    const auto dst = s.output<T>(D);
    s.ours([=] { lumi(src.at(from).data(), src.step, dst.at(to).data(), dst.step, src.roi); });
    s.peer(opencv::move, src, dst, from, to, N);
    if constexpr (S == 4 && D == 3) {
      s.peer(opencv::dropAlpha, src, dst);
      s.peer(yuv::dropAlpha, src, dst);
    }
    s.peer(loop::move<S, D, N>(src.at(from), dst.at(to)));
  };
}

template <int C, typename T>
Suite::Build spread(Move<T> lumi) {
  return [=](Scene& s) {
    const auto src = s.input<T>(1);
    const auto dst = s.output<T>(C);
    s.ours([=] { lumi(src.data(), src.step, dst.data(), dst.step, src.roi); });
    s.peer(opencv::spread, src, dst);
    s.peer(loop::spread<C>(src, dst));
  };
}

const Family family("copy_channels", [](Suite& suite) {
  suite.row("split 8u C3P3", kEverySize, split<3>(lumiCopy_8u_C3P3R));
  suite.row("split 8u C4P4", kUpToHd, split<4>(lumiCopy_8u_C4P4R));
  suite.row("split 16u C3P3", kCachedAndHd, split<3>(lumiCopy_16u_C3P3R));
  suite.row("split 16u C4P4", kCachedAndHd, split<4>(lumiCopy_16u_C4P4R));
  suite.row("split 32f C3P3", kCachedAndHd, split<3>(lumiCopy_32f_C3P3R));
  suite.row("split 32f C4P4", kCachedAndHd, split<4>(lumiCopy_32f_C4P4R));
  suite.row("split 8u C3P3 misaligned", kCachedAndHd, split<3>(lumiCopy_8u_C3P3R), Placement::misaligned);

  suite.row("merge 8u P3C3", kEverySize, merge<3>(lumiCopy_8u_P3C3R));
  suite.row("merge 8u P4C4", kUpToHd, merge<4>(lumiCopy_8u_P4C4R));
  suite.row("merge 16u P3C3", kCachedAndHd, merge<3>(lumiCopy_16u_P3C3R));
  suite.row("merge 16u P4C4", kCachedAndHd, merge<4>(lumiCopy_16u_P4C4R));
  suite.row("merge 32f P3C3", kCachedAndHd, merge<3>(lumiCopy_32f_P3C3R));
  suite.row("merge 32f P4C4", kCachedAndHd, merge<4>(lumiCopy_32f_P4C4R));

  suite.row("channel 8u C3C1", kUpToHd, move<3, 1, 1>(lumiCopy_8u_C3C1R, 1));
  suite.row("channel 16u C3C1", kCachedAndHd, move<3, 1, 1>(lumiCopy_16u_C3C1R, 1));
  suite.row("channel 32f C3C1", kCachedAndHd, move<3, 1, 1>(lumiCopy_32f_C3C1R, 1));
  suite.row("channel 8u C4C1", kUpToHd, move<4, 1, 1>(lumiCopy_8u_C4C1R, 1));
  suite.row("channel 8u C1C3", kUpToHd, move<1, 3, 1>(lumiCopy_8u_C1C3R, 0, 1));
  suite.row("channel 16u C1C3", kCachedAndHd, move<1, 3, 1>(lumiCopy_16u_C1C3R, 0, 1));
  suite.row("channel 32f C1C3", kCachedAndHd, move<1, 3, 1>(lumiCopy_32f_C1C3R, 0, 1));
  suite.row("channel 8u C1C4", kUpToHd, move<1, 4, 1>(lumiCopy_8u_C1C4R, 0, 1));
  suite.row("channel 8u C3C", kUpToHd, move<3, 3, 1>(lumiCopy_8u_C3CR, 1, 1));
  suite.row("channel 8u C4C", kCachedAndHd, move<4, 4, 1>(lumiCopy_8u_C4CR, 1, 1));
  suite.row("channel 32f C3C", kCachedAndHd, move<3, 3, 1>(lumiCopy_32f_C3CR, 1, 1));

  suite.row("colour 8u C3AC4", kUpToHd, move<3, 4, 3>(lumiCopy_8u_C3AC4R));
  suite.row("colour 16u C3AC4", kCachedAndHd, move<3, 4, 3>(lumiCopy_16u_C3AC4R));
  suite.row("colour 32f C3AC4", kCachedAndHd, move<3, 4, 3>(lumiCopy_32f_C3AC4R));
  suite.row("colour 8u AC4C3", kUpToHd, move<4, 3, 3>(lumiCopy_8u_AC4C3R));
  suite.row("colour 16u AC4C3", kCachedAndHd, move<4, 3, 3>(lumiCopy_16u_AC4C3R));
  suite.row("colour 32f AC4C3", kCachedAndHd, move<4, 3, 3>(lumiCopy_32f_AC4C3R));
  suite.row("colour 8u AC4", kUpToHd, move<4, 4, 3>(lumiCopy_8u_AC4R));
  suite.row("colour 16u AC4", kCachedAndHd, move<4, 4, 3>(lumiCopy_16u_AC4R));

  suite.row("spread 8u C1C3", kUpToHd, spread<3>(lumiDup_8u_C1C3R));
  suite.row("spread 8u C1C4", kUpToHd, spread<4>(lumiDup_8u_C1C4R));
});

}  // namespace
}  // namespace bench
