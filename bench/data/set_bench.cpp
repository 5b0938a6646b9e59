// SPDX-License-Identifier: MIT
#include "bench/harness.hpp"
#include "bench/peers/libc.hpp"
#include "bench/peers/loop.hpp"
#include "bench/peers/opencv.hpp"
#include "bench/peers/pixel.hpp"
#include "bench/peers/pixman.hpp"
#include "bench/peers/yuv.hpp"

namespace bench {
namespace {

const Value kValue{77, 100, 200, 15};

template <typename T, typename... Rest>
using SetPixel = LumStatus (*)(const T*, T*, int, LumiSize, Rest...);
template <typename T, typename... Rest>
using SetSample = LumStatus (*)(T, T*, int, LumiSize, Rest...);

// One form for all members: those with one channel take the sample itself.
template <typename T, typename... Rest>
auto byPixel(SetPixel<T, Rest...> lumi) {
  return lumi;
}
template <typename T, typename... Rest>
auto byPixel(SetSample<T, Rest...> lumi) {
  return [lumi](const T* value, T* dst, int step, LumiSize roi, Rest... rest) {
    return lumi(value[0], dst, step, roi, rest...);
  };
}

template <typename T>
std::array<T, 4> samples() {
  std::array<T, 4> pixel;
  storeSamples<T>(pixel.data(), kValue, 4);
  return pixel;
}

template <typename T, int C, typename Lumi>
Suite::Build fill(Lumi lumi) {
  return [=](Scene& s) {
    const auto dst = s.output<T>(C);
    s.ours([=, v = samples<T>()] { byPixel<T>(lumi)(v.data(), dst.data(), dst.step, dst.roi); });
    s.peer(libc::fill, dst, kValue);
    s.peer(opencv::fill, dst, kValue);
    s.peer(yuv::fill, dst, kValue);
    s.peer(pixman::fill, dst, kValue);
    s.peer(loop::fill<C>(dst, kValue));
  };
}

template <typename T, int C>
Suite::Build fillChannel(SetSample<T> lumi) {
  return [=](Scene& s) {
    const auto dst = s.output<T>(C);
    s.ours([=] { lumi(77, dst.at(1).data(), dst.step, dst.roi); });
    s.peer(loop::fillChannel<C>(dst.at(1), T{77}));
  };
}

template <typename T, int C, typename Lumi>
Suite::Build fillMasked(Lumi lumi, MaskKind kind = MaskKind::random) {
  return [=](Scene& s) {
    const auto mask = s.mask(kind);
    const auto dst = s.output<T>(C);
    s.ours([=, v = samples<T>()] {
      byPixel<T, const Lum8u*, int>(lumi)(v.data(), dst.data(), dst.step, dst.roi, mask.data(), mask.step);
    });
    s.peer(opencv::fillMasked, dst, kValue, mask);
    s.peer(loop::fillMasked<C>(dst, kValue, mask));
  };
}

const Family family("set", [](Suite& suite) {
  suite.row("fill 8u C1", kEverySize, fill<Lum8u, 1>(lumiSet_8u_C1R));
  suite.row("fill 16s C1", kUpToHd, fill<Lum16s, 1>(lumiSet_16s_C1R));
  suite.row("fill 32f C1", kEverySize, fill<Lum32f, 1>(lumiSet_32f_C1R));
  suite.row("fill 8u C3", kEverySize, fill<Lum8u, 3>(lumiSet_8u_C3R));
  suite.row("fill 8u C4", kEverySize, fill<Lum8u, 4>(lumiSet_8u_C4R));
  suite.row("fill 32f C3", kUpToHd, fill<Lum32f, 3>(lumiSet_32f_C3R));
  suite.row("fill 8u C1 padded", kCachedAndHd, fill<Lum8u, 1>(lumiSet_8u_C1R), Placement::padded);
  suite.row("fill 8u C3 misaligned", kCachedAndHd, fill<Lum8u, 3>(lumiSet_8u_C3R), Placement::misaligned);

  suite.row("fill 8u C3C", kUpToHd, fillChannel<Lum8u, 3>(lumiSet_8u_C3CR));
  suite.row("fill 8u C4C", kCachedAndHd, fillChannel<Lum8u, 4>(lumiSet_8u_C4CR));

  suite.row("fill masked 8u C1", kEverySize, fillMasked<Lum8u, 1>(lumiSet_8u_C1MR));
  suite.row("fill masked 8u C3", kUpToHd, fillMasked<Lum8u, 3>(lumiSet_8u_C3MR));
  suite.row("fill masked 32f C1", kUpToHd, fillMasked<Lum32f, 1>(lumiSet_32f_C1MR));
  suite.row("fill masked 8u C3 blobs", kCachedAndHd, fillMasked<Lum8u, 3>(lumiSet_8u_C3MR, MaskKind::blobs));
});

}  // namespace
}  // namespace bench
