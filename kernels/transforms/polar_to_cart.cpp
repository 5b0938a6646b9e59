// SPDX-License-Identifier: MIT
#include "kernels/transforms/polar_to_cart.hpp"

#include <algorithm>

#include "kernels/simd/angles.hpp"
#include "kernels/simd/complex.hpp"

namespace lumi {
namespace {

using namespace simd;

constexpr size_t kSamples = 8;  // that are made at once

struct FloatParts {
  explicit FloatParts(int) {}

  void store(Byte* d, Floats8 x, Floats8 y) const { storeComplexDwords8(d, bytesOf(x), bytesOf(y)); }
};

// A factor of 2^-s by two, of which each is an ordinary float. Where the first one leaves a denormal, the
// result is zero anyway.
struct ScaledParts {
  Floats8 first, second;

  explicit ScaledParts(int scaleFactor)
      // From 130 on all results are zero, and down to -181 one may be not limited.
      : ScaledParts(std::clamp(scaleFactor, -182, 130), 0) {}

  Floats8 scaled(Floats8 x) const { return x * first * second; }

 private:
  ScaledParts(int s, int)
      : first(broadcastFloat<Floats8>(static_cast<float>(powerOfTwo(-(s / 2))))),
        second(broadcastFloat<Floats8>(static_cast<float>(powerOfTwo(-(s - s / 2))))) {}
};

// To dwords, limited: the instruction gives INT32_MIN for all that is beyond.
Ints8 limited(Floats8 x) {
  return roundedToEven(x) ^ intsOf(isAtLeast(x, broadcastFloat<Floats8>(2147483648.0F)));
}

struct DwordParts : ScaledParts {
  using ScaledParts::ScaledParts;

  void store(Byte* d, Floats8 x, Floats8 y) const {
    storeComplexDwords8(d, limited(scaled(x)).v, limited(scaled(y)).v);
  }
};

struct WordParts : ScaledParts {
  using ScaledParts::ScaledParts;

  void store(Byte* d, Floats8 x, Floats8 y) const {
    storeComplexWords8(d, words(limited(scaled(x))), words(limited(scaled(y))));
  }

 private:
  static S16 words(Ints8 x) { return narrowSigned<int16_t>(lowHalf(x), highHalf(x)); }
};

// Fewer than eight samples of n bytes each.
template <size_t n>
void copyFew(Byte* to, const Byte* from, size_t samples) {
  for (size_t i = 0; i < samples; ++i) move<n>(to + i * n, from + i * n);
}

// One row. Its last block may lie over the one before: sources are none of what is stored.
template <size_t sample, typename Parts>
void polarRow(const Byte* m, const Byte* p, Byte* d, size_t samples, const SinesAndCosines& sines,
              const Parts& parts) {
  constexpr size_t real = sizeof(float);
  Byte magnitudes[kSamples * real] = {}, phases[kSamples * real] = {}, results[kSamples * sample];
  const bool isShort = samples < kSamples;
  Byte* to = d;
  if (isShort) {
    copyFew<real>(magnitudes, m, samples);
    copyFew<real>(phases, p, samples);
    m = magnitudes;
    p = phases;
    to = results;
  }
  const size_t last = isShort ? 0 : samples - kSamples;
  for (size_t i = 0;; i = std::min(i + kSamples, last)) {
    const SineAndCosine of = sines(loadFloats8(p + i * real));
    const Floats8 size = loadFloats8(m + i * real);
    parts.store(to + i * sample, size * of.cosine, size * of.sine);
    if (i == last) break;
  }
  if (isShort) copyFew<sample>(d, results, samples);
}

}  // namespace

template <typename T>
[[gnu::flatten]] void polarRows(SourceRows magnitudes, SourceRows phases, TargetRows dst, Extent samples,
                                int scaleFactor) {
  using Parts = std::conditional_t<std::is_same_v<T, float>, FloatParts,
                                   std::conditional_t<sizeof(T) == 4, DwordParts, WordParts>>;
  const Parts parts(scaleFactor);
  const SinesAndCosines sines;
  walkRows(
      samples.rows,
      [&](const Byte* m, const Byte* p, Byte* d) {
        polarRow<2 * sizeof(T)>(m, p, d, samples.length, sines, parts);
      },
      magnitudes, phases, dst);
}

template void polarRows<int16_t>(SourceRows, SourceRows, TargetRows, Extent, int);
template void polarRows<int32_t>(SourceRows, SourceRows, TargetRows, Extent, int);
template void polarRows<float>(SourceRows, SourceRows, TargetRows, Extent, int);

}  // namespace lumi
