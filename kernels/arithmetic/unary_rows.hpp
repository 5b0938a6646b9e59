// SPDX-License-Identifier: MIT
// What the kernels of functions of one sample share.
#pragma once

#include "kernels/pointwise.hpp"
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

// Constants over whole vectors in memory, where instructions take them from. Compilers that know what is
// there would load and spread single ones anew in every round: more work than the arithmetic leaves room for.
template <size_t count>
struct SpreadFloats {
  float values[count][kBlock / sizeof(float)];
};
template <typename... Each>
constexpr SpreadFloats<sizeof...(Each)> spread(Each... each) {
  SpreadFloats<sizeof...(Each)> result{};
  size_t i = 0;
  for (float value : {each...}) {
    for (float& place : result.values[i]) place = value;
    ++i;
  }
  return result;
}
class Constants {
 public:
  template <size_t count>
  explicit Constants(const SpreadFloats<count>& table) : values_(table.values) {
    asm("" : "+r"(values_));
  }
  template <typename V>
  V get(int which) const {
    const auto* const p = reinterpret_cast<const Byte*>(values_[which]);
    if constexpr (std::is_same_v<V, Floats8>)
      return loadFloats8(p);
    else
      return loadFloats4(p);
  }

 private:
  const float (*values_)[kBlock / sizeof(float)];
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
