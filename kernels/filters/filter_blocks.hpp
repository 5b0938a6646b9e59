// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <type_traits>

namespace lumi {

// Calls block(size, first sample) with blocks of `large` samples, then of `small` ones; the last block steps
// back over samples that are done already, which is right where the row is not its own source. There are at
// least `small` samples.
template <int large, int small, typename Block>
inline void inBlocks(size_t samples, Block block) {
  size_t i = 0;
  for (; i + large <= samples; i += large) block(std::integral_constant<int, large>(), i);
  for (; i + small <= samples; i += small) block(std::integral_constant<int, small>(), i);
  if (i < samples) block(std::integral_constant<int, small>(), samples - small);
}

}  // namespace lumi
