// SPDX-License-Identifier: MIT
#include "kernels/transforms/cplx_pack.hpp"

#include "kernels/data/copy.hpp"
#include "kernels/simd/pairs.hpp"
#include "kernels/simd/short_copy.hpp"

namespace lumi {
namespace {

using namespace simd;

// Pixels of complex samples as pairs of pixels with one part each.
template <int sample, int channels>
void separateParts(const Byte* src, Byte* dst, size_t bytes) {
  if constexpr (channels == 1) {
    if (bytes <= kShortCopy)
      copyShort(src, dst, bytes);
    else
      copyRow(src, dst, bytes);
  } else if constexpr (sample == 4) {
    for (size_t at = 0; at < bytes; at += 24) {
      const Bytes16 first = load16(src + at), last = loadFew<8>(src + at + 16);
      DwordPairs<3, 3, 16>::store(dst + at, {evenPixels<4>(first, last), oddDwords(first, last)});
    }
  } else {
    static constexpr Control kApart = {0, 1, 4, 5, 8, 9, 2, 3, 6, 7, 10, 11, kZero, kZero, kZero, kZero};
    const Bytes16 apart = vectorOf(kApart);
    size_t at = 0;
    // What a store leaves behind its twelve bytes is stored again.
    for (; at + 16 <= bytes; at += 12) store16(dst + at, shuffleBytes(load16(src + at), apart));
    if (at < bytes) storePixel<12>(dst + at, shuffleBytes(loadPixel<12>(src + at), apart));
  }
}

// Calls real(column) for the ends of the real columns and pair(j, column) for what is below one another in
// rows 2 j - 1 and 2 j, after row(y) of the latter. Columns count 0 and 1, the last one of an even width.
template <typename Row, typename Real, typename Pair>
[[gnu::always_inline]] inline void walkPack(Extent pixels, const Row& row, const Real& real,
                                            const Pair& pair) {
  const int columns = pixels.length % 2 == 0 ? 2 : 1;
  for (int i = 0; i < columns; ++i) real(0, i);
  for (int y = 0; y < pixels.rows; ++y) {
    row(y);
    if (y % 2 == 0 && y > 0)
      for (int i = 0; i < columns; ++i) pair(y / 2, i);
  }
  if (pixels.rows % 2 == 0)
    for (int i = 0; i < columns; ++i) real(pixels.rows / 2, i);
}

// Bytes of the pairs of a row: of all pixels but those of real columns.
size_t pairBytes(Extent pixels, size_t pixelBytes) { return (pixels.length - 1) / 2 * 2 * pixelBytes; }

template <typename T>
Bytes16 conjugate(Bytes16 pairs);
template <>
Bytes16 conjugate<float>(Bytes16 pairs) {
  return (S32{pairs} ^ as<int32_t>(broadcast16(INT64_MIN))).v;
}
// -2^31 becomes 2^31 - 1.
template <>
Bytes16 conjugate<int32_t>(Bytes16 pairs) {
  const S32 x{pairs};
  return blendDwords<0b1010>(pairs, (broadcast16(0) - max(x, broadcast16(-INT32_MAX))).v);
}

// Copies pairs, and their conjugates in reverse order to where `mirrored` ends.
template <typename T>
[[gnu::always_inline]] inline void extendRow(const Byte* src, Byte* dst, Byte* mirrored, size_t bytes) {
  constexpr size_t block = 32;
  const auto extend = [=](size_t at) {
    const Bytes32 pairs = load32Once(src + at);
    store32(dst + at, pairs);
    const auto reversed = [](Bytes16 x) { return permuteDwords<2, 3, 0, 1>(conjugate<T>(x)); };
    store16(mirrored - at - 16, reversed(lowHalf(pairs)));
    store16(mirrored - at - 32, reversed(highHalf(pairs)));
  };
  if (bytes >= block) {
    for (size_t at = 0; at + block < bytes; at += block) extend(at);
    return extend(bytes - block);
  }
  for (size_t at = 0; at < bytes; at += 8) {
    const Bytes16 pair = loadFew<8>(src + at);
    storeFirst8(dst + at, pair);
    storeFirst8(mirrored - at - 8, conjugate<T>(pair));
  }
}

}  // namespace

template <int sample, int channels>
void packRows(SourceRows src, TargetRows dst, Extent pixels) {
  constexpr size_t pixel = sample * channels;
  const size_t bytes = pairBytes(pixels, pixel), middle = pixels.length / 2 * 2 * pixel,
               last = (pixels.length - 1) * pixel;
  const auto move = [=](int from, int column, size_t part, int to) {
    const Byte* const s = src.row(from) + (column == 0 ? 0 : middle) + part;
    Byte* const d = dst.row(to) + (column == 0 ? 0 : last);
    for (size_t c = 0; c < channels; ++c) simd::move<sample>(d + c * sample, s + 2 * c * sample);
  };
  walkPack(
      pixels,
      [=](int y) { separateParts<sample, channels>(src.row(y) + 2 * pixel, dst.row(y) + pixel, bytes); },
      [=](int j, int column) { move(j, column, 0, j == 0 ? 0 : pixels.rows - 1); },
      [=](int j, int column) {
        move(j, column, 0, 2 * j - 1);
        move(j, column, sample, 2 * j);
      });
}

template <typename T>
void extendPackedRows(SourceRows src, TargetRows dst, Extent pixels) {
  constexpr size_t pixel = sizeof(T), complex = 2 * pixel;
  const size_t bytes = pairBytes(pixels, pixel), middle = pixels.length / 2 * complex,
               last = (pixels.length - 1) * pixel, end = pixels.length * complex;
  const auto sample = [=](int y, int column) { return loadDword<4>(src.row(y) + (column == 0 ? 0 : last)); };
  const auto store = [=](int y, int column, Bytes16 value) {
    storeFirst8(dst.row(y) + (column == 0 ? 0 : middle), value);
  };
  walkPack(
      pixels,
      [=](int y) {
        const int opposite = y == 0 ? 0 : pixels.rows - y;
        extendRow<T>(src.row(y) + pixel, dst.row(y) + complex, dst.row(opposite) + end, bytes);
      },
      [=](int j, int column) {
        store(j, column, dwordsOf(sample(j == 0 ? 0 : pixels.rows - 1, column), 0, 0));
      },
      [=](int j, int column) {
        const Bytes16 value = dwordsOf(sample(2 * j - 1, column), sample(2 * j, column), 0);
        store(j, column, value);
        store(pixels.rows - j, column, conjugate<T>(value));
      });
}

template void packRows<2, 1>(SourceRows, TargetRows, Extent);
template void packRows<2, 3>(SourceRows, TargetRows, Extent);
template void packRows<4, 1>(SourceRows, TargetRows, Extent);
template void packRows<4, 3>(SourceRows, TargetRows, Extent);
template void extendPackedRows<int32_t>(SourceRows, TargetRows, Extent);
template void extendPackedRows<float>(SourceRows, TargetRows, Extent);

}  // namespace lumi
