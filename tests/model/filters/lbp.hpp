// SPDX-License-Identifier: MIT
// Local binary patterns, neighbour by neighbour.
#pragma once

#include <algorithm>
#include <vector>

#include "model/filters/border_place.hpp"

namespace model {

struct Offset {
  int dx, dy;
};

inline std::vector<Offset> patternNeighbours(int side, int count) {
  if (count == 16)
    return {{-2, -1}, {-1, -1}, {-1, -2}, {0, -2}, {1, -2}, {1, -1}, {2, -1}, {2, 0},
            {2, 1},   {1, 1},   {1, 2},   {0, 2},  {-1, 2}, {-1, 1}, {-2, 1}, {-2, 0}};
  const int far = side / 2;
  return {{-1, -1}, {0, -far}, {1, -1}, {far, 0}, {1, 1}, {0, far}, {-1, 1}, {-far, 0}};
}

// The bit that neighbour k of n is told by.
inline int patternBit(int k, int n, int mode) {
  switch (mode & 3) {
    case 0:
      return k == 0 ? 0 : n - k;
    case 1:
      return k;
    case 2:
      return n - 1 - k;
    default:
      return k == n - 1 ? 0 : k + 1;
  }
}

// Type 6, or all sides in memory: everything is. Otherwise the nearest pixels stand for those that are not.
inline int patternBorder(int border) {
  const int sides = border & 0xF0;
  return (border & 15) == 6 || sides == 0xF0 ? 6 : 1 | sides;
}

template <typename S, typename D>
D pattern(const Bordered<S>& image, int side, int mode, int x, int y) {
  const int n = 8 * static_cast<int>(sizeof(D));
  const std::vector<Offset> neighbours = patternNeighbours(side, n);
  unsigned bits = 0;
  for (int k = 0; k < n; ++k) {
    const Offset at = neighbours[static_cast<size_t>(k)];
    const bool isBelow = image(x + at.dx, y + at.dy) < image(x, y);
    if (!isBelow) bits |= 1U << patternBit(k, n, mode);
  }
  return static_cast<D>(bits);
}

// How many bits differ in the windows of both images' pixels.
template <typename T>
T patternDistance(const Bordered<T>& a, const Bordered<T>& b, int shift, int x, int y) {
  const int limited = std::clamp(shift, -a.size.width, a.size.width);
  int sum = 0;
  for (int dy = -2; dy <= 2; ++dy)
    for (int dx = -2; dx <= 2; ++dx)
      for (int differing = a(x + dx, y + dy) ^ b(x + dx + limited, y + dy); differing != 0; differing /= 2)
        sum += differing % 2;
  return static_cast<T>(sum);
}

}  // namespace model
