// SPDX-License-Identifier: MIT
// Kernel filtering with border, pixel by pixel.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>
#include <vector>

#include "model/access.hpp"

namespace model {

// As the initialisers take it; one list of taps is empty.
struct FilterKernel {
  LumiSize size;
  std::vector<Lum16s> integers;
  std::vector<Lum32f> floats;
  int divisor;
  LumRoundMode roundMode;
};

// The image of a run. Outside of what is in memory a type of 0 has the constant and 1 the nearest pixel; with
// any other type, what is computed from a border image takes all of it as zero.
struct FilterImage {
  Image src;
  LumiSize roi;
  int channels;
  LumiBorderType border;
};

enum class FilterForm { Narrow, Wide };

// Where the rectangle of a pixel takes its samples from, and how wide it is.
struct FilterRectangle {
  int width;
  bool direct;
};

inline FilterRectangle rectangleOf(const FilterKernel& k, const FilterImage& image, int x, int y) {
  const int w = image.roi.width, h = image.roi.height, left = k.size.width / 2, top = k.size.height / 2;
  const int right = k.size.width - left - 1, bottom = k.size.height - top - 1;
  if ((image.border & 15) == 6) return {w, true};
  if (h < k.size.height - 1) return {w, false};
  if (y < top || y >= h - bottom) return {w, false};
  if (w <= k.size.width) return {w, false};
  if (x < left) return {left, false};
  if (x >= w - right) return {right, false};
  return {w - k.size.width + 1, true};
}

// Integer taps are turned into floats where there is no form for them.
template <typename T>
bool isInteger(const FilterKernel& k, int channels) {
  if (k.integers.empty()) return false;
  return sizeof(T) == 1 || (std::is_same_v<T, Lum16s> && channels < 3);
}

template <typename T>
FilterForm formOf(const FilterKernel& k, int channels, int width) {
  bool wide = false;
  if (isInteger<T>(k, channels)) {
    bool fits = true;
    int64_t magnitudes = 0;
    for (const int tap : k.integers) {
      if (tap < -32767 || tap > 32766) fits = false;
      magnitudes += std::abs(tap);
    }
    wide = k.size.width >= 3 && fits;
    if (sizeof(T) == 1) wide = wide && width >= (channels == 1 ? 16 : 5);
    if (sizeof(T) == 2) wide = wide && width >= 16 && magnitudes <= 65534;
  } else if (sizeof(T) == 1 && channels == 4) {
    wide = width > 8;
  } else if (sizeof(T) == 4 && channels == 4) {
    wide = true;
  } else {
    wide = width >= 8;
  }
  return wide ? FilterForm::Wide : FilterForm::Narrow;
}

template <typename T>
T sampleUnder(const FilterImage& image, const FilterKernel& k, const T* value, bool direct, int x, int y,
              int c) {
  const int type = image.border & 15;
  if (!direct && type != 0 && type != 1) return 0;
  const int left = k.size.width / 2, top = k.size.height / 2;
  const int lowX = image.border & 64 ? -left : 0, lowY = image.border & 16 ? -top : 0;
  const int highX = image.roi.width - 1 + (image.border & 128 ? k.size.width - left - 1 : 0);
  const int highY = image.roi.height - 1 + (image.border & 32 ? k.size.height - top - 1 : 0);
  if (!direct && type == 0 && (x < lowX || x > highX || y < lowY || y > highY)) return value[c];
  if (!direct && x < lowX) x = lowX;
  if (!direct && x > highX) x = highX;
  if (!direct && y < lowY) y = lowY;
  if (!direct && y > highY) y = highY;
  return load<T>(image.src.row(y), x * image.channels + c);
}

template <typename T, typename V>
T limitTo(V v) {
  if (v > static_cast<V>(std::numeric_limits<T>::max())) return std::numeric_limits<T>::max();
  if (v < static_cast<V>(std::numeric_limits<T>::min())) return std::numeric_limits<T>::min();
  return static_cast<T>(v);
}

// To nearest, ties to even, then limited.
template <typename T>
T nearest(float v) {
  if (v >= static_cast<float>(std::numeric_limits<T>::max())) return std::numeric_limits<T>::max();
  if (v <= static_cast<float>(std::numeric_limits<T>::min())) return std::numeric_limits<T>::min();
  return static_cast<T>(std::lrint(v));
}

inline int log2Of(int divisor) {
  int shift = 0;
  while (shift < 31 && (int64_t{1} << shift) != divisor) ++shift;
  return shift < 31 ? shift : -1;
}

template <typename T>
T wideResult(int64_t a, int divisor) {
  const int shift = log2Of(divisor);
  if (shift > 0) return limitTo<T>((a + (int64_t{1} << (shift - 1)) - 1 + ((a >> shift) & 1)) >> shift);
  return nearest<T>(static_cast<float>(a) * (1.0F / static_cast<float>(divisor)));
}

inline Lum8u narrowResult8u(int64_t a, int divisor, int mode) {
  const int shift = log2Of(divisor);
  if (shift == 0) return limitTo<Lum8u>(a);
  if (shift > 0) {
    if (a < 1) return 0;
    const int64_t mask = divisor - 1, half = divisor / 2, q = a >> shift;
    if (mode == 0) return limitTo<Lum8u>(q);
    if (mode == 1) return limitTo<Lum8u>(q + (((q & 1) + (a & mask) + half - 1) >> shift));
    return limitTo<Lum8u>((a + half) >> shift);
  }
  if (mode == 0) return limitTo<Lum8u>(a / divisor);
  const double x = static_cast<double>(a) / divisor;
  if (x >= 255) return 255;
  if (x <= 0) return 0;
  if (mode == 2) return x >= 0.5 ? static_cast<Lum8u>(x + 0.5) : Lum8u{0};
  if (!(x > 0.5)) return 0;
  int t = static_cast<int>(x + 0.5);
  if (static_cast<double>(static_cast<float>(t)) - x == 0.5) t &= ~1;
  return static_cast<Lum8u>(t);
}

inline Lum16s narrowResult16s(int64_t a, int divisor, int mode) {
  const int shift = log2Of(divisor);
  if (shift == 0) return limitTo<Lum16s>(a);
  if (shift > 0) {
    const int64_t mask = divisor - 1, half = divisor / 2, q = a >> shift;
    if (mode == 0) return limitTo<Lum16s>(a < 0 ? (a + mask) >> shift : q);
    if (mode == 1) return limitTo<Lum16s>(q + (((q & 1) + (a & mask) + half - 1) >> shift));
    if (a > 0) return limitTo<Lum16s>((a + half) >> shift);
    return a == 0 ? Lum16s{0} : limitTo<Lum16s>(q + (((a & mask) + half - 1) >> shift));
  }
  if (mode == 0) return limitTo<Lum16s>(a / divisor);
  const double x = static_cast<double>(a) / divisor;
  if (x >= 32767) return 32767;
  if (x <= -32768) return -32768;
  if (mode == 2)
    return static_cast<Lum16s>(x >= 0.5    ? static_cast<int>(x + 0.5)
                               : x <= -0.5 ? static_cast<int>(x - 0.5)
                                           : 0);
  int t = 0;
  if (x > 0.5) {
    t = static_cast<int>(x + 0.5);
    if (t - x == 0.5 && t % 2 != 0) --t;
  } else if (x < -0.5) {
    t = static_cast<int>(x - 0.5);
    if (t - x == -0.5 && t % 2 != 0) ++t;
  }
  return static_cast<Lum16s>(t);
}

template <typename T>
T narrowFloatResult(float x, int mode) {
  if constexpr (std::is_same_v<T, Lum32f>) {
    return x;
  } else {
    if (x >= static_cast<float>(std::numeric_limits<T>::max())) return std::numeric_limits<T>::max();
    if (x <= static_cast<float>(std::numeric_limits<T>::min())) return std::numeric_limits<T>::min();
    if (mode == 0) return static_cast<T>(static_cast<int>(x));
    if (mode == 1) return static_cast<T>(std::lrint(x));
    return static_cast<T>(static_cast<int>(x >= 0 ? x + 0.5F : x - 0.5F));
  }
}

// The tap that a sample at column x and row y under the kernel is multiplied by.
inline size_t tapOf(const FilterKernel& k, int x, int y) {
  return static_cast<size_t>((k.size.height - 1 - y) * k.size.width + k.size.width - 1 - x);
}

template <typename T>
T filterIntegers(const FilterKernel& k, const FilterImage& image, const T* value, int px, int py, int c) {
  const FilterRectangle rectangle = rectangleOf(k, image, px, py);
  int64_t sum = 0;
  for (int y = 0; y < k.size.height; ++y)
    for (int x = 0; x < k.size.width; ++x)
      sum += int64_t{k.integers[tapOf(k, x, y)]} *
             static_cast<int64_t>(sampleUnder(image, k, value, rectangle.direct, px + x - k.size.width / 2,
                                              py + y - k.size.height / 2, c));
  if (sizeof(T) == 1) sum = static_cast<int32_t>(static_cast<uint32_t>(sum));
  if (formOf<T>(k, image.channels, rectangle.width) == FilterForm::Wide) return wideResult<T>(sum, k.divisor);
  if constexpr (sizeof(T) == 1)
    return narrowResult8u(sum, k.divisor, k.roundMode);
  else
    return static_cast<T>(narrowResult16s(sum, k.divisor, k.roundMode));
}

template <typename T>
T filterFloats(const FilterKernel& k, const FilterImage& image, const T* value, int px, int py, int c) {
  const FilterRectangle rectangle = rectangleOf(k, image, px, py);
  const bool wide = formOf<T>(k, image.channels, rectangle.width) == FilterForm::Wide;
  const int blocks = wide ? k.size.width / 8 * 8 : 0;
  float sums[2] = {0, 0};  // of the columns in blocks, and of the others
  for (int y = 0; y < k.size.height; ++y)
    for (int x = 0; x < k.size.width; ++x) {
      const size_t at = tapOf(k, x, y);
      const float tap =
          k.integers.empty() ? k.floats[at] : static_cast<float>((1.0 / k.divisor) * k.integers[at]);
      const float product =
          tap * static_cast<float>(sampleUnder(image, k, value, rectangle.direct, px + x - k.size.width / 2,
                                               py + y - k.size.height / 2, c));
      sums[x < blocks ? 0 : 1] += product;
    }
  float sum = sums[1];
  if (blocks > 0) sum = blocks < k.size.width ? sums[0] + sums[1] : sums[0];
  if constexpr (!std::is_same_v<T, Lum32f>)
    if (wide) return nearest<T>(sum);
  return narrowFloatResult<T>(sum, k.roundMode);
}

template <typename T>
void filterBorder(const FilterKernel& k, const FilterImage& image, const T* value, Image dst) {
  for (int y = 0; y < image.roi.height; ++y)
    for (int x = 0; x < image.roi.width; ++x)
      for (int c = 0; c < image.channels; ++c) {
        T result{};
        if constexpr (std::is_integral_v<T>) {
          result = isInteger<T>(k, image.channels) ? filterIntegers(k, image, value, x, y, c)
                                                   : filterFloats(k, image, value, x, y, c);
        } else {
          result = filterFloats(k, image, value, x, y, c);
        }
        store(dst.row(y), x * image.channels + c, result);
      }
}

}  // namespace model
