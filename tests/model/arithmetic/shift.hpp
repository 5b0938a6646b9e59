// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "model/access.hpp"

namespace model {

// x * 2^count, of which the type's bits are kept.
template <typename T>
T shiftLeft(T x, Lum32u count) {
  return count >= 32 ? T{0} : static_cast<T>(static_cast<uint32_t>(x) * (uint32_t{1} << count));
}

// x / 2^count, towards minus infinity: of x below zero, -1 - (-1 - x) / 2^count towards zero.
template <typename T>
T shiftRight(T x, Lum32u count) {
  if (count >= 32) return static_cast<T>(x < 0 ? -1 : 0);
  const auto halved = [=](int32_t y) { return static_cast<uint32_t>(y) / (uint32_t{1} << count); };
  return static_cast<T>(x < 0 ? -1 - static_cast<int32_t>(halved(-1 - x)) : static_cast<int32_t>(halved(x)));
}

// Each channel by its own count.
template <typename T>
void shift(const Lum32u* counts, Image src, Image dst, LumiSize roi, Channels channels,
           T (*formula)(T, Lum32u)) {
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < channels.moved; ++c) {
        const int i = x * channels.dst + c;
        store<T>(dst.row(y), i, formula(load<T>(src.row(y), i), counts[c]));
      }
}

}  // namespace model
