// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>

#include "model/statistics/float_sum.hpp"
#include "support/member.hpp"

namespace test {

// A result that is right anywhere in the interval, up to its own rounding to a double.
inline void storeWithin(const Call::Block& block, int i, const model::Interval& right) {
  const long double middle = right.low + (right.high - right.low) / 2;
  if (std::isnan(right.low) || right.low == right.high)
    return block.storeWithin<Lum64f>(
        i, static_cast<double>(right.low),
        std::isfinite(right.low) ? static_cast<double>(std::fabs(right.low)) * 0x1p-53 : 0);
  if (std::isinf(right.low) || std::isinf(right.high)) return block.storeWithin<Lum64f>(i, 0, INFINITY);
  const long double tolerance = (right.high - right.low) / 2 + std::fabs(middle) * 0x1p-52L;
  block.storeWithin<Lum64f>(i, static_cast<double>(middle), static_cast<double>(tolerance));
}

}  // namespace test
