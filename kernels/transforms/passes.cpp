// SPDX-License-Identifier: MIT
#include "kernels/transforms/passes.hpp"

#include <array>

#include "kernels/transforms/roots.hpp"

namespace lumi::transforms {
namespace {

// exp(-2 pi i j k / (radix * m)) for j < m and 0 < k < radix.
template <size_t radix, size_t m>
constexpr auto tableOfRoots() {
  std::array<float, 2 * (radix - 1) * m> table{};
  size_t next = 0;
  for (size_t j = 0; j < m; ++j) {
    for (size_t k = 1; k < radix; ++k) {
      const Root w = root(static_cast<int64_t>(j * k), radix * m);
      table[next++] = static_cast<float>(w.re);
      table[next++] = static_cast<float>(w.im);
    }
  }
  return table;
}
template <size_t m>
constexpr auto kRoots = tableOfRoots<4, m>();

// Orders that are even have passes of radix 4, the others begin with one of radix 8.
constexpr Pass<Floats8> kEven[] = {{4, 1, nullptr},
                                   {4, 4, kRoots<4>.data()},
                                   {4, 16, kRoots<16>.data()},
                                   {4, 64, kRoots<64>.data()},
                                   {4, 256, kRoots<256>.data()}};
constexpr Pass<Floats8> kOdd[] = {
    {8, 1, nullptr}, {4, 8, kRoots<8>.data()}, {4, 32, kRoots<32>.data()}, {4, 128, kRoots<128>.data()}};
constexpr Pass<Floats8> kTwo[] = {{2, 1, nullptr}};

// The digits of a place in the order of the passes, the last one's first, are those of the slot from behind.
template <int order>
constexpr auto slotsOfOrder() {
  std::array<uint32_t, size_t{1} << order> slots{};
  for (size_t n = 0; n < slots.size(); ++n) {
    size_t slot = 0, rest = n, weight = slots.size();
    while (weight > 1) {
      const size_t radix = weight == 2 ? 2 : weight == 8 && order % 2 == 1 ? 8 : 4;
      weight /= radix;
      slot += rest % radix * weight;
      rest /= radix;
    }
    slots[n] = static_cast<uint32_t>(slot);
  }
  return slots;
}
template <int order>
constexpr auto kSlots = slotsOfOrder<order>();

template <int order>
constexpr Passes<Floats8> passesOf() {
  const Pass<Floats8>* const pass = order == 1 ? kTwo : order % 2 == 1 ? kOdd : kEven;
  return {size_t{1} << order, order == 1 ? 1 : order / 2, pass, kSlots<order>.data()};
}

constexpr Passes<Floats8> kPasses[] = {passesOf<0>(), passesOf<1>(), passesOf<2>(), passesOf<3>(),
                                       passesOf<4>(), passesOf<5>(), passesOf<6>(), passesOf<7>(),
                                       passesOf<8>(), passesOf<9>(), passesOf<10>()};

// Points 1 to p - 1 of x become sums and differences in pairs; point 0 becomes the sum of all.
template <typename V>
void butterflyOfOdd(Complex<V>* x, size_t p, const ScalarOf<V>* circle, Complex<V>* result) {
  const size_t half = p / 2;
  const Complex<V> first = x[0];
  Complex<V> all = first;
  for (size_t k = 1; k <= half; ++k) {
    const Complex<V> a = x[k], b = x[p - k];
    x[k] = a + b;
    x[p - k] = a - b;
    all = all + x[k];
  }
  result[0] = all;
  for (size_t j = 1; j <= half; ++j) {
    Complex<V> even = first;
    Complex<V> odd = {};
    size_t at = 0;
    for (size_t k = 1; k <= half; ++k) {
      at += j;
      if (at >= p) at -= p;
      const V c = broadcastLane<V>(circle + 2 * at), s = broadcastLane<V>(circle + 2 * at + 1);
      even = {even.re + c * x[k].re, even.im + c * x[k].im};
      const Complex<V> turned = {s * x[p - k].re, s * x[p - k].im};
      odd = k == 1 ? turned : odd + turned;
    }
    result[j] = minusTurned(even, odd);
    result[p - j] = plusTurned(even, odd);
  }
}

template <typename V>
void runOddPass(const Pass<V>& pass, size_t length, ScalarOf<V>* points) {
  Complex<V> x[kLargestRadix], result[kLargestRadix];
  for (size_t first = 0; first < length; first += pass.radix * pass.m) {
    for (size_t j = 0; j < pass.m; ++j) {
      ScalarOf<V>* const p = points + (first + j) * kPoint<V>;
      const ScalarOf<V>* const roots = pass.roots + j * 2 * (pass.radix - 1);
      x[0] = loadPoint<V>(p);
      for (size_t i = 1; i < pass.radix; ++i) {
        x[i] = loadPoint<V>(p + i * pass.m * kPoint<V>);
        if (j > 0) x[i] = x[i] * broadcastRoot<V>(roots + 2 * (i - 1));
      }
      butterflyOfOdd(x, pass.radix, pass.circle, result);
      for (size_t i = 0; i < pass.radix; ++i) storePoint(p + i * pass.m * kPoint<V>, result[i]);
    }
  }
}

template <typename V, size_t radix>
void runPass(const Pass<V>& pass, size_t length, ScalarOf<V>* points) {
  const size_t joined = radix * pass.m;
  for (size_t first = 0; first < length; first += joined) {
    ScalarOf<V>* const p = points + first * kPoint<V>;
    joinTransforms<V, radix>(
        pass.m, pass.roots, [=](size_t i) { return loadPoint<V>(p + i * kPoint<V>); },
        [=](size_t i, Complex<V> x) { storePoint(p + i * kPoint<V>, x); });
  }
}

template <typename V>
void runAnyPass(const Passes<V>& passes, int which, ScalarOf<V>* points) {
  const Pass<V>& pass = passes.pass[which];
  switch (pass.radix) {
    case 2:
      return runPass<V, 2>(pass, passes.length, points);
    case 4:
      return runPass<V, 4>(pass, passes.length, points);
    case 8:
      return runPass<V, 8>(pass, passes.length, points);
    case 3:
      return runPass<V, 3>(pass, passes.length, points);
    case 5:
      return runPass<V, 5>(pass, passes.length, points);
    case 7:
      return runPass<V, 7>(pass, passes.length, points);
    default:
      return runOddPass(pass, passes.length, points);
  }
}

}  // namespace

const Passes<Floats8>& passesOfOrder(int order) { return kPasses[order]; }

template <typename V>
void runMiddlePasses(const Passes<V>& passes, ScalarOf<V>* points) {
  for (int i = 1; i < passes.count - 1; ++i) runAnyPass(passes, i, points);
}
template <typename V>
void runFirstPasses(const Passes<V>& passes, ScalarOf<V>* points) {
  for (int i = 0; i < passes.count - 1; ++i) runAnyPass(passes, i, points);
}
template <typename V>
void runLaterPasses(const Passes<V>& passes, ScalarOf<V>* points) {
  for (int i = 1; i < passes.count; ++i) runAnyPass(passes, i, points);
}
template <typename V>
void runPasses(const Passes<V>& passes, ScalarOf<V>* points) {
  for (int i = 0; i < passes.count; ++i) runAnyPass(passes, i, points);
}

template void runMiddlePasses<Floats8>(const Passes<Floats8>&, float*);
template void runFirstPasses<Floats8>(const Passes<Floats8>&, float*);
template void runLaterPasses<Floats8>(const Passes<Floats8>&, float*);
template void runPasses<Floats8>(const Passes<Floats8>&, float*);

}  // namespace lumi::transforms
