// SPDX-License-Identifier: MIT
// Weights of samples by how much they differ: looked up, or computed.
#pragma once

#include "kernels/simd/elementary.hpp"
#include "kernels/simd/filter.hpp"

namespace lumi::simd {

inline float floatAt(const Byte* p) {
  float x;
  std::memcpy(&x, p, sizeof x);
  return x;
}

// Entries of a table of floats, at any address, by eight bytes or words. These are taken apart by shifts of
// dwords: to extract each by itself costs twice as much.
inline Floats8 gathered(const Byte* table, U8 at) {
  const auto four = [&](uint32_t bytes) {
    const auto entry = [&](int shift) { return floatAt(table + (bytes >> shift & 0xFF) * sizeof(float)); };
    return Floats4{_mm_setr_ps(entry(0), entry(8), entry(16), entry(24))};
  };
  return joined(four(firstDword(at.v)), four(firstDword(upperDword(at).v)));
}
inline Floats8 gathered(const Byte* table, U16 at) {
  const auto four = [&](Bytes16 words) {
    const uint32_t low = firstDword(words), high = firstDword(upperDword(U8{words}).v);
    const auto entry = [&](uint32_t i) { return floatAt(table + i * sizeof(float)); };
    return Floats4{
        _mm_setr_ps(entry(low & 0xFFFF), entry(low >> 16), entry(high & 0xFFFF), entry(high >> 16))};
  };
  return joined(four(at.v), four(shuffleHalves<1, 1>(at.v, at.v)));
}

inline U8 distance(U8 a, U8 b) { return max(a, b) - min(a, b); }

// Eight bytes as floats.
inline Floats8 floatsOfBytes(U8 x) {
  return floatsOf(joined(as<int32_t>(widen<uint32_t>(x)),
                         as<int32_t>(widen<uint32_t>(U8{permuteDwords<1, 1, 1, 1>(x.v)}))));
}

// 2^x for x up to 127, with an error below 2^-22 of it; what is below 2^-100, and what is not a number,
// counts as 0, so that products with it are no denormals. 2^n is made of its bits: (n + 127) * 2^23 is a
// float without rounding.
inline Floats8 powersOfTwo(Floats8 x) {
  const auto constant = [](float c) { return broadcastFloat<Floats8>(c); };
  const Floats8 whole = nearest(x), rest = x - whole;
  // The polynomial whose largest error between -1/2 and 1/2 is smallest: 2^-28.
  Floats8 sum = constant(0.000155946778F);
  for (const float c : {0.00134066434F, 0.00961769279F, 0.0555031039F, 0.240226522F, 0.693147242F, 1.0F})
    sum = sum * rest + constant(c);
  const Floats8 power = sum * withBits(truncated((whole + constant(127)) * constant(8388608)));
  return power & isBelow(constant(-100), x);
}

}  // namespace lumi::simd
