// SPDX-License-Identifier: MIT
// How the models reach samples: rows by byte steps, samples by memcpy, since neither is aligned.
#pragma once

#include <cstddef>
#include <cstring>

#include "lumi/types.h"

namespace model {

using Byte = unsigned char;

// An image: its first pixel's byte address and the distance between its rows.
struct Image {
  Byte* first;
  int step;

  Byte* row(int y) const { return first + static_cast<ptrdiff_t>(y) * step; }
};

template <typename T>
T load(const Byte* row, int index) {
  T sample;
  std::memcpy(&sample, row + static_cast<ptrdiff_t>(index) * static_cast<ptrdiff_t>(sizeof(T)), sizeof(T));
  return sample;
}

template <typename T>
void store(Byte* row, int index, T sample) {
  std::memcpy(row + static_cast<ptrdiff_t>(index) * static_cast<ptrdiff_t>(sizeof(T)), &sample, sizeof(T));
}

// Samples from one pixel to the next in the source and in the destination, and how many of them are moved.
struct Channels {
  int src, dst, moved;
};

}  // namespace model
