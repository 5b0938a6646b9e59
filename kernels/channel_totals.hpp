// SPDX-License-Identifier: MIT
// What kernels hand out of images that come to a value for each channel.
#pragma once

namespace lumi {

// The fourth is of images that have one; alpha has one too, which nobody takes.
template <typename Total>
struct ChannelTotals {
  Total of[4];
};

}  // namespace lumi
