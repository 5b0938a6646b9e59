// SPDX-License-Identifier: MIT
#include "kernels/transforms/cosine.hpp"

#include <algorithm>

#include "kernels/transforms/lane_rows.hpp"

namespace lumi::transforms {
namespace {

// Memory for the sequences and their coefficients, for points, for a packed spectrum, and for what the
// Fourier transform needs beside.
struct Room {
  float *samples, *packed, *points, *local;

  Room(const CosineTransform& transform, float* scratch)
      : samples(scratch),
        packed(samples + transform.length * kLanes),
        points(packed + transform.length * kLanes),
        local(points + transform.fourier.half.length * kPointFloats) {}
};

bool isEven(const CosineTransform& transform) { return transform.length % 2 == 0; }

// The place of the Fourier transform's sample n.
size_t placeOf(size_t n, size_t length) { return 2 * n < length ? 2 * n : 2 * (length - 1 - n) + 1; }

// From samples to their packed spectrum.
void fourierForward(const CosineTransform& transform, const Room& room) {
  const Transform& fourier = transform.fourier.half;
  const size_t n = transform.length;
  const auto sample = [&](size_t i) { return loadLanes<Lanes>(room.samples + placeOf(i, n) * kLanes); };
  const auto point = [&](size_t i) { return room.points + fourier.slotOfPlace(i) * kPointFloats; };
  if (isEven(transform)) {
    for (size_t i = 0; i < fourier.length; ++i)
      storePoint<Lanes>(point(i), {sample(2 * i), sample(2 * i + 1)});
    transformPoints(fourier, room.points, room.local);
    splitSpectrum(transform.fourier, 1, room.points, room.packed);
  } else {
    for (size_t i = 0; i < n; ++i) storePoint<Lanes>(point(i), {sample(i), Lanes{}});
    transformPoints(fourier, room.points, room.local);
    for (size_t k = 0; 2 * k < n; ++k) {
      const Complex<Lanes> x = loadPoint<Lanes>(room.points + fourier.slotOfFrequency(k) * kPointFloats);
      storeLanes(room.packed + (k == 0 ? 0 : 2 * k - 1) * kLanes, x.re);
      if (k > 0) storeLanes(room.packed + 2 * k * kLanes, x.im);
    }
  }
}

// The way back, without a factor.
void fourierInverse(const CosineTransform& transform, const Room& room) {
  const Transform& fourier = transform.fourier.half;
  const size_t n = transform.length;
  const auto place = [&](size_t i) { return room.samples + placeOf(i, n) * kLanes; };
  if (isEven(transform)) {
    joinSpectrum(transform.fourier, room.packed, room.points);
  } else {
    const auto store = [&](size_t k, Complex<Lanes> x) {
      storePoint(room.points + fourier.slotOfPlace(k) * kPointFloats, exchanged(x));
    };
    const Lanes none = {};
    store(0, {loadLanes<Lanes>(room.packed), none});
    for (size_t k = 1; 2 * k < n; ++k) {
      const Complex<Lanes> x = {loadLanes<Lanes>(room.packed + (2 * k - 1) * kLanes),
                                loadLanes<Lanes>(room.packed + 2 * k * kLanes)};
      store(k, x);
      store(n - k, {x.re, none - x.im});
    }
  }
  transformPoints(fourier, room.points, room.local);
  for (size_t i = 0; i < fourier.length; ++i) {
    const Complex<Lanes> x =
        exchanged(loadPoint<Lanes>(room.points + fourier.slotOfFrequency(i) * kPointFloats));
    if (isEven(transform)) {
      storeLanes(place(2 * i), x.re);
      storeLanes(place(2 * i + 1), x.im);
    } else {
      storeLanes(place(i), x.re);
    }
  }
}

// Coefficients k and N - k are the parts of t(k) F(k), the second one negative; of k = N / 2, F is real.
void forward(const CosineTransform& transform, const Room& room) {
  fourierForward(transform, room);
  const size_t n = transform.length;
  const Lanes first = broadcastLane<Lanes>(&transform.first), rest = broadcastLane<Lanes>(&transform.rest);
  const auto packed = [&](size_t i) { return loadLanes<Lanes>(room.packed + i * kLanes); };
  const auto store = [&](size_t k, Lanes x) { storeLanes(room.samples + k * kLanes, x); };
  store(0, packed(0) * first);
  for (size_t k = 1; 2 * k < n; ++k) {
    const Lanes re = packed(2 * k - 1), im = packed(2 * k);
    const Lanes c = broadcastLane<Lanes>(transform.turnRe + k),
                s = broadcastLane<Lanes>(transform.turnIm + k);
    store(k, (re * c - im * s) * rest);
    store(n - k, (Lanes{} - (re * s + im * c)) * rest);
  }
  if (isEven(transform)) store(n / 2, packed(n - 1) * broadcastLane<Lanes>(transform.turnRe + n / 2) * rest);
}

void inverse(const CosineTransform& transform, const Room& room) {
  const size_t n = transform.length;
  // Half of the forward factor, since every value of the spectrum is there twice.
  const float halfRest = 0.5f * transform.rest;
  const Lanes first = broadcastLane<Lanes>(&transform.first), rest = broadcastLane<Lanes>(&halfRest);
  const auto coefficient = [&](size_t k) { return loadLanes<Lanes>(room.samples + k * kLanes); };
  const auto store = [&](size_t i, Lanes x) { storeLanes(room.packed + i * kLanes, x); };
  store(0, coefficient(0) * first);
  for (size_t k = 1; 2 * k < n; ++k) {
    const Lanes a = coefficient(k) * rest, b = coefficient(n - k) * rest;
    const Lanes c = broadcastLane<Lanes>(transform.turnRe + k),
                s = broadcastLane<Lanes>(transform.turnIm + k);
    // (a - ib) (c - is), since t(k) is c + is.
    store(2 * k - 1, a * c - b * s);
    store(2 * k, Lanes{} - (a * s + b * c));
  }
  if (isEven(transform)) {
    const Lanes c = broadcastLane<Lanes>(transform.turnRe + n / 2);
    store(n - 1, coefficient(n / 2) * rest * (c + c));
  }
  fourierInverse(transform, room);
}

void transformSamples(const CosineTransform& transform, bool isInverse, const Room& room) {
  if (isInverse)
    inverse(transform, room);
  else
    forward(transform, room);
}

// Eight columns, or as many as there are left; alpha is each fourth one.
class ColumnGroup {
 public:
  ColumnGroup(size_t count, bool withAlpha) : count_(count), withAlpha_(withAlpha) {}

