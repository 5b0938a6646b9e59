// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>
#include <memory>
#include <type_traits>
#include <vector>

#include "bench/harness.hpp"
#include "bench/peers/opencv.hpp"
#include "lumi/filter_sobel.h"
#include "lumi/gradient_vector.h"

namespace bench {
namespace {

template <typename T>
constexpr LumiDataType kType = std::is_same_v<T, Lum8u>    ? lumiData8u
                               : std::is_same_v<T, Lum16u> ? lumiData16u
                               : std::is_same_v<T, Lum16s> ? lumiData16s
                                                           : lumiData32f;

using Buffer = std::shared_ptr<std::vector<Lum8u>>;

template <typename T>
Buffer bufferFor(LumiSize roi, int mask, int channels) {
  int bytes = 0;
  lumiGradientVectorGetBufferSize(roi, mask, kType<T>, channels, &bytes);
  return std::make_shared<std::vector<Lum8u>>(static_cast<std::size_t>(bytes));
}

// 3 x 3, the nearest pixel repeated; out takes both gradients at a place.
template <typename T, typename Out>
void loopSobel(Image<T> src, Out out) {
  using Sum = std::conditional_t<std::is_same_v<T, Lum8u>, int, float>;
  const int width = src.roi.width, height = src.roi.height;
  for (int y = 0; y < height; ++y) {
    const T* __restrict a = src.row(std::max(y - 1, 0));
    const T* __restrict b = src.row(y);
    const T* __restrict c = src.row(std::min(y + 1, height - 1));
    const auto at = [&](int left, int x, int right) {
      const auto smooth = [&](int i) { return static_cast<Sum>((a[i] + c[i]) + 2 * b[i]); };
      const auto rise = [&](int i) { return static_cast<Sum>(c[i] - a[i]); };
      out(x, y, smooth(left) - smooth(right), (rise(left) + rise(right)) + 2 * rise(x));
    };
    at(0, 0, std::min(1, width - 1));
    for (int x = 1; x < width - 1; ++x) at(x - 1, x, x + 1);
    if (width > 1) at(width - 2, width - 1, width - 1);
  }
}

template <typename T, typename D>
Peer loopMagnitude(Image<T> src, Image<D> dst, bool isRoot) {
  return peer("loop", [=] {
    if (isRoot)
      loopSobel(src, [&](int x, int y, auto gx, auto gy) {
        const float root = std::sqrt(static_cast<float>(gx * gx + gy * gy));
        dst.row(y)[x] = static_cast<D>(std::is_same_v<D, Lum16s> ? std::nearbyintf(root) : root);
      });
    else
      loopSobel(src, [&](int x, int y, auto gx, auto gy) {
        dst.row(y)[x] = static_cast<D>(std::abs(gx) + std::abs(gy));
      });
  });
}

template <typename T, typename D>
Suite::Build magnitudes(LumStatus (*run)(const T*, int, D*, int, LumiSize, LumiMaskSize, int, LumiBorderType,
                                         T, Lum8u*),
                        int mask, int norm) {
  return [=](Scene& s) {
    const auto src = s.input<T>(1);
    const auto dst = s.output<D>(1);
    const Buffer buffer = bufferFor<T>(s.roi(), mask, 1);
    s.ours([=] {
      run(src.data(), src.step, dst.data(), dst.step, src.roi, mask, norm, lumiBorderReplicate, T{},
          buffer->data());
    });
    if (!std::is_same_v<T, Lum16u>)
      s.peer(opencv::sobelMagnitude, View(src), View(dst), mask % 10, norm == 4);
    if (mask == 33) s.peer(loopMagnitude(src, dst, norm == 4));
  };
}

// Both gradients.
template <typename T, typename D, typename Value>
Suite::Build vectors(LumStatus (*run)(const T*, int, D*, int, D*, int, D*, int, Lum32f*, int, LumiSize,
                                      LumiMaskSize, int, LumiBorderType, Value, Lum8u*),
                     int mask, bool isAll = false) {
  return [=](Scene& s) {
    constexpr int channels = std::is_pointer_v<Value> ? 3 : 1;
    const auto src = s.input<T>(channels);
    const auto gx = s.output<D>(1), gy = s.output<D>(1);
    const auto magnitude = isAll ? s.output<D>(1) : Image<D>{};
    const auto angle = isAll ? s.output<Lum32f>(1) : Image<Lum32f>{};
    const Buffer buffer = bufferFor<T>(s.roi(), mask, channels);
    s.ours([=] {
      const T zeros[3] = {};
      Value value{};
      if constexpr (channels == 3) value = zeros;
      run(src.data(), src.step, gx.data(), gx.step, gy.data(), gy.step, isAll ? magnitude.data() : nullptr,
          magnitude.step, isAll ? angle.data() : nullptr, angle.step, src.roi, mask, 4, lumiBorderReplicate,
          value, buffer->data());
    });
    if (channels == 3 || isAll) return;
    s.peer(opencv::sobel, View(src), View(gx), View(gy), mask % 10);
    if (mask == 33)
      s.peer(peer("loop", [=] {
        loopSobel(src, [&](int x, int y, auto dx, auto dy) {
          gx.row(y)[x] = static_cast<D>(dx);
          gy.row(y)[x] = static_cast<D>(dy);
        });
      }));
  };
}

const Family family("gradient_vector", [](Suite& suite) {
  suite.row("gradients 8u16s 3x3", kUpToHd, vectors(lumiGradientVectorSobel_8u16s_C1R, 33));
  suite.row("gradients 8u16s 5x5", kUpToHd, vectors(lumiGradientVectorSobel_8u16s_C1R, 55));
  suite.row("gradients 32f 3x3", kUpToHd, vectors(lumiGradientVectorSobel_32f_C1R, 33));
  suite.row("gradients 32f 5x5", kUpToHd, vectors(lumiGradientVectorSobel_32f_C1R, 55));
  suite.row("gradients 8u16s C3 3x3", kUpToHd, vectors(lumiGradientVectorSobel_8u16s_C3C1R, 33));
  suite.row("gradients and angle 8u16s 3x3", kUpToHd, vectors(lumiGradientVectorSobel_8u16s_C1R, 33, true));
  suite.row("gradients and angle 32f 3x3", kUpToHd, vectors(lumiGradientVectorSobel_32f_C1R, 33, true));
});

const Family sobel("gradient_vector", [](Suite& suite) {
  suite.row("sobel 8u16s 3x3 L1", kUpToHd, magnitudes(lumiFilterSobel_8u16s_C1R, 33, 2));
  suite.row("sobel 8u16s 3x3 L2", kUpToHd, magnitudes(lumiFilterSobel_8u16s_C1R, 33, 4));
  suite.row("sobel 8u16s 5x5 L2", kUpToHd, magnitudes(lumiFilterSobel_8u16s_C1R, 55, 4));
  suite.row("sobel 16s32f 3x3 L2", kCachedAndHd, magnitudes(lumiFilterSobel_16s32f_C1R, 33, 4));
  suite.row("sobel 32f 3x3 L2", kUpToHd, magnitudes(lumiFilterSobel_32f_C1R, 33, 4));
  suite.row("sobel 32f 5x5 L2", kCachedAndHd, magnitudes(lumiFilterSobel_32f_C1R, 55, 4));
});

}  // namespace
}  // namespace bench
