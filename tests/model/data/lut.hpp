// SPDX-License-Identifier: MIT
// Look-up by levels and values, sample by sample: what the entry of a table would be, or the piece of floats.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "model/access.hpp"

namespace model {

enum class Form { Constant, Linear, Cubic };

// A channel's levels and values, at any address.
template <typename L>
struct Levels {
  const Byte *values, *levels;
  int count;

  L value(int k) const { return load<L>(values, k); }
  L level(int k) const { return load<L>(levels, k); }
};

// By expansion along the first row.
inline double determinant(const double (&m)[3][3]) {
  return m[0][0] * (m[1][1] * m[2][2] - m[2][1] * m[1][2]) -
         m[0][1] * (m[1][0] * m[2][2] - m[2][0] * m[1][2]) +
         m[0][2] * (m[1][0] * m[2][1] - m[2][0] * m[1][1]);
}

// A t^3 + B t^2 + C t = d at three points: result[i] is what stands before t^(3 - i).
inline void solveCubic(const double (&t)[3], const double (&d)[3], double (&result)[3]) {
  double m[3][3];
  for (int row = 0; row < 3; ++row) {
    m[row][2] = t[row];
    m[row][1] = t[row] * t[row];
    m[row][0] = t[row] * t[row] * t[row];
  }
  const double inverse = 1.0 / determinant(m);
  for (int column = 0; column < 3; ++column) {
    double replaced[3][3];
    for (int row = 0; row < 3; ++row)
      for (int i = 0; i < 3; ++i) replaced[row][i] = i == column ? d[row] : m[row][i];
    result[column] = determinant(replaced) * inverse;
  }
}

// The first of a piece's four knots.
inline int firstKnot(int piece, int count) { return std::clamp(piece - 1, 0, count - 4); }

// Differences as the levels' type has them, integers without overflow.
template <typename L>
void cubicOf(const Levels<L>& list, int piece, double (&result)[3]) {
  using Wide = std::conditional_t<std::is_integral_v<L>, int64_t, L>;
  const int j = firstKnot(piece, list.count), knots[] = {j, j + 2, j + 3};
  double t[3], d[3];
  for (int i = 0; i < 3; ++i) {
    t[i] =
        static_cast<double>(static_cast<Wide>(list.level(knots[i])) - static_cast<Wide>(list.level(j + 1)));
    d[i] =
        static_cast<double>(static_cast<Wide>(list.value(knots[i])) - static_cast<Wide>(list.value(j + 1)));
  }
  solveCubic(t, d, result);
}

// Without what is behind the point, and within the range of T.
template <typename T>
int truncated(double x) {
  constexpr int low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
  if (!(x > low)) return low;
  return x >= high ? high : static_cast<int>(x);
}

template <typename T>
int curveEntry(Form form, const Levels<Lum32s>& list, int k, int i) {
  if (form == Form::Linear) {
    const int64_t rise = int64_t{list.value(k + 1)} - list.value(k),
                  run = int64_t{list.level(k + 1)} - list.level(k);
    const double slope = static_cast<double>(rise) / static_cast<double>(run);
    const double offset = list.value(k) + 0.5 - list.level(k) * slope;
    return truncated<T>(offset + slope * i);
  }
  double c[3];
  cubicOf(list, k, c);
  const int origin = firstKnot(k, list.count) + 1;
  const double t = static_cast<double>(int64_t{i} - list.level(origin));
  return truncated<T>(list.value(origin) + 0.5 + c[0] * (t * t * t) + c[1] * (t * t) + c[2] * t);
}

// The entry of a table at i.
template <typename T>
int entry(Form form, const Levels<Lum32s>& list, int i) {
  constexpr int low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max(), end = high + 1;
  const auto value = [&](int k) { return std::clamp(list.value(k), low, high); };
  const bool isConstant = form == Form::Constant;
  int result = i;
  for (int k = 0; k + 1 < list.count; ++k) {
    const int level = list.level(k), next = list.level(k + 1);
    if (!isConstant && next <= level) continue;
    const int lo = std::clamp(level, low, isConstant ? end : high), hi = std::clamp(next, low, end);
    if (i < lo || i >= hi) continue;
    result = isConstant || hi - lo == 1 ? value(k) : curveEntry<T>(form, list, k, i);
  }
  return isConstant && i >= list.level(list.count - 1) ? i : result;
}

// The same for constant pieces found by halving the list.
template <typename T>
int entryByHalving(const Levels<Lum32s>& list, int x) {
  if (x < list.level(0) || x >= list.level(list.count - 1)) return x;
  int index = 0, base = 0;
  for (int count = list.count - 1; count > 1;) {
    const int half = count >> 1;
    if (x < list.level(base + half)) {
      count = half;
    } else {
      count -= half;
      index += half;
      base += half;
    }
  }
  return std::clamp<int>(list.value(index), std::numeric_limits<T>::min(), std::numeric_limits<T>::max());
}

// Whether x is in a piece, and what it becomes. By reference: on its way through the x87 unit a signalling
// NaN would change.
inline bool floatOf(Form form, const Levels<Lum32f>& list, float x, float& result) {
  for (int k = 0; k + 1 < list.count; ++k) {
    if (!(list.level(k) <= x) || !(list.level(k + 1) > x)) continue;
    if (form == Form::Constant) {
      result = list.value(k);
    } else if (form == Form::Linear) {
      const float slope = (list.value(k + 1) - list.value(k)) / (list.level(k + 1) - list.level(k));
      const float t = x - list.level(k);
      result = static_cast<float>(static_cast<double>(t) * slope + list.value(k));
    } else {
      double c[3];
      cubicOf(list, k, c);
      const int origin = firstKnot(k, list.count) + 1;
      const float difference = x - list.level(origin);
      const double t = difference;
      result = static_cast<float>((t * t * c[0] + c[2]) * t + (list.value(origin) + t * t * c[1]));
    }
    return true;
  }
  return false;
}

// list(c) gives the levels of channel c.
template <typename T, typename L, typename List>
void lut(Form form, Image src, Image dst, LumiSize roi, Channels channels, const List& list) {
  bool halves = sizeof(T) == 2 && form == Form::Constant && channels.src == channels.moved &&
                channels.src < 4 && int64_t{roi.width} * roi.height < 4097;
  for (int c = 0; c < channels.moved; ++c)
    if (form == Form::Cubic && list(c).count < 4) form = Form::Linear;
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < channels.moved; ++c) {
        const int at = x * channels.src + c;
        const Byte* const from = src.row(y) + static_cast<size_t>(at) * sizeof(T);
        Byte* const to = dst.row(y) + static_cast<size_t>(at) * sizeof(T);
        const T sample = load<T>(from, 0);
        std::memmove(to, from, sizeof(T));
        if constexpr (std::is_floating_point_v<T>) {
          T result = 0;
          if (floatOf(form, list(c), sample, result)) store<T>(to, 0, result);
        } else {
          store<T>(
              to, 0,
              static_cast<T>(halves ? entryByHalving<T>(list(c), sample) : entry<T>(form, list(c), sample)));
        }
      }
}

}  // namespace model
