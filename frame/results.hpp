// SPDX-License-Identifier: MIT
// Results in place of a destination.
#pragma once

#include <cstring>

#include "frame/layout.hpp"
#include "kernels/channel_totals.hpp"

namespace lumi {

// Stores those of the channels that an operation works on. Their memory may have any alignment.
template <typename Layout, typename T, typename Total>
void storeChannels(T* results, const ChannelTotals<Total>& totals) {
  static_assert(sizeof(T) == sizeof(Total));
  std::memcpy(results, totals.of, sizeof totals.of[0] * Layout::kUsed);
}

}  // namespace lumi
