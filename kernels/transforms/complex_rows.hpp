// SPDX-License-Identifier: MIT
// What the kernels that make a real sample of each complex one share.
#pragma once

#include "kernels/conversion.hpp"
#include "kernels/simd/angles.hpp"
#include "kernels/simd/complex.hpp"

namespace lumi::simd {

// A function of complex floats as Unary takes it: F makes vectors of both parts into one.
template <typename F>
struct OfComplexFloats : F {
  [[gnu::always_inline]] auto block(const Byte* p) const { return bytesOf(made(loadComplexFloats8(p))); }
  [[gnu::always_inline]] auto half(const Byte* p) const { return bytesOf(made(loadComplexFloats4(p))); }

 private:
  template <typename V>
  [[gnu::always_inline]] V made(const ComplexParts<V>& x) const {
    return F::operator()(x.real, x.imaginary);
  }
};

// A function of complex integers of parts T, likewise: F makes four doubles from those of both parts, which
// are limited to dwords, rounded to the nearest integer, ties to even, and limited to T.
template <typename T, typename F>
struct OfComplexIntegers : F {
  explicit OfComplexIntegers(int scaleFactor) : F(scaleFactor) {}

  [[gnu::always_inline]] Bytes16 half(const Byte* p) const {
    if constexpr (sizeof(T) == 4)
      return four(p).v;
    else
      return narrowSigned<T>(four(p), four(p + 16)).v;
  }
  [[gnu::always_inline]] Halves32 block(const Byte* p) const { return halves(half(p), half(p + 32)); }

 private:
  [[gnu::always_inline]] S32 four(const Byte* p) const {
    const ComplexParts<S32> x = loadComplexDwords<T>(p);
    const Doubles4 y = F::operator()(doublesOf(x.real), doublesOf(x.imaginary));
    return roundedToEven(max(min(y, broadcastDouble(INT32_MAX)), broadcastDouble(INT32_MIN)));
  }
};

// Runs a function of samples with parts T; what it makes is a T.
template <typename T, typename F>
[[gnu::always_inline]] inline void runComplex(SourceRows src, TargetRows dst, Extent samples, const F& f) {
  using Complex = std::conditional_t<sizeof(T) == 2, int32_t, int64_t>;  // as large as both parts
  runConversion<Complex, T, 0, 2>(src, dst, samples, f);
}

}  // namespace lumi::simd
