// SPDX-License-Identifier: MIT
// What operations on two images, or on an image and a constant, have in common.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

#include "model/access.hpp"

namespace model {

// x / 2^s, to the nearest integer, ties to the even one; or x * 2^-s; limited to T.
template <typename T>
T scaled(int64_t x, int s) {
  constexpr int64_t beyond = int64_t{1} << 40;  // every T, and every x at scale 0
  for (; s < 0 && x != 0 && std::abs(x) < beyond; ++s) x *= 2;
  if (s > 50) return 0;
  if (s > 0) {
    const int64_t divisor = int64_t{1} << s;
    int64_t quotient = x / divisor, rest = x % divisor;
    if (rest < 0) rest += divisor, --quotient;
    if (2 * rest > divisor || (2 * rest == divisor && quotient % 2 != 0)) ++quotient;
    x = quotient;
  }
  const int64_t low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
  return static_cast<T>(std::clamp(x, low, high));
}

template <typename T>
struct Complex {
  T re, im;
};

// The samples of a pixel that are worked on; complex ones by components, where T is the type of one.
template <typename T, typename Function>
void combine(Image a, Image b, Image dst, LumiSize roi, Channels channels, int components, Function f) {
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < channels.moved * components; ++c) {
        const int i = x * channels.dst * components + c;
        store<T>(dst.row(y), i, f(load<T>(a.row(y), i), load<T>(b.row(y), i)));
      }
}

template <typename T, typename Function>
void combineConstant(const Byte* constant, Image src, Image dst, LumiSize roi, Channels channels,
                     int components, Function f) {
  T values[8];
  for (int c = 0; c < channels.moved * components; ++c) values[c] = load<T>(constant, c);
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < channels.moved * components; ++c) {
        const int i = x * channels.dst * components + c;
        store<T>(dst.row(y), i, f(values[c], load<T>(src.row(y), i)));
      }
}

}  // namespace model
