// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <cstring>

#include "bench/image.hpp"

namespace bench {

template <typename T>
void storeSamples(void* pixel, const Value& value, int channels) {
  for (int c = 0; c < channels; ++c) {
    const T sample = static_cast<T>(value[static_cast<std::size_t>(c)]);
    std::memcpy(static_cast<char*>(pixel) + c * static_cast<int>(sizeof(T)), &sample, sizeof(T));
  }
}

// The first four bytes of a pixel, as a word: the whole pixel where it is no longer than that.
inline uint32_t pixelWord(const View& view, const Value& value) {
  std::array<char, 16> pixel{};
  switch (view.depth) {
    case Depth::u8:
      storeSamples<Lum8u>(pixel.data(), value, view.channels);
      break;
    case Depth::u16:
      storeSamples<Lum16u>(pixel.data(), value, view.channels);
      break;
    case Depth::s16:
      storeSamples<Lum16s>(pixel.data(), value, view.channels);
      break;
    case Depth::s32:
      storeSamples<Lum32s>(pixel.data(), value, view.channels);
      break;
    case Depth::f32:
      storeSamples<Lum32f>(pixel.data(), value, view.channels);
      break;
  }
  uint32_t word;
  std::memcpy(&word, pixel.data(), sizeof word);
  return word;
}

}  // namespace bench
