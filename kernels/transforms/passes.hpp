// SPDX-License-Identifier: MIT
// Complex Fourier transforms of many sequences at once, one in each lane of a vector, by decimation in time:
// passes of butterflies, each of which joins `radix` transforms of m points into one of radix * m.
//
// Memory of n points holds their real and imaginary vectors in turn. All transforms are forward; an inverse
// one is the forward one with the two parts exchanged on the way in and on the way out.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "kernels/simd/lanes.hpp"
#include "kernels/transforms/roots.hpp"

namespace lumi::transforms {

using namespace simd;

template <typename V>
struct Complex {
  V re, im;
};
template <typename V>
Complex<V> operator+(Complex<V> a, Complex<V> b) {
  return {a.re + b.re, a.im + b.im};
}
template <typename V>
Complex<V> operator-(Complex<V> a, Complex<V> b) {
  return {a.re - b.re, a.im - b.im};
}
template <typename V>
Complex<V> operator*(Complex<V> a, Complex<V> b) {
  return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}
template <typename V>
Complex<V> exchanged(Complex<V> a) {
  return {a.im, a.re};
}
// a - ib and a + ib.
template <typename V>
Complex<V> minusTurned(Complex<V> a, Complex<V> b) {
  return {a.re + b.im, a.im - b.re};
}
template <typename V>
Complex<V> plusTurned(Complex<V> a, Complex<V> b) {
  return {a.re - b.im, a.im + b.re};
}

// Scalars of a point: a real and an imaginary vector.
template <typename V>
inline constexpr size_t kPoint = 2 * LanesOf<V>::kCount;

template <typename V>
Complex<V> loadPoint(const ScalarOf<V>* p) {
  return {loadLanes<V>(p), loadLanes<V>(p + LanesOf<V>::kCount)};
}
template <typename V>
void storePoint(ScalarOf<V>* p, Complex<V> x) {
  storeLanes(p, x.re);
  storeLanes(p + LanesOf<V>::kCount, x.im);
}
template <typename V>
Complex<V> broadcastRoot(const ScalarOf<V>* p) {
  return {broadcastLane<V>(p), broadcastLane<V>(p + 1)};
}

template <typename V>
[[gnu::always_inline]] inline void butterfly(Complex<V> (&x)[2]) {
  const Complex<V> a = x[0];
  x[0] = a + x[1];
  x[1] = a - x[1];
}

template <typename V>
[[gnu::always_inline]] inline void butterfly(Complex<V> (&x)[4]) {
  const Complex<V> sum02 = x[0] + x[2], difference02 = x[0] - x[2];
  const Complex<V> sum13 = x[1] + x[3], difference13 = x[1] - x[3];
  x[0] = sum02 + sum13;
  x[1] = minusTurned(difference02, difference13);
  x[2] = sum02 - sum13;
  x[3] = plusTurned(difference02, difference13);
}

template <typename V>
[[gnu::always_inline]] inline void butterfly(Complex<V> (&x)[8]) {
  static constexpr ScalarOf<V> kHalfRoot = static_cast<ScalarOf<V>>(0.70710678118654752440);
  const V h = broadcastLane<V>(&kHalfRoot);
  Complex<V> odd[4] = {x[1], x[3], x[5], x[7]};
  butterfly(odd);
  odd[1] = {(odd[1].re + odd[1].im) * h, (odd[1].im - odd[1].re) * h};
  odd[3] = {(odd[3].im - odd[3].re) * h, (odd[3].re + odd[3].im) * h};
  Complex<V> even[4] = {x[0], x[2], x[4], x[6]};
  butterfly(even);
  x[0] = even[0] + odd[0];
  x[4] = even[0] - odd[0];
  x[1] = even[1] + odd[1];
  x[5] = even[1] - odd[1];
  x[2] = minusTurned(even[2], odd[2]);
  x[6] = plusTurned(even[2], odd[2]);
  x[3] = {even[3].re + odd[3].re, even[3].im - odd[3].im};
  x[7] = {even[3].re - odd[3].re, even[3].im + odd[3].im};
}

// cos(2 pi j / p) and sin(2 pi j / p) for j < p.
template <size_t p>
constexpr auto circleOf() {
  std::array<float, 2 * p> table{};
  for (size_t j = 0; j < p; ++j) {
    const Root w = root(static_cast<int64_t>(j), p);
    table[2 * j] = static_cast<float>(w.re);
    table[2 * j + 1] = static_cast<float>(-w.im);
  }
  return table;
}
template <size_t p>
inline constexpr auto kCircle = circleOf<p>();

// Of an odd radix, by sums and differences of the points k and p - k.
template <typename V, size_t p>
[[gnu::always_inline]] inline void butterfly(Complex<V> (&x)[p]) {
  constexpr size_t half = p / 2;
  static_assert(p % 2 == 1);
  const Complex<V> first = x[0];
  Complex<V> sum[half], difference[half];
  for (size_t k = 0; k < half; ++k) {
    sum[k] = x[k + 1] + x[p - 1 - k];
    difference[k] = x[k + 1] - x[p - 1 - k];
    x[0] = x[0] + sum[k];
  }
  for (size_t j = 1; j <= half; ++j) {
    Complex<V> even = first;
    Complex<V> odd = {};
    for (size_t k = 0; k < half; ++k) {
      const size_t at = j * (k + 1) % p;
      const V c = broadcastLane<V>(&kCircle<p>[2 * at]), s = broadcastLane<V>(&kCircle<p>[2 * at + 1]);
      even = {even.re + c * sum[k].re, even.im + c * sum[k].im};
      const Complex<V> turned = {s * difference[k].re, s * difference[k].im};
      odd = k == 0 ? turned : odd + turned;
    }
    x[j] = minusTurned(even, odd);
    x[p - j] = plusTurned(even, odd);
  }
}

// One pass over a transform of radix * m points: butterflies j of the points j + i * m, which load(j + i * m)
// gives and store(j + i * m, x) takes. `roots` has radix - 1 numbers for each j, the first ones 1.
template <typename V, size_t radix, typename Load, typename Store>
[[gnu::always_inline]] inline void joinTransforms(size_t m, const ScalarOf<V>* roots, const Load& load,
                                                  const Store& store) {
  Complex<V> x[radix];
  for (size_t i = 0; i < radix; ++i) x[i] = load(i * m);
  butterfly(x);
  for (size_t i = 0; i < radix; ++i) store(i * m, x[i]);
  for (size_t j = 1; j < m; ++j) {
    roots += 2 * (radix - 1);
    x[0] = load(j);
    for (size_t i = 1; i < radix; ++i) x[i] = load(j + i * m) * broadcastRoot<V>(roots + 2 * (i - 1));
    butterfly(x);
    for (size_t i = 0; i < radix; ++i) store(j + i * m, x[i]);
  }
}

template <typename V>
struct Pass {
  size_t radix, m;
  const ScalarOf<V>* roots;
  // cos(2 pi j / radix) and sin(2 pi j / radix) for each j, of an odd radix above 7.
  const ScalarOf<V>* circle = nullptr;
};

// Beyond this radix no pass is made.
inline constexpr size_t kLargestRadix = 149;

// The passes of a transform, the first with m = 1.
template <typename V>
struct Passes {
  size_t length;
  int count;
  const Pass<V>* pass;
  // Where the first pass wants each point of the input.
  const uint32_t* slot;
};

// Of 2^order points, order 0 to 10, without any memory.
inline constexpr int kLargestTable = 10;
const Passes<Floats8>& passesOfOrder(int order);

// In place: the passes between the first and the last, those before the last, and those after the first.
template <typename V>
void runMiddlePasses(const Passes<V>& passes, ScalarOf<V>* points);
template <typename V>
void runFirstPasses(const Passes<V>& passes, ScalarOf<V>* points);
template <typename V>
void runLaterPasses(const Passes<V>& passes, ScalarOf<V>* points);

// The whole transform in place: points come in their slots, and leave in their order.
template <typename V>
void runPasses(const Passes<V>& passes, ScalarOf<V>* points);

// The input's places in the order in which the first pass takes them: a counter whose first digit counts
// most.
template <typename V>
class FirstPlaces {
 public:
  explicit FirstPlaces(const Passes<V>& passes) : passes_(passes) {}
  size_t place() const { return place_; }
  void next() {
    size_t weight = passes_.length / passes_.pass[0].radix;
    for (int i = 1; i < passes_.count; ++i) {
      const size_t radix = passes_.pass[i].radix;
      weight /= radix;
      place_ += weight;
      if (++digit_[i] < radix) return;
      place_ -= weight * radix;
      digit_[i] = 0;
    }
  }

