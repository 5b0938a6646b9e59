// SPDX-License-Identifier: MIT
#pragma once

#include "model/access.hpp"

namespace model {

// Bounds of so many channels lie one behind the other, all lower ones first.
template <typename T>
LumStatus countInRange(Image src, LumiSize roi, int stored, int used, const Byte* bounds, Byte* counts) {
  for (int c = 0; c < used; ++c)
    if (load<T>(bounds, c) > load<T>(bounds, used + c)) return lumStatusBadRange;
  for (int c = 0; c < used; ++c) {
    const T lower = load<T>(bounds, c), upper = load<T>(bounds, used + c);
    Lum32s count = 0;
    for (int y = 0; y < roi.height; ++y)
      for (int x = 0; x < roi.width; ++x) {
        const T sample = load<T>(src.row(y), x * stored + c);
        if (!(sample > upper) && lower <= sample) ++count;
      }
    store<Lum32s>(counts, c, count);
  }
  return lumStatusOk;
}

}  // namespace model
