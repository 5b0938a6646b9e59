// SPDX-License-Identifier: MIT
#include <memory>
#include <vector>

#include "bench/harness.hpp"
#include "bench/peers/opencv.hpp"
#include "lumi/wavelet.h"

namespace bench {
namespace {

// Filters of four and of eight taps, with the anchor in the middle.
using Taps = std::vector<float>;
const Taps kFour = {0.4829629131F, 0.8365163037F, 0.2241438680F, -0.1294095226F},
           kEight = {0.2303778133F,  0.7148465706F, 0.6308807679F, -0.0279837694F,
                     -0.1870348117F, 0.0308413818F, 0.0328830117F, -0.0105974018F};

Taps highPass(const Taps& low) {
  Taps high(low.rbegin(), low.rend());
  for (std::size_t k = 1; k < high.size(); k += 2) high[k] = -high[k];
  return high;
}

template <typename Spec>
struct Calls;
template <>
struct Calls<LumiWTFwdSpec_32f_C1R> {
  static constexpr int kChannels = 1;
  static constexpr auto init = lumiWTFwdInitAlloc_32f_C1R;
  static constexpr auto free = lumiWTFwdFree_32f_C1R;
  static constexpr auto size = lumiWTFwdGetBufSize_C1R;
  static constexpr auto run = lumiWTFwd_32f_C1R;
};
template <>
struct Calls<LumiWTFwdSpec_32f_C3R> {
  static constexpr int kChannels = 3;
  static constexpr auto init = lumiWTFwdInitAlloc_32f_C3R;
  static constexpr auto free = lumiWTFwdFree_32f_C3R;
  static constexpr auto size = lumiWTFwdGetBufSize_C3R;
  static constexpr auto run = lumiWTFwd_32f_C3R;
};
template <>
struct Calls<LumiWTInvSpec_32f_C1R> {
  static constexpr int kChannels = 1;
  static constexpr auto init = lumiWTInvInitAlloc_32f_C1R;
  static constexpr auto free = lumiWTInvFree_32f_C1R;
  static constexpr auto size = lumiWTInvGetBufSize_C1R;
  static constexpr auto run = lumiWTInv_32f_C1R;
};
template <>
struct Calls<LumiWTInvSpec_32f_C3R> {
  static constexpr int kChannels = 3;
  static constexpr auto init = lumiWTInvInitAlloc_32f_C3R;
  static constexpr auto free = lumiWTInvFree_32f_C3R;
  static constexpr auto size = lumiWTInvGetBufSize_C3R;
  static constexpr auto run = lumiWTInv_32f_C3R;
};

// The object and its scratch, for as long as a row lasts.
template <typename Spec>
struct Plan {
  std::shared_ptr<Spec> spec;
  std::shared_ptr<std::vector<Lum8u>> buffer;

