// SPDX-License-Identifier: MIT
// Pixels whose channels are stored in another order.
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// Where the channels of a destination's pixel come from: an entry is a channel of the source. From three
// channels to four, 3 is the value, and what has a larger entry stays.
struct ChannelSources {
  int32_t channels[4];
  uint32_t value;  // the bits of a sample
};

// Pixels of so many stored samples; the destination's from `used` on stay. The images do not overlap, but
// those of equally many channels may be the same.
template <int sampleBytes, int srcChannels, int dstChannels, int used>
void swapChannelRows(SourceRows src, TargetRows dst, Extent pixels, const ChannelSources& sources);
}  // namespace lumi
