// SPDX-License-Identifier: MIT
// What the compiler makes of the plain loop at our instruction level.
#pragma once

#include "bench/harness.hpp"

namespace bench::loop {

// Runs row(y, width) for every row; each adapter hands over the loop along a row. Values and widths are
// locals there: byte stores could change anything that is reached through a pointer.
template <typename Row>
Peer rows(LumiSize roi, Row row) {
  return peer("loop", [=] {
    for (int y = 0; y < roi.height; ++y) row(y, roi.width);
  });
}

template <int C, typename T>
std::array<T, C> samples(const Value& value) {
  std::array<T, C> pixel;
  for (std::size_t c = 0; c < C; ++c) pixel[c] = static_cast<T>(value[c]);
  return pixel;
}

template <int C, typename T>
Peer fill(Image<T> dst, Value value) {
  const auto pixel = samples<C, T>(value);
  return rows(dst.roi, [=](int y, int width) {
    T* d = dst.row(y);
    const auto local = pixel;
    for (int x = 0; x < width; ++x) {
      for (int c = 0; c < C; ++c) d[x * C + c] = local[static_cast<std::size_t>(c)];
    }
  });
}

template <int C, typename T>
Peer fillChannel(Image<T> dst, T value) {
  return rows(dst.roi, [=](int y, int width) {
    T* d = dst.row(y);
    const T local = value;
    for (int x = 0; x < width; ++x) d[x * C] = local;
  });
}

// Both loads come before the choice, so that no branch is needed and vectors can be used.
template <int C, typename T>
void choose(T* kept, const T* taken, Lum8u mask) {
  for (int c = 0; c < C; ++c) {
    const T keep = kept[c], take = taken[c];
    kept[c] = mask != 0 ? take : keep;
  }
}

template <int C, typename T>
Peer fillMasked(Image<T> dst, Value value, Image<Lum8u> mask) {
  const auto pixel = samples<C, T>(value);
  return rows(dst.roi, [=](int y, int width) {
    T* __restrict d = dst.row(y);
    const Lum8u* __restrict m = mask.row(y);
    const auto local = pixel;
    for (int x = 0; x < width; ++x) choose<C>(d + x * C, local.data(), m[x]);
  });
}

// The first N channels of S into the first N of D.
template <int S, int D, int N, typename T>
Peer move(Image<T> src, Image<T> dst) {
  return rows(src.roi, [=](int y, int width) {
    const T* __restrict s = src.row(y);
    T* __restrict d = dst.row(y);
    for (int x = 0; x < width; ++x) {
      for (int c = 0; c < N; ++c) d[x * D + c] = s[x * S + c];
    }
  });
}

template <int C, typename T>
Peer copyMasked(Image<T> src, Image<T> dst, Image<Lum8u> mask) {
  return rows(src.roi, [=](int y, int width) {
    const T* __restrict s = src.row(y);
    T* __restrict d = dst.row(y);
    const Lum8u* __restrict m = mask.row(y);
    for (int x = 0; x < width; ++x) choose<C>(d + x * C, s + x * C, m[x]);
  });
}

template <int C, typename T>
Peer split(Image<T> src, Planes<T> dst) {
  return rows(src.roi, [=](int y, int width) {
    const T* __restrict s = src.row(y);
    T* __restrict d[C];
    for (std::size_t c = 0; c < C; ++c) d[c] = reinterpret_cast<T*>(dst.views[c].row(y));
    for (int x = 0; x < width; ++x) {
      for (int c = 0; c < C; ++c) d[c][x] = s[x * C + c];
    }
  });
}

template <int C, typename T>
Peer merge(Planes<T> src, Image<T> dst) {
  return rows(dst.roi, [=](int y, int width) {
    const T* __restrict s[C];
    for (std::size_t c = 0; c < C; ++c) s[c] = reinterpret_cast<const T*>(src.views[c].row(y));
    T* __restrict d = dst.row(y);
    for (int x = 0; x < width; ++x) {
      for (int c = 0; c < C; ++c) d[x * C + c] = s[c][x];
    }
  });
}

template <int C, typename T>
Peer spread(Image<T> src, Image<T> dst) {
  return rows(src.roi, [=](int y, int width) {
    const T* __restrict s = src.row(y);
    T* __restrict d = dst.row(y);
    for (int x = 0; x < width; ++x) {
      for (int c = 0; c < C; ++c) d[x * C + c] = s[x];
    }
  });
}

}  // namespace bench::loop
