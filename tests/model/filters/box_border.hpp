// SPDX-License-Identifier: MIT
// Box filtering with border, by the formulas: a pixel is in memory, or the nearest one of those that are, or
// a constant.
#pragma once

#include <algorithm>

#include "model/filters/box.hpp"
#include "support/member.hpp"

namespace model {

struct Border {
  int type;
  const Byte* value;

  bool has(int flag) const { return (type & 15) == lumiBorderInMemory || (type & flag) != 0; }
};

// Pixels around the ROI that are read.
inline test::Member::Surroundings inMemory(const Window& w, int type) {
  const Border border{type, nullptr};
  const auto kept = [&](int flag, int count) { return border.has(flag) ? count : 0; };
  return {kept(lumiBorderInMemoryLeft, w.anchor.x), kept(lumiBorderInMemoryTop, w.anchor.y),
          kept(lumiBorderInMemoryRight, w.size.width - 1 - w.anchor.x),
          kept(lumiBorderInMemoryBottom, w.size.height - 1 - w.anchor.y)};
}

template <typename T>
T borderedSample(Image src, LumiSize roi, int channels, const Border& border, int x, int y, int c) {
  const bool above = y < 0 && !border.has(lumiBorderInMemoryTop),
             below = y >= roi.height && !border.has(lumiBorderInMemoryBottom),
             before = x < 0 && !border.has(lumiBorderInMemoryLeft),
             behind = x >= roi.width && !border.has(lumiBorderInMemoryRight);
  if ((above || below || before || behind) && (border.type & 15) == lumiBorderConst)
    return load<T>(border.value, c);
  if (above) y = 0;
  if (below) y = roi.height - 1;
  if (before) x = 0;
  if (behind) x = roi.width - 1;
  return load<T>(src.row(y), x * channels + c);
}

template <typename T>
T borderMean(double sum, const Window& window) {
  const auto s = static_cast<int64_t>(sum);
  if (sizeof(T) == 1 && window.is(3)) return static_cast<T>((s * 29128) >> 18);
  if (sizeof(T) == 1 && window.is(5)) return static_cast<T>((s * 671088 + 8388608) >> 24);
  if (sizeof(T) == 1 && window.is(7)) return static_cast<T>((s * 342392 + 8388608) >> 24);
  const float product = static_cast<float>(sum) * (1.0F / static_cast<float>(window.area()));
  if constexpr (std::is_floating_point_v<T>)
    return product;
  else
    return toNearestEven<T>(product);
}

template <typename T>
void boxBorder(Image src, Image dst, LumiSize roi, Channels channels, const Window& window,
               const Border& border) {
  const auto sample = [&](int x, int y, int c) {
    return borderedSample<T>(src, roi, channels.src, border, x, y, c);
  };
  storeResults(imageOfResults<T>(roi, channels.moved,
                                 [&](int x, int y, int c) {
                                   return borderMean<T>(windowSum(sample, window, x, y, c), window);
                                 }),
               dst, roi, channels);
}

}  // namespace model
