// SPDX-License-Identifier: MIT
// One row at a time, as a matrix whose rows are as long as the inner transform: eight of its columns fill the
// lanes of an outer transform, then, transposed, eight of its rows those of an inner one.
#include "kernels/simd/complex.hpp"
#include "kernels/transforms/rows.hpp"
#include "kernels/transforms/split_transform.hpp"

namespace lumi::transforms {
namespace {

// Local memory of the longest transforms that tables of their length serve, of 2^18 points, 512 by 512.
constexpr size_t kMostLocalFloats = 512 * kPointFloats;

// Of longer ones it is the scratch behind the row.
float* localMemory(const Transform& transform, float* ofTheStack, float* scratch) {
  return transform.localFloats() <= kMostLocalFloats ? ofTheStack : scratch + 2 * transform.length;
}

// A row's complex numbers as blocks of eight real and eight imaginary parts: the bytes from block to block,
// and from a real part to its imaginary one.
struct Blocks {
  Byte* first;
  size_t apart, imaginary;

  static Blocks inTurn(Byte* first) { return {first, 64, 32}; }
  static Blocks planes(Byte* first, size_t length) { return {first, 32, length * sizeof(float)}; }

  Byte* block(size_t i) const { return first + i * apart; }
  Complex<Lanes> load(size_t i) const { return {loadFloats8(block(i)), loadFloats8(block(i) + imaginary)}; }
  void store(size_t i, Complex<Lanes> x) const {
    store32(block(i), bytesOf(x.re));
    store32(block(i) + imaginary, bytesOf(x.im));
  }
};

// Eight complex numbers that lie in turn, with lanes in their order.
Complex<Lanes> loadInOrder(const Byte* p) {
  const ComplexParts<Floats8> x = loadComplexFloats8(p);
  return {x.real, x.imaginary};
}
void storeInOrder(Byte* p, Complex<Lanes> x) { storeComplexDwords8(p, bytesOf(x.re), bytesOf(x.im)); }

// The outer transforms: numbers 8i to 8i + 7 of the row come from load(i), and go to block i of `matrix`,
// which may be where they came from.
template <typename Load>
[[gnu::always_inline]] inline void runOuterBlocks(const Transform& transform, const Load& load,
                                                  const Blocks& matrix, float* local) {
  const size_t blocks = transform.inner.length / kLanes;
  for (size_t block = 0; block < blocks; ++block) {
    const BlockRoots roots = rootsOfBlock(transform, block, roomForRoots(transform, local));
    runPowerOfTwo<Lanes>(
        transform.outer, [&](size_t a) { return load(block + a * blocks); }, local,
        [&](size_t k, Complex<Lanes> x) {
          matrix.store(block + k * blocks, x * loadPoint<Lanes>(roots.first + k * roots.apart));
        });
  }
}

// The inner ones: numbers 8i to 8i + 7 of the spectrum go to store(i, x).
template <typename Store>
[[gnu::always_inline]] inline void runInnerBlocks(const Transform& transform, const Blocks& matrix,
                                                  float* local, const Store& store) {
  const size_t rows = transform.outer.length / kLanes, blocks = transform.inner.length / kLanes;
  for (size_t eight = 0; eight < rows; ++eight) {
    for (size_t block = 0; block < blocks; ++block) {
      for (size_t half = 0; half < 2; ++half) {
        const Byte* const first = matrix.block(eight * kLanes * blocks + block) + half * 16;
        const size_t down = blocks * matrix.apart;
        Lanes re[4], im[4];
        for (size_t r = 0; r < 4; ++r) {
          const Byte *const low = first + r * down, *const high = first + (r + 4) * down;
          re[r] = loadTwoFours(low, high);
          im[r] = loadTwoFours(low + matrix.imaginary, high + matrix.imaginary);
        }
        transposeHalves(re);
        transposeHalves(im);
        const uint32_t* const slot = transform.inner.slot + block * kLanes + half * 4;
        for (size_t c = 0; c < 4; ++c) storePoint<Lanes>(local + slot[c] * kPointFloats, {re[c], im[c]});
      }
    }
    runFromSlots<Lanes>(transform.inner, local,
                        [&](size_t j, Complex<Lanes> x) { store(eight + j * rows, x); });
  }
}

// The spectrum of a real row, packed, from that of its complex one in planes.
void splitSpectrum(const RealTransform& transform, float scale, const float* planes, Byte* packed) {
  const size_t m = transform.half.length;
  const float *const re = planes, *const im = planes + m;
  const float ends[2] = {(re[0] + im[0]) * scale, (re[0] - im[0]) * scale};
  const float halfScale = 0.5f * scale;
  const Lanes h = broadcastLane<Lanes>(&halfScale);
  const auto place = [=](size_t k) { return packed + (2 * k - 1) * sizeof(float); };
  for (size_t k = 1; k <= m / 2; k += kLanes) {
    const size_t mirrored = m - k - (kLanes - 1);
    const Complex<Lanes> a = {loadLanes<Lanes>(re + k), loadLanes<Lanes>(im + k)};
    const Complex<Lanes> b = {reversed(loadLanes<Lanes>(re + mirrored)),
                              reversed(loadLanes<Lanes>(im + mirrored))};
    const Complex<Lanes> even = {a.re + b.re, a.im - b.im}, odd = {a.re - b.re, a.im + b.im};
    const Lanes wRe = loadLanes<Lanes>(transform.rootRe + k), wIm = loadLanes<Lanes>(transform.rootIm + k);
    const Complex<Lanes> turned = {odd.re * wIm + odd.im * wRe, odd.im * wIm - odd.re * wRe};
    storeInOrder(place(mirrored), {reversed((even.re - turned.re) * h), reversed((turned.im - even.im) * h)});
    storeInOrder(place(k), {(even.re + turned.re) * h, (even.im + turned.im) * h});
  }
  move<4>(packed, reinterpret_cast<const Byte*>(&ends[0]));
  move<4>(packed + (2 * m - 1) * sizeof(float), reinterpret_cast<const Byte*>(&ends[1]));
}

// The way back, with real and imaginary parts exchanged.
void joinSpectrum(const RealTransform& transform, const Byte* packed, float* planes) {
  const size_t m = transform.half.length;
  float *const re = planes + m, *const im = planes;
  float first = 0, last = 0;
  move<4>(reinterpret_cast<Byte*>(&first), packed);
  move<4>(reinterpret_cast<Byte*>(&last), packed + (2 * m - 1) * sizeof(float));
  const auto at = [=](size_t k) { return loadInOrder(packed + (2 * k - 1) * sizeof(float)); };
  for (size_t k = 1; k <= m / 2; k += kLanes) {
    const size_t mirrored = m - k - (kLanes - 1);
    const Complex<Lanes> a = at(k), last8 = at(mirrored);
    const Complex<Lanes> b = {reversed(last8.re), reversed(last8.im)};
    const Complex<Lanes> even = {a.re + b.re, a.im - b.im}, odd = {a.re - b.re, a.im + b.im};
    const Lanes wRe = loadLanes<Lanes>(transform.rootRe + k), wIm = loadLanes<Lanes>(transform.rootIm + k);
    const Complex<Lanes> turned = {odd.re * wIm - odd.im * wRe, odd.im * wIm + odd.re * wRe};
    storeLanes(re + mirrored, reversed(even.re - turned.re));
    storeLanes(im + mirrored, reversed(turned.im - even.im));
    storeLanes(re + k, even.re + turned.re);
    storeLanes(im + k, even.im + turned.im);
  }
  re[0] = first + last;
  im[0] = first - last;
}

Complex<Lanes> scaled(Complex<Lanes> x, const float& scale) {
  const Lanes s = broadcastLane<Lanes>(&scale);
  return {x.re * s, x.im * s};
}

}  // namespace

void transformRow(const Transform& transform, bool inverse, float scale, const Byte* src, Byte* dst,
                  float* scratch) {
  alignas(64) float ofTheStack[kMostLocalFloats];
  float* const local = localMemory(transform, ofTheStack, scratch);
  const Blocks matrix = Blocks::inTurn(reinterpret_cast<Byte*>(scratch));
  if (inverse) {
    runOuterBlocks(
        transform, [=](size_t i) { return exchanged(loadInOrder(src + 64 * i)); }, matrix, local);
    runInnerBlocks(transform, matrix, local, [=](size_t i, Complex<Lanes> x) {
      storeInOrder(dst + 64 * i, exchanged(scaled(x, scale)));
    });
  } else {
    runOuterBlocks(
        transform, [=](size_t i) { return loadInOrder(src + 64 * i); }, matrix, local);
    runInnerBlocks(transform, matrix, local,
                   [=](size_t i, Complex<Lanes> x) { storeInOrder(dst + 64 * i, scaled(x, scale)); });
  }
}

void transformRealRow(const RealTransform& transform, bool inverse, float scale, const Byte* src, Byte* dst,
                      float* scratch) {
  const Transform& half = transform.half;
  alignas(64) float ofTheStack[kMostLocalFloats];
  float* const local = localMemory(half, ofTheStack, scratch);
  const Blocks planes = Blocks::planes(reinterpret_cast<Byte*>(scratch), half.length);
  if (inverse) {
    joinSpectrum(transform, src, scratch);
    runOuterBlocks(
        half, [=](size_t i) { return planes.load(i); }, planes, local);
    runInnerBlocks(half, planes, local, [=](size_t i, Complex<Lanes> x) {
      storeInOrder(dst + 64 * i, exchanged(scaled(x, scale)));
    });
  } else {
    const Blocks matrix = Blocks::inTurn(dst);
    runOuterBlocks(
        half, [=](size_t i) { return loadInOrder(src + 64 * i); }, matrix, local);
    runInnerBlocks(half, matrix, local, [=](size_t i, Complex<Lanes> x) { planes.store(i, x); });
    splitSpectrum(transform, scale, scratch, dst);
  }
}

}  // namespace lumi::transforms
