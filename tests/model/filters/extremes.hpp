// SPDX-License-Identifier: MIT
// The largest and the smallest samples of windows, one compared with the other.
#pragma once

#include <limits>
#include <type_traits>

#include "model/filters/box.hpp"

namespace model {

struct ExtremeRule {
  bool largest;
  bool finite = false;  // infinities count as the largest number of their sign

  // What any sample replaces.
  template <typename T>
  T worst() const {
    using Limits = std::numeric_limits<T>;
    if (!std::is_floating_point_v<T>) return largest ? Limits::lowest() : Limits::max();
    const T most = finite ? Limits::max() : Limits::infinity();
    return largest ? -most : most;
  }
  template <typename T>
  T taken(T sample) const {
    using Limits = std::numeric_limits<T>;
    if (finite && sample > Limits::max()) return Limits::max();
    if (finite && sample < Limits::lowest()) return Limits::lowest();
    return sample;
  }
};

// Of the samples whose place in the window is selected(column, row). What is no number is neither larger nor
// smaller than any.
template <typename T, typename Selected>
void extremes(Image src, Image dst, LumiSize roi, Channels channels, const Window& window, ExtremeRule rule,
              const Selected& selected) {
  const auto results = imageOfResults<T>(roi, channels.moved, [&](int x, int y, int c) {
    T best = rule.worst<T>();
    for (int row = 0; row < window.size.height; ++row)
      for (int column = 0; column < window.size.width; ++column) {
        if (!selected(column, row)) continue;
        const int at = (x - window.anchor.x + column) * channels.src + c;
        const T sample = rule.taken(load<T>(src.row(y - window.anchor.y + row), at));
        if (rule.largest ? sample > best : sample < best) best = sample;
      }
    return best;
  });
  storeResults(results, dst, roi, channels);
}

}  // namespace model
