// SPDX-License-Identifier: MIT
// What the kernels of functions of one sample share.
#pragma once

#include "kernels/pointwise.hpp"
#include "kernels/simd/constants.hpp"
#include "kernels/simd/elementary.hpp"

namespace lumi::simd {

// A function of vectors of floats, of either width, as Unary takes it.
template <typename F>
struct OfFloats : F {
  [[gnu::always_inline]] auto block(const Byte* p) const { return bytesOf(F::operator()(loadFloats8(p))); }
  [[gnu::always_inline]] auto half(const Byte* p) const { return bytesOf(F::operator()(loadFloats4(p))); }
};

// A function of the samples in sixteen bytes, likewise.
template <typename F>
struct OfHalves : F {
  explicit OfHalves(int scaleFactor) : F(scaleFactor) {}

  [[gnu::always_inline]] auto block(const Byte* p) const { return halves(F::half(p), F::half(p + 16)); }
};

// Applies f to the samples of rows; the last `alpha` of every four stay. Returns what became of marks.
template <typename T, int alpha, typename F>
[[gnu::always_inline]] inline auto runUnary(SourceRows src, TargetRows dst, Extent samples, const F& f) {
  constexpr size_t pixel = alpha ? 4 * sizeof(T) : sizeof(T);
  return runPixels<pixel, pixel - alpha * sizeof(T)>(dst, samples, Unary<T, T, F>{ImageRow<T, T>(src), f});
}

// Words that are not negative as dwords: the first or the last four.
template <typename T>
S32 firstDwords(Samples16<T> x) {
  return as<int32_t>(interleaveLow(x, broadcast16<T>(0)));
}
template <typename T>
S32 lastDwords(Samples16<T> x) {
  return as<int32_t>(interleaveHigh(x, broadcast16<T>(0)));
}

}  // namespace lumi::simd
