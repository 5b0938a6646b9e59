// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <limits>
#include <type_traits>

#include "model/transforms/packed.hpp"

namespace model {

// Where the number of a spectrum is in its packed form: a place, or two; or it is the conjugate of one that
// is.
struct PackedNumber {
  Place real, imaginary;
  bool isReal, isConjugate;
};

// For the number in row `row` and column `column` of the complex spectrum.
inline PackedNumber packedNumber(LumiSize roi, int row, int column) {
  const bool isMiddle = 2 * column == roi.width, inRealColumn = column == 0 || isMiddle;
  const auto opposite = [](int i, int length) { return i == 0 ? 0 : length - i; };
  if (inRealColumn) {
    const int at = isMiddle ? roi.width - 1 : 0;
    if (row == 0) return {{0, at}, {}, true, false};
    if (2 * row == roi.height) return {{roi.height - 1, at}, {}, true, false};
    const bool isBelow = 2 * row > roi.height;
    const int j = isBelow ? roi.height - row : row;
    return {{2 * j - 1, at}, {2 * j, at}, false, isBelow};
  }
  const bool isRight = 2 * column > roi.width;
  const int k = isRight ? roi.width - column : column, from = isRight ? opposite(row, roi.height) : row;
  return {{from, 2 * k - 1}, {from, 2 * k}, false, isRight};
}

// Samples are moved as integers: a 32-bit processor's float registers change what is no number.
template <typename T>
using Moved = std::conditional_t<std::is_floating_point_v<T>, uint32_t, T>;

template <typename T>
Moved<T> negative(Moved<T> x) {
  if constexpr (std::is_floating_point_v<T>)
    return x ^ 0x80000000;
  else
    return x == std::numeric_limits<T>::min() ? std::numeric_limits<T>::max() : static_cast<T>(-x);
}

template <typename T>
void extendPack(Image src, Image dst, LumiSize roi) {
  const PackedChannel<Moved<T>> pack{src, 1, 0};
  for (int row = 0; row < roi.height; ++row)
    for (int column = 0; column < roi.width; ++column) {
      const PackedNumber n = packedNumber(roi, row, column);
      const Moved<T> imaginary = n.isReal ? 0 : pack.at(n.imaginary);
      store<Moved<T>>(dst.row(row), 2 * column, pack.at(n.real));
      store<Moved<T>>(dst.row(row), 2 * column + 1, n.isConjugate ? negative<T>(imaginary) : imaginary);
    }
}

template <typename T>
void packSpectrum(Image src, Image dst, LumiSize roi, int channels) {
  for (int c = 0; c < channels; ++c) {
    const PackedChannel<Moved<T>> pack{dst, channels, c};
    for (int row = 0; row < roi.height; ++row)
      for (int column = 0; column < roi.width; ++column) {
        const PackedNumber n = packedNumber(roi, row, column);
        if (n.isConjugate) continue;
        const int at = 2 * (column * channels + c);
        pack.set(n.real, load<Moved<T>>(src.row(row), at));
        if (!n.isReal) pack.set(n.imaginary, load<Moved<T>>(src.row(row), at + 1));
      }
  }
}

}  // namespace model
