// SPDX-License-Identifier: MIT
// Shifts by a count that is the same for all samples, bytes too, which have no instruction of their own; and
// by products.
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

// (a * b) >> 30, the product being exact; the last 32 bits of that.
inline S32 multiplyShifted30(S32 a, S32 b) {
  const Bytes16 even = _mm_mul_epi32(a.v, b.v),
                odd = _mm_mul_epi32(_mm_srli_epi64(a.v, 32), _mm_srli_epi64(b.v, 32));
  return {blendDwords<0b1010>(_mm_srli_epi64(even, 30), _mm_slli_epi64(odd, 32 - 30))};
}

#ifdef __AVX2__
inline Samples32<int32_t> multiplyShifted30(Samples32<int32_t> a, Samples32<int32_t> b) {
  const Bytes32 even = _mm256_mul_epi32(a.v, b.v),
                odd = _mm256_mul_epi32(_mm256_srli_epi64(a.v, 32), _mm256_srli_epi64(b.v, 32));
  return {blendDwords<0b10101010>(_mm256_srli_epi64(even, 30), _mm256_slli_epi64(odd, 32 - 30))};
}
#endif

}  // namespace lumi::simd
