// SPDX-License-Identifier: MIT
// Columns are summed a few vectors at a time, from the first row to the last: their sums stay in registers.
#include "kernels/filters/column_sums.hpp"

#include "kernels/filters/filter_blocks.hpp"
#include "kernels/simd/filter.hpp"
#include "kernels/simd/running.hpp"

namespace lumi {
namespace {

using namespace simd;

template <typename T, int vectors>
struct ColumnSums {
  S32 at[vectors] = {};

  static S32 load(const Byte* row, int v) {
    return loadWidened<int32_t, T>(row + 4 * sizeof(T) * static_cast<size_t>(v));
  }

  void add(const Byte* row) {
    for (int v = 0; v < vectors; ++v) at[v] = at[v] + load(row, v);
  }
  void replace(const Byte* entering, const Byte* leaving) {
    for (int v = 0; v < vectors; ++v) at[v] = at[v] + (load(entering, v) - load(leaving, v));
  }
  void store(Byte* dst) const {
    for (int v = 0; v < vectors; v += 2) storeFloats(dst + 16 * v, floatsOf(joined(at[v], at[v + 1])));
  }
};

}  // namespace

template <typename T>
void columnSumRows(SourceRows src, int window, TargetRows dst, Extent samples) {
  inBlocks<16, kLeastColumnSums>(samples.length, [&](auto size, size_t i) {
    ColumnSums<T, decltype(size)::value / 4> sums;
    const SourceRows block{src.first + i * sizeof(T), src.step};
    for (int y = 0; y < window; ++y) sums.add(block.row(y));
    Byte* to = dst.first + i * sizeof(float);
    sums.store(to);
    for (int y = 1; y < samples.rows; ++y) {
      to += dst.step;
      sums.replace(block.row(y + window - 1), block.row(y - 1));
      sums.store(to);
    }
  });
}

template void columnSumRows<uint8_t>(SourceRows, int, TargetRows, Extent);
template void columnSumRows<uint16_t>(SourceRows, int, TargetRows, Extent);
template void columnSumRows<int16_t>(SourceRows, int, TargetRows, Extent);

}  // namespace lumi
