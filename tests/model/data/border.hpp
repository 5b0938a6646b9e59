// SPDX-License-Identifier: MIT
#pragma once

#include "model/access.hpp"

namespace model {

// An image in a larger one: `whole` begins at the top left pixel of the frame.
struct Bordered {
  Image image, whole;
  LumiSize imageRoi, wholeRoi;
  int top, left;
};

template <typename T>
void copyPixel(Image src, int sx, int sy, Image dst, int dx, int dy, Channels channels) {
  for (int c = 0; c < channels.moved; ++c)
    store<T>(dst.row(dy), dx * channels.dst + c, load<T>(src.row(sy), sx * channels.src + c));
}

// The value outside the image.
template <typename T>
void constBorder(const Byte* values, const Bordered& b, Channels channels) {
  for (int y = 0; y < b.wholeRoi.height; ++y)
    for (int x = 0; x < b.wholeRoi.width; ++x) {
      const int sx = x - b.left, sy = y - b.top;
      if (sx >= 0 && sx < b.imageRoi.width && sy >= 0 && sy < b.imageRoi.height)
        copyPixel<T>(b.image, sx, sy, b.whole, x, y, channels);
      else
        for (int c = 0; c < channels.moved; ++c)
          store<T>(b.whole.row(y), x * channels.dst + c, load<T>(values, c));
    }
}

inline int nearestInside(int position, int length) {
  if (position < 0) return 0;
  return position < length ? position : length - 1;
}

inline int periodic(int position, int length) {
  while (position < 0) position += length;
  return position % length;
}

// The image's pixel that a rule of positions names.
template <typename T>
void extendBorder(const Bordered& b, Channels channels, int (*inside)(int, int)) {
  for (int y = 0; y < b.wholeRoi.height; ++y)
    for (int x = 0; x < b.wholeRoi.width; ++x)
      copyPixel<T>(b.image, inside(x - b.left, b.imageRoi.width), inside(y - b.top, b.imageRoi.height),
                   b.whole, x, y, channels);
}

}  // namespace model
