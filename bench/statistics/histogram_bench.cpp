// SPDX-License-Identifier: MIT
#include <algorithm>
#include <numeric>
#include <string>
#include <vector>

#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "bench/peers/opencv.hpp"
#include "lumi/histogram.h"

namespace bench {
namespace {

// What the loop and our call share: levels, and where the counts go.
template <typename L>
struct Bins {
  std::vector<L> levels;
  Image<Lum32s> counts;

  Bins(Scene& s, int count, double first, double width)
      : levels(static_cast<std::size_t>(count)), counts(s.outputOf<Lum32s>(1, {count - 1, 1})) {
    for (std::size_t k = 0; k < levels.size(); ++k)
      levels[k] = static_cast<L>(first + width * static_cast<double>(k));
  }
  int count() const { return static_cast<int>(levels.size()); }
};

// A table of all samples, and sums of its entries.
template <typename T>
Peer loopTable(Image<T> src, Bins<Lum32s> bins) {
  return peer("loop", [=, table = std::vector<Lum32s>(std::size_t{1} << (8 * sizeof(T)))]() mutable {
    std::fill(table.begin(), table.end(), 0);
    for (int y = 0; y < src.roi.height; ++y) {
      const T* s = src.row(y);
      for (int x = 0, width = src.roi.width; x < width; ++x) ++table[s[x]];
    }
    for (int k = 0; k + 1 < bins.count(); ++k) {
      const auto at = [&](int i) { return table.begin() + bins.levels[static_cast<std::size_t>(i)]; };
      bins.counts.data()[k] = std::accumulate(at(k), at(k + 1), 0);
    }
  });
}

// Bins of one width, by a product for each sample.
Peer loopPlaces(Image<Lum32f> src, Bins<Lum32f> bins) {
  return peer("loop", [=] {
    const float first = bins.levels.front(), last = bins.levels.back();
    const float scale = static_cast<float>(bins.count() - 1) / (last - first);
    Lum32s* counts = bins.counts.data();
    std::fill(counts, counts + bins.count() - 1, 0);
    for (int y = 0; y < src.roi.height; ++y) {
      const Lum32f* s = src.row(y);
      for (int x = 0, width = src.roi.width; x < width; ++x)
        if (s[x] >= first && s[x] < last) ++counts[static_cast<int>((s[x] - first) * scale)];
    }
  });
}

template <typename T>
Peer opencvBins(Image<T> src, int count, double first, double width) {
  if (opencv::histogram == nullptr) return {};
  Peer peer = opencv::histogram(src, count - 1, first, first + width * (count - 1));
  peer.differs = "stores counts as floats";
  return peer;
}

void bytes(Scene& s, Image<Lum8u> src) {
  const Bins<Lum32s> bins(s, 257, 0, 1);
  s.ours([=] {
    lumiHistogramRange_8u_C1R(src.data(), src.step, src.roi, bins.counts.data(), bins.levels.data(), 257);
  });
  s.peer(opencvBins(src, 257, 0, 1));
  s.peer(loopTable(src, bins));
}

const Family family("histogram", [](Suite& suite) {
  suite.row("histogram 8u", kUpToHd, [](Scene& s) { bytes(s, s.input<Lum8u>(1)); });
  suite.row("histogram 8u flat", kUpToHd, [](Scene& s) {
    const auto src = s.input<Lum8u>(1);
    for (int y = 0; y < src.roi.height; ++y) std::fill_n(src.row(y), src.roi.width, Lum8u{77});
    bytes(s, src);
  });
  suite.row("histogram 8u C3", kUpToHd, [](Scene& s) {
    const auto src = s.input<Lum8u>(3);
    const Bins<Lum32s> bins(s, 257, 0, 1);
    const auto counts = s.outputOf<Lum32s>(1, {3 * 256, 1});
    s.ours([=] {
      Lum32s* const histograms[] = {counts.data(), counts.data() + 256, counts.data() + 512};
      const Lum32s* const levels[] = {bins.levels.data(), bins.levels.data(), bins.levels.data()};
      const int numbers[] = {257, 257, 257};
      lumiHistogramRange_8u_C3R(src.data(), src.step, src.roi, histograms, levels, numbers);
    });
    s.peer(peer("loop", [=] {
      Lum32s tables[3][256] = {};
      for (int y = 0; y < src.roi.height; ++y) {
        const Lum8u* p = src.row(y);
        for (int x = 0, width = src.roi.width; x < width; ++x)
          for (int c = 0; c < 3; ++c) ++tables[c][p[x * 3 + c]];
      }
      for (int c = 0; c < 3; ++c)
        for (int k = 0; k < 256; ++k) {
          const auto at = [&](int i) { return tables[c] + bins.levels[static_cast<std::size_t>(i)]; };
          counts.data()[c * 256 + k] = std::accumulate(at(k), at(k + 1), 0);
        }
    }));
  });
  suite.row("histogram 16u 16 bins", kUpToHd, [](Scene& s) {
    const auto src = s.input<Lum16u>(1);
    const Bins<Lum32s> bins(s, 17, 0, 4096);
    s.ours([=] {
      lumiHistogramRange_16u_C1R(src.data(), src.step, src.roi, bins.counts.data(), bins.levels.data(), 17);
    });
    s.peer(opencvBins(src, 17, 0, 4096));
    s.peer(loopTable(src, bins));
  });
  suite.row("histogram even 16u 256 bins", kUpToHd, [](Scene& s) {
    const auto src = s.input<Lum16u>(1);
    const Bins<Lum32s> bins(s, 257, 0, 256);
    s.ours([=, levels = bins.levels]() mutable {
      lumiHistogramEven_16u_C1R(src.data(), src.step, src.roi, bins.counts.data(), levels.data(), 257, 0,
                                65536);
    });
    s.peer(opencvBins(src, 257, 0, 256));
    s.peer(loopTable(src, bins));
  });
  for (const int count : {9, 257})
    suite.row("histogram 32f " + std::to_string(count - 1) + " bins", kUpToHd, [count](Scene& s) {
      const auto src = s.input<Lum32f>(1);
      const double width = 256.0 / (count - 1);
      const Bins<Lum32f> bins(s, count, -128, width);
      s.ours([=] {
        lumiHistogramRange_32f_C1R(src.data(), src.step, src.roi, bins.counts.data(), bins.levels.data(),
                                   count);
      });
      s.peer(opencvBins(src, count, -128, width));
      s.peer(loopPlaces(src, bins));
    });
});

}  // namespace
}  // namespace bench
