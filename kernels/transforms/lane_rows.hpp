// SPDX-License-Identifier: MIT
// Rows as vectors, one in each lane; and packed spectra of real sequences, a vector for each number.
#pragma once

#include <cstring>

#include "kernels/transforms/rows.hpp"

namespace lumi::transforms {

using Four = Lanes[4];

// Floats 4i to 4i + 3 of all rows, as vectors of rows; beyond `floats` they are zero.
inline void loadFour(const EightRows& rows, size_t i, size_t floats, Four& x) {
  if (4 * i + 4 <= floats) {
    for (size_t r = 0; r < 4; ++r) x[r] = loadTwoFours(rows.src[r] + 16 * i, rows.src[r + 4] + 16 * i);
  } else {
    Byte rest[kLanes][16] = {};
    for (size_t r = 0; r < kLanes; ++r)
      std::memcpy(rest[r], rows.src[r] + 16 * i, (floats - 4 * i) * sizeof(float));
    for (size_t r = 0; r < 4; ++r) x[r] = loadTwoFours(rest[r], rest[r + 4]);
  }
  transposeHalves(x);
}

inline void storeFour(const EightRows& rows, size_t i, size_t floats, Four& x) {
  transposeHalves(x);
  if (rows.count == kLanes && 4 * i + 4 <= floats) {
    for (size_t r = 0; r < 4; ++r) storeFours(rows.dst[r] + 16 * i, rows.dst[r + 4] + 16 * i, x[r]);
  } else {
    Byte rest[kLanes][16];
    for (size_t r = 0; r < 4; ++r) storeFours(rest[r], rest[r + 4], x[r]);
    const size_t bytes = (floats - 4 * i < 4 ? floats - 4 * i : 4) * sizeof(float);
    for (int r = 0; r < rows.count; ++r) std::memcpy(rows.dst[r] + 16 * i, rest[r], bytes);
  }
}

inline void loadRows(const EightRows& rows, size_t floats, float* vectors) {
  for (size_t i = 0; 4 * i < floats; ++i) {
    Four x;
    loadFour(rows, i, floats, x);
    for (size_t j = 0; j < 4 && 4 * i + j < floats; ++j) storeLanes(vectors + (4 * i + j) * kLanes, x[j]);
  }
}
inline void storeRows(const EightRows& rows, size_t floats, const float* vectors) {
  for (size_t i = 0; 4 * i < floats; ++i) {
    Four x;
    for (size_t j = 0; j < 4; ++j)
      x[j] = loadLanes<Lanes>(vectors + (4 * i + j < floats ? 4 * i + j : 0) * kLanes);
    storeFour(rows, i, floats, x);
  }
}

// The packed spectrum of real rows, a vector for each number, from that of their complex ones.
inline void splitSpectrum(const RealTransform& transform, float scale, const float* points, float* packed) {
  const size_t m = transform.half.length;
  const auto at = [&](size_t k) {
    return loadPoint<Lanes>(points + transform.half.slotOfFrequency(k) * kPointFloats);
  };
  const float halfScale = 0.5f * scale;
  const Lanes s = broadcastLane<Lanes>(&scale), h = broadcastLane<Lanes>(&halfScale);
  const auto store = [&](size_t k, Complex<Lanes> x) {
    storeLanes(packed + (2 * k - 1) * kLanes, x.re * h);
    storeLanes(packed + 2 * k * kLanes, x.im * h);
  };
  const Complex<Lanes> first = at(0);
  storeLanes(packed, (first.re + first.im) * s);
  storeLanes(packed + (2 * m - 1) * kLanes, (first.re - first.im) * s);
  for (size_t k = 1; 2 * k <= m; ++k) {
    const Complex<Lanes> a = at(k), b = at(m - k);
    const Complex<Lanes> even = {a.re + b.re, a.im - b.im}, odd = {a.re - b.re, a.im + b.im};
    const Lanes re = broadcastLane<Lanes>(transform.rootRe + k),
                im = broadcastLane<Lanes>(transform.rootIm + k);
    const Complex<Lanes> turned = {odd.re * im + odd.im * re, odd.im * im - odd.re * re};
    store(k, even + turned);
    if (2 * k < m) store(m - k, {even.re - turned.re, turned.im - even.im});
  }
}

// The way back, to the slots of an inverse transform: real and imaginary parts are exchanged.
inline void joinSpectrum(const RealTransform& transform, const float* packed, float* points) {
  const size_t m = transform.half.length;
  const auto at = [&](size_t k) {
    return Complex<Lanes>{loadLanes<Lanes>(packed + (2 * k - 1) * kLanes),
                          loadLanes<Lanes>(packed + 2 * k * kLanes)};
  };
  const auto store = [&](size_t k, Complex<Lanes> x) {
    storePoint(points + transform.half.slotOfPlace(k) * kPointFloats, exchanged(x));
  };
  const Lanes first = loadLanes<Lanes>(packed), last = loadLanes<Lanes>(packed + (2 * m - 1) * kLanes);
  store(0, {first + last, first - last});
  for (size_t k = 1; 2 * k <= m; ++k) {
    const Complex<Lanes> a = at(k), b = at(m - k);
    const Complex<Lanes> even = {a.re + b.re, a.im - b.im}, odd = {a.re - b.re, a.im + b.im};
    const Lanes re = broadcastLane<Lanes>(transform.rootRe + k),
                im = broadcastLane<Lanes>(transform.rootIm + k);
    const Complex<Lanes> turned = {odd.re * im - odd.im * re, odd.im * im + odd.re * re};
    store(k, even + turned);
    if (2 * k < m) store(m - k, {even.re - turned.re, turned.im - even.im});
  }
}

}  // namespace lumi::transforms
