// SPDX-License-Identifier: MIT
// Shifts of samples of any size; bytes have none of their own.
#pragma once

#include "kernels/simd/samples.hpp"

namespace lumi::simd {

// Bytes shift as words: bits of their neighbours come along.
template <typename T>
Samples<T> shiftedAsWords(Samples<T> x, Shift bits) {
  if constexpr (sizeof(T) == 1)
    return as<T>(as<uint16_t>(x) >> bits);
  else
    return x >> bits;
}

// Without the bits of the neighbours.
template <typename T>
class RightShift {
 public:
  explicit RightShift(int bits) : shift_(bits), kept_(broadcast(static_cast<uint8_t>(0xFF >> bits))) {}
  Samples<T> operator()(Samples<T> x) const {
    const Samples<T> shifted = shiftedAsWords(x, shift_);
    return sizeof(T) == 1 ? shifted & as<T>(kept_) : shifted;
  }

 private:
  Shift shift_;
  Samples<uint8_t> kept_;
};

template <typename T>
class LeftShift {
 public:
  explicit LeftShift(int bits)
      : shift_(bits), kept_(broadcast(static_cast<uint8_t>(uint32_t{0xFF} << bits))) {}
  Samples<T> operator()(Samples<T> x) const {
    if constexpr (sizeof(T) == 1)
      return as<T>(as<uint16_t>(x) << shift_) & kept_;
    else
      return x << shift_;
  }

 private:
  Shift shift_;
  Samples<uint8_t> kept_;
};

}  // namespace lumi::simd
