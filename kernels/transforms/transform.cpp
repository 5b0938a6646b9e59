// SPDX-License-Identifier: MIT
#include "kernels/transforms/transform.hpp"

#include "kernels/transforms/roots.hpp"
#include "kernels/transforms/split_transform.hpp"

namespace lumi::transforms {

namespace {

// Largest tables come first in memory, so that each is aligned.
template <typename T>
T* take(uint8_t*& memory, size_t count) {
  T* const table = reinterpret_cast<T*>(memory);
  memory += count * sizeof(T);
  return table;
}

Root product(const double* coarse, const double* fine) {
  return {coarse[0] * fine[0] - coarse[1] * fine[1], coarse[0] * fine[1] + coarse[1] * fine[0]};
}

// Passes beyond those of kLargestTable are as many as this at the most: of radix 4 from 2^11 or 2^12 points
// to 2^14.
constexpr int kMostPasses = 8;

int64_t largePassesBytes(int order) {
  if (order <= kLargestTable) return 0;
  return kMostPasses * static_cast<int64_t>(sizeof(Pass<Lanes>)) + (int64_t{1} << order) * (8 + 4);
}

// The table of passes that a longer transform begins with, continued.
Passes<Lanes> largePasses(int order, uint8_t*& memory) {
  if (order <= kLargestTable) return passesOfOrder(order);
  const Passes<Lanes>& begin = passesOfOrder(kLargestTable - order % 2);
  const size_t length = size_t{1} << order;
  auto* const passes = take<Pass<Lanes>>(memory, kMostPasses);
  auto* roots = take<float>(memory, 2 * length);
  auto* const slots = take<uint32_t>(memory, length);
  int count = 0;
  for (; count < begin.count; ++count) passes[count] = begin.pass[count];
  for (size_t m = begin.length; m < length; m *= 4) {
    passes[count++] = {4, m, roots};
    for (size_t j = 0; j < m; ++j) {
      for (size_t k = 1; k < 4; ++k) {
        const Root w = root(static_cast<int64_t>(j * k), static_cast<int64_t>(4 * m));
        *roots++ = static_cast<float>(w.re);
        *roots++ = static_cast<float>(w.im);
      }
    }
  }
  // A place is a digit of the last pass, and above it a place of the transforms that this joins.
  for (size_t n = 0; n < length; ++n) {
    size_t rest = n, slot = 0, weight = length;
    for (int i = count - 1; i >= 0; --i) {
      weight /= passes[i].radix;
      slot += rest % passes[i].radix * weight;
      rest /= passes[i].radix;
    }
    slots[n] = static_cast<uint32_t>(slot);
  }
  return {length, count, passes, slots};
}

}  // namespace

Transform wholeTransform(int order) {
  return {size_t{1} << order,
          passesOfOrder(0),
          passesOfOrder(order),
          nullptr,
          nullptr,
          nullptr,
          0,
          nullptr,
          true};
}

Transform splitTransform(int order, const float* roots) {
  return {size_t{1} << order,
          passesOfOrder(order / 2),
          passesOfOrder(order - order / 2),
          roots,
          nullptr,
          nullptr,
          0,
          nullptr,
          true};
}

void fillRoots(int order, float* roots) {
  const Transform transform = splitTransform(order, roots);
  const auto length = static_cast<int64_t>(transform.length);
  const auto inner = static_cast<int64_t>(transform.inner.length);
  for (int64_t i = 0; i < length; ++i) {
    const Root w = root(i / inner * (i % inner), length);
    float* const block =
        roots + static_cast<size_t>(i) / kLanes * kPointFloats + static_cast<size_t>(i) % kLanes;
    block[0] = static_cast<float>(w.re);
    block[kLanes] = static_cast<float>(w.im);
  }
}

int64_t largeTransformBytes(int order) {
  const int shift = order / 2;
  const int64_t factors = (int64_t{1} << shift) + (int64_t{1} << (order - shift));
  return factors * 2 * static_cast<int64_t>(sizeof(double)) + largePassesBytes(order / 2) +
         largePassesBytes(order - order / 2);
}

Transform largeTransform(int order, void* memory) {
  auto* rest = static_cast<uint8_t*>(memory);
  const int shift = order / 2;
  const auto length = int64_t{1} << order;
  const auto fill = [&](int64_t count, int64_t apart) {
    double* const table = take<double>(rest, 2 * static_cast<size_t>(count));
    for (int64_t i = 0; i < count; ++i) {
      const Root w = root(i * apart, length);
      table[2 * i] = w.re;
      table[2 * i + 1] = w.im;
    }
    return table;
  };
  const double* const coarse = fill(int64_t{1} << (order - shift), int64_t{1} << shift);
  const double* const fine = fill(int64_t{1} << shift, 1);
  const Passes<Lanes> outer = largePasses(order / 2, rest);
  const Passes<Lanes> inner = largePasses(order - order / 2, rest);
  return {static_cast<size_t>(length), outer, inner, nullptr, coarse, fine, shift, nullptr, true};
}

BlockRoots rootsOfBlock(const Transform& transform, size_t block, float* room) {
  if (transform.roots) return {transform.roots + block * kPointFloats, transform.inner.length * 2};
  const size_t below = (size_t{1} << transform.shift) - 1;
  for (size_t k = 0; k < transform.outer.length; ++k) {
    for (size_t lane = 0; lane < kLanes; ++lane) {
      const size_t turn = k * (block * kLanes + lane);  // below the length
      const Root w =
          product(transform.coarse + 2 * (turn >> transform.shift), transform.fine + 2 * (turn & below));
      room[k * kPointFloats + lane] = static_cast<float>(w.re);
      room[k * kPointFloats + kLanes + lane] = static_cast<float>(w.im);
    }
  }
  return {room, kPointFloats};
}

namespace {

Complex<Lanes> turned(const float* points, size_t slot, const float* root) {
  return loadPoint<Lanes>(points + slot * kPointFloats) * broadcastRoot<Lanes>(root);
}

void convolve(const Chirp& chirp, size_t length, float* points, float* local) {
  const Transform& convolution = chirp.convolution;
  float *const first = local, *const second = first + convolution.length * kPointFloats;
  float* const rest = second + convolution.length * kPointFloats;
  const Lanes zero = {};
  for (size_t n = 0; n < convolution.length; ++n)
    storePoint<Lanes>(first + convolution.slotOfPlace(n) * kPointFloats,
                      n < length ? turned(points, n, chirp.turns + 2 * n) : Complex<Lanes>{zero, zero});
  transformPoints(convolution, first, rest);
  for (size_t k = 0; k < convolution.length; ++k)
    storePoint<Lanes>(second + convolution.slotOfPlace(k) * kPointFloats,
                      exchanged(turned(first, convolution.slotOfFrequency(k), chirp.spectrum + 2 * k)));
  transformPoints(convolution, second, rest);
  for (size_t k = 0; k < length; ++k) {
    const Complex<Lanes> x = loadPoint<Lanes>(second + convolution.slotOfFrequency(k) * kPointFloats);
    storePoint<Lanes>(points + k * kPointFloats, exchanged(x) * broadcastRoot<Lanes>(chirp.turns + 2 * k));
  }
}

}  // namespace

void transformPoints(const Transform& transform, float* points, float* local) {
  if (transform.chirp) return convolve(*transform.chirp, transform.length, points, local);
  if (!transform.isSplit()) return runPasses(transform.inner, points);
  const auto load = [=](size_t n) { return loadPoint<Lanes>(points + n * kPointFloats); };
  runOuter(transform, load, points, local);
  const size_t inner = transform.inner.length;
  for (size_t k = 0; k < transform.outer.length; ++k) {
    float* const row = points + k * inner * kPointFloats;
    runPowerOfTwo<Lanes>(
        transform.inner, [=](size_t c) { return loadPoint<Lanes>(row + c * kPointFloats); }, local,
        [=](size_t j, Complex<Lanes> x) { storePoint(row + j * kPointFloats, x); });
  }
}

}  // namespace lumi::transforms
