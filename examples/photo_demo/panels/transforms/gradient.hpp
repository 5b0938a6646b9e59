// SPDX-License-Identifier: MIT
// How green changes: complex samples of the differences to the pixel on the right, and to the one below.
#pragma once

#include <algorithm>

#include "image.hpp"

using Gradient16 = Image<1, Lum16sc>;
using GradientFloat = Image<1, Lum32fc>;

template <typename Gradient>
Gradient gradientOf(const Colour& photo) {
  const LumiSize size = photo.size();
  Gradient result(size);
  for (int y = 0; y < size.height; ++y)
    for (int x = 0; x < size.width; ++x) {
      const auto green = [&](int u, int v) {
        return photo.at(std::min(u, size.width - 1), std::min(v, size.height - 1))[1];
      };
      auto& change = *result.at(x, y);
      using Part = decltype(change.re);
      change.re = static_cast<Part>(green(x + 1, y) - green(x, y));
      change.im = static_cast<Part>(green(x, y + 1) - green(x, y));
    }
  return result;
}
