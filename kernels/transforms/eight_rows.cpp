// SPDX-License-Identifier: MIT
// Rows side by side: they are transposed into the lanes, and back.
#include "kernels/transforms/lane_rows.hpp"

namespace lumi::transforms {
namespace {

// Points go to their slots with the parts exchanged where the transform is inverse: `part` is what the real
// ones lie behind the beginning of a point.
void fillPoints(const EightRows& rows, const Transform& transform, size_t part, float* points) {
  const size_t floats = 2 * transform.length;
  for (size_t i = 0; 4 * i < floats; ++i) {
    Four x;
    loadFour(rows, i, floats, x);
    for (size_t j = 0; j < 2 && 4 * i + 2 * j < floats; ++j) {
      float* const p = points + transform.slotOfPlace(2 * i + j) * kPointFloats;
      storeLanes(p + part, x[2 * j]);
      storeLanes(p + (kLanes - part), x[2 * j + 1]);
    }
  }
}

void drainPoints(const EightRows& rows, const Transform& transform, size_t part, float scale,
                 const float* points) {
  const size_t floats = 2 * transform.length;
  const Lanes s = broadcastLane<Lanes>(&scale);
  for (size_t i = 0; 4 * i < floats; ++i) {
    Four x = {s, s, s, s};
    for (size_t j = 0; j < 2 && 4 * i + 2 * j < floats; ++j) {
      const float* const p = points + transform.slotOfFrequency(2 * i + j) * kPointFloats;
      x[2 * j] = loadLanes<Lanes>(p + part) * s;
      x[2 * j + 1] = loadLanes<Lanes>(p + (kLanes - part)) * s;
    }
    storeFour(rows, i, floats, x);
  }
}

// Whether passes of a transform begin and end on rows that are transposed on the way: so many places apart,
// two neighbours at a time.
bool joinsOnTheWay(const Transform& transform) {
  return transform.isPowerOfTwo && !transform.isSplit() && transform.inner.count >= 2;
}

template <bool exchange>
Complex<Lanes> complexOf(Lanes re, Lanes im) {
  if constexpr (exchange)
    return {im, re};
  else
    return {re, im};
}

// fillPoints with the first pass.
template <bool exchange, size_t radix>
void fillAndJoin(const EightRows& rows, const Transform& transform, float* points) {
  const size_t floats = 2 * transform.length, apart = transform.length / radix;
  for (size_t n = 0; n < apart; n += 2) {
    Complex<Lanes> even[radix], odd[radix];
    for (size_t k = 0; k < radix; ++k) {
      Four x;
      loadFour(rows, (n + k * apart) / 2, floats, x);
      even[k] = complexOf<exchange>(x[0], x[1]);
      odd[k] = complexOf<exchange>(x[2], x[3]);
    }
    butterfly(even);
    butterfly(odd);
    float* const first = points + transform.inner.slot[n] * kPointFloats;
    float* const second = points + transform.inner.slot[n + 1] * kPointFloats;
    for (size_t k = 0; k < radix; ++k) {
      storePoint(first + k * kPointFloats, even[k]);
      storePoint(second + k * kPointFloats, odd[k]);
    }
  }
}

template <bool exchange>
void fillAndJoin(const EightRows& rows, const Transform& transform, float* points) {
  if (transform.inner.pass[0].radix == 8)
    fillAndJoin<exchange, 8>(rows, transform, points);
  else
    fillAndJoin<exchange, 4>(rows, transform, points);
}

// drainPoints with the last pass.
template <bool exchange>
void joinAndDrain(const EightRows& rows, const Transform& transform, float scale, const float* points) {
  constexpr size_t kRadix = 4;
  const Pass<Lanes>& pass = transform.inner.pass[transform.inner.count - 1];
  const Lanes s = broadcastLane<Lanes>(&scale);
  const auto joined = [&](size_t j, Complex<Lanes>(&x)[kRadix]) {
    const float* const roots = pass.roots + j * 2 * (kRadix - 1);
    x[0] = loadPoint<Lanes>(points + j * kPointFloats);
    for (size_t k = 1; k < kRadix; ++k)
      x[k] = loadPoint<Lanes>(points + (j + k * pass.m) * kPointFloats) *
             broadcastRoot<Lanes>(roots + 2 * (k - 1));
    butterfly(x);
  };
  for (size_t j = 0; j < pass.m; j += 2) {
    Complex<Lanes> even[kRadix], odd[kRadix];
    joined(j, even);
    joined(j + 1, odd);
    for (size_t k = 0; k < kRadix; ++k) {
      const Complex<Lanes> a = complexOf<exchange>(even[k].re, even[k].im);
      const Complex<Lanes> b = complexOf<exchange>(odd[k].re, odd[k].im);
      Four x = {a.re * s, a.im * s, b.re * s, b.im * s};
      storeFour(rows, (j + k * pass.m) / 2, 2 * transform.length, x);
    }
  }
}

// A complex transform of rows where they are read, or written, by passes of its own.
template <bool exchange>
void transformRowsToPoints(const EightRows& rows, const Transform& transform, float* points, float* local) {
  if (joinsOnTheWay(transform)) {
    fillAndJoin<exchange>(rows, transform, points);
    runLaterPasses(transform.inner, points);
  } else {
    fillPoints(rows, transform, exchange ? kLanes : 0, points);
    transformPoints(transform, points, local);
  }
}
template <bool exchange>
void transformPointsToRows(const EightRows& rows, const Transform& transform, float scale, float* points,
                           float* local) {
  if (joinsOnTheWay(transform)) {
    runFirstPasses(transform.inner, points);
    joinAndDrain<exchange>(rows, transform, scale, points);
  } else {
    transformPoints(transform, points, local);
    drainPoints(rows, transform, exchange ? kLanes : 0, scale, points);
  }
}

template <bool exchange>
void transformRowsToRows(const EightRows& rows, const Transform& transform, float scale, float* points,
                         float* local) {
  if (joinsOnTheWay(transform)) {
    fillAndJoin<exchange>(rows, transform, points);
    runMiddlePasses(transform.inner, points);
    joinAndDrain<exchange>(rows, transform, scale, points);
  } else {
    fillPoints(rows, transform, exchange ? kLanes : 0, points);
    transformPointsToRows<exchange>(rows, transform, scale, points, local);
  }
}

}  // namespace

void transformEightRows(const Transform& transform, bool inverse, float scale, const EightRows& rows,
                        float* points, float* local) {
  if (inverse)
    transformRowsToRows<true>(rows, transform, scale, points, local);
  else
    transformRowsToRows<false>(rows, transform, scale, points, local);
}

void transformEightRealRows(const RealTransform& transform, bool inverse, float scale, const EightRows& rows,
                            float* points, float* local) {
  const Transform& half = transform.half;
  const size_t floats = 2 * half.length;
  float* const packed = points + half.length * kPointFloats;
  if (inverse) {
    loadRows(rows, floats, packed);
    joinSpectrum(transform, packed, points);
    transformPointsToRows<true>(rows, half, scale, points, local);
  } else {
    transformRowsToPoints<false>(rows, half, points, local);
    splitSpectrum(transform, scale, points, packed);
    storeRows(rows, floats, packed);
  }
}

namespace {

// Two packed spectra of an odd length, or the samples of both, as vectors of rows.
float* secondOf(float* packed, size_t length) { return packed + length * kLanes; }

// F and G out of F + iG.
void separateSpectra(const Transform& transform, float scale, const float* points, float* packed) {
  const size_t n = transform.length;
  const auto at = [&](size_t k) {
    return loadPoint<Lanes>(points + transform.slotOfFrequency(k) * kPointFloats);
  };
  const float halfScale = 0.5f * scale;
  const Lanes s = broadcastLane<Lanes>(&scale), h = broadcastLane<Lanes>(&halfScale);
  float* const second = secondOf(packed, n);
  storeLanes(packed, at(0).re * s);
  storeLanes(second, at(0).im * s);
  for (size_t k = 1; 2 * k < n; ++k) {
    const Complex<Lanes> a = at(k), b = at(n - k);
    storeLanes(packed + (2 * k - 1) * kLanes, (a.re + b.re) * h);
    storeLanes(packed + 2 * k * kLanes, (a.im - b.im) * h);
    storeLanes(second + (2 * k - 1) * kLanes, (a.im + b.im) * h);
    storeLanes(second + 2 * k * kLanes, (b.re - a.re) * h);
  }
}

// The way back, with parts exchanged.
void mixSpectra(const Transform& transform, float* packed, float* points) {
  const size_t n = transform.length;
  const float* const second = secondOf(packed, n);
  const auto store = [&](size_t k, Complex<Lanes> x) {
    storePoint(points + transform.slotOfPlace(k) * kPointFloats, exchanged(x));
  };
  store(0, {loadLanes<Lanes>(packed), loadLanes<Lanes>(second)});
  for (size_t k = 1; 2 * k < n; ++k) {
    const size_t re = (2 * k - 1) * kLanes, im = 2 * k * kLanes;
    const Complex<Lanes> f = {loadLanes<Lanes>(packed + re), loadLanes<Lanes>(packed + im)};
    const Complex<Lanes> g = {loadLanes<Lanes>(second + re), loadLanes<Lanes>(second + im)};
    store(k, plusTurned(f, g));
    store(n - k, {f.re + g.im, g.re - f.im});
  }
}

}  // namespace

void transformOddRealRows(const Transform& transform, bool inverse, float scale, const EightRows& first,
                          const EightRows& second, float* points, float* local) {
  const size_t n = transform.length;
  float* const packed = points + n * kPointFloats;
  loadRows(first, n, packed);
  loadRows(second, n, secondOf(packed, n));
  if (inverse) {
    mixSpectra(transform, packed, points);
  } else {
    for (size_t i = 0; i < n; ++i)
      storePoint<Lanes>(
          points + transform.slotOfPlace(i) * kPointFloats,
          {loadLanes<Lanes>(packed + i * kLanes), loadLanes<Lanes>(secondOf(packed, n) + i * kLanes)});
  }
  transformPoints(transform, points, local);
  if (inverse) {
    const Lanes s = broadcastLane<Lanes>(&scale);
    for (size_t i = 0; i < n; ++i) {
      const Complex<Lanes> x =
          exchanged(loadPoint<Lanes>(points + transform.slotOfFrequency(i) * kPointFloats));
      storeLanes(packed + i * kLanes, x.re * s);
      storeLanes(secondOf(packed, n) + i * kLanes, x.im * s);
    }
  } else {
    separateSpectra(transform, scale, points, packed);
  }
  storeRows(first, n, packed);
  storeRows(second, n, secondOf(packed, n));
}

}  // namespace lumi::transforms
