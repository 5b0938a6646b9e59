// SPDX-License-Identifier: MIT
// Bit images, bit by bit.
#pragma once

#include "model/access.hpp"

namespace model {

// Where a pixel's bit is in its row: only the offset's low bits count.
struct BitPlace {
  int byte, bit;
  BitPlace(int offset, int x) : byte((offset % 8 + x) / 8), bit((offset % 8 + x) % 8) {}
};

template <typename D>
void binToGray(Image src, int srcBitOffset, Image dst, LumiSize roi, D zeroValue, D oneValue) {
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x) {
      const BitPlace at(srcBitOffset, x);
      store<D>(dst.row(y), x, (src.row(y)[at.byte] >> at.bit & 1) != 0 ? oneValue : zeroValue);
    }
}

template <typename S>
void grayToBin(Image src, Image dst, int dstBitOffset, LumiSize roi, S threshold) {
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x) {
      const BitPlace at(dstBitOffset, x);
      Byte& byte = dst.row(y)[at.byte];
      const int bit = 1 << at.bit;
      byte = static_cast<Byte>(threshold < load<S>(src.row(y), x) ? byte | bit : byte & ~bit);
    }
}

// Bits count from the high end here.
inline void convertBits(Image src, int srcBitOffset, Image dst, LumiSize roi) {
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x) {
      const BitPlace at(srcBitOffset, x);
      dst.row(y)[x] = (src.row(y)[at.byte] << at.bit & 0x80) != 0 ? 255 : 0;
    }
}

}  // namespace model
