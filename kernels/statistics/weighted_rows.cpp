// SPDX-License-Identifier: MIT
#include <algorithm>

#include "kernels/simd/elementary.hpp"
#include "kernels/simd/short_copy.hpp"
#include "kernels/statistics/dot_prod.hpp"

namespace lumi {
namespace {

using namespace simd;

template <typename T>
using VectorOf = std::conditional_t<std::is_same_v<T, float>, Floats8, Doubles4>;
template <typename T>
inline constexpr size_t kLanes = 32 / sizeof(T);

// The weight of a row; weights may lie anywhere.
template <typename T>
VectorOf<T> weightOf(const T* weights, size_t row) {
  T weight;
  std::memcpy(&weight, reinterpret_cast<const Byte*>(weights) + row * sizeof(T), sizeof weight);
  if constexpr (std::is_same_v<T, float>)
    return broadcastFloat<Floats8>(weight);
  else
    return broadcastDouble(weight);
}

inline const Byte* bytesAt(const void* p) { return static_cast<const Byte*>(p); }
inline Byte* bytesAt(void* p) { return static_cast<Byte*>(p); }

// So many rows and their weights.
template <typename T>
struct Weighted {
  const T* const* rows;
  const T* weights;
  size_t count;

  Weighted part(size_t from, size_t most) const {
    return {rows + from, weights + from, std::min(most, count - from)};
  }
};

// Adds them to sums that there are, in their order.
template <size_t vectors, typename T>
[[gnu::always_inline]] inline void addTo(VectorOf<T>* sums, const Weighted<T>& w, size_t first, size_t at) {
  for (size_t k = first; k < w.count; ++k) {
    const VectorOf<T> weight = weightOf(w.weights, k);
    const Byte* row = bytesAt(w.rows[k]) + at;
    for (size_t i = 0; i < vectors; ++i) sums[i] = sums[i] + samplesOf<T>(load32(row + 32 * i)) * weight;
  }
}

// So many vectors of the result, of all rows or of what the destination has and the rows.
template <size_t vectors, bool isFirst, typename T>
[[gnu::always_inline]] inline void addBlock(const Weighted<T>& w, T* dst, size_t from) {
  const size_t at = from * sizeof(T);
  VectorOf<T> sums[vectors];
  for (size_t i = 0; i < vectors; ++i) {
    if (isFirst)
      sums[i] = samplesOf<T>(load32(bytesAt(w.rows[0]) + at + 32 * i)) * weightOf(w.weights, 0);
    else
      sums[i] = samplesOf<T>(load32(bytesAt(dst) + at + 32 * i));
  }
  addTo<vectors>(sums, w, isFirst ? 1 : 0, at);
  for (size_t i = 0; i < vectors; ++i) store32(bytesAt(dst) + at + 32 * i, bytesOf(sums[i]));
}

template <bool isFirst, typename T>
void addVectors(const Weighted<T>& w, T* dst, size_t width) {
  constexpr size_t kVectors = 4, kBlock = kVectors * kLanes<T>;
  size_t done = 0;
  for (; done + kBlock <= width; done += kBlock) addBlock<kVectors, isFirst>(w, dst, done);
  for (; done + kLanes<T> <= width; done += kLanes<T>) addBlock<1, isFirst>(w, dst, done);
}

// Of rows that are shorter than a vector.
template <typename T>
void addShortRows(const Weighted<T>& w, T* dst, size_t width) {
  const size_t bytes = width * sizeof(T);
  if (width >= kLanes<T>) __builtin_unreachable();
  const auto weighted = [=](size_t k) {
    T samples[kLanes<T>] = {};
    copyShort(bytesAt(w.rows[k]), bytesAt(samples), bytes);
    return samplesOf<T>(load32(bytesAt(samples))) * weightOf(w.weights, k);
  };
  VectorOf<T> sum = weighted(0);
  for (size_t k = 1; k < w.count; ++k) sum = sum + weighted(k);
  T sums[kLanes<T>];
  store32(bytesAt(sums), bytesOf(sum));
  copyShort(bytesAt(sums), bytesAt(dst), bytes);
}

// As many rows are read side by side; the destination keeps their sums meanwhile.
constexpr size_t kRowsAtOnce = 8;

}  // namespace

template <typename T>
void addWeightedRows(const T* const* rows, const T* weights, size_t count, T* dst, size_t width) {
  const Weighted<T> all{rows, weights, count};
  if (width < kLanes<T>) return addShortRows(all, dst, width);
  addVectors<true>(all.part(0, kRowsAtOnce), dst, width);
  for (size_t k = kRowsAtOnce; k < count; k += kRowsAtOnce)
    addVectors<false>(all.part(k, kRowsAtOnce), dst, width);
  if (width % kLanes<T> != 0) addBlock<1, true>(all, dst, width - kLanes<T>);
}

template void addWeightedRows(const float* const*, const float*, size_t, float*, size_t);
template void addWeightedRows(const double* const*, const double*, size_t, double*, size_t);

}  // namespace lumi
