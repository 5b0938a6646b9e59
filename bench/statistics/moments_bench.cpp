// SPDX-License-Identifier: MIT
#include <array>
#include <memory>

#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "bench/peers/opencv.hpp"
#include "lumi/moments.h"

namespace bench {
namespace {

using Memory = std::array<Lum64f, 50>;

// Row sums of sample * x^p, then those by y^q.
template <int C, typename T>
Peer loopMoments(Image<T> src, Image<Lum32f> total) {
  return peer("loop", [=] {
    double m[C][16] = {};
    for (int y = 0; y < src.roi.height; ++y) {
      const T* s = src.row(y);
      double rowSums[C][4] = {};
      for (int x = 0, width = src.roi.width; x < width; ++x)
        for (int c = 0; c < C; ++c) {
          const double i = s[x * C + c], ix = i * x, ixx = ix * x;
          rowSums[c][0] += i;
          rowSums[c][1] += ix;
          rowSums[c][2] += ixx;
          rowSums[c][3] += ixx * x;
        }
      double power = 1;
      for (int q = 0; q < 4; ++q, power *= y)
        for (int c = 0; c < C; ++c)
          for (int p = 0; p + q < 4; ++p) m[c][4 * q + p] += rowSums[c][p] * power;
    }
    *total.data() = static_cast<Lum32f>(m[0][0]);
    asm volatile("" : : "r"(&m) : "memory");
  });
}

template <int C, typename T>
Suite::Build row(LumStatus (*lumi)(const T*, int, LumiSize, LumiMomentState*)) {
  return [=](Scene& s) {
    const auto src = s.input<T>(C);
    const auto total = s.outputOf<Lum32f>(1, {1, 1});
    const auto memory = std::make_shared<Memory>();
    auto* const state = reinterpret_cast<LumiMomentState*>(memory->data());
    lumiMomentInit_64f(state, 0);
    s.ours([=] {
      lumi(src.data(), src.step, src.roi, state);
      *total.data() = static_cast<Lum32f>((*memory)[2]);
    });
    if (C == 1 && opencv::moments != nullptr) {
      Peer peer = opencv::moments(src, total);
      if (std::is_same_v<T, Lum32f>) peer.differs = "adds up in another order";
      s.peer(peer);
    }
    Peer loop = loopMoments<C>(src, total);
    if (std::is_same_v<T, Lum32f>) loop.differs = "adds up in another order";
    s.peer(loop);
  };
}

const Family family("moments", [](Suite& suite) {
  suite.row("moments 8u", kUpToHd, row<1>(lumiMoments64f_8u_C1R));
  suite.row("moments 8u C3", kUpToHd, row<3>(lumiMoments64f_8u_C3R));
  suite.row("moments 16u", kUpToHd, row<1>(lumiMoments64f_16u_C1R));
  suite.row("moments 32f", kUpToHd, row<1>(lumiMoments64f_32f_C1R));
});

}  // namespace
}  // namespace bench
