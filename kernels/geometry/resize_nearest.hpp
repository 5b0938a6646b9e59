// SPDX-License-Identifier: MIT
// Pixels picked from a row by a table of source columns, which never descends.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumi {

// The columns of a tile.
class PickedColumns {
 public:
  // The most that so many columns take of scratch, which may be at any address.
  static size_t scratchBytes(size_t columns, size_t pixelBytes);

  // Source column of each destination column; `origin` is the source column that rows begin with.
  PickedColumns(const int32_t* index, int32_t origin, size_t columns, size_t pixelBytes, uint8_t* scratch);

  // src is the row's pixel at `origin`; read is from the first column picked to the last one.
  void pick(const uint8_t* src, uint8_t* dst) const;

  // Then picking takes no longer than copying.
  bool isDoubled() const { return isDoubled_; }

 private:
  // Of the sizes that the paths of two have vectors for.
  bool hasVectors() const { return pixelBytes_ <= 4 && pixelBytes_ != 3; }
  template <size_t pixel>
  void pickPixels(const uint8_t* src, uint8_t* dst) const;

  const int32_t* index_;
  int32_t origin_;
  size_t columns_, pixelBytes_;
  uint8_t* windows_;  // null where columns are picked one by one
  bool isNarrow_;     // each block needs one vector of the source
  bool isClose_;      // from one column to the next is one source column at most
  bool isHalved_;     // it is always two
  bool isDoubled_;    // it is none and one in turn
};

}  // namespace lumi
