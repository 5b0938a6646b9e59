// SPDX-License-Identifier: MIT
// Sums along vectors, channel by channel.
#pragma once

#include "kernels/simd/convert.hpp"

namespace lumi::simd {

// The samples moved `count` places on, behind zeros.
template <int count, typename T>
Samples16<T> movedOn(Samples16<T> x) {
  return {_mm_slli_si128(x.v, count * static_cast<int>(sizeof(T)))};
}

// Each sample with all those of its channel before it.
template <int channels, typename T>
Samples16<T> sumsSoFar(Samples16<T> x) {
  constexpr int lanes = 16 / sizeof(T);
  if constexpr (channels < lanes) x = x + movedOn<channels>(x);
  if constexpr (2 * channels < lanes) x = x + movedOn<2 * channels>(x);
  if constexpr (4 * channels < lanes) x = x + movedOn<4 * channels>(x);
  return x;
}

// The last pixel over and over.
template <int channels, size_t sampleBytes>
constexpr Control lastPixelControl() {
  Control c{};
  constexpr size_t pixel = channels * sampleBytes;
  for (size_t i = 0; i < c.size(); ++i) c[i] = static_cast<Byte>(16 - pixel + i % pixel);
  return c;
}

// As many samples, in a wider type.
template <typename W, typename T>
Samples16<W> loadWidened(const Byte* p) {
  return widen<W>(Samples16<T>{loadFew<16 / sizeof(W) * sizeof(T)>(p)});
}

}  // namespace lumi::simd
