// SPDX-License-Identifier: MIT
// Adaptive thresholds, by the formulas.
#pragma once

#include <cmath>
#include <vector>

#include "model/filters/box_border.hpp"

namespace model {

struct Adaptive {
  int side;
  float delta;
  int above, notAbove;

  Window window() const { return {{side, side}, {side / 2, side / 2}}; }
};

inline std::vector<float> hillOf(int side, float sigma) {
  if (sigma <= 0) sigma = static_cast<float>(0.3 * ((side - 1) * 0.5 - 1) + 0.8);
  const float spread = sigma * (sigma + sigma);
  std::vector<float> taps;
  float sum = 0;
  for (int i = -(side / 2); i <= side / 2; ++i) {
    taps.push_back(static_cast<float>(std::exp(-static_cast<double>(i * i) / static_cast<double>(spread))));
    sum += taps.back();
  }
  const float scale = 1.0F / sum;
  for (float& tap : taps) tap *= scale;
  return taps;
}

inline bool isAboveMean(int pixel, double sum, const Adaptive& rule) {
  const int n = rule.side * rule.side;
  if (n == 9) return 9 * pixel - static_cast<int>(sum) > -static_cast<int>(std::ceil(9.0F * rule.delta));
  const auto area = static_cast<float>(n);
  const float product = area * rule.delta;
  return area * static_cast<float>(pixel) > static_cast<float>(sum) - product;
}

// sample(x, y) is any pixel.
template <typename Sample>
float weightedMean(const Sample& sample, const std::vector<float>& taps, int x, int y) {
  const int side = static_cast<int>(taps.size()), reach = side / 2;
  float mean = 0;
  for (int i = 0; i < side; ++i) {
    float column = 0;
    for (int k = 0; k < side; ++k) {
      const float product =
          taps[static_cast<size_t>(k)] * static_cast<float>(sample(x + i - reach, y + k - reach));
      column += product;
    }
    const float product = taps[static_cast<size_t>(i)] * column;
    mean += product;
  }
  return mean;
}

// Without taps the mean is that of a box.
inline void adaptive(Image src, Image dst, LumiSize roi, const Adaptive& rule, const std::vector<float>& taps,
                     const Border& border) {
  const auto sample = [&](int x, int y) { return int{borderedSample<Lum8u>(src, roi, 1, border, x, y, 0)}; };
  const auto isAbove = [&](int x, int y) {
    if (rule.delta > 255) return true;
    if (rule.delta <= -255) return false;
    if (rule.side == 1) return rule.delta > 0;
    if (!taps.empty()) {
      const float threshold = weightedMean(sample, taps, x, y) - rule.delta;
      return static_cast<float>(sample(x, y)) > threshold;
    }
    const auto ofChannel = [&](int px, int py, int) { return sample(px, py); };
    return isAboveMean(sample(x, y), windowSum(ofChannel, rule.window(), x, y, 0), rule);
  };
  storeResults(imageOfResults<Lum8u>(roi, 1,
                                     [&](int x, int y, int) {
                                       return static_cast<Lum8u>(isAbove(x, y) ? rule.above : rule.notAbove);
                                     }),
               dst, roi, {1, 1, 1});
}

}  // namespace model
