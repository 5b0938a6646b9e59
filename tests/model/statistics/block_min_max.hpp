// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>

#include "model/access.hpp"

namespace model {

// A map of one kind, and what the first sample becomes by all its entries.
template <typename T>
T blockExtremes(bool greatest, Image src, LumiSize roi, LumiSize block, Image map) {
  T all = load<T>(src.row(0), 0);
  const auto isBeyond = [=](T a, T b) { return greatest ? a > b : a < b; };
  for (int y = 0; y < roi.height; y += block.height)
    for (int x = 0; x < roi.width; x += block.width) {
      T extreme = load<T>(src.row(y), x);
      for (int j = y; j < std::min(y + block.height, roi.height); ++j)
        for (int i = x; i < std::min(x + block.width, roi.width); ++i) {
          const T sample = load<T>(src.row(j), i);
          if (isBeyond(sample, extreme)) extreme = sample;
        }
      store<T>(map.row(y / block.height), x / block.width, extreme);
      if (isBeyond(extreme, all)) all = extreme;
    }
  return all;
}

}  // namespace model
