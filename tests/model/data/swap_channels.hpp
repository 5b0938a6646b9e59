// SPDX-License-Identifier: MIT
#pragma once

#include <array>

#include "model/access.hpp"

namespace model {

// From three channels to four an entry of 3 is the value, and with a larger one the channel stays; elsewhere
// every entry is a source channel. A pixel is read before it is stored.
template <typename T>
void swapChannels(Image src, Image dst, LumiSize roi, Channels channels, const Lum32s* order, T value) {
  const bool inserts = channels.src == 3 && channels.dst == 4;
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x) {
      std::array<T, 4> pixel{};
      for (int c = 0; c < channels.src; ++c)
        pixel[static_cast<size_t>(c)] = load<T>(src.row(y), x * channels.src + c);
      for (int c = 0; c < channels.moved; ++c) {
        if (inserts && order[c] > 3) continue;
        const bool isValue = inserts && order[c] == 3;
        store<T>(dst.row(y), x * channels.dst + c, isValue ? value : pixel[static_cast<size_t>(order[c])]);
      }
    }
}

}  // namespace model
