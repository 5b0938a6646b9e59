// SPDX-License-Identifier: MIT
#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "lumi/quality_index.h"

namespace bench {
namespace {

template <typename T, int C>
float indexOf(Image<T> a, Image<T> b, int c) {
  const int width = a.roi.width, height = a.roi.height;
  double sum1 = 0, sum2 = 0;
  for (int y = 0; y < height; ++y) {
    const T *p = a.row(y) + c, *q = b.row(y) + c;
    for (int x = 0; x < width; ++x) {
      sum1 += p[x * C];
      sum2 += q[x * C];
    }
  }
  const double n = double{1} * width * height, m1 = sum1 / n, m2 = sum2 / n;
  const auto f1 = static_cast<float>(m1), f2 = static_cast<float>(m2);
  float covariance = 0, v1 = 0, v2 = 0;
  for (int y = 0; y < height; ++y) {
    const T *p = a.row(y) + c, *q = b.row(y) + c;
    for (int x = 0; x < width; ++x) {
      const float d1 = static_cast<float>(p[x * C]) - f1, d2 = static_cast<float>(q[x * C]) - f2;
      covariance += d1 * d2;
      v1 += d1 * d1;
      v2 += d2 * d2;
    }
  }
  return static_cast<float>(4 * covariance * m1 * m2 / (double{v1 + v2} * (m1 * m1 + m2 * m2)));
}

template <typename T, int C>
Suite::Build quality(LumStatus (*lumi)(const T*, int, const T*, int, LumiSize, Lum32f*)) {
  return [=](Scene& s) {
    const auto a = s.input<T>(C), b = s.input<T>(C);
    const auto index = s.outputOf<Lum32f>(C, {1, 1});
    s.ours([=] { lumi(a.data(), a.step, b.data(), b.step, a.roi, index.data()); });
    Peer loop = peer("loop", [=] {
      for (int c = 0; c < C; ++c) index.data()[c] = indexOf<T, C>(a, b, c);
    });
    loop.differs = "adds up in another order";
    s.peer(loop);
  };
}

const Family family("quality_index", [](Suite& suite) {
  suite.row("quality index 8u C1", kUpToHd, quality<Lum8u, 1>(lumiQualityIndex_8u32f_C1R));
  suite.row("quality index 8u C3", kUpToHd, quality<Lum8u, 3>(lumiQualityIndex_8u32f_C3R));
  suite.row("quality index 32f C1", kUpToHd, quality<Lum32f, 1>(lumiQualityIndex_32f_C1R));
});

}  // namespace
}  // namespace bench
