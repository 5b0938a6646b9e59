// SPDX-License-Identifier: MIT
#include <cstring>
#include <type_traits>

#include "bench/harness.hpp"
#include "bench/peers/opencv.hpp"
#include "lumi/sum.h"

namespace bench {
namespace {

// Doubles as bytes: images have no doubles.
Lum64f* doublesIn(const Image<Lum8u>& results) { return reinterpret_cast<Lum64f*>(results.bytes); }

// Sums of the first `used` channels, times a factor of the number of pixels.
template <int C, int used, typename T, typename Factor>
Peer loopOf(Image<T> src, Image<Lum8u> results, Factor factor) {
  return peer("loop", [=] {
    std::conditional_t<std::is_integral_v<T>, Lum64s, Lum64f> sums[C] = {};
    for (int y = 0; y < src.roi.height; ++y) {
      const T* s = src.row(y);
      for (int x = 0, width = src.roi.width; x < width; ++x)
        for (int c = 0; c < used; ++c) sums[c] += s[x * C + c];
    }
    for (int c = 0; c < used; ++c) doublesIn(results)[c] = factor(static_cast<Lum64f>(sums[c]), src.roi);
  });
}

// Integer sums are equal; floats are added up in another order, or precision.
template <typename T>
constexpr const char* kDifference = std::is_floating_point_v<T> ? "adds up in another order" : "";

template <typename T, int C, int used = C, typename Call, typename Factor>
Suite::Build reduction(Call call, Peer (*opencvPeer)(View, View), const char* difference, Factor factor) {
  return [=](Scene& s) {
    const auto src = s.input<T>(C);
    const auto results = s.outputOf<Lum8u>(1, {8 * used, 1});
    s.ours([=] { call(src.data(), src.step, src.roi, doublesIn(results)); });
    if (opencvPeer != nullptr && used == C) {
      Peer peer = opencvPeer(src, results);
      peer.differs = difference;
      s.peer(peer);
    }
    Peer loop = loopOf<C, used>(src, results, factor);
    loop.differs = kDifference<T>;
    s.peer(loop);
  };
}

template <typename T, int C, int used = C, typename Call>
Suite::Build sum(Call call) {
  return reduction<T, C, used>(call, opencv::sum, kDifference<T>,
                               [](Lum64f total, LumiSize) { return total; });
}

template <typename T, int C, typename Call>
Suite::Build mean(Call call) {
  const char* difference = C == 1 ? "multiplies by what is rounded" : kDifference<T>;
  return reduction<T, C>(call, opencv::mean, difference, [](Lum64f total, LumiSize roi) {
    return C == 1 ? total / (roi.width * roi.height) : total * (1.0 / (roi.width * roi.height));
  });
}

// The same with a hint.
template <typename Call>
auto with(int hint, Call call) {
  return [=](const Lum32f* src, int step, LumiSize roi, Lum64f* results) {
    call(src, step, roi, results, hint);
  };
}

const Family family("sum", [](Suite& suite) {
  suite.row("sum 8u C1", kEverySize, sum<Lum8u, 1>(lumiSum_8u_C1R));
  suite.row("sum 8u C1 misaligned", kUpToHd, sum<Lum8u, 1>(lumiSum_8u_C1R), Placement::misaligned);
  suite.row("sum 8u C3", kUpToHd, sum<Lum8u, 3>(lumiSum_8u_C3R));
  suite.row("sum 8u AC4", kUpToHd, sum<Lum8u, 4, 3>(lumiSum_8u_AC4R));
  suite.row("sum 16u C1", kUpToHd, sum<Lum16u, 1>(lumiSum_16u_C1R));
  suite.row("sum 16u C3", kUpToHd, sum<Lum16u, 3>(lumiSum_16u_C3R));
  suite.row("sum 16s C1", kUpToHd, sum<Lum16s, 1>(lumiSum_16s_C1R));
  suite.row("sum 16s C4", kUpToHd, sum<Lum16s, 4>(lumiSum_16s_C4R));
  suite.row("sum 32f C1", kUpToHd, sum<Lum32f, 1>(with(0, lumiSum_32f_C1R)));
  suite.row("sum 32f C1 in doubles", kUpToHd, sum<Lum32f, 1>(with(2, lumiSum_32f_C1R)));
  suite.row("sum 32f C3", kUpToHd, sum<Lum32f, 3>(with(0, lumiSum_32f_C3R)));
  suite.row("sum 32f C3 in doubles", kUpToHd, sum<Lum32f, 3>(with(2, lumiSum_32f_C3R)));
  suite.row("sum 32f C4 in doubles", kUpToHd, sum<Lum32f, 4>(with(0, lumiSum_32f_C4R)));
  suite.row("sum 32f AC4", kUpToHd, sum<Lum32f, 4, 3>(with(0, lumiSum_32f_AC4R)));
  suite.row("mean 8u C1", kUpToHd, mean<Lum8u, 1>(lumiMean_8u_C1R));
  suite.row("mean 8u C3", kUpToHd, mean<Lum8u, 3>(lumiMean_8u_C3R));
});

}  // namespace
}  // namespace bench
