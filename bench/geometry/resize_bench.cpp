// SPDX-License-Identifier: MIT
#include <algorithm>
#include <memory>

#include "bench/harness.hpp"
#include "bench/peers/opencv.hpp"
#include "bench/peers/pixman.hpp"
#include "bench/peers/yuv.hpp"
#include "bench/peers/zimg.hpp"

namespace bench {
namespace {

// A plan and the scratch of a run over the whole destination. A plan must not be copied: calls share it.
struct Plan {
  std::vector<Lum8u> object, buffer;
  LumiResizeSpec* spec() { return reinterpret_cast<LumiResizeSpec*>(object.data()); }
};

template <typename T, bool linear>
std::shared_ptr<Plan> planOf(LumiSize src, LumiSize dst, int channels) {
  const auto plan = std::make_shared<Plan>();
  Lum32s bytes = 0, unused = 0;
  lumiResizeGetSize_8u(src, dst, linear ? lumInterpLinear : lumInterpNearest, 0, &bytes, &unused);
  plan->object.resize(static_cast<std::size_t>(bytes));
  if constexpr (!linear)
    lumiResizeNearestInit_8u(src, dst, plan->spec());
  else if constexpr (sizeof(T) == 1)
    lumiResizeLinearInit_8u(src, dst, plan->spec());
  else
    lumiResizeLinearInit_32f(src, dst, plan->spec());
  lumiResizeGetBufferSize_8u(plan->spec(), dst, static_cast<Lum32u>(channels), &bytes);
  plan->buffer.resize(static_cast<std::size_t>(bytes));
  return plan;
}

// The compiler's loop for a whole image, rows and columns found by tables made before; the edges' pixels are
// repeated, and rounding is to nearest.
template <typename T, int C>
Peer loopNearest(Image<T> src, Image<T> dst, std::vector<int> columns, std::vector<int> rowsOf) {
  return peer("loop", [=] {
    for (int y = 0; y < dst.roi.height; ++y) {
      const T* __restrict s = src.row(rowsOf[static_cast<std::size_t>(y)]);
      T* __restrict d = dst.row(y);
      const int* __restrict column = columns.data();
      for (int x = 0; x < dst.roi.width; ++x)
        for (int c = 0; c < C; ++c) d[x * C + c] = s[column[x] * C + c];
    }
  });
}

std::vector<int> nearestTable(int src, int dst) {
  std::vector<int> table;
  for (int i = 0; i < dst; ++i)
    table.push_back(static_cast<int>((i + 0.5) * (double{1} * src / dst) - 1e-10));
  return table;
}

struct Taps {
  std::vector<int> first;
  std::vector<float> weight;

