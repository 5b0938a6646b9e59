// SPDX-License-Identifier: MIT
// Cosine transforms of 8 x 8 blocks: the exact ones in double precision, and the forward one in integers step
// by step.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

#include "lumi/types.h"

namespace model {

using ExactBlock = std::array<double, 64>;
using WordBlock = std::array<Lum16s, 64>;

// a(u) cos((2x + 1) u pi / 16).
inline double dctWeight(int x, int u) {
  static const auto table = [] {
    std::array<double, 64> weights{};
    for (int i = 0; i < 8; ++i)
      for (int k = 0; k < 8; ++k)
        weights[static_cast<size_t>(8 * i + k)] =
            (k == 0 ? std::sqrt(0.125) : 0.5) * std::cos((2 * i + 1) * k * 3.14159265358979323846 / 16);
    return weights;
  }();
  return table[static_cast<size_t>(8 * x + u)];
}

// Both directions: weight(index of the result, index in the source), the same for rows and columns.
template <typename Weight>
ExactBlock transformed(const ExactBlock& block, Weight weight) {
  ExactBlock rows{}, result{};
  const auto at = [](int y, int x) { return static_cast<size_t>(8 * y + x); };
  for (int y = 0; y < 8; ++y)
    for (int k = 0; k < 8; ++k)
      for (int x = 0; x < 8; ++x) rows[at(y, k)] += weight(k, x) * block[at(y, x)];
  for (int k = 0; k < 8; ++k)
    for (int x = 0; x < 8; ++x)
      for (int y = 0; y < 8; ++y) result[at(k, x)] += weight(k, y) * rows[at(y, x)];
  return result;
}
inline ExactBlock exactDct(const ExactBlock& block) {
  return transformed(block, [](int u, int x) { return dctWeight(x, u); });
}
inline ExactBlock exactInverseDct(const ExactBlock& block) {
  return transformed(block, [](int x, int u) { return dctWeight(x, u); });
}

// The samples' means over squares of this side.
inline ExactBlock means(const ExactBlock& block, int side) {
  ExactBlock result{};
  const int each = 8 / side;
  for (int y = 0; y < 8; ++y)
    for (int x = 0; x < 8; ++x)
      result[static_cast<size_t>(y / side * each + x / side)] +=
          block[static_cast<size_t>(8 * y + x)] / (side * side);
  return result;
}

// Words of the integer transform: what saturates, what is cut off, what only loses its upper bits.
inline int saturated(int x) { return std::clamp(x, -32768, 32767); }
inline int upperWord(int a, int b) { return (a * b) >> 16; }
inline int shifted(int x, int bits) { return static_cast<int16_t>(x * (1 << bits)); }

inline void dctOfColumn(const int (&x)[8], int (&y)[8]) {
  int sum[4], difference[4];
  for (int i = 0; i < 4; ++i) {
    sum[i] = shifted(saturated(x[i] + x[7 - i]), 3);
    difference[i] = shifted(saturated(x[i] - x[7 - i]), i == 1 || i == 2 ? 4 : 3);
  }
  const int sum03 = saturated(sum[0] + sum[3]), sum12 = saturated(sum[1] + sum[2]);
  const int tilt03 = saturated(sum[0] - sum[3]), tilt12 = saturated(sum[1] - sum[2]);
  y[0] = saturated(sum03 + sum12);
  y[4] = saturated(sum03 - sum12);
  y[2] = saturated(tilt03 + upperWord(tilt12, 27146));
  y[6] = saturated(upperWord(tilt03, 27146) - tilt12);
  const int middleSum = upperWord(saturated(difference[1] + difference[2]), 23170) | 1;
  const int middleDifference = upperWord(saturated(difference[1] - difference[2]), 23170);
  const int a = saturated(difference[0] + middleSum), b = saturated(difference[0] - middleSum);
  const int c = saturated(difference[3] + middleDifference), d = saturated(difference[3] - middleDifference);
  y[1] = saturated(a + upperWord(c, 13036));
  y[7] = saturated(upperWord(a, 13036) - c);
  y[3] = saturated(b - saturated(d + upperWord(d, -21746)));
  y[5] = saturated(saturated(b + upperWord(b, -21746)) + d);
}

// The cosine of a coefficient's place in a row, in parts of 2^14 times the root of 2, with the factor that
// the column's transform has left out: rows 1 and 7 lack cos(pi / 16), 2 and 6 cos(2 pi / 16), 3 and 5 cos(3
// pi / 16), times the root of 2.
inline int rowWeight(int row, int x, int u) {
  static constexpr int kWeights[4][8] = {{16384, 22725, 21407, 19266, 16384, 12873, 8867, 4520},
                                         {22725, 31521, 29692, 26722, 22725, 17855, 12299, 6270},
                                         {21407, 29692, 27969, 25172, 21407, 16819, 11585, 5906},
                                         {19266, 26722, 25172, 22654, 19266, 15137, 10426, 5315}};
  static constexpr int kOfRow[] = {0, 1, 2, 3, 0, 3, 2, 1};
  // cos((2x + 1) u pi / 16) as that of an angle up to pi / 2; of coefficient 0 it has the weight of
  // coefficient 4.
  int angle = (2 * x + 1) * u % 32;
  if (angle > 16) angle = 32 - angle;
  const int weight = kWeights[kOfRow[row]][angle <= 8 ? angle % 8 : (16 - angle) % 8];
  return angle <= 8 ? weight : -weight;
}

inline WordBlock forwardDct(const WordBlock& samples) {
  int columns[8][8];
  for (int x = 0; x < 8; ++x) {
    int column[8], result[8];
    for (int y = 0; y < 8; ++y) column[y] = samples[static_cast<size_t>(8 * y + x)];
    dctOfColumn(column, result);
    for (int y = 0; y < 8; ++y) columns[y][x] = result[y];
  }
  WordBlock block{};
  for (int y = 0; y < 8; ++y)
    for (int u = 0; u < 8; ++u) {
      uint32_t total = 0x80000;  // modulo 2^32
      for (int x = 0; x < 4; ++x) {
        const int near = columns[y][x], far = columns[y][7 - x];
        const int both = saturated(u % 2 == 0 ? near + far : near - far);
        total += static_cast<uint32_t>(both * rowWeight(y, x, u));
      }
      const int coefficient = static_cast<int32_t>(total) >> 20;
      block[static_cast<size_t>(8 * y + u)] = static_cast<Lum16s>(saturated(coefficient));
    }
  return block;
}

}  // namespace model
