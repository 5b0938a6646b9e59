// SPDX-License-Identifier: MIT
// Constants that an operation wants in order.
#pragma once

#include "model/access.hpp"
#include "support/random.hpp"

namespace test {

// Lower bounds, one for each channel, and upper ones so many samples behind them: three pairs of four are put
// in order.
template <typename T>
void arrangeBounds(Random& random, Byte* bounds, int channels, int upperFrom) {
  if (random.oneIn(4)) return;
  for (int c = 0; c < channels; ++c) {
    const T lower = model::load<T>(bounds, c), upper = model::load<T>(bounds, upperFrom + c);
    if (!(lower > upper)) continue;
    model::store<T>(bounds, c, upper);
    model::store<T>(bounds, upperFrom + c, lower);
  }
}

}  // namespace test
