// SPDX-License-Identifier: MIT
// Counts of samples between levels, each bin by itself, and levels that divide a range evenly.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "model/access.hpp"

namespace model {

// The samples of one channel.
template <typename T>
std::vector<T> channelOf(Image src, LumiSize roi, int stored, int channel) {
  std::vector<T> samples;
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x) samples.push_back(load<T>(src.row(y), x * stored + channel));
  return samples;
}

// Levels and samples are compared as doubles, which hold either exactly.
template <typename T>
std::vector<Lum32s> binCounts(const std::vector<T>& samples, const std::vector<double>& levels) {
  std::vector<Lum32s> bins(levels.size() - 1);
  for (size_t k = 0; k < bins.size(); ++k)
    for (const T x : samples) bins[k] += levels[k] <= x && x < levels[k + 1];
  return bins;
}

// By division, between the first level and the last.
template <typename T>
std::vector<Lum32s> dividedCounts(const std::vector<T>& samples, int64_t first, int64_t last, int count) {
  std::vector<Lum32s> bins(static_cast<size_t>(count - 1));
  const auto width = static_cast<float>((last - first) / (count - 1));
  for (const T x : samples) {
    if (x < first || x >= last) continue;
    const float place = static_cast<float>(x - first) / width;
    ++bins[std::min(static_cast<size_t>(place), bins.size() - 1)];
  }
  return bins;
}

inline std::vector<double> evenLevels(Lum32s lower, Lum32s upper, int count) {
  const int64_t range = int64_t{upper} - lower, step = range / (count - 1), rest = range % (count - 1);
  std::vector<double> levels;
  for (int64_t k = 0; k < count; ++k)
    levels.push_back(
        static_cast<double>(lower + step * k + (rest < 0 ? std::max(rest, -k) : std::min(rest, k))));
  return levels;
}

// What an object keeps of levels that are given, or of bounds.
inline std::vector<double> objectLevels(const std::vector<float>& given, bool areFloats) {
  std::vector<double> levels(given.begin(), given.end());
  if (!areFloats)
    for (double& level : levels) level = std::clamp(std::trunc(level), -0x1p31, 0x1p31 - 1);
  return levels;
}
inline std::vector<double> uniformLevels(float a, float b, int count, bool areFloats) {
  std::vector<double> levels;
  const double step =
      areFloats ? double{(b - a) / static_cast<float>(count - 1)} : (double{b} - a) / (count - 1);
  for (int k = 0; k < count; ++k) {
    const double level = k == 0 ? a : k == count - 1 ? b : a + step * k;
    levels.push_back(areFloats ? double{static_cast<float>(level)} : std::trunc(level));
  }
  return levels;
}

}  // namespace model
