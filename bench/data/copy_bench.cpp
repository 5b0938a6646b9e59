// SPDX-License-Identifier: MIT
#include "bench/harness.hpp"
#include "bench/peers/libc.hpp"
#include "bench/peers/loop.hpp"
#include "bench/peers/opencv.hpp"
#include "bench/peers/yuv.hpp"

namespace bench {
namespace {

template <typename T, typename... Rest>
using Copy = LumStatus (*)(const T*, int, T*, int, LumiSize, Rest...);

template <int C, typename T, typename... Rest>
Suite::Build copy(Copy<T, Rest...> lumi, Rest... rest) {
  return [=](Scene& s) {
    const auto src = s.input<T>(C);
    const auto dst = s.output<T>(C);
    s.ours([=] { lumi(src.data(), src.step, dst.data(), dst.step, src.roi, rest...); });
    s.peer(libc::copy, src, dst);
    s.peer(opencv::copy, src, dst);
    s.peer(yuv::copy, src, dst);
    s.peer(loop::move<C, C, C>(src, dst));
  };
}

template <int C, typename T>
Suite::Build copyMasked(Copy<T, const Lum8u*, int> lumi, MaskKind kind = MaskKind::random) {
  return [=](Scene& s) {
    const auto src = s.input<T>(C);
    const auto mask = s.mask(kind);
    const auto dst = s.output<T>(C);
    s.ours([=] { lumi(src.data(), src.step, dst.data(), dst.step, src.roi, mask.data(), mask.step); });
    s.peer(opencv::copyMasked, src, dst, mask);
    s.peer(loop::copyMasked<C>(src, dst, mask));
  };
}

const Family family("copy", [](Suite& suite) {
  suite.row("copy 8u C1", kEverySize, copy<1>(lumiCopy_8u_C1R));
  suite.row("copy 16s C1", kUpToHd, copy<1>(lumiCopy_16s_C1R));
  suite.row("copy 32f C1", kEverySize, copy<1>(lumiCopy_32f_C1R));
  suite.row("copy 8u C3", kEverySize, copy<3>(lumiCopy_8u_C3R));
  suite.row("copy 8u C1 padded", kCachedAndHd, copy<1>(lumiCopy_8u_C1R), Placement::padded);
  suite.row("copy 8u C1 misaligned", kUpToHd, copy<1>(lumiCopy_8u_C1R), Placement::misaligned);
  for (int flags = 0; flags < 4; ++flags) {
    suite.row("copy managed 8u C1 flags " + std::to_string(flags), {kCached, kHd, k8K},
              copy<1>(lumiCopyManaged_8u_C1R, flags));
  }

  suite.row("copy masked 8u C1", kEverySize, copyMasked<1>(lumiCopy_8u_C1MR));
  suite.row("copy masked 8u C3", kEverySize, copyMasked<3>(lumiCopy_8u_C3MR));
  suite.row("copy masked 8u C4", kUpToHd, copyMasked<4>(lumiCopy_8u_C4MR));
  suite.row("copy masked 16s C1", kUpToHd, copyMasked<1>(lumiCopy_16s_C1MR));
  suite.row("copy masked 32f C1", kUpToHd, copyMasked<1>(lumiCopy_32f_C1MR));
  suite.row("copy masked 32f C3", kUpToHd, copyMasked<3>(lumiCopy_32f_C3MR));
  suite.row("copy masked 8u C1 blobs", kCachedAndHd, copyMasked<1>(lumiCopy_8u_C1MR, MaskKind::blobs));
  suite.row("copy masked 8u C3 blobs", kCachedAndHd, copyMasked<3>(lumiCopy_8u_C3MR, MaskKind::blobs));
});

}  // namespace
}  // namespace bench
