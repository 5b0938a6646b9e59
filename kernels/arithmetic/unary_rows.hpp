// SPDX-License-Identifier: MIT
// What the kernels of functions of one sample share.
#pragma once

#include "kernels/pointwise.hpp"
#include "kernels/simd/elementary.hpp"

namespace lumi::simd {

// A block with marks as one vector, which it is where vectors are as wide.
inline MarkedBytes<32> joined(const MarkedBytes<32>& v) { return v; }
inline MarkedBytes<32> joined(const Marked<Halves32>& v) { return {joined(v.results), joined(v.marks)}; }

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

// 2^-s; s is small enough for a normal number.
inline double scaleOf(int s) {
  const auto bits = static_cast<uint64_t>(1023 - s) << 52;
  double result;
  std::memcpy(&result, &bits, sizeof result);
  return result;
}

}  // namespace lumi::simd
