// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>

#include "model/access.hpp"

namespace model {

// A NaN makes every comparison false.
template <typename T>
bool compares(const T& a, const T& b, int cmpOp) {
  switch (cmpOp) {
    case 0:
      return a < b;
    case 1:
      return a <= b;
    case 2:
      return a == b;
    case 3:
      return a >= b;
    default:
      return a > b;
  }
}

// 255 where holds(sample, other sample) in every channel, else 0. A second image, or a constant's samples.
template <typename T, typename Holds>
void compareImages(Image a, Image b, Image mask, LumiSize roi, Channels channels, Holds holds) {
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x) {
      bool all = true;
      for (int c = 0; c < channels.moved; ++c) {
        const int i = x * channels.src + c;
        all = all && holds(load<T>(a.row(y), i), load<T>(b.row(y), i));
      }
      mask.row(y)[x] = all ? 255 : 0;
    }
}

template <typename T, typename Holds>
void compareConstant(Image a, const Byte* constant, Image mask, LumiSize roi, Channels channels,
                     Holds holds) {
  T values[4] = {};
  for (int c = 0; c < channels.moved; ++c) values[c] = load<T>(constant, c);
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x) {
      bool all = true;
      for (int c = 0; c < channels.moved; ++c)
        all = all && holds(load<T>(a.row(y), x * channels.src + c), values[c]);
      mask.row(y)[x] = all ? 255 : 0;
    }
}

}  // namespace model
