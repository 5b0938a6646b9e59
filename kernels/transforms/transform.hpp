// SPDX-License-Identifier: MIT
// Complex transforms of any length of the sequences in the lanes of vectors, and the plans for them.
#pragma once

#include "kernels/transforms/passes.hpp"

namespace lumi::transforms {

using Lanes = Floats8;
inline constexpr size_t kLanes = LanesOf<Lanes>::kCount;
inline constexpr size_t kPointFloats = kPoint<Lanes>;
inline constexpr int64_t kPointBytes = kPointFloats * sizeof(float);

// A length that tables of passes hold, or a product of two of them: of length = outer * inner points, place
// c + inner * a goes through a transform over a first, is turned by exp(-2 pi i k c / length), and goes
// through one over c then; frequency k + outer * j comes out.
struct Chirp;
struct Transform {
  size_t length;
  Passes<Lanes> outer, inner;  // outer of length 1 where the inner one is all
  // exp(-2 pi i k c / length) as points of eight c: those of k = 0, then of 1 and so on. Of lengths above
  // 2^kLargestRoots it is null, and they are products of two roots: of a multiple of 2^shift, and of a rest.
  const float* roots;
  const double *coarse, *fine;
  int shift;
  // Of a length with a large prime factor, which is a convolution of another length.
  const Chirp* chirp;
  // Passes of radix 4, but for the first.
  bool isPowerOfTwo;

  bool isSplit() const { return outer.length > 1; }
  // Floats of memory that a transform needs beside its points.
  size_t localFloats() const;
  // Where the points of the input stand in memory, and those of the spectrum afterwards.
  size_t slotOfPlace(size_t n) const { return isSplit() || chirp ? n : inner.slot[n]; }
  size_t slotOfFrequency(size_t k) const {
    return isSplit() ? k % outer.length * inner.length + k / outer.length : k;
  }
};

// With t(n) = exp(-pi i n^2 / length), F(k) = t(k) times the sum of f(n) t(n) / t(k - n): a convolution,
// which goes around in any length from 2 * length - 1 on (Bluestein, "A linear filtering approach to the
// computation of the discrete Fourier transform", 1970).
struct Chirp {
  Transform convolution;
  const float* turns;     // t(n), as pairs
  const float* spectrum;  // of 1 / t(n), divided by the convolution's length, as pairs
};

inline size_t Transform::localFloats() const {
  if (chirp) return 2 * chirp->convolution.length * kPointFloats + chirp->convolution.localFloats();
  if (!isSplit()) return 0;
  const size_t longer = outer.length > inner.length ? outer.length : inner.length;
  return (longer + (roots ? 0 : outer.length)) * kPointFloats;
}

inline constexpr int kLargestRoots = 18;

// Of 2^order points, order 0 to 10, without any memory.
Transform wholeTransform(int order);
// Split, of order 7 to kLargestRoots, with a table of 2^order numbers that fillRoots has made.
Transform splitTransform(int order, const float* roots);
void fillRoots(int order, float* roots);
// Split, of any order above that to 28, with tables in memory of so many bytes.
int64_t largeTransformBytes(int order);
Transform largeTransform(int order, void* memory);

constexpr bool isPowerOfTwo(int64_t n) { return (n & (n - 1)) == 0; }
// The logarithm of a power of two.
constexpr int orderOf(int64_t n) { return n <= 1 ? 0 : 1 + orderOf(n / 2); }

// Of any length: bytes of memory for tables, floats of scratch while they are made, and localFloats().
// Lengths that passes make have prime factors up to kLargestRadix; which they are is the interface's rule.
struct AnyLength {
  int64_t tableBytes, scratchFloats, localFloats;
};
bool isMadeByPasses(int64_t length);
AnyLength anyLength(int64_t length);
Transform anyTransform(int64_t length, void* memory, float* scratch);

// Transforms points in place; `local` has room for localFloats().
void transformPoints(const Transform& transform, float* points, float* local);

}  // namespace lumi::transforms
