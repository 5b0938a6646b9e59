// SPDX-License-Identifier: MIT
#include <algorithm>
#include <memory>
#include <vector>

#include "bench/harness.hpp"
#include "bench/peers/opencv.hpp"

namespace bench {
namespace {

constexpr float kDelta = 5;

std::shared_ptr<std::vector<Lum8u>> bufferFor(LumiSize roi, LumiSize mask) {
  int bytes = 0;
  lumiThresholdAdaptiveBoxGetBufferSize(roi, mask, lumiData8u, 1, &bytes);
  return std::make_shared<std::vector<Lum8u>>(static_cast<size_t>(bytes));
}

// Column sums, and their sum along the row; the nearest pixel outside.
Peer loopAdaptive(Image<Lum8u> src, Image<Lum8u> dst, int side) {
  return peer("loop", [=, columns = std::vector<int>()]() mutable {
    const int width = src.roi.width, height = src.roi.height, reach = side / 2;
    columns.assign(static_cast<size_t>(width), 0);
    int* __restrict sums = columns.data();
    const auto row = [&](int y) { return src.row(std::clamp(y, 0, height - 1)); };
    for (int y = -reach; y < reach; ++y)
      for (int x = 0; x < width; ++x) sums[x] += row(y)[x];
    const int area = side * side, limit = static_cast<int>(kDelta) * area;
    for (int y = 0; y < height; ++y) {
      const Lum8u* __restrict in = row(y + reach);
      for (int x = 0; x < width; ++x) sums[x] += in[x];
      const Lum8u* __restrict s = src.row(y);
      Lum8u* __restrict d = dst.row(y);
      int sum = 0;
      for (int x = -reach; x < reach; ++x) sum += sums[std::clamp(x, 0, width - 1)];
      for (int x = 0; x < width; ++x) {
        sum += sums[std::min(x + reach, width - 1)];
        d[x] = area * s[x] > sum - limit ? 200 : 0;
        sum -= sums[std::max(x - reach, 0)];
      }
      const Lum8u* __restrict out = row(y - reach);
      for (int x = 0; x < width; ++x) sums[x] -= out[x];
    }
  });
}

Suite::Build box(int side) {
  return [=](Scene& scene) {
    const auto src = scene.input<Lum8u>(1), dst = scene.output<Lum8u>(1);
    const LumiSize mask{side, side};
    const auto buffer = bufferFor(src.roi, mask);
    scene.ours([=] {
      lumiThresholdAdaptiveBox_8u_C1R(src.data(), src.step, dst.data(), dst.step, src.roi, mask, kDelta, 200,
                                      0, lumiBorderReplicate, 0, buffer->data());
    });
    scene.peer(opencv::adaptiveThreshold, src, dst, side, double{kDelta}, false);
    scene.peer(loopAdaptive(src, dst, side));
  };
}

Suite::Build gauss(int side) {
  return [=](Scene& scene) {
    const auto src = scene.input<Lum8u>(1), dst = scene.output<Lum8u>(1);
    const LumiSize mask{side, side};
    const auto buffer = bufferFor(src.roi, mask);
    const auto memory = std::make_shared<std::vector<Lum8u>>(static_cast<size_t>(side * 4 + 32));
    const auto spec = reinterpret_cast<LumiThresholdAdaptiveGaussSpec*>(memory->data());
    lumiThresholdAdaptiveGaussInit(src.roi, mask, lumiData8u, 1, 0, spec);
    scene.ours([=] {
      const auto* const object = reinterpret_cast<const LumiThresholdAdaptiveGaussSpec*>(memory->data());
      lumiThresholdAdaptiveGauss_8u_C1R(src.data(), src.step, dst.data(), dst.step, src.roi, kDelta, 200, 0,
                                        lumiBorderReplicate, 0, object, buffer->data());
    });
    scene.peer(opencv::adaptiveThreshold, src, dst, side, double{kDelta}, true);
  };
}

const Family family("threshold_adaptive", [](Suite& suite) {
  suite.row("adaptive box 8u 7x7", kEverySize, box(7));
  suite.row("adaptive box 8u 3x3", kUpToHd, box(3));
  suite.row("adaptive box 8u 31x31", kUpToHd, box(31));
  suite.row("adaptive gauss 8u 7x7", kUpToHd, gauss(7));
  suite.row("adaptive gauss 8u 15x15", kUpToHd, gauss(15));
});

}  // namespace
}  // namespace bench
