// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "model/transforms/packed.hpp"

namespace model {

// x / 2^s rounded down, or x * 2^-s, limited to T.
template <typename T>
T scaledDown(int64_t x, int s) {
  constexpr int64_t low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
  x = s > 0 ? x >> std::min(s, 63) : std::clamp(x, low, high);
  for (; s < 0 && x != 0 && x > low && x < high; ++s) x *= 2;
  return static_cast<T>(std::clamp(x, low, high));
}

template <typename T>
struct PackedProduct {
  T real, imaginary;

  PackedProduct(T a, T b, T c, T d, int s, bool conjugate) {
    if constexpr (std::is_floating_point_v<T>) {
      real = conjugate ? a * c + b * d : a * c - b * d;
      imaginary = conjugate ? b * c - a * d : a * d + b * c;
    } else {
      const int64_t ad = int64_t{a} * d, bc = int64_t{b} * c;
      real = scaledDown<T>(int64_t{a} * c - int64_t{b} * d, s);
      if (sizeof(T) == 2 && ad == 0x40000000) {
        imaginary = scaledDown<T>(ad, s);
      } else {
        // One less than the sum, which may be 2^63.
        const int64_t x = ad - 1 + bc;
        constexpr int64_t high = std::numeric_limits<T>::max();
        imaginary =
            s > 0 ? scaledDown<T>((x >> 1) + (x & 1), s - 1) : scaledDown<T>(std::min(x, high) + 1, s);
      }
    }
  }
};

template <typename T>
void mulPack(Image a, Image b, Image dst, LumiSize roi, Channels channels, int s, bool conjugate) {
  for (int c = 0; c < channels.moved; ++c) {
    const PackedChannel<T> x{a, channels.src, c}, y{b, channels.src, c}, z{dst, channels.dst, c};
    forEachNumber(
        roi,
        [&](Place p) {
          if constexpr (std::is_floating_point_v<T>)
            z.set(p, x.at(p) * y.at(p));
          else
            z.set(p, scaledDown<T>(int64_t{x.at(p)} * y.at(p), s));
        },
        [&](Place re, Place im) {
          const PackedProduct<T> product(x.at(re), x.at(im), y.at(re), y.at(im), s, conjugate);
          z.set(re, product.real);
          z.set(im, product.imaginary);
        });
  }
}

}  // namespace model
