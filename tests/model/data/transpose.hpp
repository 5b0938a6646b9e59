// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "model/access.hpp"

namespace model {

// Pixel (x, y) goes to (y, x); first all are read, so that the images may be the same square.
template <typename T>
void transpose(Image src, Image dst, LumiSize roi, int channels) {
  std::vector<T> samples;
  for (int x = 0; x < roi.width; ++x)
    for (int y = 0; y < roi.height; ++y)
      for (int c = 0; c < channels; ++c) samples.push_back(load<T>(src.row(y), x * channels + c));
  auto next = samples.begin();
  for (int x = 0; x < roi.width; ++x)
    for (int i = 0; i < roi.height * channels; ++i) store<T>(dst.row(x), i, *next++);
}

}  // namespace model
