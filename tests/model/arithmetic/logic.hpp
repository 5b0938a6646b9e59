// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "model/access.hpp"

namespace model {

// Bit by bit: the result's bit is the one of the truth table at the two operands' bits.
struct TruthTable {
  bool at[2][2];
};
inline constexpr TruthTable kAnd{{{false, false}, {false, true}}}, kOr{{{false, true}, {true, true}}},
    kXor{{{false, true}, {true, false}}};

template <typename T>
T combineBits(T a, T b, const TruthTable& table) {
  uint32_t result = 0;
  for (unsigned bit = 0; bit < 8 * sizeof(T); ++bit) {
    const unsigned first = static_cast<uint32_t>(a) >> bit & 1, second = static_cast<uint32_t>(b) >> bit & 1;
    result |= static_cast<uint32_t>(table.at[first][second]) << bit;
  }
  return static_cast<T>(result);
}

template <typename T>
void combineImages(Image a, Image b, Image dst, LumiSize roi, Channels channels, const TruthTable& table) {
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < channels.moved; ++c) {
        const int i = x * channels.dst + c;
        store<T>(dst.row(y), i, combineBits(load<T>(a.row(y), i), load<T>(b.row(y), i), table));
      }
}

template <typename T>
void combineConstant(const Byte* constant, Image src, Image dst, LumiSize roi, Channels channels,
                     const TruthTable& table) {
  T values[4];
  for (int c = 0; c < channels.moved; ++c) values[c] = load<T>(constant, c);
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < channels.moved; ++c) {
        const int i = x * channels.dst + c;
        store<T>(dst.row(y), i, combineBits(load<T>(src.row(y), i), values[c], table));
      }
}

}  // namespace model
