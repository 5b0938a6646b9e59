// SPDX-License-Identifier: MIT
#include "kernels/transforms/wavelet.hpp"

#include "kernels/simd/floats.hpp"

namespace lumi {
namespace {

using namespace simd;

constexpr size_t kFloat = sizeof(float);

template <typename V>
V loadFloats(const Byte* p) {
  if constexpr (std::is_same_v<V, float>) {
    float x;
    move<kFloat>(reinterpret_cast<Byte*>(&x), p);
    return x;
  } else {
    return loadFloats8(p);
  }
}
template <typename V>
V broadcastTo(float x) {
  if constexpr (std::is_same_v<V, float>)
    return x;
  else
    return broadcastFloat<V>(x);
}
inline void storeFloats(Byte* p, float x) { move<kFloat>(p, reinterpret_cast<const Byte*>(&x)); }
inline void storeFloats(Byte* p, Floats8 x) { store32(p, bytesOf(x)); }

// Neighbouring vectors whose sums grow side by side, so that additions do not wait for one another.
template <typename V, int n>
struct Sums {
  V v[n];

  // The first product begins the sum: a zero before it would turn -0 into 0.
  [[gnu::always_inline]] void begin(const Byte* row, float weight) {
    for (int i = 0; i < n; ++i) v[i] = product(row, i, weight);
  }
  [[gnu::always_inline]] void add(const Byte* row, float weight) {
    for (int i = 0; i < n; ++i) v[i] = v[i] + product(row, i, weight);
  }
  [[gnu::always_inline]] static V product(const Byte* row, int i, float weight) {
    return broadcastTo<V>(weight) * loadFloats<V>(row + static_cast<size_t>(i) * sizeof(V));
  }
};

struct InTurn {
  WeightList weights;
  SourceRows even, odd;

  template <typename V, int n>
  [[gnu::always_inline]] Sums<V, n> at(size_t bytes) const {
    const Byte *a = even.first + bytes, *b = odd.first + bytes;
    Sums<V, n> sums;
    sums.begin(a, weights.first[0]);
    int64_t k = 1;
    for (; k + 1 < weights.count; k += 2) {
      sums.add(b, weights.first[k]);
      sums.add(a += even.step, weights.first[k + 1]);
      b += odd.step;
    }
    if (k < weights.count) sums.add(b, weights.first[k]);
    return sums;
  }
};

template <typename V, int n>
[[gnu::always_inline]] inline Sums<V, n> sumsOf(const WeightedRows& of, size_t bytes) {
  const Byte* row = of.rows.first + bytes;
  Sums<V, n> sums;
  sums.begin(row, of.weights.first[0]);
  for (int64_t k = 1; k < of.weights.count; ++k) sums.add(row += of.rows.step, of.weights.first[k]);
  return sums;
}

struct TwoSequences {
  WeightedRows a, b;

  template <typename V, int n>
  [[gnu::always_inline]] Sums<V, n> at(size_t bytes) const {
    Sums<V, n> sums = sumsOf<V, n>(a, bytes);
    const Sums<V, n> others = sumsOf<V, n>(b, bytes);
    for (int i = 0; i < n; ++i) sums.v[i] = sums.v[i] + others.v[i];
    return sums;
  }
};

template <typename V, int n, typename Rule>
[[gnu::always_inline]] inline void storeSums(Byte* dst, size_t bytes, const Rule& rule) {
  const Sums<V, n> sums = rule.template at<V, n>(bytes);
  for (int i = 0; i < n; ++i) storeFloats(dst + bytes + static_cast<size_t>(i) * sizeof(V), sums.v[i]);
}

// The last vector lies over the one before it where the row has none of its own.
template <int n, typename Rule>
void forRow(Byte* dst, size_t floats, const Rule& rule) {
  constexpr size_t kOne = sizeof(Floats8), kSeveral = n * kOne;
  const size_t bytes = floats * kFloat;
  size_t i = 0;
  for (; i + kSeveral <= bytes; i += kSeveral) storeSums<Floats8, n>(dst, i, rule);
  for (; i + kOne <= bytes; i += kOne) storeSums<Floats8, 1>(dst, i, rule);
  if (i < bytes && bytes >= kOne) {
    storeSums<Floats8, 1>(dst, bytes - kOne, rule);
  } else {
    for (; i < bytes; i += kFloat) storeSums<float, 1>(dst, i, rule);
  }
}

template <int channels>
constexpr size_t kPixel = sizeof(float[channels]);

}  // namespace

void weighRowsInTurn(Byte* dst, size_t floats, WeightList weights, SourceRows even, SourceRows odd) {
  forRow<4>(dst, floats, InTurn{weights, even, odd});
}

void weighTwoSequences(Byte* dst, size_t floats, const WeightedRows& a, const WeightedRows& b) {
  forRow<4>(dst, floats, TwoSequences{a, b});
}

template <int channels>
void splitPixels(const Byte* src, size_t pixels, Byte* even, Byte* odd) {
  constexpr size_t kBytes = kPixel<channels>;
  size_t i = 0;
  if constexpr (channels == 1) {
    for (; i + 16 <= pixels; i += 16) {
      const Bytes32 a = load32(src + i * kBytes), b = load32(src + i * kBytes + 32);
      const Halves32 low{lowHalf(a), lowHalf(b)}, high{highHalf(a), highHalf(b)};
      store32(even + i / 2 * kBytes,
              joined(evenPixels<4>(low.low, high.low), evenPixels<4>(low.high, high.high)));
      store32(odd + i / 2 * kBytes, joined(oddDwords(low.low, high.low), oddDwords(low.high, high.high)));
    }
  }
  // Three floats and one that the next pixel of the row overwrites.
  for (; channels == 3 && i + 3 < pixels; i += 2) {
    store16(even + i / 2 * kBytes, load16(src + i * kBytes));
    store16(odd + i / 2 * kBytes, load16(src + (i + 1) * kBytes));
  }
  for (; i + 1 < pixels; i += 2) {
    move<kBytes>(even + i / 2 * kBytes, src + i * kBytes);
    move<kBytes>(odd + i / 2 * kBytes, src + (i + 1) * kBytes);
  }
  if (i < pixels) move<kBytes>(even + i / 2 * kBytes, src + i * kBytes);
}

template <int channels>
void mergePixels(const Byte* even, const Byte* odd, size_t pairs, Byte* dst) {
  constexpr size_t kBytes = kPixel<channels>;
  size_t i = 0;
  if constexpr (channels == 1) {
    for (; i + 4 <= pairs; i += 4) {
      const Bytes16 a = load16(even + i * kBytes), b = load16(odd + i * kBytes);
      store32(dst + 2 * i * kBytes, joined(interleaveLowDwords(a, b), interleaveHighDwords(a, b)));
    }
  }
  for (; channels == 3 && i + 1 < pairs; ++i) {
    store16(dst + 2 * i * kBytes, load16(even + i * kBytes));
    store16(dst + (2 * i + 1) * kBytes, load16(odd + i * kBytes));
  }
  for (; i < pairs; ++i) {
    move<kBytes>(dst + 2 * i * kBytes, even + i * kBytes);
    move<kBytes>(dst + (2 * i + 1) * kBytes, odd + i * kBytes);
  }
}

template void splitPixels<1>(const Byte*, size_t, Byte*, Byte*);
template void splitPixels<3>(const Byte*, size_t, Byte*, Byte*);
template void mergePixels<1>(const Byte*, const Byte*, size_t, Byte*);
template void mergePixels<3>(const Byte*, const Byte*, size_t, Byte*);

}  // namespace lumi
