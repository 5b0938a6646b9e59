// SPDX-License-Identifier: MIT
// Vector pieces of binary patterns.
#pragma once

#include "kernels/simd/elementary.hpp"

namespace lumi::simd {

// Bytes of both in turn.
inline void storeInTurn(Byte* p, U8 even, U8 odd) {
  store16(p, interleaveLow(even, odd).v);
  store16(p + 16, interleaveHigh(even, odd).v);
}
#ifdef __AVX2__
inline void storeInTurn(Byte* p, Samples32<uint8_t> even, Samples32<uint8_t> odd) {
  const Bytes32 low = interleaveLow(even, odd).v, high = interleaveHigh(even, odd).v;
  store32(p, permuteHalves<0, 0>(low, high));
  store32(p + 32, permuteHalves<1, 1>(low, high));
}
#endif

// The bits that are set in each byte.
inline Samples<uint8_t> bitCounts(Samples<uint8_t> x) {
  static constexpr Control kOfNibble = {0, 1, 1, 2, 1, 2, 2, 3, 1, 2, 2, 3, 2, 3, 3, 4};
  const VectorBytes table = repeated(vectorOf(kOfNibble));
  const Samples<uint8_t> nibble = broadcast<uint8_t>(15);
  const auto high = as<uint8_t>(shiftRight<4>(as<uint16_t>(x))) & nibble;
  return Samples<uint8_t>{shuffleBytes(table, (x & nibble).v)} +
         Samples<uint8_t>{shuffleBytes(table, high.v)};
}
// And in each word.
inline Samples<uint16_t> bitCounts(Samples<uint16_t> x) {
  const auto bytes = as<uint16_t>(bitCounts(as<uint8_t>(x)));
  return (bytes & broadcast<uint16_t>(0xFF)) + shiftRight<8>(bytes);
}

}  // namespace lumi::simd
