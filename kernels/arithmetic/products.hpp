// SPDX-License-Identifier: MIT
// Exact products of samples, in twice their width.
#pragma once

#include "kernels/simd/convert.hpp"

namespace lumi::simd {

// Two vectors of what was interleaved low and high, which narrowInterleaved puts in its old order again.
template <typename T>
struct InTwo {
  Samples<T> low, high;
};

inline InTwo<uint16_t> products(Samples<uint8_t> a, Samples<uint8_t> b) {
  return {widenLow(a) * widenLow(b), widenHigh(a) * widenHigh(b)};
}
inline InTwo<uint32_t> products(Samples<uint16_t> a, Samples<uint16_t> b) {
  const Samples<uint16_t> low = a * b, high = multiplyHigh(a, b);
  return {as<uint32_t>(interleaveLow(low, high)), as<uint32_t>(interleaveHigh(low, high))};
}
inline InTwo<int32_t> products(Samples<int16_t> a, Samples<int16_t> b) {
  const Samples<int16_t> low = a * b, high = multiplyHigh(a, b);
  return {as<int32_t>(interleaveLow(low, high)), as<int32_t>(interleaveHigh(low, high))};
}

// Of f of both, limited to T. They are taken as signed.
template <typename T, typename W, typename F>
Samples<T> narrowed(const InTwo<W>& x, const F& f) {
  using Signed = std::make_signed_t<W>;
  return narrowInterleaved<T>(as<Signed>(f(x.low)), as<Signed>(f(x.high)));
}

}  // namespace lumi::simd
