// SPDX-License-Identifier: MIT
#include "kernels/data/transpose.hpp"

#include <algorithm>
#include <type_traits>

#include "kernels/data/copy.hpp"
#include "kernels/path_count.hpp"
#include "kernels/simd/pixels.hpp"
#include "kernels/simd/samples.hpp"

namespace lumi {
namespace {

using namespace simd;

// What the number of an element says, that of its vector first, turned by a bit: as often as columns have
// bits, rows are columns.
template <typename T, size_t n>
[[gnu::always_inline]] inline void turnByBit(Samples16<T> (&v)[n]) {
  Samples16<T> from[n];
  for (size_t i = 0; i < n; ++i) from[i] = v[i];
  for (size_t i = 0; i < n / 2; ++i) {
    v[2 * i] = interleaveLow(from[i], from[i + n / 2]);
    v[2 * i + 1] = interleaveHigh(from[i], from[i + n / 2]);
  }
}

// A block of a source: kRows rows of kColumns pixels, which become whole vectors of the destination's rows.
// It reads as many pixels of a row as kReach; `atEnd` reads bytes before the block in place of those behind.
template <int pixelBytes>
struct Block;

template <>
struct Block<1> {
  static constexpr size_t kRows = 16, kColumns = 8, kReach = 8;

  template <bool atEnd>
  [[gnu::always_inline]] static inline void move(SourceRows src, TargetRows dst) {
    U8 v[kColumns];
    for (int i = 0; i < 8; ++i)
      v[i] = interleaveLow(U8{loadFew<8>(src.row(i))}, U8{loadFew<8>(src.row(i + 8))});
    turnByBit(v);
    turnByBit(v);
    turnByBit(v);
    for (int i = 0; i < 8; ++i) store16(dst.row(i), v[i].v);
  }
};

template <>
struct Block<2> {
  static constexpr size_t kRows = 8, kColumns = 8, kReach = 8;

  template <bool atEnd>
  [[gnu::always_inline]] static inline void move(SourceRows src, TargetRows dst) {
    U16 v[kColumns];
    for (int i = 0; i < 8; ++i) v[i] = {load16(src.row(i))};
    turnByBit(v);
    turnByBit(v);
    turnByBit(v);
    for (int i = 0; i < 8; ++i) store16(dst.row(i), v[i].v);
  }
};

// Four pixels of four rows as dwords, four times; each column then has 48 bytes.
template <>
struct Block<3> {
  static constexpr size_t kRows = 16, kColumns = 4, kReach = 6;

  template <bool atEnd>
  [[gnu::always_inline]] static inline void move(SourceRows src, TargetRows dst) {
    constexpr int before = atEnd ? 4 : 0;
    static constexpr Control wide = widenControl<1>(before);
    static constexpr Control turned[] = {narrowControl<1>(0), narrowControl<1>(12), narrowControl<1>(8),
                                         narrowControl<1>(4)};
    Bytes16 columns[4][4];
    for (int i = 0; i < 4; ++i) {
      const auto row = [&](int y) {
        return shuffleBytes(load16(src.row(4 * i + y) - before), vectorOf(wide));
      };
      const Dwords4x4 m = transpose(Dwords4x4{{row(0), row(1), row(2), row(3)}});
      for (int x = 0; x < 4; ++x) columns[x][i] = shuffleBytes(m.row[x], vectorOf(turned[i]));
    }
    for (int x = 0; x < 4; ++x)
      storeTurned(dst.row(x), columns[x][0], columns[x][1], columns[x][2], columns[x][3]);
  }
};

template <>
struct Block<4> {
  static constexpr size_t kRows = 8, kColumns = 4, kReach = 4;

  template <bool atEnd>
  [[gnu::always_inline]] static inline void move(SourceRows src, TargetRows dst) {
    const auto rows = [&](int y) { return joined(load16(src.row(y)), load16(src.row(y + 4))); };
    const TwoDwords4x4 m = transpose(TwoDwords4x4{{rows(0), rows(1), rows(2), rows(3)}});
    for (int x = 0; x < 4; ++x) store32(dst.row(x), m.row[x]);
  }
};

// Two pixels as quads, four times.
template <>
struct Block<6> {
  static constexpr size_t kRows = 8, kColumns = 4, kReach = 5;

  static constexpr Control turned(int first, int before) {
    Control c = narrowControl<2>(first);
    for (Byte& b : c)
      if (b != kZero) b = static_cast<Byte>(b + before);
    return c;
  }

