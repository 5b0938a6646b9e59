// SPDX-License-Identifier: MIT
// Rows of an image as kernels see them: a first row and the bytes to the next; and the walk over them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace lumi {

// Steps are bytes, of any sign, and need not be a multiple of the sample.
template <typename B>
struct Rows {
  B* first;
  ptrdiff_t step;

  // By numbers: of rows that are not there, which nothing touches, the address may wrap.
  B* row(int y) const {
    return reinterpret_cast<B*>(reinterpret_cast<uintptr_t>(first) +
                                static_cast<uintptr_t>(y) * static_cast<uintptr_t>(step));
  }
};
using SourceRows = Rows<const uint8_t>;
using TargetRows = Rows<uint8_t>;

// The planes of a planar image: a row is an array of plane rows.
template <typename B, int planes>
struct PlaneRows {
  std::array<B*, planes> first;
  ptrdiff_t step;

  std::array<B*, planes> row(int y) const {
    std::array<B*, planes> at;
    for (size_t i = 0; i < planes; ++i) at[i] = Rows<B>{first[i], step}.row(y);
    return at;
  }
};

// What a kernel works on: so many samples, pixels or bytes, as it says, of each of so many rows.
struct Extent {
  size_t length;
  int rows;

  Extent times(size_t n) const { return {length * n, rows}; }
  // In all rows: below 2^63.
  int64_t count() const { return static_cast<int64_t>(length) * rows; }
};

// Calls kernel(row of each image...) for each of the rows, strictly from the first to the last. A kernel's
// source compiles it with the kernel inlined, so that what is the same for all rows is made once a call.
template <typename Kernel, typename... Image>
[[gnu::always_inline]] inline void walkRows(int rows, Kernel&& kernel, Image... images) {
  for (int y = 0; y < rows; ++y) kernel(images.row(y)...);
}

// The same for kernels that return a status, or any number: every row is done, and the first result that is
// not zero is kept.
template <typename Kernel, typename... Image>
[[gnu::always_inline]] inline auto walkKeepingFirst(int rows, Kernel&& kernel, Image... images) {
  decltype(kernel(images.row(0)...)) first{};
  walkRows(
      rows,
      [&](auto... row) {
        const auto result = kernel(row...);
        if (first == 0) first = result;
      },
      images...);
  return first;
}

// The same for kernels that add a row to what is known of the rows before: sum = kernel(sum, row of each
// image...).
template <typename Sum, typename Kernel, typename... Image>
[[gnu::always_inline]] inline Sum walkAccumulating(int rows, Sum sum, Kernel&& kernel, Image... images) {
  walkRows(
      rows, [&](auto... row) { sum = kernel(sum, row...); }, images...);
  return sum;
}

// The same for a row kernel of one source and one destination.
template <typename RowKernel>
[[gnu::always_inline]] inline void walkPixels(RowKernel&& kernel, SourceRows src, TargetRows dst,
                                              Extent pixels) {
  walkRows(
      pixels.rows, [&](const uint8_t* s, uint8_t* d) { kernel(s, d, pixels.length); }, src, dst);
}

}  // namespace lumi
