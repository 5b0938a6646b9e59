// SPDX-License-Identifier: MIT
// Pixels around an image as filters with a border see them.
#pragma once

#include <optional>

#include "model/access.hpp"

namespace model {

// Where place n of an axis of `count` places comes from; nothing for a constant. Flags are those of the
// places before and behind.
inline std::optional<int> borderPlace(int n, int count, int border, int flagBefore, int flagBehind) {
  const int type = border & 15;
  if (n >= 0 && n < count) return n;
  if (type == 6 || border & (n < 0 ? flagBefore : flagBehind)) return n;
  if (type == 0) return std::nullopt;
  if (type == 1) return n < 0 ? 0 : count - 1;
  while (n < 0 || n >= count) {  // 3 reflects about the edge, 4 beside it
    if (count == 1) return 0;
    if (n < 0) n = type == 3 ? -n : -n - 1;
    if (n >= count) n = type == 3 ? 2 * count - 2 - n : 2 * count - 1 - n;
  }
  return n;
}

// An image of one channel, with what is around it.
template <typename T>
struct Bordered {
  Image src;
  LumiSize size;
  int border;
  T value;

  T operator()(int x, int y) const {
    const auto column = borderPlace(x, size.width, border, 64, 128);
    const auto row = borderPlace(y, size.height, border, 16, 32);
    return column && row ? load<T>(src.row(*row), *column) : value;
  }
};

}  // namespace model
