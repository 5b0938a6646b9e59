// SPDX-License-Identifier: MIT
// How sums of integer taps are divided.
#pragma once

#include "kernels/filters/filter_border.hpp"

namespace lumi {

// The divisor is not 0. The mode is that of the narrow form.
inline FilterRounding roundingBy(int divisor, int mode) {
  FilterRounding r{DivisorClass::Other,          divisor, 0, 0, 0, 1.0F / static_cast<float>(divisor),
                   static_cast<double>(divisor), mode};
  if (divisor == 1) {
    r.divisorClass = DivisorClass::One;
  } else if (divisor > 0 && (divisor & (divisor - 1)) == 0) {
    r.divisorClass = DivisorClass::PowerOfTwo;
    while (divisor >> r.shift > 1) ++r.shift;
    r.half = 1 << (r.shift - 1);
    r.mask = divisor - 1;
    r.divisorD = r.scale;
  }
  return r;
}

}  // namespace lumi
