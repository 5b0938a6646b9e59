// SPDX-License-Identifier: MIT
#pragma once

#include "model/access.hpp"

namespace model {

// The destination takes a source sample only where that is beyond its own: not where either is no number, nor
// where both are zero. Samples are moved as bytes, so that every NaN stays what it is.
template <typename T>
void keepExtreme(bool larger, Image src, Image srcDst, LumiSize roi, Channels channels) {
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < channels.moved; ++c) {
        const int i = x * channels.dst + c;
        const T a = load<T>(src.row(y), i), b = load<T>(srcDst.row(y), i);
        if (larger ? a > b : a < b) store<T>(srcDst.row(y), i, a);
      }
}

}  // namespace model
