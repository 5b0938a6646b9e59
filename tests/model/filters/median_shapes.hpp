// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <type_traits>
#include <vector>

#include "model/access.hpp"

namespace model {

struct Offset {
  int x, y;
};

// The pixels of a square of that side whose offsets are chosen, in reading order.
template <typename Chosen>
std::vector<Offset> square(int side, const Chosen& chosen) {
  std::vector<Offset> result;
  for (int y = -(side / 2); y <= side / 2; ++y)
    for (int x = -(side / 2); x <= side / 2; ++x)
      if (chosen(x, y)) result.push_back({x, y});
  return result;
}

template <typename T>
T medianOf(std::vector<T> samples) {
  std::sort(samples.begin(), samples.end());
  return samples[samples.size() / 2];
}

// Offsets may be listed more than once.
template <typename T>
void median(const std::vector<Offset>& window, Image src, Image dst, LumiSize roi, Channels channels) {
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < channels.moved; ++c) {
        std::vector<T> samples;
        for (const Offset at : window)
          samples.push_back(load<T>(src.row(y + at.y), (x + at.x) * channels.src + c));
        store<T>(dst.row(y), x * channels.dst + c, medianOf(samples));
      }
}

template <typename T>
using Distance = std::conditional_t<std::is_floating_point_v<T>, T, int>;

template <typename T>
Distance<T> distance(const T* a, const T* b) {
  Distance<T> sum = 0;
  for (int c = 0; c < 3; ++c)
    sum += std::abs(static_cast<Distance<T>>(a[c]) - static_cast<Distance<T>>(b[c]));
  return sum;
}

template <typename T>
void colourMedian(int side, Image src, Image dst, LumiSize roi, Channels channels) {
  const auto window = square(side, [](int, int) { return true; });
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x) {
      std::vector<T> colours;
      for (const Offset at : window)
        for (int c = 0; c < 3; ++c)
          colours.push_back(load<T>(src.row(y + at.y), (x + at.x) * channels.src + c));
      size_t best = 0;
      Distance<T> least = 0;
      for (size_t i = 0; i < window.size(); ++i) {
        Distance<T> sum = 0;
        for (size_t k = 0; k < window.size(); ++k)
          if (k != i) sum += distance(&colours[3 * i], &colours[3 * k]);
        if (i == 0 || sum < least) best = i, least = sum;
      }
      for (int c = 0; c < 3; ++c)
        store<T>(dst.row(y), x * channels.dst + c, colours[3 * best + static_cast<size_t>(c)]);
    }
}

}  // namespace model
