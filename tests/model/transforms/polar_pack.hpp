// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <cstdint>
#include <type_traits>

#include "model/transforms/cplx_pack.hpp"
#include "model/transforms/magnitude.hpp"
#include "model/transforms/phase.hpp"

namespace model {

// Of a number, or of its conjugate, which its type may not hold.
template <typename T>
T phaseOfEither(T re, T im, bool isConjugate, int s) {
  if constexpr (std::is_floating_point_v<T>) {
    return phase(re, isConjugate ? -im : im, s);
  } else {
    const int64_t turned = isConjugate ? -int64_t{im} : int64_t{im};
    if constexpr (sizeof(T) == 4)
      return scaledAndLimited<T>(angle(static_cast<double>(turned), static_cast<double>(re)), s);
    else
      return scaledAndLimited<T>(std::atan2(static_cast<long double>(turned), static_cast<long double>(re)),
                                 s);
  }
}

// f(real part, imaginary part, whether the conjugate is meant) for all numbers of the complex spectrum.
template <typename T, typename F>
void mapPack(Image src, Image dst, LumiSize roi, int channels, F f) {
  for (int c = 0; c < channels; ++c) {
    const PackedChannel<T> pack{src, channels, c}, results{dst, channels, c};
    for (int row = 0; row < roi.height; ++row)
      for (int column = 0; column < roi.width; ++column) {
        const PackedNumber n = packedNumber(roi, row, column);
        results.set({row, column}, f(pack.at(n.real), n.isReal ? T{0} : pack.at(n.imaginary), n.isConjugate));
      }
  }
}

}  // namespace model
