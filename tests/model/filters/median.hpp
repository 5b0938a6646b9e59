// SPDX-License-Identifier: MIT
// Medians of windows, by sorting.
#pragma once

#include <algorithm>
#include <vector>

#include "model/access.hpp"

namespace model {

// sample(column, row) is any sample of the window.
template <typename T, typename Sample>
T medianOf(LumiSize window, const Sample& sample) {
  std::vector<T> all;
  for (int row = 0; row < window.height; ++row)
    for (int column = 0; column < window.width; ++column) all.push_back(sample(column, row));
  std::sort(all.begin(), all.end());
  return all[all.size() / 2];
}

template <typename T>
void median(Image src, Image dst, LumiSize roi, Channels channels, LumiSize window, LumiPoint anchor) {
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < channels.moved; ++c)
        store<T>(dst.row(y), x * channels.dst + c, medianOf<T>(window, [&](int column, int row) {
                   const int at = (x + column - anchor.x) * channels.src + c;
                   return load<T>(src.row(y + row - anchor.y), at);
                 }));
}

}  // namespace model
