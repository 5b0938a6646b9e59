// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>
#include <memory>
#include <type_traits>
#include <vector>

#include "bench/harness.hpp"
#include "bench/peers/opencv_hog.hpp"
#include "lumi/hog.h"

namespace bench {
namespace {

struct Work {
  LumiHOGConfig config;
  std::vector<Lum8u> spec, buffer;

  Work(LumiSize window, int stride, LumiSize roi)
      : config{0, 8, 16, stride, 9, 4, 0.2F, window.width, window.height} {
    int bytes = 0;
    lumiHOGGetSize(&config, &bytes);
    spec.resize(static_cast<std::size_t>(bytes));
    lumiHOGInit(&config, object());
    lumiHOGGetBufferSize(object(), roi, &bytes);
    buffer.resize(static_cast<std::size_t>(bytes));
  }
  LumiHOGSpec* object() { return reinterpret_cast<LumiHOGSpec*>(spec.data()); }
  int across() const { return (config.windowWidth - 16) / config.blockStride + 1; }
  int down() const { return (config.windowHeight - 16) / config.blockStride + 1; }
};

// The usual steps for one window of one channel: angles by the C library, votes, sums, norms.
template <typename T>
Peer loopHog(Image<T> src, Image<Lum32f> dst, std::shared_ptr<Work> work) {
  Peer result = peer("loop", [=, votes = std::vector<float>(), bins = std::vector<int>()]() mutable {
    const int width = src.roi.width, height = src.roi.height;
    votes.resize(2 * static_cast<std::size_t>(width * height));
    bins.resize(static_cast<std::size_t>(width * height));
    for (int y = 0; y < height; ++y) {
      const T *s = src.row(y), *above = src.row(std::max(y - 1, 0)),
              *below = src.row(std::min(y + 1, height - 1));
      float* vote = votes.data() + 2 * y * width;
      int* bin = bins.data() + y * width;
      for (int x = 0; x < width; ++x) {
        const auto dx = static_cast<float>(s[std::min(x + 1, width - 1)] - s[std::max(x - 1, 0)]);
        const auto dy = static_cast<float>(below[x] - above[x]);
        const float angle = std::atan2(dy, dx) * (9 / 3.14159265F) - 0.5F, low = std::floor(angle);
        const float magnitude = std::sqrt(dx * dx + dy * dy);
        bin[x] = (static_cast<int>(low) + 18) % 9;
        vote[2 * x] = magnitude * (1 - (angle - low));
        vote[2 * x + 1] = magnitude * (angle - low);
      }
    }
    const auto* weights = reinterpret_cast<const float*>(work->spec.data() + 72);
    float* out = dst.data();
    const int stride = work->config.blockStride;
    for (int by = 0; by < work->down(); ++by)
      for (int bx = 0; bx < work->across(); ++bx, out += 36) {
        float h[36] = {};
        for (int y = 0; y < 16; ++y)
          for (int x = 0; x < 16; ++x) {
            const int at = (by * stride + y) * width + bx * stride + x,
                      low = bins[static_cast<std::size_t>(at)];
            const int high = low == 8 ? 0 : low + 1;
            for (int c = 0; c < 4; ++c) {
              const float weight = weights[(y * 16 + x) * 4 + c];
              h[low * 4 + c] += weight * votes[static_cast<std::size_t>(2 * at)];
              h[high * 4 + c] += weight * votes[static_cast<std::size_t>(2 * at + 1)];
            }
          }
        for (int round = 0; round < 2; ++round) {
          float sum = 1.1920929e-7F;
          for (const float x : h) sum += x * x;
          const float scale = 1 / std::sqrt(sum);
          for (float& x : h) x = round == 0 ? std::min(x * scale, 0.2F) : x * scale;
        }
        for (int c = 0; c < 4; ++c)
          for (int b = 0; b < 9; ++b) out[c * 9 + b] = h[b * 4 + c];
      }
  });
  result.differs = "takes exact angles";
  return result;
}

// One window as large as the image, blocks every `stride` pixels.
template <typename T, typename Value>
Suite::Build windows(LumStatus (*run)(const T*, int, LumiSize, const LumiPoint*, int, Lum32f*,
                                      const LumiHOGSpec*, LumiBorderType, Value, Lum8u*),
                     int stride) {
  constexpr int channels = std::is_pointer_v<Value> ? 3 : 1;
  return [=](Scene& s) {
    const LumiSize roi = s.roi();
    const auto grid = [&](int side) { return (side - 16) / stride * stride + 16; };
    auto work = std::make_shared<Work>(LumiSize{grid(roi.width), grid(roi.height)}, stride, roi);
    const auto src = s.input<T>(channels);
    const auto dst = s.outputOf<Lum32f>(1, {36 * work->across() * work->down(), 1});
    s.ours([=] {
      const T zeros[3] = {};
      Value value{};
      if constexpr (channels == 3) value = zeros;
      run(src.data(), src.step, src.roi, nullptr, 1, dst.data(), work->object(), lumiBorderReplicate, value,
          work->buffer.data());
    });
    if constexpr (sizeof(T) == 1) {
      const LumiSize window{work->config.windowWidth, work->config.windowHeight};
      s.peer(opencv::hog, src, window, stride);
    }
    if (channels == 1) s.peer(loopHog(src, dst, work));
  };
}

const std::vector<LumiSize> kSizes = {kCall, kSmall, {64, 128}, kCached, {640, 480}, kHd};

const Family family("hog", [](Suite& suite) {
  suite.row("hog 8u", kSizes, windows(lumiHOG_8u32f_C1R, 8));
  suite.row("hog 8u cells", {{640, 480}, kHd}, windows(lumiHOG_8u32f_C1R, 16));
  suite.row("hog 8u C3", kSizes, windows(lumiHOG_8u32f_C3R, 8));
  suite.row("hog 16u", {kSmall, {640, 480}}, windows(lumiHOG_16u32f_C1R, 8));
  suite.row("hog 32f", {kSmall, {640, 480}}, windows(lumiHOG_32f_C1R, 8));
});

}  // namespace
}  // namespace bench