  Taps(int src, int dst) {
    for (int i = 0; i < dst; ++i) {
      const double centre = std::clamp((i + 0.5) * src / dst - 0.5, 0.0, src - 1.0);
      first.push_back(std::min(static_cast<int>(centre), src - 2));
      weight.push_back(static_cast<float>(centre - first.back()));
    }
  }
};

template <typename T, int C>
Peer loopLinear(Image<T> src, Image<T> dst) {
  const Taps h(src.roi.width, dst.roi.width), v(src.roi.height, dst.roi.height);
  Peer result = peer("loop", [=] {
    for (int y = 0; y < dst.roi.height; ++y) {
      const T* __restrict s = src.row(v.first[static_cast<std::size_t>(y)]);
      const T* __restrict below = src.row(v.first[static_cast<std::size_t>(y)] + 1);
      T* __restrict d = dst.row(y);
      const float fy = v.weight[static_cast<std::size_t>(y)];
      const int* __restrict first = h.first.data();
      const float* __restrict weight = h.weight.data();
      for (int x = 0; x < dst.roi.width; ++x)
        for (int c = 0; c < C; ++c) {
          const int i = first[x] * C + c;
          const float upper = s[i] + (s[i + C] - s[i]) * weight[x];
          const float lower = below[i] + (below[i + C] - below[i]) * weight[x];
          const float value = upper + (lower - upper) * fy;
          d[x * C + c] = static_cast<T>(std::is_integral_v<T> ? value + 0.5F : value);
        }
    }
  });
  result.differs = "blends in floats throughout";
  return result;
}

template <typename T>
using Nearest = LumStatus (*)(const T*, int, T*, int, LumiPoint, LumiSize, const LumiResizeSpec*, Lum8u*);
template <typename T>
using Linear = LumStatus (*)(const T*, int, T*, int, LumiPoint, LumiSize, LumiBorderType, const T*,
                             const LumiResizeSpec*, Lum8u*);

// The row's own size is the destination's. The first two stay within the caches.
struct Sizes {
  LumiSize src, dst;
};
constexpr Sizes kSizes[] = {{{16, 16}, {24, 24}}, {{384, 96}, {256, 64}}, {kHd, {192, 108}},
                            {kHd, {960, 540}},    {kHd, {1280, 720}},     {kHd, {3840, 2160}}};

LumiSize sourceOf(LumiSize dst) {
  return std::find_if(std::begin(kSizes), std::end(kSizes),
                      [=](const Sizes& sizes) {
                        return sizes.dst.width == dst.width && sizes.dst.height == dst.height;
                      })
      ->src;
}

template <typename Resize>
void addPeer(Scene& s, Peer (*adapter)(View, View), const char* why, Resize src, Resize dst) {
  if (adapter == nullptr) return;
  Peer candidate = adapter(src, dst);
  candidate.differs = why;
  s.peer(std::move(candidate));
}

template <int C, typename T>
Suite::Build nearest(Nearest<T> lumi) {
  return [=](Scene& s) {
    const auto src = s.inputOf<T>(C, sourceOf(s.roi()));
    const auto dst = s.output<T>(C);
    s.ours([=, plan = planOf<T, false>(src.roi, dst.roi, C)] {
      lumi(src.data(), src.step, dst.data(), dst.step, {0, 0}, dst.roi, plan->spec(), plan->buffer.data());
    });
    constexpr const char* kWhy = "takes other pixels where two are equally near";
    addPeer(s, opencv::resizeNearest, kWhy, src, dst);
    addPeer(s, yuv::resizeNearest, kWhy, src, dst);
    addPeer(s, pixman::resizeNearest, kWhy, src, dst);
    addPeer(s, zimg::resizeNearest, kWhy, src, dst);
    s.peer(loopNearest<T, C>(src, dst, nearestTable(src.roi.width, dst.roi.width),
                             nearestTable(src.roi.height, dst.roi.height)));
  };
}

template <int C, typename T>
Suite::Build linear(Linear<T> lumi) {
  return [=](Scene& s) {
    const auto src = s.inputOf<T>(C, sourceOf(s.roi()));
    const auto dst = s.output<T>(C);
    s.ours([=, plan = planOf<T, true>(src.roi, dst.roi, C)] {
      lumi(src.data(), src.step, dst.data(), dst.step, {0, 0}, dst.roi, lumiBorderReplicate, nullptr,
           plan->spec(), plan->buffer.data());
    });
    constexpr const char* kSteps = "rounds in other steps";
    constexpr const char* kFewerBits = "has weights of fewer bits";
    const bool isSmaller = dst.roi.width < src.roi.width || dst.roi.height < src.roi.height;
    addPeer(s, opencv::resizeLinear, kSteps, src, dst);
    addPeer(s, yuv::resizeLinear, isSmaller ? kFewerBits : "lays the corner pixels on each other", src, dst);
    addPeer(s, pixman::resizeLinear, kFewerBits, src, dst);
    addPeer(s, zimg::resizeLinear, isSmaller ? "weighs more pixels where it shrinks" : kSteps, src, dst);
    s.peer(loopLinear<T, C>(src, dst));
  };
}

const Family family("resize", [](Suite& suite) {
  std::vector<LumiSize> sizes;
  for (const Sizes& each : kSizes) sizes.push_back(each.dst);
  suite.row("resize nearest 8u C1", sizes, nearest<1>(lumiResizeNearest_8u_C1R));
  suite.row("resize nearest 8u C3", sizes, nearest<3>(lumiResizeNearest_8u_C3R));
  suite.row("resize nearest 8u C4", sizes, nearest<4>(lumiResizeNearest_8u_C4R));
  suite.row("resize nearest 16u C1", sizes, nearest<1>(lumiResizeNearest_16u_C1R));
  suite.row("resize nearest 32f C1", sizes, nearest<1>(lumiResizeNearest_32f_C1R));
  suite.row("resize linear 8u C1", sizes, linear<1>(lumiResizeLinear_8u_C1R));
  suite.row("resize linear 8u C3", sizes, linear<3>(lumiResizeLinear_8u_C3R));
  suite.row("resize linear 8u C4", sizes, linear<4>(lumiResizeLinear_8u_C4R));
  suite.row("resize linear 16u C1", sizes, linear<1>(lumiResizeLinear_16u_C1R));
  suite.row("resize linear 32f C1", sizes, linear<1>(lumiResizeLinear_32f_C1R));
  suite.row("resize linear 32f C3", sizes, linear<3>(lumiResizeLinear_32f_C3R));
});

}  // namespace
}  // namespace bench