  template <bool atEnd>
  [[gnu::always_inline]] static inline void move(SourceRows src, TargetRows dst) {
    constexpr int before = atEnd ? 2 : 0;
    static constexpr Control controls[] = {turned(0, before), turned(12, before), turned(8, before),
                                           turned(4, before)};
    for (int x = 0; x < 4; ++x) {
      const auto pixel = [&](int y) { return loadFew<8>(src.row(y) + 6 * x - before); };
      const auto pair = [&](int i) {
        return shuffleBytes(shuffleHalves<0, 0>(pixel(2 * i), pixel(2 * i + 1)), vectorOf(controls[i]));
      };
      storeTurned(dst.row(x), pair(0), pair(1), pair(2), pair(3));
    }
  }
};

template <>
struct Block<8> {
  static constexpr size_t kRows = 8, kColumns = 2, kReach = 2;

  template <bool atEnd>
  [[gnu::always_inline]] static inline void move(SourceRows src, TargetRows dst) {
    for (int y = 0; y < 8; y += 4) {
      const Bytes32 even = joined(load16(src.row(y)), load16(src.row(y + 2))),
                    odd = joined(load16(src.row(y + 1)), load16(src.row(y + 3)));
      store32(dst.row(0) + 8 * y, interleaveLowQuads(even, odd));
      store32(dst.row(1) + 8 * y, interleaveHighQuads(even, odd));
    }
  }
};

template <>
struct Block<12> {
  static constexpr size_t kRows = 4, kColumns = 4, kReach = 5;

  template <bool atEnd>
  [[gnu::always_inline]] static inline void move(SourceRows src, TargetRows dst) {
    for (int x = 0; x < 4; ++x) {
      const auto row = [&](int y) { return load16(src.row(y) + 12 * x - (atEnd ? 4 : 0)); };
      if constexpr (atEnd)
        storeTurned(dst.row(x), permuteDwords<1, 2, 3, 0>(row(0)), permuteDwords<2, 3, 0, 1>(row(1)),
                    permuteDwords<3, 0, 1, 2>(row(2)), row(3));
      else
        storeTurned(dst.row(x), row(0), permuteDwords<1, 2, 3, 0>(row(1)), permuteDwords<2, 3, 0, 1>(row(2)),
                    permuteDwords<3, 0, 1, 2>(row(3)));
    }
  }
};

template <>
struct Block<16> {
  static constexpr size_t kRows = 4, kColumns = 4, kReach = 4;

  template <bool atEnd>
  [[gnu::always_inline]] static inline void move(SourceRows src, TargetRows dst) {
    for (int x = 0; x < 4; ++x)
      for (int y = 0; y < 4; y += 2)
        store32(dst.row(x) + 16 * y, joined(load16(src.row(y) + 16 * x), load16(src.row(y + 1) + 16 * x)));
  }
};

template <int pixelBytes, typename B>
Rows<B> at(Rows<B> image, size_t x, size_t y) {
  return {image.row(static_cast<int>(y)) + x * pixelBytes, image.step};
}

// From the first to behind the last of each.
struct Range {
  size_t first, end;
};

// The blocks that begin in a part of the image; what would reach beyond an edge lies over others instead.
template <int pixelBytes>
[[gnu::always_inline]] inline void moveBlocks(SourceRows src, TargetRows dst, Extent image, Range columns,
                                              Range rows) {
  using B = Block<pixelBytes>;
  const size_t lastColumn = image.length - B::kColumns, lastRow = static_cast<size_t>(image.rows) - B::kRows;
  for (size_t i = columns.first; i < columns.end; i += B::kColumns) {
    const size_t x = std::min(i, lastColumn);
    const auto column = [&](auto atEnd) {
      for (size_t j = rows.first; j < rows.end; j += B::kRows) {
        const size_t y = std::min(j, lastRow);
        B::template move<atEnd.value>(at<pixelBytes>(src, x, y), at<pixelBytes>(dst, y, x));
      }
    };
    if (B::kReach > B::kColumns && x + B::kReach > image.length)
      column(std::true_type());
    else
      column(std::false_type());
  }
}

// Images that have no room for a block.
template <int pixelBytes>
[[gnu::noinline]] void moveByPixels(SourceRows src, TargetRows dst, Extent pixels) {
  for (size_t x = 0; x < pixels.length; ++x) {
    Byte* const column = dst.row(static_cast<int>(x));
    for (int y = 0; y < pixels.rows; ++y)
      move<pixelBytes>(column + static_cast<size_t>(y) * pixelBytes, src.row(y) + x * pixelBytes);
  }
}

// Tiles of so many rows and columns, column by column: their rows stay in the nearest cache until all pixels
// of their lines are taken, and each line of the destination is stored at once. Wide pixels of images that
// the second cache does not hold go down more rows at a time: longer runs of the destination gain more there
// than the lines of the source, which the second cache then keeps, lose.
constexpr size_t kTile = 64, kTallTile = 512, kFar = 0x100000;

}  // namespace

template <int pixelBytes>
void transposeRows(SourceRows src, TargetRows dst, Extent pixels) {
  using B = Block<pixelBytes>;
  const size_t width = pixels.length, height = static_cast<size_t>(pixels.rows);
  if (width < B::kReach || height < B::kRows) return moveByPixels<pixelBytes>(src, dst, pixels);
  const size_t tall = pixelBytes >= 6 && width * height * pixelBytes > kFar ? kTallTile : kTile;
  for (size_t left = 0; left < width; left += kTile)
    for (size_t top = 0; top < height; top += tall)
      moveBlocks<pixelBytes>(src, dst, pixels, {left, std::min(left + kTile, width)},
                             {top, std::min(top + tall, height)});
}

namespace {

// One line of each destination row of a tile, which then goes there at once.
template <int pixelBytes>
struct Lines {
  static constexpr size_t kBytes = pixelBytes == 12 ? 192 : 64, kPixels = kBytes / pixelBytes, kTile = 128;
  static_assert(kBytes % pixelBytes == 0);
  alignas(64) Byte bytes[kTile * kBytes];

