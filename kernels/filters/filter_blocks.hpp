// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <type_traits>

#include "kernels/simd/bytes.hpp"

namespace lumi {

// Calls block(size, first sample) with blocks of each of the sizes in turn, the largest first; the last block
// steps back over samples that are done already, which is right where the row is not its own source. There
// are at least as many samples as the smallest block has.
template <int... sizes, typename Block>
inline void inBlocks(size_t samples, Block block) {
  size_t i = 0;
  constexpr int smallest = std::min({sizes...});
  const auto run = [&](auto size) {
    for (; i + size <= samples; i += size) block(size, i);
  };
  (run(std::integral_constant<int, sizes>()), ...);
  if (i < samples) block(std::integral_constant<int, smallest>(), samples - smallest);
}

// Blocks as large as the build's vectors suggest, from eight samples on.
template <typename Block>
inline void inVectorBlocks(size_t samples, Block block) {
  if constexpr (simd::kVectorBytes == 32)
    inBlocks<32, 16, 8>(samples, block);
  else
    inBlocks<16, 8>(samples, block);
}

}  // namespace lumi
