// SPDX-License-Identifier: MIT
#include "kernels/geometry/resize_nearest.hpp"

#include <algorithm>

#include "kernels/path_count.hpp"
#include "kernels/simd/resize.hpp"

namespace lumi {
namespace {

using namespace simd;

// Sixteen bytes of the destination, from two windows of the source row. Control bytes count from the first
// window's start; those from 16 on are in the second window, as if it followed the first.
struct Windows {
  int32_t first, second;  // in bytes from the row's start
  Control control;
};

constexpr size_t kBlock = 16, kReach = 2 * kBlock;

size_t blockStart(size_t block, size_t columns, size_t each) {
  return std::min(block * each, columns - each);
}

// Bytes from the first to the last one that some columns pick.
size_t reach(const int32_t* index, size_t columns, size_t pixelBytes) {
  return static_cast<size_t>(index[columns - 1] - index[0] + 1) * pixelBytes;
}

bool suitsWindows(const int32_t* index, size_t columns, size_t pixelBytes) {
  if (pixelBytes > 2) return false;  // single moves are as fast
  const size_t each = kBlock / pixelBytes;
  if (columns < each || reach(index, columns, pixelBytes) < kBlock) return false;
  if (reach(index, columns, pixelBytes) > INT32_MAX / 2) return false;  // windows lie at 32-bit distances
  for (size_t x = 0; x < columns; x += each)
    if (reach(index + std::min(x, columns - each), each, pixelBytes) > kReach) return false;
  return true;
}

// Whether from each column to the next are `least` to `most` source columns.
bool advancesBy(int32_t least, int32_t most, const int32_t* index, size_t columns) {
  for (size_t x = 1; x < columns; ++x) {
    const int32_t step = index[x] - index[x - 1];
    if (step < least || step > most) return false;
  }
  return true;
}

// Whether source columns come two and two.
bool isTwice(const int32_t* index, size_t columns) {
  for (size_t x = 0; x + 1 < columns; x += 2)
    if (index[x + 1] != index[x] || (x > 0 && index[x] == index[x - 1])) return false;
  return true;
}

// Four columns as distances from another.
S32 fourFrom(const int32_t* index, int32_t first) {
  return S32{load16(reinterpret_cast<const Byte*>(index))} - broadcast16(first);
}

// The bytes of sixteen columns of one byte, or of eight of two, counted from the column `first`.
U8 bytesFrom(const int32_t* index, size_t pixelBytes, int32_t first) {
  const S16 low = narrowSaturated<int16_t>(fourFrom(index, first), fourFrom(index + 4, first));
  if (pixelBytes == 2) return {(low + low + (low << Shift(9)) + broadcast16<int16_t>(0x0100)).v};
  const S16 high = narrowSaturated<int16_t>(fourFrom(index + 8, first), fourFrom(index + 12, first));
  return narrowSaturated<uint8_t>(low, high);
}

Windows windowsOf(const int32_t* index, size_t pixelBytes, int32_t origin, int32_t end) {
  const auto pixel = static_cast<int32_t>(pixelBytes), block = static_cast<int32_t>(kBlock);
  const int32_t first = std::min(index[0], end - block / pixel), start = (first - origin) * pixel;
  Windows w{start, std::min(start + block, (end - origin) * pixel - block), {}};
  const U8 bytes = bytesFrom(index, pixelBytes, first);
  const U8 isBehind = isEqual(max(bytes, broadcast16<Byte>(kBlock)), bytes);
  const U8 overlap = broadcast16(static_cast<Byte>(start + block - w.second));
  store16(w.control.data(), (bytes + (isBehind & overlap)).v);
  return w;
}

// Control bytes of the other window are turned into ones with the top bit set, which give zero.
Bytes16 blockOf(const Byte* src, const Byte* windows) {
  Windows w;
  move<8>(reinterpret_cast<Byte*>(&w), windows);
  const Bytes16 control = load16(windows + offsetof(Windows, control));
  const Bytes16 first =
      shuffleBytes(load16(src + w.first), addSaturated(U8{control}, broadcast16<Byte>(0x70)).v);
  const Bytes16 second = shuffleBytes(load16(src + w.second), (U8{control} - broadcast16<Byte>(kBlock)).v);
  return bitOr(first, second);
}

// Where the first window holds all.
Bytes16 narrowBlockOf(const Byte* src, const Byte* windows) {
  int32_t first = 0;
  move<4>(reinterpret_cast<Byte*>(&first), windows + offsetof(Windows, first));
  return shuffleBytes(load16(src + first), load16(windows + offsetof(Windows, control)));
}

template <Bytes16 (&blockAt)(const Byte*, const Byte*)>
void pickByWindows(const Byte* src, Byte* dst, const Byte* windows, size_t columns, size_t pixelBytes) {
  const size_t each = kBlock / pixelBytes, full = columns / each;
  for (size_t block = 0; block < full; ++block, windows += sizeof(Windows))
    store16(dst + block * kBlock, blockAt(src, windows));
  if (columns % each != 0) store16(dst + columns * pixelBytes - kBlock, blockAt(src, windows));
}

// Dwords four at a time. Where four columns never span more than four pixels, they are picked from one
// vector.
size_t pickDwords(const Byte* base, Byte* dst, const int32_t* index, size_t columns, bool isClose) {
  const auto at = [&](size_t x) { return base + static_cast<ptrdiff_t>(index[x]) * 4; };
  size_t x = 0;
  if (isClose)
    for (; x + 4 <= columns && index[columns - 1] - index[x] >= 3; x += 4)
      store16(dst + x * 4, pickNear(at(x), index + x));
  for (; x + 4 <= columns; x += 4) store16(dst + x * 4, gatherDwords(at(x), at(x + 1), at(x + 2), at(x + 3)));
  return x;
}

// Every second pixel, in blocks; those that are left have no pixel behind them.
template <size_t pixel>
size_t pickEvens(const Byte* src, Byte* dst, size_t columns) {
  constexpr size_t kEach = kBlock / pixel;
  size_t x = 0;
  for (; x + kEach < columns; x += kEach, src += 2 * kBlock)
    store16(dst + x * pixel, evenPixels<pixel>(load16(src), load16(src + kBlock)));
  return x;
}

// Every pixel twice.
template <size_t pixel>
size_t pickTwice(const Byte* src, Byte* dst, size_t columns) {
  using Pixel = std::conditional_t<pixel == 1, uint8_t, std::conditional_t<pixel == 2, uint16_t, uint32_t>>;
  constexpr size_t kEach = 2 * kBlock / pixel;
  size_t x = 0;
  for (; x + kEach <= columns; x += kEach, src += kBlock) {
    const Samples16<Pixel> v{load16Once(src)};
    store32(dst + x * pixel, joined(interleaveLow(v, v).v, interleaveHigh(v, v).v));
  }
  return x;
}

template <size_t pixel>
void pickOneByOne(const Byte* src, Byte* dst, const int32_t* index, size_t columns, bool isClose) {
  const auto at = [&](size_t x) {
    return src + static_cast<ptrdiff_t>(index[x]) * static_cast<ptrdiff_t>(pixel);
  };
  size_t x = 0;
  if constexpr (pixel == 3) {
    // Four bytes at once, where a further pixel is behind; the next one overwrites what is too much.
    const int32_t last = index[columns - 1];
    for (; index[x] < last; ++x) move<4>(dst + x * pixel, at(x));
  }
  if constexpr (pixel == 4) x = pickDwords(src, dst, index, columns, isClose);
  for (; x + 4 <= columns; x += 4)
    for (size_t i = 0; i < 4; ++i) move<pixel>(dst + (x + i) * pixel, at(x + i));
  for (; x < columns; ++x) move<pixel>(dst + x * pixel, at(x));
}

}  // namespace

size_t PickedColumns::scratchBytes(size_t columns, size_t pixelBytes) {
  const size_t each = kBlock / pixelBytes;
  return pixelBytes <= 2 ? (columns + each - 1) / each * sizeof(Windows) : 0;
}

PickedColumns::PickedColumns(const int32_t* index, int32_t origin, size_t columns, size_t pixelBytes,
                             uint8_t* scratch)
    : index_(index),
      origin_(origin),
      columns_(columns),
      pixelBytes_(pixelBytes),
      windows_(nullptr),
      isNarrow_(true),
      isClose_(advancesBy(0, 1, index, columns)),
      isHalved_(hasVectors() && advancesBy(2, 2, index, columns)),
      isDoubled_(hasVectors() && isClose_ && isTwice(index, columns)) {
  if (isHalved_ || isDoubled_ || !suitsWindows(index, columns, pixelBytes)) return;
  windows_ = scratch;
  const size_t each = kBlock / pixelBytes;
  for (size_t block = 0; block * each < columns; ++block) {
    const Windows w =
        windowsOf(index + blockStart(block, columns, each), pixelBytes, origin, index[columns - 1] + 1);
    move<sizeof(Windows)>(scratch + block * sizeof(Windows), reinterpret_cast<const Byte*>(&w));
    isNarrow_ = isNarrow_ && w.control.back() < kBlock;  // the last pixel is the farthest
  }
}

template <size_t pixel>
void PickedColumns::pickPixels(const uint8_t* src, uint8_t* dst) const {
  const auto bytes = [](int32_t columns) {
    return static_cast<ptrdiff_t>(columns) * static_cast<ptrdiff_t>(pixel);
  };
  const Byte* const base = src - bytes(origin_);
  size_t done = 0;
  if constexpr (pixel <= 4 && pixel != 3) {
    const Byte* const first = base + bytes(index_[0]);
    if (isHalved_) done = pickEvens<pixel>(first, dst, columns_);
    if (isDoubled_) done = pickTwice<pixel>(first, dst, columns_);
    if (done != 0) countPath(isHalved_ ? Path::NearestHalved : Path::NearestDoubled);
  }
  pickOneByOne<pixel>(base, dst + done * pixel, index_ + done, columns_ - done, isClose_ && done == 0);
}

void PickedColumns::pick(const uint8_t* src, uint8_t* dst) const {
  if (windows_) {
    countPath(Path::NearestWindows);
    return isNarrow_ ? pickByWindows<narrowBlockOf>(src, dst, windows_, columns_, pixelBytes_)
                     : pickByWindows<blockOf>(src, dst, windows_, columns_, pixelBytes_);
  }
  switch (pixelBytes_) {
    case 1:
      return pickPixels<1>(src, dst);
    case 2:
      return pickPixels<2>(src, dst);
    case 3:
      return pickPixels<3>(src, dst);
    case 4:
      return pickPixels<4>(src, dst);
    case 6:
      return pickPixels<6>(src, dst);
    case 8:
      return pickPixels<8>(src, dst);
    case 12:
      return pickPixels<12>(src, dst);
    default:
      return pickPixels<16>(src, dst);
  }
}

}  // namespace lumi
