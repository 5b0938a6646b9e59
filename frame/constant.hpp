// SPDX-License-Identifier: MIT
// Constant arguments: one sample by value, or as many as an operation works on by pointer.
#pragma once

#include <cstring>
#include <type_traits>

#include "frame/layout.hpp"
#include "kernels/pattern.hpp"

namespace lumi {

// The constant's samples, whichever way it is given.
template <typename Value>
const void* samplesOf(const Value& value) {
  if constexpr (std::is_pointer_v<Value>)
    return value;
  else
    return &value;
}

// The constant as an endless row, read here and never again; samples of a pixel that it does not have, alpha,
// are zero.
template <typename T, typename Layout, typename Value>
PixelPattern patternOf(const Value& value) {
  constexpr int pixelBytes = kPixelBytes<T, Layout>, usedBytes = kUsedBytes<T, Layout>;
  if constexpr (usedBytes == pixelBytes) {
    return makePattern<pixelBytes>(samplesOf(value));
  } else {
    uint8_t pixel[pixelBytes] = {};
    std::memcpy(pixel, samplesOf(value), usedBytes);
    return makePattern<pixelBytes>(pixel);
  }
}

// Whether no sample of the lower constant is above that of the upper one. What is no number is in order with
// anything.
template <typename T, typename Layout, typename Value>
bool areInOrder(const Value& lower, const Value& upper) {
  T from[Layout::kUsed], to[Layout::kUsed];
  std::memcpy(from, samplesOf(lower), sizeof from);
  std::memcpy(to, samplesOf(upper), sizeof to);
  for (int c = 0; c < Layout::kUsed; ++c)
    if (from[c] > to[c]) return false;
  return true;
}

}  // namespace lumi
