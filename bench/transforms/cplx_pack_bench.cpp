// SPDX-License-Identifier: MIT
#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"

namespace bench {
namespace {

template <typename Complex, typename T>
using ToPack = LumStatus (*)(const Complex*, int, LumiSize, T*, int);
template <typename T, typename Complex>
using FromPack = LumStatus (*)(const T*, LumiSize, int, Complex*, int);

template <int C, typename T>
Peer packLoop(Image<T> src, Image<T> dst) {
  return peer("loop", [=] {
    const int width = dst.roi.width, height = dst.roi.height;
    for (int y = 0; y < height; ++y) {
      const T* __restrict s = src.row(y);
      T* __restrict d = dst.row(y);
      for (int k = 1; k <= (width - 1) / 2; ++k)
        for (int c = 0; c < C; ++c) {
          d[(2 * k - 1) * C + c] = s[2 * (k * C + c)];
          d[2 * k * C + c] = s[2 * (k * C + c) + 1];
        }
    }
    const auto down = [&](int from, int to) {
      for (int c = 0; c < C; ++c) {
        dst.row(0)[to * C + c] = src.row(0)[2 * (from * C + c)];
        for (int j = 1; 2 * j < height; ++j) {
          dst.row(2 * j - 1)[to * C + c] = src.row(j)[2 * (from * C + c)];
          dst.row(2 * j)[to * C + c] = src.row(j)[2 * (from * C + c) + 1];
        }
        if (height % 2 == 0) dst.row(height - 1)[to * C + c] = src.row(height / 2)[2 * (from * C + c)];
      }
    };
    down(0, 0);
    if (width % 2 == 0) down(width / 2, width - 1);
  });
}

template <typename T>
Peer extendLoop(Image<T> src, Image<T> dst) {
  return peer("loop", [=] {
    const int width = dst.roi.width, height = dst.roi.height, pairs = (width - 1) / 2;
    for (int y = 0; y < height; ++y) {
      const T* __restrict s = src.row(y);
      T* __restrict d = dst.row(y);
      T* __restrict mirrored = dst.row(y == 0 ? 0 : height - y) + 2 * width;
      for (int i = 0; i < 2 * pairs; ++i) d[2 + i] = s[1 + i];
      for (int k = 1; k <= pairs; ++k) {
        mirrored[-2 * k] = s[2 * k - 1];
        mirrored[-2 * k + 1] = -s[2 * k];
      }
    }
    const auto down = [&](int from, int to) {
      const auto set = [&](int y, T real, T imaginary) {
        dst.row(y)[2 * to] = real;
        dst.row(y)[2 * to + 1] = imaginary;
      };
      set(0, src.row(0)[from], 0);
      for (int j = 1; 2 * j < height; ++j) {
        const T real = src.row(2 * j - 1)[from], imaginary = src.row(2 * j)[from];
        set(j, real, imaginary);
        set(height - j, real, -imaginary);
      }
      if (height % 2 == 0) set(height / 2, src.row(height - 1)[from], 0);
    };
    down(0, 0);
    if (width % 2 == 0) down(width - 1, width / 2);
  });
}

template <int C, typename Complex, typename T>
Suite::Build packing(ToPack<Complex, T> lumi) {
  return [=](Scene& s) {
    const auto src = s.input<T>(2 * C), dst = s.output<T>(C);
    s.ours(
        [=] { lumi(reinterpret_cast<const Complex*>(src.data()), src.step, dst.roi, dst.data(), dst.step); });
    s.peer(packLoop<C>(src, dst));
  };
}

template <typename T, typename Complex>
Suite::Build extension(FromPack<T, Complex> lumi) {
  return [=](Scene& s) {
    const auto src = s.input<T>(1), dst = s.output<T>(2);
    s.ours([=] { lumi(src.data(), dst.roi, src.step, reinterpret_cast<Complex*>(dst.data()), dst.step); });
    s.peer(extendLoop(src, dst));
  };
}

const Family family("cplx_pack", [](Suite& suite) {
  suite.row("cplxExtendToPack 32fc32f C1", kUpToHd, packing<1>(lumiCplxExtendToPack_32fc32f_C1R));
  suite.row("cplxExtendToPack 32fc32f C3", kUpToHd, packing<3>(lumiCplxExtendToPack_32fc32f_C3R));
  suite.row("cplxExtendToPack 16sc16s C1", kUpToHd, packing<1>(lumiCplxExtendToPack_16sc16s_C1R));
  suite.row("cplxExtendToPack 16sc16s C3", kUpToHd, packing<3>(lumiCplxExtendToPack_16sc16s_C3R));
  suite.row("packToCplxExtend 32f32fc C1", kUpToHd, extension(lumiPackToCplxExtend_32f32fc_C1R));
  suite.row("packToCplxExtend 32s32sc C1", kUpToHd, extension(lumiPackToCplxExtend_32s32sc_C1R));
});

}  // namespace
}  // namespace bench
