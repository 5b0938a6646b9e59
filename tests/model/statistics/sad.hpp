// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>

#include "model/access.hpp"

namespace model {

// n / 2^scale to the nearest, ties to even, limited to 2^31 - 1.
inline Lum32s scaledSum(Lum32u n, int scale) {
  const long double exact = std::ldexp(static_cast<long double>(n), -scale), below = std::floor(exact);
  const long double half = exact - below;
  const bool up = half > 0.5L || (half == 0.5L && std::fmod(below, 2.0L) != 0);
  const long double result = below + (up ? 1 : 0);
  return result > 2147483647.0L ? 2147483647 : static_cast<Lum32s>(result);
}

template <typename T>
void sad(Image src, LumiSize srcSize, Image tpl, LumiSize tplSize, Image dst, int scale) {
  for (int y = 0; y <= srcSize.height - tplSize.height; ++y)
    for (int x = 0; x <= srcSize.width - tplSize.width; ++x) {
      Lum32u sum = 0;
      float floatSum = 0;
      for (int j = 0; j < tplSize.height; ++j)
        for (int i = 0; i < tplSize.width; ++i) {
          const T a = load<T>(src.row(y + j), x + i), b = load<T>(tpl.row(j), i);
          if constexpr (std::is_same_v<T, Lum32f>)
            floatSum += std::fabs(a - b);
          else
            sum += static_cast<Lum32u>(a > b ? a - b : b - a);
        }
      if constexpr (std::is_same_v<T, Lum32f>)
        store<Lum32f>(dst.row(y), x, floatSum);
      else
        store<Lum32s>(dst.row(y), x, scaledSum(sum, scale));
    }
}

}  // namespace model
