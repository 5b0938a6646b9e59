// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "bench/peers/opencv.hpp"
#include "lumi/window.h"

namespace bench {
namespace {

template <typename T>
using Operation = LumStatus (*)(const T*, int, T*, int, LumiSize);

std::vector<float> triangle(int n) {
  std::vector<float> table(static_cast<std::size_t>(n));
  const auto last = static_cast<float>(n - 1);
  for (int i = 0; i < n; ++i) {
    const float part = 2 * static_cast<float>(i) / last;
    table[static_cast<std::size_t>(i)] = 2 * i <= n - 1 ? part : 2 - part;
  }
  return table;
}
std::vector<float> raisedCosine(int n) {
  std::vector<float> table(static_cast<std::size_t>(n));
  const double step = 6.283185307179586 / (n - 1);
  for (int i = 0; i < n; ++i)
    table[static_cast<std::size_t>(i)] = static_cast<float>(0.54 - 0.46 * std::cos(step * i));
  return table;
}

template <typename T>
T stored(float x) {
  if constexpr (std::is_floating_point_v<T>)
    return x;
  else
    return static_cast<T>(std::min(std::nearbyint(x), float{std::numeric_limits<T>::max()}));
}

template <typename T, typename Table>
Peer separableLoop(Image<T> src, Image<T> dst, Table table) {
  return peer("loop", [=] {
    const std::vector<float> columns = table(dst.roi.width), rows = table(dst.roi.height);
    for (int y = 0; y < dst.roi.height; ++y) {
      const T* __restrict s = src.row(y);
      const float* __restrict w = columns.data();
      T* __restrict d = dst.row(y);
      const float row = rows[static_cast<std::size_t>(y)];
      for (int x = 0; x < dst.roi.width; ++x) d[x] = stored<T>(static_cast<float>(s[x]) * w[x] * row);
    }
  });
}

// The radial window's formula; its upper rows' factors serve the lower ones.
template <typename T, typename Factor>
Peer radialLoop(Image<T> src, Image<T> dst, Factor factor) {
  return peer("loop", [=] {
    const LumiSize roi = dst.roi;
    const float half = static_cast<float>(roi.width) / 2, halfHeight = static_cast<float>(roi.height) / 2;
    const float q = half / halfHeight;
    for (int y = 0; y < roi.height; ++y) {
      const T* __restrict s = src.row(y);
      T* __restrict d = dst.row(y);
      const float dy = halfHeight - static_cast<float>(std::min(y, roi.height - 1 - y));
      for (int x = 0; x < roi.width; ++x) {
        const float dx = half - static_cast<float>(x), t = half - std::sqrt(dx * dx + q * q * dy * dy);
        d[x] = stored<T>(static_cast<float>(s[x]) * (t > 0 ? factor(t, static_cast<float>(roi.width)) : 0));
      }
    }
  });
}

const auto cone = [](float t, float width) { return t * (2 / width); };
const auto raised = [](float t, float width) { return 0.54F - 0.46F * std::cos(t * (6.28318531F / width)); };

template <typename T, typename Loop>
Suite::Build window(Operation<T> lumi, Loop loop, const char* differs, bool withOpenCv) {
  return [=](Scene& s) {
    const auto src = s.input<T>(1), dst = s.output<T>(1);
    s.ours([=] { lumi(src.data(), src.step, dst.data(), dst.step, dst.roi); });
    if (withOpenCv) s.peer(opencv::window, src, dst);
    Peer peer = loop(src, dst);
    peer.differs = differs;
    s.peer(peer);
  };
}

const auto triangles = [](auto src, auto dst) { return separableLoop(src, dst, triangle); };
const auto raisedCosines = [](auto src, auto dst) { return separableLoop(src, dst, raisedCosine); };
const auto cones = [](auto src, auto dst) { return radialLoop(src, dst, cone); };
const auto raisedRadials = [](auto src, auto dst) { return radialLoop(src, dst, raised); };

const Family family("window", [](Suite& suite) {
  constexpr const char *kTables = "makes tables in other steps",
                       *kEnds = "has no rows of their own at the ends";
  const auto hamming = window<Lum32f>(lumiWinHammingSep_32f_C1R, raisedCosines, kTables, true);
  const auto radial = window<Lum32f>(lumiWinHamming_32f_C1R, raisedRadials, kEnds, true);
  suite.row("hamming rows and columns 32f", kEverySize, hamming);
  suite.row("hamming rows and columns 32f padded", kUpToHd, hamming, Placement::padded);
  suite.row("hamming rows and columns 8u", kUpToHd,
            window<Lum8u>(lumiWinHammingSep_8u_C1R, raisedCosines, kTables, true));
  suite.row("bartlett rows and columns 32f", kUpToHd,
            window<Lum32f>(lumiWinBartlettSep_32f_C1R, triangles, "", false));
  suite.row("bartlett rows and columns 8u", kUpToHd,
            window<Lum8u>(lumiWinBartlettSep_8u_C1R, triangles, "", false));
  suite.row("bartlett rows and columns 16u", kUpToHd,
            window<Lum16u>(lumiWinBartlettSep_16u_C1R, triangles, "", false));
  suite.row("hamming radial 32f", kUpToHd, radial);
  suite.row("hamming radial 32f padded", kUpToHd, radial, Placement::padded);
  suite.row("hamming radial 8u", kUpToHd, window<Lum8u>(lumiWinHamming_8u_C1R, raisedRadials, kEnds, true));
  suite.row("bartlett radial 32f", kUpToHd, window<Lum32f>(lumiWinBartlett_32f_C1R, cones, kEnds, false));
  suite.row("bartlett radial 16u", kUpToHd, window<Lum16u>(lumiWinBartlett_16u_C1R, cones, kEnds, false));
});

}  // namespace
}  // namespace bench
