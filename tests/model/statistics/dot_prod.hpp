// SPDX-License-Identifier: MIT
#pragma once

#include "model/access.hpp"
#include "model/statistics/float_sum.hpp"

namespace model {

// The sum of the products of channel c.
template <typename T>
int64_t exactDotProduct(Image a, Image b, LumiSize roi, int stored, int c) {
  int64_t sum = 0;
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x)
      sum += int64_t{load<T>(a.row(y), x * stored + c)} * load<T>(b.row(y), x * stored + c);
  return sum;
}

template <typename T>
FloatSum dotProduct(Image a, Image b, LumiSize roi, int stored, int c) {
  FloatSum sum;
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x)
      sum.add(static_cast<long double>(load<T>(a.row(y), x * stored + c)) *
              static_cast<long double>(load<T>(b.row(y), x * stored + c)));
  return sum;
}

}  // namespace model
