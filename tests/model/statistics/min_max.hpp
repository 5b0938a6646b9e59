// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <limits>
#include <type_traits>

#include "model/access.hpp"

namespace model {

// The least sample of a channel, or the greatest. A sample replaces another one only where it is beyond it:
// NaNs never do. `start` is what the first one has to be beyond.
template <typename T>
T extremeOf(bool greatest, T start, Image src, LumiSize roi, int stored, int channel) {
  T extreme = start;
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x) {
      const T sample = load<T>(src.row(y), x * stored + channel);
      if (greatest ? sample > extreme : sample < extreme) extreme = sample;
    }
  return extreme;
}

// The limit that is opposite to what is looked for: of floats a finite one, or an infinity.
template <typename T>
T opposite(bool greatest, bool infinite) {
  using Limits = std::numeric_limits<T>;
  if (infinite && Limits::has_infinity) return greatest ? -Limits::infinity() : Limits::infinity();
  return greatest ? Limits::lowest() : Limits::max();
}

}  // namespace model
