// SPDX-License-Identifier: MIT
#include <array>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <vector>

#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "bench/peers/opencv.hpp"
#include "lumi/filter_bilateral.h"

namespace bench {
namespace {

constexpr float kValueVariance = 900, kPositionVariance = 9;

template <typename T>
using Run = LumStatus (*)(const T*, int, T*, int, LumiSize, LumiBorderType, const T*,
                          const LumiFilterBilateralBorderSpec*, Lum8u*);

// Samples of floats are of another range than bytes.
template <typename T, int channels>
Suite::Build withBorder(Run<T> run, int radius, float valueVariance) {
  return [=](Scene& scene) {
    const auto src = scene.input<T>(channels), dst = scene.output<T>(channels);
    constexpr LumiDataType type = sizeof(T) == 1 ? lumiData8u : lumiData32f;
    int specBytes = 0, bufferBytes = 0;
    lumiFilterBilateralBorderGetBufferSize(100, src.roi, radius, type, channels, 2, &specBytes, &bufferBytes);
    const auto memory = std::make_shared<std::vector<Lum8u>>(static_cast<size_t>(specBytes));
    const auto buffer = std::make_shared<std::vector<Lum8u>>(static_cast<size_t>(bufferBytes));
    auto* const spec = reinterpret_cast<LumiFilterBilateralBorderSpec*>(memory->data());
    lumiFilterBilateralBorderInit(100, src.roi, radius, type, channels, 2, valueVariance, kPositionVariance,
                                  spec);
    scene.ours([=, kept = memory] {
      run(src.data(), src.step, dst.data(), dst.step, dst.roi, lumiBorderReplicate, nullptr, spec,
          buffer->data());
    });
    scene.peer(opencv::bilateral, src, dst, radius, std::sqrt(static_cast<double>(valueVariance)),
               std::sqrt(static_cast<double>(kPositionVariance)));
  };
}

// By tables, as the operation has it.
Peer loopGrid(Image<Lum8u> around, Image<Lum8u> dst, int reach) {
  auto values = std::make_shared<std::array<float, 256>>();
  std::vector<float> positions;
  for (int i = 0; i < 256; ++i)
    (*values)[static_cast<size_t>(i)] = std::exp(-0.5F / kValueVariance * static_cast<float>(i * i));
  for (int i = 0; i <= reach; ++i)
    positions.push_back(std::exp(-0.5F / kPositionVariance * static_cast<float>(i * i)));
  Peer result = loop::rows(dst.roi, [=](int y, int width) {
    for (int x = 0; x < width; ++x) {
      float sum = 0, weights = 0;
      const int centre = around.row(y + reach)[x + reach];
      for (int dy = -reach; dy <= reach; ++dy)
        for (int dx = -reach; dx <= reach; ++dx) {
          const int sample = around.row(y + reach + dy)[x + reach + dx];
          const float weight = (*values)[static_cast<size_t>(std::abs(sample - centre))] *
                               positions[static_cast<size_t>(std::abs(dx))] *
                               positions[static_cast<size_t>(std::abs(dy))];
          sum += weight * static_cast<float>(sample);
          weights += weight;
        }
      dst.row(y)[x] = static_cast<Lum8u>(std::lrint(sum / weights));
    }
  });
  result.differs = "sums of floats in another order";
  return result;
}

Suite::Build grid(int reach) {
  return [=](Scene& scene) {
    const LumiSize roi = scene.roi(), mask = {2 * reach + 1, 2 * reach + 1};
    const auto src = scene.inputOf<Lum8u>(1, {roi.width + 2 * reach, roi.height + 2 * reach});
    const auto dst = scene.output<Lum8u>(1);
    int bytes = 0;
    lumiFilterBilateralGetBufSize_8u_C1R(100, roi, mask, &bytes);
    const auto memory = std::make_shared<std::vector<Lum8u>>(static_cast<size_t>(bytes));
    auto* const spec = reinterpret_cast<LumiFilterBilateralSpec*>(memory->data());
    lumiFilterBilateralInit_8u_C1R(100, mask, kValueVariance, kPositionVariance, 1, spec);
    scene.ours([=, kept = memory] {
      lumiFilterBilateral_8u_C1R(src.row(reach) + reach, src.step, dst.data(), dst.step, dst.roi, mask, spec);
    });
    scene.peer(loopGrid(src, dst, reach));
  };
}

const Family family("filter_bilateral", [](Suite& suite) {
  suite.row("bilateral 8u r3", kUpToHd,
            withBorder<Lum8u, 1>(lumiFilterBilateralBorder_8u_C1R, 3, kValueVariance));
  suite.row("bilateral 8u r1", kUpToHd,
            withBorder<Lum8u, 1>(lumiFilterBilateralBorder_8u_C1R, 1, kValueVariance));
  suite.row("bilateral 8u C3 r3", kUpToHd,
            withBorder<Lum8u, 3>(lumiFilterBilateralBorder_8u_C3R, 3, kValueVariance));
  suite.row("bilateral 32f r3", kUpToHd, withBorder<Lum32f, 1>(lumiFilterBilateralBorder_32f_C1R, 3, 0.02F));
  suite.row("bilateral 32f C3 r3", kCachedAndHd,
            withBorder<Lum32f, 3>(lumiFilterBilateralBorder_32f_C3R, 3, 0.02F));
  suite.row("bilateral grid 8u 5x5", kUpToHd, grid(2));
});

}  // namespace
}  // namespace bench
