// SPDX-License-Identifier: MIT
// What kernels hand out of images that come to a value for each channel.
#pragma once

namespace lumi {

// The fourth is of images that have one; alpha has one too, which nobody takes.
template <typename Total>
struct ChannelTotals {
  Total of[4];
};

template <typename Total>
ChannelTotals<double> inDoubles(const ChannelTotals<Total>& totals) {
  ChannelTotals<double> result;
  for (int c = 0; c < 4; ++c) result.of[c] = static_cast<double>(totals.of[c]);
  return result;
}

}  // namespace lumi
