// SPDX-License-Identifier: MIT
// Look-up in palettes, sample by sample.
#pragma once

#include "model/access.hpp"

namespace model {

inline int lowBits(int sample, int bitSize) { return sample & ((1 << bitSize) - 1); }

// One table, whose entries have any number of bytes.
template <typename S>
void palette(Image src, Image dst, LumiSize roi, const Byte* table, int entryBytes, int bitSize) {
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x) {
      const int i = lowBits(load<S>(src.row(y), x), bitSize);
      for (int b = 0; b < entryBytes; ++b) dst.row(y)[x * entryBytes + b] = table[i * entryBytes + b];
    }
}

// A table for each channel: channel c of a source pixel becomes sample place(c) of the destination's.
template <typename T, typename Table, typename Place>
void palettes(Image src, Image dst, LumiSize roi, Channels channels, const Table& table, const Place& place,
              int bitSize) {
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < channels.moved; ++c) {
        const int i = lowBits(load<T>(src.row(y), x * channels.src + c), bitSize);
        store<T>(dst.row(y), x * channels.dst + place(c), load<T>(table(c), i));
      }
}

// Alpha, in sample `place` of each pixel, where it is a value of the type.
template <typename T>
void storeAlpha(Image dst, LumiSize roi, int place, int alpha) {
  constexpr unsigned highest = sizeof(T) == 1 ? 255 : 65535;
  if (static_cast<unsigned>(alpha) > highest) return;
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x) store<T>(dst.row(y), x * 4 + place, static_cast<T>(alpha));
}

}  // namespace model
