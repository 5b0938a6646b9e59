// SPDX-License-Identifier: MIT
// Sums and means of windows, by the formulas.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <type_traits>
#include <vector>

#include "model/access.hpp"

namespace model {

struct Window {
  LumiSize size;
  LumiPoint anchor;

  int64_t area() const { return int64_t{size.width} * size.height; }
  bool is(int side) const { return size.width == side && size.height == side; }
};

// sample(x, y, c) is any pixel's sample. Exact for integers of windows of any size that can be tried.
template <typename Sample>
double windowSum(const Sample& sample, const Window& window, int x, int y, int c) {
  double sum = 0;
  for (int row = 0; row < window.size.height; ++row)
    for (int column = 0; column < window.size.width; ++column)
      sum += static_cast<double>(sample(x - window.anchor.x + column, y - window.anchor.y + row, c));
  return sum;
}

template <typename T>
T toNearestEven(float x) {
  const double nearest = std::nearbyint(static_cast<double>(x));  // the tests run with that rounding
  using Limits = std::numeric_limits<T>;
  return static_cast<T>(std::clamp(nearest, double{Limits::min()}, double{Limits::max()}));
}

inline int byteMean(double sum, const Window& window, const std::string& layout) {
  const int64_t n = window.area(), s = static_cast<int64_t>(sum);
  const float r = 1.0F / static_cast<float>(n);
  if (n > 8100) {
    const float product = r * static_cast<float>(s);
    return static_cast<int>(std::trunc(9e-6F + product));
  }
  const bool one = layout == "C1", three = layout == "C3", alpha = layout == "AC4";
  if (window.is(3) && (one || three || alpha)) return static_cast<int>((s * 29128) >> 18);
  if (window.is(5) && (one || three)) return static_cast<int>((s * 20971 + 262144) >> 19);
  if (window.is(7) && one) return static_cast<int>((s * 10700 + 262144) >> 19);
  int64_t factor = 4096, shift = 12;
  if (window.size.width + window.size.height == 3) {
    shift = 13;
  } else if (r != 1.0F) {
    uint32_t u = static_cast<uint32_t>(double{r} * 4294967295.0);
    int c = 0;
    while (u < 0x80000000u && c < 24) u *= 2, ++c;
    factor = (u >> 20) + 1;
    shift = c + 12;
  }
  return static_cast<int>((s * factor + (int64_t{1} << (shift - 1))) >> shift);
}

template <typename T>
T boxMean(double sum, const Window& window, const std::string& layout) {
  if constexpr (sizeof(T) == 1) {
    return static_cast<T>(byteMean(sum, window, layout));
  } else if constexpr (std::is_same_v<T, double>) {
    return sum * (1.0 / (double{1} * window.size.width * window.size.height));
  } else {
    const float r = 1.0F / static_cast<float>(window.area());
    const float product = static_cast<float>(sum) * r;
    if constexpr (std::is_same_v<T, float>)
      return product;
    else
      return toNearestEven<T>(product);
  }
}

// Results of the whole image, row after row, of the used channels.
template <typename T, typename Result>
std::vector<T> imageOfResults(LumiSize roi, int used, const Result& result) {
  std::vector<T> all;
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < used; ++c) all.push_back(result(x, y, c));
  return all;
}

template <typename T>
void storeResults(const std::vector<T>& results, Image dst, LumiSize roi, Channels channels) {
  auto next = results.begin();
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < channels.moved; ++c) store<T>(dst.row(y), x * channels.dst + c, *next++);
}

// The source may be the destination: all results are there before the first one is stored.
template <typename T>
void box(Image src, Image dst, LumiSize roi, Channels channels, const Window& window,
         const std::string& layout) {
  const auto sample = [&](int x, int y, int c) { return load<T>(src.row(y), x * channels.src + c); };
  const auto results = imageOfResults<T>(roi, channels.moved, [&](int x, int y, int c) {
    return boxMean<T>(windowSum(sample, window, x, y, c), window, layout);
  });
  storeResults(results, dst, roi, channels);
}

}  // namespace model
