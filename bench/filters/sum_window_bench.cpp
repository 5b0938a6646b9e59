// SPDX-License-Identifier: MIT
#include <vector>

#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"

namespace bench {
namespace {

template <typename T>
using Run = LumStatus (*)(const T*, int, Lum32f*, int, LumiSize, int, int);

// What a compiler makes of a running sum, and of adding up rows.
template <typename T>
Peer loopAlong(Image<T> src, Image<Lum32f> dst, int count) {
  return loop::rows(dst.roi, [=](int y, int width) {
    const T* __restrict s = src.row(y);
    Lum32f* __restrict d = dst.row(y);
    int sum = 0;
    for (int x = 0; x < count - 1; ++x) sum += s[x];
    for (int x = 0; x < width; ++x) {
      sum += s[x + count - 1];
      d[x] = static_cast<float>(sum);
      sum -= s[x];
    }
  });
}
template <typename T>
Peer loopDown(Image<T> src, Image<Lum32f> dst, int count) {
  return peer("loop", [=, columns = std::vector<int>()]() mutable {
    const int width = dst.roi.width;
    columns.assign(static_cast<size_t>(width), 0);
    int* __restrict sums = columns.data();
    for (int y = 0; y < count - 1; ++y)
      for (int x = 0; x < width; ++x) sums[x] += src.row(y)[x];
    for (int y = 0; y < dst.roi.height; ++y) {
      const T* __restrict in = src.row(y + count - 1);
      const T* __restrict out = src.row(y);
      Lum32f* __restrict d = dst.row(y);
      for (int x = 0; x < width; ++x) {
        const int sum = sums[x] + in[x];
        d[x] = static_cast<float>(sum);
        sums[x] = sum - out[x];
      }
    }
  });
}

template <typename T>
Suite::Build along(Run<T> run, int count) {
  return [=](Scene& scene) {
    const auto dst = scene.output<Lum32f>(1);
    const auto src = scene.inputOf<T>(1, {scene.roi().width + count - 1, scene.roi().height});
    scene.ours([=] { run(src.data(), src.step, dst.data(), dst.step, dst.roi, count, 0); });
    scene.peer(loopAlong(src, dst, count));
  };
}
template <typename T>
Suite::Build down(Run<T> run, int count) {
  return [=](Scene& scene) {
    const auto dst = scene.output<Lum32f>(1);
    const auto src = scene.inputOf<T>(1, {scene.roi().width, scene.roi().height + count - 1});
    scene.ours([=] { run(src.data(), src.step, dst.data(), dst.step, dst.roi, count, 0); });
    scene.peer(loopDown(src, dst, count));
  };
}

const Family family("sum_window", [](Suite& suite) {
  suite.row("sum window row 8u 15", kUpToHd, along(lumiSumWindowRow_8u32f_C1R, 15));
  suite.row("sum window row 16u 15", kUpToHd, along(lumiSumWindowRow_16u32f_C1R, 15));
  suite.row("sum window row 8u 301", kCachedAndHd, along(lumiSumWindowRow_8u32f_C1R, 301));
  suite.row("sum window column 8u 15", kUpToHd, down(lumiSumWindowColumn_8u32f_C1R, 15));
  suite.row("sum window column 16s 15", kUpToHd, down(lumiSumWindowColumn_16s32f_C1R, 15));
});

}  // namespace
}  // namespace bench