 private:
  const Passes<V>& passes_;
  size_t place_ = 0;
  uint32_t digit_[32] = {};
};

template <typename V, size_t radix, typename Load>
[[gnu::always_inline]] inline void runFirstPass(const Passes<V>& passes, const Load& load,
                                                ScalarOf<V>* points) {
  const size_t apart = passes.length / radix;
  FirstPlaces<V> from(passes);
  for (size_t block = 0; block < apart; ++block, from.next()) {
    Complex<V> x[radix];
    for (size_t i = 0; i < radix; ++i) x[i] = load(from.place() + i * apart);
    butterfly(x);
    for (size_t i = 0; i < radix; ++i) storePoint(points + (block * radix + i) * kPoint<V>, x[i]);
  }
}

// A transform of 2^order points that stand in their slots, to store(place, x).
template <typename V, typename Store>
[[gnu::always_inline]] inline void runFromSlots(const Passes<V>& passes, ScalarOf<V>* points,
                                                const Store& store) {
  const auto load = [=](size_t i) { return loadPoint<V>(points + i * kPoint<V>); };
  const Pass<V>& last = passes.pass[passes.count - 1];
  if (last.radix == 8) return joinTransforms<V, 8>(1, nullptr, load, store);
  runFirstPasses(passes, points);
  joinTransforms<V, 4>(last.m, last.roots, load, store);
}

// A transform of 2^order points, from load(place) by way of memory for the points to store(place, x).
template <typename V, typename Load, typename Store>
[[gnu::always_inline]] inline void runPowerOfTwo(const Passes<V>& passes, const Load& load,
                                                 ScalarOf<V>* points, const Store& store) {
  if (passes.count == 1) {
    if (passes.length == 2) return joinTransforms<V, 2>(1, nullptr, load, store);
    if (passes.length == 4) return joinTransforms<V, 4>(1, nullptr, load, store);
    return joinTransforms<V, 8>(1, nullptr, load, store);
  }
  if (passes.pass[0].radix == 8)
    runFirstPass<V, 8>(passes, load, points);
  else
    runFirstPass<V, 4>(passes, load, points);
  runMiddlePasses(passes, points);
  const Pass<V>& last = passes.pass[passes.count - 1];
  joinTransforms<V, 4>(
      last.m, last.roots, [=](size_t i) { return loadPoint<V>(points + i * kPoint<V>); }, store);
}

}  // namespace lumi::transforms
