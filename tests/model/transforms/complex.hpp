// SPDX-License-Identifier: MIT
// Each complex sample becomes a real one; scale factors and limits of integers.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

#include "model/access.hpp"

namespace model {

// dst = f(re, im) for every sample; T is the parts' type.
template <typename T, typename F>
void mapComplex(Image src, Image dst, LumiSize roi, int channels, F f) {
  for (int y = 0; y < roi.height; ++y)
    for (int i = 0; i < roi.width * channels; ++i)
      store<T>(dst.row(y), i, f(load<T>(src.row(y), 2 * i), load<T>(src.row(y), 2 * i + 1)));
}

// x 2^-s to the nearest integer, ties to even, limited to T.
template <typename T, typename Real>
T scaledAndLimited(Real x, int s) {
  const Real scaled = std::nearbyint(std::ldexp(x, -std::clamp(s, -200, 200)));
  return static_cast<T>(
      std::clamp<Real>(scaled, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
}

}  // namespace model
