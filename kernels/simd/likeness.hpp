// SPDX-License-Identifier: MIT
// Weights of samples by how much they differ: looked up, or computed.
#pragma once

#include "kernels/simd/elementary.hpp"

namespace lumi::simd {

inline float floatAt(const Byte* p) {
  float x;
  std::memcpy(&x, p, sizeof x);
  return x;
}

// Entries of a table of floats, at any address.
template <typename Index>
Floats8 gathered(const Byte* table, const Index (&at)[8]) {
  const auto entry = [&](int i) { return floatAt(table + at[i] * sizeof(float)); };
  return joined(Floats4{_mm_setr_ps(entry(0), entry(1), entry(2), entry(3))},
                Floats4{_mm_setr_ps(entry(4), entry(5), entry(6), entry(7))});
}

inline U8 distance(U8 a, U8 b) { return max(a, b) - min(a, b); }

// Eight bytes as floats.
inline Floats8 floatsOfBytes(U8 x) {
  return floatsOf(joined(as<int32_t>(widen<uint32_t>(x)),
                         as<int32_t>(widen<uint32_t>(U8{permuteDwords<1, 1, 1, 1>(x.v)}))));
}

// 2^x with an error below 2^-22 of it; what is beyond -126 and 127 counts as these. 2^n is made of its bits:
// (n + 127) * 2^23 is a float without rounding.
inline Floats8 powersOfTwo(Floats8 x) {
  const auto constant = [](float c) { return broadcastFloat<Floats8>(c); };
  const Floats8 limited = min(max(x, constant(-126)), constant(127)), whole = nearest(limited);
  const Floats8 rest = limited - whole;
  // The polynomial whose largest error between -1/2 and 1/2 is smallest: 2^-28.
  Floats8 sum = constant(0.000155946778F);
  for (const float c :
       {0.00134066434F, 0.00961769279F, 0.0555031039F, 0.240226522F, 0.693147242F, 1.0F})
    sum = sum * rest + constant(c);
  return sum * withBits(truncated((whole + constant(127)) * constant(8388608)));
}

}  // namespace lumi::simd