  explicit Plan(const Taps& taps) {
    const Taps high = highPass(taps);
    const int length = static_cast<int>(taps.size());
    Spec* made = nullptr;
    Calls<Spec>::init(&made, taps.data(), length, length / 2, high.data(), length, length / 2);
    spec = std::shared_ptr<Spec>(made, Calls<Spec>::free);
    int bytes = 0;
    Calls<Spec>::size(made, &bytes);
    buffer = std::make_shared<std::vector<Lum8u>>(static_cast<std::size_t>(bytes));
  }
};

using Bands = std::vector<Image<Lum32f>>;

// Columns of each band's rows, then the rows themselves.
template <int C>
Peer loopSplit(Image<Lum32f> src, Bands bands, Taps low) {
  const LumiSize size = bands[0].roi;
  const int n = static_cast<int>(low.size()), reach = n - n / 2 - 1, pixels = 2 * size.width + n - 2;
  return peer("loop", [=, high = highPass(low), row = Taps(static_cast<std::size_t>(pixels * C))]() mutable {
    for (int y = 0; y < size.height; ++y) {
      for (int vertical = 0; vertical < 2; ++vertical) {
        const float* const taps = vertical == 0 ? low.data() : high.data();
        float* __restrict r = row.data();
        for (int k = 0; k < n; ++k) {
          const float* __restrict s = src.row(2 * y - reach + k) - reach * C;
          const float t = taps[k];
          if (k == 0)
            for (int i = 0; i < pixels * C; ++i) r[i] = t * s[i];
          else
            for (int i = 0; i < pixels * C; ++i) r[i] += t * s[i];
        }
        for (int along = 0; along < 2; ++along) {
          const float* const weights = along == 0 ? low.data() : high.data();
          float* __restrict d = bands[static_cast<std::size_t>(vertical + 2 * along)].row(y);
          for (int x = 0; x < size.width; ++x)
            for (int c = 0; c < C; ++c) {
              float sum = weights[0] * r[2 * x * C + c];
              for (int k = 1; k < n; ++k) sum += weights[k] * r[(2 * x + k) * C + c];
              d[x * C + c] = sum;
            }
        }
      }
    }
  });
}

// Pixels around an image that the filters reach.
constexpr int kAround = 8;

Image<Lum32f> inside(const Image<Lum32f>& image, LumiSize size) {
  Image<Lum32f> part = image;
  part.roi = size;
  part.bytes = image.bytes + kAround * image.step + kAround * image.pixelBytes();
  return part;
}
LumiSize grown(LumiSize size) { return {size.width + 2 * kAround, size.height + 2 * kAround}; }

template <typename Spec>
Suite::Build split(const Taps& taps) {
  return [=](Scene& s) {
    constexpr int C = Calls<Spec>::kChannels;
    const LumiSize roi = s.roi(), whole{2 * roi.width, 2 * roi.height};
    const auto src = inside(s.inputOf<Lum32f>(C, grown(whole)), whole);
    const Bands b{s.output<Lum32f>(C), s.output<Lum32f>(C), s.output<Lum32f>(C), s.output<Lum32f>(C)};
    const Plan<Spec> plan(taps);
    s.ours([=] {
      Calls<Spec>::run(src.data(), src.step, b[0].data(), b[0].step, b[1].data(), b[1].step, b[2].data(),
                       b[2].step, b[3].data(), b[3].step, roi, plan.spec.get(), plan.buffer->data());
    });
    s.peer(opencv::waveletBands, View(src), std::vector<View>(b.begin(), b.end()), taps, highPass(taps));
    s.peer(loopSplit<C>(src, b, taps));
  };
}

// Rows of the bands, then their columns, every other tap of each filter.
template <int C>
Peer loopJoin(Bands bands, Image<Lum32f> dst, Taps low) {
  const LumiSize size = bands[0].roi;
  const int n = static_cast<int>(low.size()), reach = n - n / 2 - 1, before = n / 4,
            pixels = size.width + n / 2;
  const auto floats = static_cast<std::size_t>(pixels * C);
  return peer("loop", [=, high = highPass(low), rows = std::vector<Taps>(2, Taps(floats))]() mutable {
    const float* const taps[] = {low.data(), high.data()};
    for (int y = 0; y < 2 * size.height; ++y) {
      for (int along = 0; along < 2; ++along) {
        float* __restrict r = rows[static_cast<std::size_t>(along)].data();
        for (int i = 0; i < pixels * C; ++i) r[i] = 0;
        for (int vertical = 0; vertical < 2; ++vertical)
          for (int k = (y + reach) % 2; k < n; k += 2) {
            const auto& band = bands[static_cast<std::size_t>(vertical + 2 * along)];
            const float* __restrict s = band.row((y + reach - k) / 2) - before * C;
            const float t = taps[vertical][k];
            for (int i = 0; i < pixels * C; ++i) r[i] += t * s[i];
          }
      }
      float* __restrict d = dst.row(y);
      const float *a = rows[0].data() + before * C, *b = rows[1].data() + before * C;
      for (int parity = 0; parity < 2; ++parity) {
        const int first = (reach + parity) % 2, start = (reach + parity) / 2;
        for (int x = 0; x < size.width; ++x)
          for (int c = 0; c < C; ++c) {
            float sum = 0;
            for (int k = first; k < n; k += 2) {
              const int at = (x + start - k / 2) * C + c;
              sum += low[static_cast<std::size_t>(k)] * a[at] + high[static_cast<std::size_t>(k)] * b[at];
            }
            d[(2 * x + parity) * C + c] = sum;
          }
      }
    }
  });
}

template <typename Spec>
Suite::Build join(const Taps& taps) {
  return [=](Scene& s) {
    constexpr int C = Calls<Spec>::kChannels;
    const LumiSize roi = s.roi(), whole{2 * roi.width, 2 * roi.height};
    Bands b;
    for (int i = 0; i < 4; ++i) b.push_back(inside(s.inputOf<Lum32f>(C, grown(roi)), roi));
    const auto dst = s.outputOf<Lum32f>(C, whole);
    const Plan<Spec> plan(taps);
    s.ours([=] {
      Calls<Spec>::run(b[0].data(), b[0].step, b[1].data(), b[1].step, b[2].data(), b[2].step, b[3].data(),
                       b[3].step, roi, dst.data(), dst.step, plan.spec.get(), plan.buffer->data());
    });
    Peer loop = loopJoin<C>(b, dst, taps);
    loop.differs = "adds up in another order";
    s.peer(loop);
  };
}

const Family family("wavelet", [](Suite& suite) {
  const std::vector<LumiSize> sizes{kCall, kSmall, kCached, {960, 540}};
  suite.row("wavelet 32f C1 forward 4 taps", sizes, split<LumiWTFwdSpec_32f_C1R>(kFour));
  suite.row("wavelet 32f C1 forward 8 taps", sizes, split<LumiWTFwdSpec_32f_C1R>(kEight));
  suite.row("wavelet 32f C3 forward 4 taps", sizes, split<LumiWTFwdSpec_32f_C3R>(kFour));
  suite.row("wavelet 32f C1 inverse 4 taps", sizes, join<LumiWTInvSpec_32f_C1R>(kFour));
  suite.row("wavelet 32f C1 inverse 8 taps", sizes, join<LumiWTInvSpec_32f_C1R>(kEight));
  suite.row("wavelet 32f C3 inverse 4 taps", sizes, join<LumiWTInvSpec_32f_C3R>(kFour));
});

}  // namespace
}  // namespace bench
