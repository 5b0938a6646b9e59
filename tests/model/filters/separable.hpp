// SPDX-License-Identifier: MIT
// Kernels of one dimension, pixel by pixel.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>
#include <vector>

#include "model/access.hpp"

namespace model {

template <typename Tap>
struct LineKernel {
  std::vector<Tap> taps;
  int anchor;
  int divisor;  // of integer taps
  bool isColumn;
};

struct LineImage {
  Image src;
  LumiSize roi;
  int channels;
};

// The sample under tap i.
template <typename T, typename Tap>
T sampleUnderTap(const LineKernel<Tap>& k, const LineImage& image, int x, int y, int c, int i) {
  const int offset = k.anchor - i;
  return k.isColumn ? load<T>(image.src.row(y + offset), x * image.channels + c)
                    : load<T>(image.src.row(y), (x + offset) * image.channels + c);
}

inline int powerOf(int divisor) {
  for (int shift = 0; shift < 31; ++shift)
    if (divisor == 1 << shift) return shift;
  return -1;
}

template <typename T>
T limitedSample(int64_t v) {
  if (v > std::numeric_limits<T>::max()) return std::numeric_limits<T>::max();
  if (v < std::numeric_limits<T>::min()) return std::numeric_limits<T>::min();
  return static_cast<T>(v);
}

// To nearest, ties to even.
template <typename T>
T nearestSample(float v) {
  if (!(v > static_cast<float>(std::numeric_limits<T>::min()))) return std::numeric_limits<T>::min();
  if (v > static_cast<float>(std::numeric_limits<T>::max())) return std::numeric_limits<T>::max();
  return static_cast<T>(std::lrint(v));
}

// Rows of sixteen pixels and more, and taps of 16 bits, from three on.
inline Lum8u wideSample(int32_t a, int divisor) {
  const int shift = powerOf(divisor);
  if (shift < 1) return nearestSample<Lum8u>(static_cast<float>(a) * (1.0F / static_cast<float>(divisor)));
  return limitedSample<Lum8u>((int64_t{a} + (int64_t{1} << (shift - 1)) - 1 + ((a >> shift) & 1)) >> shift);
}

// Any others.
inline Lum8u pixelSample(int32_t a, int divisor) {
  if (divisor == 1) return limitedSample<Lum8u>(a);
  const int shift = powerOf(divisor);
  if (shift > 0) {
    if (a < 1) return 0;
    const int64_t q = a >> shift, rest = a & (divisor - 1), half = divisor / 2;
    return limitedSample<Lum8u>(q + ((rest + half + (q & 1) - 1) >> shift));
  }
  const float x = (1.0F / static_cast<float>(divisor)) * static_cast<float>(a);
  if (x >= 255.0F) return 255;
  if (x <= 0) return 0;
  int t = static_cast<int>(x + 0.5);
  if (static_cast<double>(static_cast<float>(t)) - x == 0.5) t &= ~1;
  return static_cast<Lum8u>(t);
}

inline Lum8u filterByte(const LineKernel<Lum32s>& k, const LineImage& image, int x, int y, int c) {
  const int n = static_cast<int>(k.taps.size());
  uint32_t sum = 0;
  bool fits = n >= 3 && image.roi.width >= 16;
  for (int i = 0; i < n; ++i) {
    const Lum32s tap = k.taps[static_cast<size_t>(i)];
    fits = fits && tap >= -32768 && tap <= 32767;
    sum += static_cast<uint32_t>(tap) * sampleUnderTap<Lum8u>(k, image, x, y, c, i);
  }
  const auto a = static_cast<int32_t>(sum);
  return fits ? wideSample(a, k.divisor) : pixelSample(a, k.divisor);
}

// One sum, from the last tap on.
template <typename T, typename Tap>
T filterFloats(const LineKernel<Tap>& k, const LineImage& image, int x, int y, int c) {
  Tap sum = 0;
  for (int i = static_cast<int>(k.taps.size()) - 1; i >= 0; --i)
    sum += static_cast<Tap>(sampleUnderTap<T>(k, image, x, y, c, i)) * k.taps[static_cast<size_t>(i)];
  if constexpr (std::is_integral_v<T>)
    return nearestSample<T>(sum);
  else
    return sum;
}

template <typename T, typename Tap>
T filterPixel(const LineKernel<Tap>& k, const LineImage& image, int x, int y, int c) {
  if constexpr (std::is_floating_point_v<Tap>)
    return filterFloats<T>(k, image, x, y, c);
  else
    return filterByte(k, image, x, y, c);
}

// The integer taps of 16-bit samples become floats.
inline LineKernel<Lum32f> asFloats(const LineKernel<Lum32s>& k) {
  LineKernel<Lum32f> result{{}, k.anchor, 1, k.isColumn};
  for (const Lum32s tap : k.taps)
    result.taps.push_back(static_cast<float>(tap) * (1.0F / static_cast<float>(k.divisor)));
  return result;
}

template <typename T, typename Tap>
void filterLines(const LineKernel<Tap>& k, const LineImage& image, Image dst, int used) {
  for (int y = 0; y < image.roi.height; ++y)
    for (int x = 0; x < image.roi.width; ++x)
      for (int c = 0; c < used; ++c)
        store(dst.row(y), x * image.channels + c, filterPixel<T>(k, image, x, y, c));
}

}  // namespace model
