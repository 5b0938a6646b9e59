// SPDX-License-Identifier: MIT
#include "kernels/filters/filter_blocks.hpp"
#include "kernels/filters/lbp.hpp"
#include "kernels/simd/patterns.hpp"

namespace lumi {
namespace {

using namespace simd;

template <typename T>
Samples<T> load(const Byte* p) {
  return {loadVector(p)};
}

// Calls block(first byte) for whole vectors of a row, the last of which may lie over the one before. Shorter
// rows go through `apart`.
template <typename Block, typename Short>
void inVectors(size_t bytes, const Block& block, const Short& apart) {
  if (bytes < kVectorBytes) return apart();
  inBlocks<static_cast<int>(kVectorBytes)>(bytes, [&](auto, size_t i) { block(i); });
}

}  // namespace

// What is done twice, where the last vector lies over another, finds its own counts and changes nothing.
template <typename T>
void replaceBits(const uint8_t* a, const uint8_t* b, uint8_t* counts, uint8_t* columns, size_t samples) {
  const auto replace = [&](const Byte* p, const Byte* q, size_t i) {
    const Samples<T> entering = bitCounts(load<T>(p) ^ load<T>(q)), leaving = load<T>(counts + i);
    storeVector(counts + i, entering.v);
    storeVector(columns + i, (load<T>(columns + i) + entering - leaving).v);
  };
  const size_t bytes = samples * sizeof(T);
  inVectors(
      bytes, [&](size_t i) { replace(a + i, b + i, i); },
      [&] {
        Byte p[kVectorBytes] = {}, q[kVectorBytes] = {};
        std::memcpy(p, a, bytes);
        std::memcpy(q, b, bytes);
        replace(p, q, 0);
      });
}

template <typename T>
void sumFiveColumns(const uint8_t* columns, uint8_t* dst, size_t samples) {
  const auto sum = [&](size_t i) {
    const auto column = [&](size_t n) { return load<T>(columns + i + n * sizeof(T)); };
    return (column(0) + column(1) + (column(2) + column(3)) + column(4)).v;
  };
  const size_t bytes = samples * sizeof(T);
  inVectors(
      bytes, [&](size_t i) { storeVector(dst + i, sum(i)); },
      [&] {
        Byte sums[kVectorBytes];
        storeVector(sums, sum(0));
        std::memcpy(dst, sums, bytes);
      });
}

template void replaceBits<uint8_t>(const uint8_t*, const uint8_t*, uint8_t*, uint8_t*, size_t);
template void replaceBits<uint16_t>(const uint8_t*, const uint8_t*, uint8_t*, uint8_t*, size_t);
template void sumFiveColumns<uint8_t>(const uint8_t*, uint8_t*, size_t);
template void sumFiveColumns<uint16_t>(const uint8_t*, uint8_t*, size_t);

}  // namespace lumi
