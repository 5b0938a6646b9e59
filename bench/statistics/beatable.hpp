// SPDX-License-Identifier: MIT
// Images for searches that may stop.
#pragma once

#include <algorithm>
#include <limits>

#include "bench/harness.hpp"

namespace bench {

// An input without the least and the greatest value of its type: no search stops before the last row.
template <typename T>
Image<T> beatableInput(Scene& s, int channels) {
  const auto image = s.input<T>(channels);
  using Limits = std::numeric_limits<T>;
  for (int y = 0; y < image.roi.height; ++y) {
    T* const row = image.row(y);
    for (int i = 0; i < image.roi.width * channels; ++i)
      if (std::is_integral_v<T>)
        row[i] = std::clamp(row[i], static_cast<T>(Limits::lowest() + 1), static_cast<T>(Limits::max() - 1));
  }
  return image;
}

}  // namespace bench
