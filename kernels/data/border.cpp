// SPDX-License-Identifier: MIT
#include "kernels/data/border.hpp"

#include <algorithm>

#include "kernels/chosen.hpp"
#include "kernels/data/copy.hpp"
#include "kernels/simd/pixels.hpp"
#include "kernels/simd/short_copy.hpp"
#include "kernels/simd/strings.hpp"

namespace lumi {
namespace {

using namespace simd;

constexpr size_t kHalf = sizeof(Bytes16), kVector = sizeof(Bytes32);

// Runs below sixteen bytes, by overlapping stores from both ends.
void storeShort(Bytes16 first, Bytes16 last, Byte* dst, size_t bytes) {
  const uint32_t head = firstDword(first), tail = lastDword(last);
  if (bytes >= 8) {
    storeFirst8(dst, first);
    storeLast8(dst + bytes - 8, last);
  } else if (bytes >= 4) {
    std::memcpy(dst, &head, 4);
    std::memcpy(dst + bytes - 4, &tail, 4);
  } else if (bytes) {
    if (bytes > 1) std::memcpy(dst, &head, 2);
    dst[bytes - 1] = static_cast<Byte>(tail >> 24);
  }
}

// Runs end with a whole pixel, so their last vector is always the same one.
template <int pixelBytes>
void repeatWhole(Bytes16 pixel, Byte* dst, size_t bytes) {
  static constexpr Control from[] = {repeatControl<pixelBytes>(0), repeatControl<pixelBytes>(16),
                                     repeatControl<pixelBytes>(32)};
  static constexpr Control upToEnd = repeatControl<pixelBytes>(pixelBytes - 16 % pixelBytes);
  const Bytes16 a = shuffleBytes(pixel, vectorOf(from[0])), last = shuffleBytes(pixel, vectorOf(upToEnd));
  if (bytes < kHalf) return storeShort(a, last, dst, bytes);
  Byte* const end = dst + bytes;
  const auto left = [&] { return static_cast<size_t>(end - dst); };
  if constexpr (kHalf % pixelBytes == 0) {
    const Bytes32 both = joined(a, a);
    for (; left() >= kVector; dst += kVector) store32(dst, both);
    if (left() >= kHalf) store16(dst, a);
  } else {
    const Bytes16 b = shuffleBytes(pixel, vectorOf(from[1])), c = shuffleBytes(pixel, vectorOf(from[2]));
    for (; left() >= 3 * kHalf; dst += 3 * kHalf) {
      store16(dst, a);
      store16(dst + kHalf, b);
      store16(dst + 2 * kHalf, c);
    }
    if (left() >= kHalf) store16(dst, a);
    if (left() >= 2 * kHalf) store16(dst + kHalf, b);
  }
  store16(end - kHalf, last);
}

// In images beyond the cache the processor's string move is ahead of vectors for rows from here on: it does
// not fetch the lines that it overwrites.
constexpr size_t kFarStringMove = 5000;

template <int pixelBytes, int usedBytes>
void repeatPart(Bytes16 pixel, Byte* dst, size_t bytes) {
  static_assert(kHalf % pixelBytes == 0);
  static constexpr auto used = pixelMask<pixelBytes, usedBytes, kVector>();
  static constexpr Control all = repeatControl<pixelBytes>(0);
  const Bytes16 v = shuffleBytes(pixel, vectorOf(all));
  const Bytes32 both = joined(v, v), mask = load32(used.bytes);
  for (; bytes >= kVector; dst += kVector, bytes -= kVector)
    store32(dst, ifThenElse(mask, both, load32(dst)));
  if (bytes >= kHalf) {
    store16(dst, ifThenElse(lowHalf(mask), v, load16(dst)));
    dst += kHalf, bytes -= kHalf;
  }
  if (!bytes) return;
  Byte once[kHalf];
  store16(once, pixel);
  for (; bytes; dst += pixelBytes, bytes -= pixelBytes) move<usedBytes>(dst, once);
}

template <int pixelBytes, int usedBytes>
inline void repeat(const Byte* pixel, Byte* dst, size_t pixels) {
  const Bytes16 once = loadPixel<usedBytes>(pixel);
  if constexpr (usedBytes < pixelBytes)
    repeatPart<pixelBytes, usedBytes>(once, dst, pixels * pixelBytes);
  else
    repeatWhole<pixelBytes>(once, dst, pixels * pixelBytes);
}

template <int sampleBytes>
[[gnu::noinline]] void moveInOrder(const Byte* src, Byte* dst, size_t bytes) {
  if (src == dst) return;
  for (size_t i = 0; i < bytes; i += sampleBytes) move<sampleBytes>(dst + i, src + i);
}

// Short runs need no call: in small images it would take longer than what is done.
template <int sampleBytes, int stored, int used>
inline void moveInline(const Byte* src, Byte* dst, size_t pixels, [[maybe_unused]] bool far) {
  if constexpr (used < stored) {
    if (src != dst) copyChosenRows<sampleBytes, stored, used>({src, 0}, {dst, 0}, {pixels, 1});
  } else {
    const size_t bytes = pixels * sampleBytes * stored;
    const auto distance = static_cast<size_t>(src < dst ? dst - src : src - dst);
    if (distance < bytes)
      moveInOrder<sampleBytes>(src, dst, bytes);
    else if (bytes <= kShortCopy)
      copyShort(src, dst, bytes);
    else if (far && bytes >= kFarStringMove)
      copyByString(src, dst, bytes);
    else
      copyRow(src, dst, bytes);
  }
}

}  // namespace

template <int sampleBytes, int stored, int used>
void moveRun(const uint8_t* src, uint8_t* dst, size_t pixels, bool far) {
  moveInline<sampleBytes, stored, used>(src, dst, pixels, far);
}

template <int pixelBytes, int usedBytes>
void repeatPixel(const uint8_t* pixel, uint8_t* dst, size_t pixels) {
  repeat<pixelBytes, usedBytes>(pixel, dst, pixels);
}

template <int sampleBytes, int stored, int used>
void extendRow(const uint8_t* first, const uint8_t* last, const uint8_t* src, uint8_t* dst,
               const RowShape& shape) {
  constexpr int pixelBytes = sampleBytes * stored, usedBytes = sampleBytes * used;
  if (shape.left) repeat<pixelBytes, usedBytes>(first, dst - shape.left * pixelBytes, shape.left);
  moveInline<sampleBytes, stored, used>(src, dst, shape.width, shape.far);
  if (shape.right) repeat<pixelBytes, usedBytes>(last, dst + shape.width * pixelBytes, shape.right);
}

// What is filled doubles with each copy. It is whole periods up to the last one, so that copies stay in
// phase.
void wrapRow(const uint8_t* image, uint8_t* row, size_t bytes, size_t leftBytes, size_t rightBytes) {
  size_t done = std::min(bytes, leftBytes);
  copyRow(image + bytes - done, row - done, done);
  for (size_t n = 0; done < leftBytes; done += n) {
    n = std::min(bytes + done, leftBytes - done);
    copyRow(row + bytes - n, row - done - n, n);
  }
  done = std::min(bytes, rightBytes);
  copyRow(image, row + bytes, done);
  for (size_t n = 0; done < rightBytes; done += n) {
    n = std::min(bytes + done, rightBytes - done);
    copyRow(row, row + bytes + done, n);
  }
}

#define LUMI_MOVE(sample, stored, used)                                                                   \
  template void moveRun<sample, stored, used>(const uint8_t*, uint8_t*, size_t, bool);                    \
  template void extendRow<sample, stored, used>(const uint8_t*, const uint8_t*, const uint8_t*, uint8_t*, \
                                                const RowShape&);
#define LUMI_LAYOUTS(sample) \
  LUMI_MOVE(sample, 1, 1) LUMI_MOVE(sample, 3, 3) LUMI_MOVE(sample, 4, 4) LUMI_MOVE(sample, 4, 3)
LUMI_LAYOUTS(1)
LUMI_LAYOUTS(2)
LUMI_LAYOUTS(4)
// Pixels of as many bytes repeat alike, whatever their samples.
#define LUMI_REPEAT(pixel, used) template void repeatPixel<pixel, used>(const uint8_t*, uint8_t*, size_t);
LUMI_REPEAT(1, 1)
LUMI_REPEAT(2, 2)
LUMI_REPEAT(3, 3)
LUMI_REPEAT(4, 3)
LUMI_REPEAT(4, 4)
LUMI_REPEAT(6, 6)
LUMI_REPEAT(8, 6)
LUMI_REPEAT(8, 8)
LUMI_REPEAT(12, 12)
LUMI_REPEAT(16, 12)
LUMI_REPEAT(16, 16)

}  // namespace lumi
