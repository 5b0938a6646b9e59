// SPDX-License-Identifier: MIT
// Channel layouts as types: what a layout stores, and what an operation works on.
#pragma once

#include "lumi/types.h"

namespace lumi {

// The real samples that a sample is made of: itself, or the two parts of a complex one.
template <typename T>
struct Components {
  using Type = T;
  static constexpr int kCount = 1;
};
template <>
struct Components<Lum16sc> {
  using Type = Lum16s;
  static constexpr int kCount = 2;
};
template <>
struct Components<Lum16uc> {
  using Type = Lum16u;
  static constexpr int kCount = 2;
};
template <>
struct Components<Lum32sc> {
  using Type = Lum32s;
  static constexpr int kCount = 2;
};
template <>
struct Components<Lum32fc> {
  using Type = Lum32f;
  static constexpr int kCount = 2;
};
template <typename T>
using Component = typename Components<T>::Type;
template <typename T>
inline constexpr int kComponents = Components<T>::kCount;

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
// Alpha stands first, and belongs to what is stored.
struct A0C4 {
  static constexpr int kStored = 4, kUsed = 4;
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

// Real samples at the end of every pixel that stay as they are.
template <typename T, typename Layout>
inline constexpr int kAlpha = (Layout::kStored - Layout::kUsed) * kComponents<T>;

// Real samples of a pixel.
template <typename T, typename Layout>
inline constexpr int kPixelSamples = Layout::kStored* kComponents<T>;

}  // namespace lumi
