// SPDX-License-Identifier: MIT
// Samples of any type as words with the same order: their places in the order of all of them.
// Source: B. Weiss, Fast median and bilateral filtering, 2006 (the ordinal transform).
#pragma once

#include <cstddef>
#include <cstdint>

#include "kernels/filters/sample_order.hpp"

namespace lumi {

template <typename T>
class SampleRanks {
 public:
  static constexpr int64_t kMost = 65536;  // samples that words can count

  static int64_t bytes(int64_t samples);
  // Memory on a boundary of sixteen bytes.
  SampleRanks(uint8_t* memory, int64_t samples);

  // Rows of samples that lie so many bytes apart.
  void rank(const uint8_t* first, ptrdiff_t step, ptrdiff_t pixelBytes, int columns, int rows);
  const uint16_t* row(int y) const { return ranks_ + static_cast<ptrdiff_t>(y) * columns_; }
  // The sample of a rank.
  void store(uint8_t* dst, uint16_t rank) const { SampleOrder<T>::store(dst, sorted_[rank].key); }

 private:
  using Key = typename SampleOrder<T>::Key;
  struct Item {
    Key key;
    uint32_t place;
  };
  void sort(size_t count);

  Item *sorted_, *spare_;
  uint32_t* counts_;
  uint16_t* ranks_;
  int columns_ = 0;
};

}  // namespace lumi
