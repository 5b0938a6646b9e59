// SPDX-License-Identifier: MIT
#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "lumi/ssim.h"

namespace bench {
namespace {

constexpr float kC1 = 6.5025f, kC2 = 58.5225f;

template <typename Real>
Peer loopSsim(Image<Lum32f> a, Image<Lum32f> b, Image<Lum32f> aa, Image<Lum32f> bb, Image<Lum32f> ab,
              Image<Lum32f> dst) {
  return loop::rows(dst.roi, [=](int y, int width) {
    const float *pa = a.row(y), *pb = b.row(y), *paa = aa.row(y), *pbb = bb.row(y), *pab = ab.row(y);
    float* __restrict d = dst.row(y);
    for (int x = 0; x < width; ++x) {
      const Real t = Real{2} * Real{pa[x]} * Real{pb[x]},
                 s = Real{pa[x]} * Real{pa[x]} + Real{pb[x]} * Real{pb[x]};
      const Real above = (t + Real{kC1}) * (Real{2} * Real{pab[x]} - t + Real{kC2});
      d[x] = static_cast<float>(above / ((s + Real{kC1}) * (Real{paa[x]} + Real{pbb[x]} - s + Real{kC2})));
    }
  });
}

template <typename Real>
void ssim(Scene& s) {
  const auto a = s.input<Lum32f>(1), b = s.input<Lum32f>(1), aa = s.input<Lum32f>(1), bb = s.input<Lum32f>(1),
             ab = s.input<Lum32f>(1), dst = s.output<Lum32f>(1);
  constexpr int hint = sizeof(Real) == sizeof(double) ? 2 : 1;
  s.ours([=] {
    lumiSSIM_32f_C1R(a.data(), a.step, b.data(), b.step, aa.data(), aa.step, bb.data(), bb.step, ab.data(),
                     ab.step, dst.data(), dst.step, dst.roi, kC1, kC2, hint);
  });
  s.peer(loopSsim<Real>(a, b, aa, bb, ab, dst));
}

const Family family("ssim", [](Suite& suite) {
  suite.row("ssim 32f", kUpToHd, ssim<float>);
  suite.row("ssim 32f in doubles", kUpToHd, ssim<double>);
});

}  // namespace
}  // namespace bench
