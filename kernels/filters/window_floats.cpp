// SPDX-License-Identifier: MIT
#include "kernels/filters/window_floats.hpp"

#include "kernels/simd/floats.hpp"

namespace lumi {
namespace {

using namespace simd;

template <typename F>
using Vector = decltype(samplesOf<F>(Bytes32()));

template <typename F>
Vector<F> vectorAt(const Byte* p) {
  return samplesOf<F>(load32(p));
}

template <typename F>
F at(const Byte* p) {
  F sample;
  move<sizeof(F)>(reinterpret_cast<Byte*>(&sample), p);
  return sample;
}

// Two vectors are loaded before either is stored.
template <typename F, typename Make, typename MakeOne>
[[gnu::always_inline]] inline void forEachFloat(Byte* dst, size_t count, const Make& make,
                                                const MakeOne& one) {
  const size_t bytes = count * sizeof(F);
  size_t i = 0;
  for (; i + 64 <= bytes; i += 64) {
    const Vector<F> first = make(i), second = make(i + 32);
    store32(dst + i, bytesOf(first));
    store32(dst + i + 32, bytesOf(second));
  }
  for (; i + 32 <= bytes; i += 32) store32(dst + i, bytesOf(make(i)));
  for (; i < bytes; i += sizeof(F)) {
    const F sample = one(i);
    move<sizeof(F)>(dst + i, reinterpret_cast<const Byte*>(&sample));
  }
}

}  // namespace

template <typename F>
void addFloats(const uint8_t* a, const uint8_t* b, uint8_t* sums, size_t count) {
  forEachFloat<F>(
      sums, count, [=](size_t i) { return vectorAt<F>(a + i) + vectorAt<F>(b + i); },
      [=](size_t i) { return at<F>(a + i) + at<F>(b + i); });
}

template <typename F>
void scaleFloats(const uint8_t* src, F factor, uint8_t* dst, size_t count) {
  alignas(32) F factors[32 / sizeof(F)];
  for (F& f : factors) f = factor;
  const auto all = vectorAt<F>(reinterpret_cast<const Byte*>(factors));
  forEachFloat<F>(
      dst, count, [=](size_t i) { return vectorAt<F>(src + i) * all; },
      [=](size_t i) { return at<F>(src + i) * factor; });
}

template void addFloats<float>(const uint8_t*, const uint8_t*, uint8_t*, size_t);
template void addFloats<double>(const uint8_t*, const uint8_t*, uint8_t*, size_t);
template void scaleFloats<float>(const uint8_t*, float, uint8_t*, size_t);
template void scaleFloats<double>(const uint8_t*, double, uint8_t*, size_t);

}  // namespace lumi
