// SPDX-License-Identifier: MIT
#pragma once

#include "model/statistics/min_max.hpp"

namespace model {

template <typename T>
struct Place {
  T value;
  int x, y;
};

// The first sample in the order of rows that no other one is beyond; (0, 0) where none is beyond `start`.
template <typename T>
Place<T> placeOf(bool greatest, T start, Image src, LumiSize roi, int stored, int channel) {
  const T value = extremeOf(greatest, start, src, roi, stored, channel);
  for (int y = 0; y < roi.height && value != start; ++y)
    for (int x = 0; x < roi.width; ++x)
      if (load<T>(src.row(y), x * stored + channel) == value) return {value, x, y};
  for (int x = 0; x < roi.width; ++x)
    if (load<T>(src.row(0), x * stored + channel) == value) return {value, x, 0};
  return {value, 0, 0};
}

}  // namespace model
