// SPDX-License-Identifier: MIT
// Images of the benchmarks: typed ones for our calls and the loops, views for the peers' adapters.
#pragma once

#include <array>
#include <type_traits>
#include <vector>

#include "lumi.h"

namespace bench {

enum class Depth { u8, u16, s16, s32, f32 };

template <typename T>
constexpr Depth depthOf() {
  if constexpr (std::is_same_v<T, Lum8u>) return Depth::u8;
  if constexpr (std::is_same_v<T, Lum16u>) return Depth::u16;
  if constexpr (std::is_same_v<T, Lum16s>) return Depth::s16;
  if constexpr (std::is_same_v<T, Lum32s>) return Depth::s32;
  if constexpr (std::is_same_v<T, Lum32f>) return Depth::f32;
}

constexpr int sampleBytes(Depth depth) {
  if (depth == Depth::u8) return 1;
  return depth == Depth::u16 || depth == Depth::s16 ? 2 : 4;
}

// An image whose sample type is a value.
struct View {
  Lum8u* bytes;
  int step;
  LumiSize roi;
  Depth depth;
  int channels;

  int pixelBytes() const { return sampleBytes(depth) * channels; }
  int rowBytes() const { return roi.width * pixelBytes(); }
  bool isTight() const { return step == rowBytes(); }
  Lum8u* row(int y) const { return bytes + static_cast<std::ptrdiff_t>(y) * step; }
};

template <typename T>
struct Image : View {
  T* data() const { return reinterpret_cast<T*>(bytes); }
  T* row(int y) const { return reinterpret_cast<T*>(View::row(y)); }
  // The same image, starting at channel c of its first pixel.
  Image at(int c) const {
    Image shifted = *this;
    shifted.bytes += c * sampleBytes(depth);
    return shifted;
  }
};

template <typename T>
struct Planes {
  std::vector<View> views;
  T* data[4];
  int step;
  LumiSize roi;
};

// One value per channel, as the peers take it.
using Value = std::array<double, 4>;

}  // namespace bench
