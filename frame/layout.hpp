// SPDX-License-Identifier: MIT
// Channel layouts as types: what a layout stores, and what an operation works on.
#pragma once

namespace lumi {

struct C1 {
  static constexpr int kStored = 1, kUsed = 1;
};
struct C2 {
  static constexpr int kStored = 2, kUsed = 2;
};
struct C3 {
  static constexpr int kStored = 3, kUsed = 3;
};
struct C4 {
  static constexpr int kStored = 4, kUsed = 4;
};
// Alpha, the fourth sample, is stored and never changed.
struct AC4 {
  static constexpr int kStored = 4, kUsed = 3;
};
// One chosen channel; the image pointer is at its sample of the first pixel.
struct C3C {
  static constexpr int kStored = 3, kUsed = 1;
};
struct C4C {
  static constexpr int kStored = 4, kUsed = 1;
};
struct P3 {
  static constexpr int kPlanes = 3;
};
struct P4 {
  static constexpr int kPlanes = 4;
};

// Bytes from one pixel to the next.
template <typename T, typename Layout>
inline constexpr int kPixelBytes = static_cast<int>(sizeof(T)) * Layout::kStored;

// Bytes of a pixel that an operation works on, from its first one on.
template <typename T, typename Layout>
inline constexpr int kUsedBytes = static_cast<int>(sizeof(T)) * Layout::kUsed;

}  // namespace lumi
