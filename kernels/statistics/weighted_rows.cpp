// SPDX-License-Identifier: MIT
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

// So many vectors of the result; load(row, i) gives the vector i of a row.
template <size_t vectors, typename T, typename Load, typename Store>
[[gnu::always_inline]] inline void addVectors(const T* const* rows, const T* weights, size_t count, Load load,
                                              Store store) {
  VectorOf<T> sums[vectors];
  for (size_t i = 0; i < vectors; ++i) sums[i] = load(rows[0], i) * weightOf(weights, 0);
  for (size_t k = 1; k < count; ++k) {
    const VectorOf<T> weight = weightOf(weights, k);
    for (size_t i = 0; i < vectors; ++i) sums[i] = sums[i] + load(rows[k], i) * weight;
  }
  for (size_t i = 0; i < vectors; ++i) store(i, bytesOf(sums[i]));
}

inline const Byte* bytesAt(const void* p) { return static_cast<const Byte*>(p); }
inline Byte* bytesAt(void* p) { return static_cast<Byte*>(p); }

template <size_t vectors, typename T>
[[gnu::always_inline]] inline void addBlock(const T* const* rows, const T* weights, size_t count, T* dst,
                                            size_t from) {
  const size_t at = from * sizeof(T);
  addVectors<vectors>(
      rows, weights, count,
      [=](const T* row, size_t i) { return samplesOf<T>(load32(bytesAt(row) + at + 32 * i)); },
      [=](size_t i, Bytes32 sums) { store32(bytesAt(dst) + at + 32 * i, sums); });
}

}  // namespace

template <typename T>
void addWeightedRows(const T* const* rows, const T* weights, size_t count, T* dst, size_t width) {
  constexpr size_t kVectors = 4, kBlock = kVectors * kLanes<T>;
  size_t done = 0;
  for (; done + kBlock <= width; done += kBlock) addBlock<kVectors>(rows, weights, count, dst, done);
  for (; done + kLanes<T> <= width; done += kLanes<T>) addBlock<1>(rows, weights, count, dst, done);
  if (done == width) return;
  if (width >= kLanes<T>) return addBlock<1>(rows, weights, count, dst, width - kLanes<T>);
  const size_t bytes = width * sizeof(T);
  T sums[kLanes<T>];
  addVectors<1>(
      rows, weights, count,
      [=](const T* row, size_t) {
        T samples[kLanes<T>] = {};
        copyShort(bytesAt(row), bytesAt(samples), bytes);
        return samplesOf<T>(load32(bytesAt(samples)));
      },
      [&](size_t, Bytes32 made) { store32(bytesAt(sums), made); });
  copyShort(bytesAt(sums), bytesAt(dst), bytes);
}

template void addWeightedRows(const float* const*, const float*, size_t, float*, size_t);
template void addWeightedRows(const double* const*, const double*, size_t, double*, size_t);

}  // namespace lumi
