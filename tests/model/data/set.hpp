// SPDX-License-Identifier: MIT
#pragma once

#include "model/access.hpp"

namespace model {

template <typename T>
struct Value {
  T samples[4];

  Value(const Byte* values, int count) {
    for (int c = 0; c < count; ++c) samples[c] = load<T>(values, c);
  }
};

// Every pixel gets the value; samples that it has none for stay.
template <typename T>
void set(const Byte* values, Image dst, LumiSize roi, Channels channels) {
  const Value<T> value(values, channels.moved);
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < channels.moved; ++c) store<T>(dst.row(y), x * channels.dst + c, value.samples[c]);
}

// The same where the mask is not zero.
template <typename T>
void setMasked(const Byte* values, Image dst, LumiSize roi, Image mask, Channels channels) {
  const Value<T> value(values, channels.moved);
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x)
      if (mask.row(y)[x] != 0)
        for (int c = 0; c < channels.moved; ++c) store<T>(dst.row(y), x * channels.dst + c, value.samples[c]);
}

}  // namespace model
