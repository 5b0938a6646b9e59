// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <numeric>
#include <vector>

#include "panels.hpp"
#include "pieces.hpp"

namespace {

using Counts = std::array<std::vector<Lum32s>, 3>;

// How often each level stands in each channel, by levels that the call finds itself.
Counts countsOf(const Colour& photo, Calls& calls) {
  Counts counts, levels;
  Lum32s *histograms[3], *lists[3];
  for (size_t c = 0; c < 3; ++c) {
    counts[c].resize(256);
    levels[c].resize(257);
    histograms[c] = counts[c].data();
    lists[c] = levels[c].data();
  }
  const int count[] = {257, 257, 257};
  const Lum32s lower[] = {0, 0, 0}, upper[] = {256, 256, 256};
  calls.time("lumiHistogramEven_8u_C3R", photo.size(), [&] {
    return lumiHistogramEven_8u_C3R(photo.data(), photo.step(), photo.size(), histograms, lists, count, lower,
                                    upper);
  });
  return counts;
}

constexpr int kPlotHeight = 128;
constexpr Rgb kGround = {24, 24, 24};

// Columns of each channel, as high as its counts are beside the largest of all; where they lie over one
// another, colours add up.
AnyImage plotted(const Colour& photo, Calls& calls) {
  const Counts counts = countsOf(photo, calls);
  Lum32s most = 1;
  for (const auto& channel : counts) most = std::max(most, *std::max_element(channel.begin(), channel.end()));
  Colour plot({256, kPlotHeight});
  fill(plot, kGround);
  for (size_t c = 0; c < 3; ++c)
    for (int x = 0; x < 256; ++x) {
      const int height = static_cast<int>(int64_t{counts[c][static_cast<size_t>(x)]} * kPlotHeight / most);
      for (int y = kPlotHeight - height; y < kPlotHeight; ++y) plot.at(x, y)[c] = 255;
    }
  return plot;
}

// Each level becomes the share of the samples up to it, which spreads the levels evenly.
AnyImage equalized(const Colour& photo, Calls& calls) {
  const Counts counts = countsOf(photo, calls);
  std::array<std::vector<Lum32s>, 3> shares;
  std::vector<Lum32s> levels(257);
  std::iota(levels.begin(), levels.end(), 0);
  const Lum32s *values[3], *lists[3];
  const int count[] = {257, 257, 257};
  for (size_t c = 0; c < 3; ++c) {
    const int64_t all = int64_t{photo.size().width} * photo.size().height;
    int64_t sum = 0;
    for (const Lum32s n : counts[c]) shares[c].push_back(static_cast<Lum32s>((sum += n) * 255 / all));
    shares[c].push_back(255);
    values[c] = shares[c].data();
    lists[c] = levels.data();
  }
  Colour result(photo.size());
  calls.time("lumiLUT_8u_C3R", photo.size(), [&] {
    return lumiLUT_8u_C3R(photo.data(), photo.step(), result.data(), result.step(), photo.size(), values,
                          lists, count);
  });
  return result;
}

const Panels panels("statistics", "histogram",
                    {
                        {"plot", "Histograms of the channels", plotted},
                        {"equalized", "Levels spread evenly by them", equalized},
                    });

}  // namespace
