// SPDX-License-Identifier: MIT
// Odd rows of an interlaced image made anew.
#pragma once

#include <algorithm>
#include <cstdlib>

#include "model/access.hpp"

namespace model {

inline void deinterlace(Image src, Image dst, LumiSize roi, int threshold) {
  const auto sample = [&](int x, int y) {
    const int last = roi.height - (y % 2 != 0 ? 1 : 2), first = y % 2 != 0 ? 1 : 0;
    return int{load<Lum8u>(src.row(std::clamp(y, first, last)), x)};
  };
  const auto copy = [&](int y) {
    for (int x = 0; x < roi.width; ++x) store<Lum8u>(dst.row(y), x, load<Lum8u>(src.row(y), x));
  };
  copy(0);
  for (int y = 1; y < roi.height; y += 2) {
    for (int x = 0; x < roi.width; ++x) {
      const auto at = [&](int dy) { return sample(x, y + dy); };
      const int detail = 8 * at(0) - 4 * at(-2) - 4 * at(2);
      const int sum = 7 * (at(-1) + at(1)) + detail + at(-3) + at(3) + 8;
      int line = sum >= 0 ? sum / 16 : -((15 - sum) / 16);
      if (std::abs(detail) < threshold)
        line = std::clamp(line, std::min(at(-1), at(1)), std::max(at(-1), at(1)));
      store<Lum8u>(dst.row(y), x, static_cast<Lum8u>(std::clamp(line, 0, 255)));
    }
    if (y + 1 < roi.height) copy(y + 1);
  }
}

}  // namespace model
