// SPDX-License-Identifier: MIT
// Linear interpolation of a row's columns by tables, and of two such rows.
//
// T is a sample type: uint8_t, uint16_t, int16_t, float, double. Columns and rows are blended one after the
// other with an unrounded (of bytes: Q6) row between, or at once in the edges of an image.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumi {

// What is between the stages of a sample type, and what it is weighed with: bytes by Q14 integers, of columns
// by pairs (16384 - c, c), else by fractions.
template <typename T>
struct Blend {
  using Element = float;
  using Weight = float;
};
template <>
struct Blend<uint8_t> {
  using Element = int16_t;
  using Weight = uint16_t;
};
template <>
struct Blend<double> {
  using Element = double;
  using Weight = double;
};
template <typename T>
using BlendElement = typename Blend<T>::Element;
template <typename T>
using BlendWeight = typename Blend<T>::Weight;

inline constexpr int kQ14 = 1 << 14;  // the weight 1 of bytes

// The columns of a tile: each lies between a source column and the next. Indices never descend; rows begin
// with source column `origin`. Read is from the first column to the one after the last.
template <typename T>
struct TileColumns {
  const int32_t* index;
  int32_t origin;
  const BlendWeight<T>* weights;
  size_t count;

  TileColumns from(size_t first, size_t columns) const {
    return {index + first, origin, weights + first * (sizeof(T) == 1 ? 2 : 1), columns};
  }
};

// Of bytes the first stage stores up to this many elements beyond the last one, and the second one reads
// them.
template <typename T>
inline constexpr size_t kRowSlack = sizeof(T) == 1 ? 15 : 0;

template <typename T, int channels>
class ColumnBlender {
 public:
  // The most that so many columns take of scratch, which may be at any address.
  static size_t scratchBytes(size_t columns);

  ColumnBlender(const TileColumns<T>& columns, uint8_t* scratch);

  void blend(const uint8_t* src, BlendElement<T>* row) const;
  void blendTwo(const uint8_t* first, BlendElement<T>* upper, const uint8_t* second,
                BlendElement<T>* lower) const {
    blend(first, upper);
    blend(second, lower);
  }

  // Both stages at once: columns blended and rounded, and a blend of two pixels, `count` times.
  static void blendOnce(const uint8_t* src, const TileColumns<T>& columns, uint8_t* dst);
  static void repeatBlend(const uint8_t* first, const uint8_t* second, BlendWeight<T> weight, uint8_t* dst,
                          size_t count);

 private:
  TileColumns<T> columns_;
  const uint8_t* controls_;
  int32_t span_;  // of the samples that four columns are picked from; 0 if each is loaded by itself
};

template <int channels>
class ColumnBlender<uint8_t, channels> {
 public:
  static size_t scratchBytes(size_t columns);

  ColumnBlender(const TileColumns<uint8_t>& columns, uint8_t* scratch);

  void blend(const uint8_t* src, int16_t* row) const;
  void blendTwo(const uint8_t* first, int16_t* upper, const uint8_t* second, int16_t* lower) const;

  static void blendOnce(const uint8_t* src, const TileColumns<uint8_t>& columns, uint8_t* dst);
  static void repeatBlend(const uint8_t* first, const uint8_t* second, uint16_t c, uint8_t* dst,
                          size_t count);

 private:
  template <int n>
  void blendEach(const uint8_t* const (&src)[n], int16_t* const (&rows)[n]) const;
  template <int n, int unit>
  void blendGathered(const uint8_t* const (&src)[n], int16_t* const (&rows)[n]) const;

  const uint8_t* blocks_;
  size_t blockCount_;
  size_t vectorBlocks_;  // blocks from the first one on that are loaded in vectors
  int unit_;             // bytes that blocks count source distances in
};

// The second stage: first + (second - first) * weight, rounded as the type wants it.
template <typename T>
void blendRows(const BlendElement<T>* first, const BlendElement<T>* second, BlendWeight<T> weight,
               uint8_t* dst, size_t samples);
template <>
void blendRows<uint8_t>(const int16_t* first, const int16_t* second, uint16_t c, uint8_t* dst,
                        size_t samples);

}  // namespace lumi
