// SPDX-License-Identifier: MIT
#pragma once

#include "model/access.hpp"

namespace model {

// The first samples of every pixel go to the first ones of the destination's; its other samples stay.
template <typename T>
void copy(Image src, Image dst, LumiSize roi, Channels channels) {
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < channels.moved; ++c)
        store<T>(dst.row(y), x * channels.dst + c, load<T>(src.row(y), x * channels.src + c));
}

// The same where the mask is not zero.
template <typename T>
void copyMasked(Image src, Image dst, LumiSize roi, Image mask, Channels channels) {
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x)
      if (mask.row(y)[x] != 0)
        for (int c = 0; c < channels.moved; ++c)
          store<T>(dst.row(y), x * channels.dst + c, load<T>(src.row(y), x * channels.src + c));
}

// Channel c of the pixels becomes plane c.
template <typename T>
void split(Image src, Byte* const* planes, int planeStep, LumiSize roi, int channels) {
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < channels; ++c)
        store<T>(Image{planes[c], planeStep}.row(y), x, load<T>(src.row(y), x * channels + c));
}

// Plane c becomes channel c of the pixels.
template <typename T>
void merge(Byte* const* planes, int planeStep, Image dst, LumiSize roi, int channels) {
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < channels; ++c)
        store<T>(dst.row(y), x * channels + c, load<T>(Image{planes[c], planeStep}.row(y), x));
}

// Each sample goes to every channel.
template <typename T>
void duplicate(Image src, Image dst, LumiSize roi, int channels) {
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < channels; ++c) store<T>(dst.row(y), x * channels + c, load<T>(src.row(y), x));
}

}  // namespace model
