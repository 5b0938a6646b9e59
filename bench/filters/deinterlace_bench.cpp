// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "lumi/deinterlace.h"

namespace bench {
namespace {

Peer loopDeinterlace(Image<Lum8u> src, Image<Lum8u> dst, int threshold) {
  const int height = src.roi.height;
  return loop::rows(dst.roi, [=](int y, int width) {
    Lum8u* __restrict to = dst.row(y);
    if (y % 2 == 0) {
      std::memcpy(to, src.row(y), static_cast<size_t>(width));
      return;
    }
    const auto row = [=](int n) { return src.row(n < 0 ? n & 1 : n < height ? n : height - 2 + (n & 1)); };
    const Lum8u* __restrict e = row(y - 3), * __restrict a = row(y - 2), * __restrict u = row(y - 1), * __restrict c = row(y), * __restrict d = row(y + 1), * __restrict b = row(y + 2), * __restrict f = row(y + 3);
    for (int x = 0; x < width; ++x) {
      const int detail = 8 * c[x] - 4 * a[x] - 4 * b[x];
      const int line = (7 * (u[x] + d[x]) + detail + e[x] + f[x] + 8) >> 4;
      const int limited = std::min(std::max(line, std::min<int>(u[x], d[x])), std::max<int>(u[x], d[x]));
      const int chosen = std::abs(detail) < threshold ? limited : line;
      to[x] = static_cast<Lum8u>(std::min(std::max(chosen, 0), 255));
    }
  });
}

const Family family("deinterlace", [](Suite& suite) {
  suite.row("deinterlace 8u", kUpToHd, [](Scene& scene) {
    const auto src = scene.input<Lum8u>(1), dst = scene.output<Lum8u>(1);
    scene.ours(
        [=] { lumiDeinterlaceFilterCAVT_8u_C1R(src.data(), src.step, dst.data(), dst.step, 300, dst.roi); });
    scene.peer(loopDeinterlace(src, dst, 300));
  });
});

}  // namespace
}  // namespace bench