  Lanes load(const Byte* p) const {
    if (count_ == kLanes) return loadFloats8(p);
    Byte bytes[kLanes * sizeof(float)] = {};
    std::memcpy(bytes, p, count_ * sizeof(float));
    return loadFloats8(bytes);
  }
  void store(Byte* p, Lanes x) const {
    if (count_ == kLanes && !withAlpha_) return store32(p, bytesOf(x));
    Byte bytes[kLanes * sizeof(float)];
    store32(bytes, bytesOf(x));
    constexpr size_t kColours = 3 * sizeof(float), kPixel = 4 * sizeof(float);
    if (!withAlpha_)
      std::memcpy(p, bytes, count_ * sizeof(float));
    else
      for (size_t i = 0; i < count_ * sizeof(float); i += kPixel) std::memcpy(p + i, bytes + i, kColours);
  }

 private:
  size_t count_;
  bool withAlpha_;
};

}  // namespace

size_t cosineScratch(const CosineTransform& transform) {
  return 2 * transform.length * kLanes + transform.fourier.half.length * kPointFloats +
         transform.fourier.half.localFloats();
}

void transformCosineRows(const CosineTransform& transform, bool inverse, const EightRows& rows,
                         float* scratch) {
  const Room room(transform, scratch);
  loadRows(rows, transform.length, room.samples);
  transformSamples(transform, inverse, room);
  storeRows(rows, transform.length, room.samples);
}

void transformCosineColumns(const CosineTransform& transform, bool inverse, SourceRows src, TargetRows dst,
                            size_t columns, bool withAlpha, float* scratch) {
  const Room room(transform, scratch);
  for (size_t done = 0; done < columns; done += kLanes) {
    const ColumnGroup group(std::min(kLanes, columns - done), withAlpha);
    const size_t at = done * sizeof(float);
    for (size_t n = 0; n < transform.length; ++n)
      storeLanes(room.samples + n * kLanes, group.load(src.row(static_cast<int>(n)) + at));
    transformSamples(transform, inverse, room);
    for (size_t k = 0; k < transform.length; ++k)
      group.store(dst.row(static_cast<int>(k)) + at, loadLanes<Lanes>(room.samples + k * kLanes));
  }
}

}  // namespace lumi::transforms