  void take(SourceRows src, size_t columns) {
    transposeRows<pixelBytes>(src, {bytes, kBytes}, {columns, static_cast<int>(kPixels)});
  }
  void give(TargetRows dst, size_t columns) const {
    for (size_t x = 0; x < columns; ++x) {
      Byte* const to = dst.row(static_cast<int>(x));
      for (size_t i = 0; i < kBytes; i += sizeof(Bytes32)) stream32(to + i, load32(bytes + x * kBytes + i));
    }
  }
};

}  // namespace

template <int pixelBytes>
void transposeRowsStreaming(SourceRows src, TargetRows dst, Extent pixels) {
  using L = Lines<pixelBytes>;
  countPath(Path::StreamingRows);
  const size_t width = pixels.length, height = static_cast<size_t>(pixels.rows);
  L lines;
  for (size_t top = 0; top < height; top += L::kTile)
    for (size_t left = 0; left < width; left += L::kTile)
      for (size_t y = top; y < std::min(top + L::kTile, height); y += L::kPixels) {
        const size_t columns = std::min(L::kTile, width - left);
        lines.take(at<pixelBytes>(src, left, y), columns);
        lines.give(at<pixelBytes>(dst, y, left), columns);
      }
}

// Tiles on both sides of the diagonal change places; what one of them becomes waits beside the image.
template <int pixelBytes>
void transposeSquare(TargetRows image, int side) {
  constexpr size_t tile = pixelBytes == 1 ? 64 : pixelBytes <= 4 ? 32 : 16;
  alignas(32) Byte waiting[tile * tile * pixelBytes];
  const auto all = static_cast<size_t>(side);
  for (size_t top = 0; top < all; top += tile)
    for (size_t left = top; left < all; left += tile) {
      const size_t width = std::min(tile, all - left), height = std::min(tile, all - top);
      const TargetRows upper = at<pixelBytes>(image, left, top), lower = at<pixelBytes>(image, top, left),
                       aside = {waiting, static_cast<ptrdiff_t>(height * pixelBytes)};
      transposeRows<pixelBytes>({upper.first, upper.step}, aside, {width, static_cast<int>(height)});
      if (left != top)
        transposeRows<pixelBytes>({lower.first, lower.step}, upper, {height, static_cast<int>(width)});
      copyRows({aside.first, aside.step}, lower, {height * pixelBytes, static_cast<int>(width)});
    }
}

#define LUMI_TRANSPOSE(pixel)                                         \
  template void transposeRows<pixel>(SourceRows, TargetRows, Extent); \
  template void transposeSquare<pixel>(TargetRows, int);
LUMI_TRANSPOSE(1)
LUMI_TRANSPOSE(2)
LUMI_TRANSPOSE(3)
LUMI_TRANSPOSE(4)
LUMI_TRANSPOSE(6)
LUMI_TRANSPOSE(8)
LUMI_TRANSPOSE(12)
LUMI_TRANSPOSE(16)
#define LUMI_STREAMING(pixel) template void transposeRowsStreaming<pixel>(SourceRows, TargetRows, Extent);
LUMI_STREAMING(1)
LUMI_STREAMING(2)
LUMI_STREAMING(4)
LUMI_STREAMING(8)
LUMI_STREAMING(12)
LUMI_STREAMING(16)

}  // namespace lumi
