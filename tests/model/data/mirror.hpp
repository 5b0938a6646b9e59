// SPDX-License-Identifier: MIT
#pragma once

#include <utility>
#include <vector>

#include "model/access.hpp"

namespace model {

// Where the pixel (x, y) goes.
inline LumiPoint mirrored(int x, int y, LumiSize roi, int flip) {
  const int fromRight = roi.width - 1 - x, fromBottom = roi.height - 1 - y;
  switch (flip) {
    case 0:
      return {x, fromBottom};
    case 1:
      return {fromRight, y};
    case 2:
      return {fromRight, fromBottom};
    case 3:
      return {y, x};
    default:
      return {fromBottom, fromRight};
  }
}

// First all are read, so that both may be one image.
template <typename T>
void mirror(Image src, Image dst, LumiSize roi, Channels channels, int flip) {
  std::vector<T> samples;
  for (int y = 0; y < roi.height; ++y)
    for (int i = 0; i < roi.width * channels.src; ++i) samples.push_back(load<T>(src.row(y), i));
  auto pixel = samples.begin();
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x, pixel += channels.src) {
      const LumiPoint to = mirrored(x, y, roi, flip);
      for (int c = 0; c < channels.moved; ++c) store<T>(dst.row(to.y), to.x * channels.dst + c, pixel[c]);
    }
}

}  // namespace model
