// SPDX-License-Identifier: MIT
// Row kernels of bitwise logic. They know bytes alone: bits do not depend on the sample.
#pragma once

#include "kernels/pattern.hpp"
#include "kernels/rows.hpp"

namespace lumi {

struct And {
  template <typename V>
  V operator()(V a, V b) const {
    return a & b;
  }
};
struct Or {
  template <typename V>
  V operator()(V a, V b) const {
    return a | b;
  }
};
struct Xor {
  template <typename V>
  V operator()(V a, V b) const {
    return a ^ b;
  }
};

// dst = a op b for rows of bytes; where usedBytes is below pixelBytes, the other bytes of every pixel stay.
// dst may be a or b; where rows overlap otherwise, their bytes are made one by one in order.
template <typename Op, size_t pixelBytes, size_t usedBytes>
void combineBits(SourceRows a, SourceRows b, TargetRows dst, Extent bytes);

// The same with a constant pixel as the first operand: of three samples, or of a size that divides a vector.
template <typename Op, size_t pixelBytes, size_t usedBytes, bool ofThree>
void combineBitsWithConstant(const PixelPattern& a, SourceRows b, TargetRows dst, Extent bytes);

}  // namespace lumi
