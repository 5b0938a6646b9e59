// SPDX-License-Identifier: MIT
#include "kernels/data/mirror.hpp"

#include "kernels/path_count.hpp"
#include "kernels/simd/pixels.hpp"
#include "kernels/simd/short_copy.hpp"

namespace lumi {
namespace {

using namespace simd;

constexpr size_t kHalf = sizeof(Bytes16), kVector = sizeof(Bytes32);

// As many whole pixels as sixteen bytes have, in reverse order: the first or the last of those bytes.
template <int pixelBytes>
struct Reversal {
  static constexpr size_t kPixels = kHalf / pixelBytes, kBytes = kPixels * pixelBytes;

  static constexpr Control control(size_t start) {
    Control c{};
    for (Byte& b : c) b = kZero;
    for (size_t j = 0; j < kBytes; ++j)
      c[j] = static_cast<Byte>(start + (kPixels - 1 - j / pixelBytes) * pixelBytes + j % pixelBytes);
    return c;
  }

  // Twelve bytes from `start` on, turned to begin at byte `first`.
  static constexpr Control turned(size_t first, size_t start) {
    Control c{};
    for (Byte& b : c) b = kZero;
    for (size_t k = 0; k < 12; ++k)
      c[(first + k) % kHalf] =
          static_cast<Byte>(start + 12 - pixelBytes - k / pixelBytes * pixelBytes + k % pixelBytes);
    return c;
  }

  // The pixels that begin at p; sixteen bytes are read from there on.
  [[gnu::always_inline]] static inline Bytes16 after(const Byte* p) {
    static constexpr Control c = control(0);
    return shuffleBytes(load16(p), vectorOf(c));
  }
  // The pixels that end at p; sixteen bytes are read up to there.
  [[gnu::always_inline]] static inline Bytes16 before(const Byte* p) {
    static constexpr Control c = control(kHalf - kBytes);
    return shuffleBytes(load16(p - kHalf), vectorOf(c));
  }
  // Of pixels that divide twelve bytes: the 48 that end at p. Nothing else is read.
  [[gnu::always_inline]] static inline void storeFourTwelves(Byte* dst, const Byte* p) {
    static constexpr Control a = turned(0, 4), b = turned(12, 4), c = turned(8, 4), d = turned(4, 0);
    storeTurned(dst, shuffleBytes(load16(p - 16), vectorOf(a)), shuffleBytes(load16(p - 28), vectorOf(b)),
                shuffleBytes(load16(p - 40), vectorOf(c)), shuffleBytes(load16(p - 48), vectorOf(d)));
  }
  // Of pixels that divide sixteen bytes: the 32 bytes that end at p.
  [[gnu::always_inline]] static inline Bytes32 blockBefore(const Byte* p) {
    if constexpr (pixelBytes < 4) {
      return joined(before(p), before(p - kHalf));
    } else {
      const Bytes32 halves = joined(load16(p - kHalf), load16(p - kVector));
      if constexpr (pixelBytes == 4) return permuteDwords<3, 2, 1, 0>(halves);
      if constexpr (pixelBytes == 8) return permuteDwords<2, 3, 0, 1>(halves);
      return halves;
    }
  }
};

// Rows that have no room for a vector.
template <int pixelBytes, int usedBytes>
void reverseByPixels(const Byte* src, Byte* dst, size_t pixels) {
  for (size_t i = 0; i < pixels; ++i)
    move<usedBytes>(dst + i * pixelBytes, src + (pixels - 1 - i) * pixelBytes);
}

// Whole blocks of 32 bytes, the last of which may lie over others.
template <int pixelBytes, typename Store>
[[gnu::always_inline]] inline void reverseBlocks(const Byte* src, Byte* dst, size_t bytes) {
  using R = Reversal<pixelBytes>;
  const Byte* end = src + bytes;
  const Bytes32 last = R::blockBefore(src + kVector);
  size_t at = 0;
  if constexpr (!std::is_same_v<Store, Cached>) {
    at = bytesToBoundary(dst, kVector);
    store32(dst, R::blockBefore(end));
  }
  for (; at + kVector < bytes; at += kVector) Store::store(dst + at, R::blockBefore(end - at));
  store32(dst + bytes - kVector, last);
}

// Whole pixels of sixteen bytes at a time. Where these are fewer, a store goes beyond them, over what comes
// next; the last one does not.
template <int pixelBytes>
[[gnu::always_inline]] inline void reverseHalves(const Byte* src, Byte* dst, size_t bytes) {
  using R = Reversal<pixelBytes>;
  const Byte* end = src + bytes;
  for (size_t at = 0; at + R::kBytes < bytes; at += R::kBytes) store16(dst + at, R::before(end - at));
  storePixel<static_cast<int>(R::kBytes)>(dst + bytes - R::kBytes, R::after(src));
}

// Of pixels that do not divide sixteen bytes: 48 bytes or more.
constexpr size_t kTwelves = 4 * 12;
template <int pixelBytes>
[[gnu::always_inline]] inline void reverseTwelves(const Byte* src, Byte* dst, size_t bytes) {
  using R = Reversal<pixelBytes>;
  for (size_t at = 0; at + kTwelves < bytes; at += kTwelves) R::storeFourTwelves(dst + at, src + bytes - at);
  R::storeFourTwelves(dst + bytes - kTwelves, src + kTwelves);
}

// Some bytes of every pixel stay.
template <int pixelBytes, int usedBytes>
[[gnu::always_inline]] inline void reverseUsed(const Byte* src, Byte* dst, size_t bytes) {
  using R = Reversal<pixelBytes>;
  static constexpr auto used = pixelMask<pixelBytes, usedBytes, kHalf>();
  const Byte* end = src + bytes;
  const Bytes16 mask = load16(used.bytes);
  const auto vectorAt = [&](size_t at) { return ifThenElse(mask, R::before(end - at), load16(dst + at)); };
  const Bytes16 last = vectorAt(bytes - kHalf);
  for (size_t at = 0; at + kHalf < bytes; at += kHalf) store16(dst + at, vectorAt(at));
  store16(dst + bytes - kHalf, last);
}

}  // namespace

template <int pixelBytes, int usedBytes>
void reverseRows(SourceRows src, TargetRows dst, Extent pixels, [[maybe_unused]] bool streaming) {
  constexpr bool divides = kHalf % pixelBytes == 0;
  const size_t bytes = pixels.length * pixelBytes;
  const auto walk = [&](auto row) { walkRows(pixels.rows, row, src, dst); };
  if (bytes < kHalf)
    return walk(
        [=](const Byte* s, Byte* d) { reverseByPixels<pixelBytes, usedBytes>(s, d, bytes / pixelBytes); });
  if constexpr (usedBytes < pixelBytes) {
    walk([=](const Byte* s, Byte* d) { reverseUsed<pixelBytes, usedBytes>(s, d, bytes); });
  } else {
    if constexpr (divides) {
      if constexpr (pixelBytes >= 4) {
        const bool canAlign =
            ((reinterpret_cast<uintptr_t>(dst.first) | static_cast<uintptr_t>(dst.step)) % pixelBytes) == 0;
        if (streaming && canAlign && bytes >= 2 * kVector) {
          countPath(Path::StreamingRows);
          return walk([=](const Byte* s, Byte* d) { reverseBlocks<pixelBytes, Streaming>(s, d, bytes); });
        }
      }
      if (bytes >= kVector)
        return walk([=](const Byte* s, Byte* d) { reverseBlocks<pixelBytes, Cached>(s, d, bytes); });
    }
    if constexpr (!divides)
      if (bytes >= kTwelves)
        return walk([=](const Byte* s, Byte* d) { reverseTwelves<pixelBytes>(s, d, bytes); });
    walk([=](const Byte* s, Byte* d) { reverseHalves<pixelBytes>(s, d, bytes); });
  }
}

namespace {

template <int pixelBytes, int usedBytes>
struct Exchange {
  using R = Reversal<pixelBytes>;
  static constexpr size_t kBytes = R::kBytes;
  static constexpr auto kUsed = pixelMask<pixelBytes, usedBytes, kHalf>();

  static void store(Byte* to, Bytes16 v, [[maybe_unused]] Bytes16 old) {
    if constexpr (usedBytes < pixelBytes) v = ifThenElse(load16(kUsed.bytes), v, old);
    storePixel<static_cast<int>(kBytes)>(to, v);
  }

  static void byPixels(Byte* a, Byte* bEnd, size_t pixels) {
    Byte pixel[usedBytes];
    for (size_t i = 0; i < pixels; ++i) {
      Byte* const b = bEnd - (i + 1) * pixelBytes;
      move<usedBytes>(pixel, a + i * pixelBytes);
      move<usedBytes>(a + i * pixelBytes, b);
      move<usedBytes>(b, pixel);
    }
  }

  // The last vectors lie over others: what they hold is read before anything is stored.
  [[gnu::always_inline]] static inline void row(Byte* a, Byte* bEnd, size_t bytes) {
    Byte *const lastA = a + bytes - kBytes, *const lastB = bEnd - bytes;
    const Bytes16 toB = R::before(a + bytes), toA = R::after(lastB);
    const bool alpha = usedBytes < pixelBytes;
    const Bytes16 oldA = alpha ? load16(lastA) : toA, oldB = alpha ? load16(lastB) : toB;
    for (size_t at = 0; at + kBytes < bytes; at += kBytes) {
      Byte *const left = a + at, *const right = bEnd - at - kBytes;
      const Bytes16 reversedLeft = R::after(left), reversedRight = R::before(bEnd - at);
      const Bytes16 oldLeft = alpha ? load16(left) : reversedLeft,
                    oldRight = alpha ? load16(right) : reversedRight;
      store(left, reversedRight, oldLeft);
      store(right, reversedLeft, oldRight);
    }
    store(lastA, toA, oldA);
    store(lastB, toB, oldB);
  }
};

}  // namespace

template <int pixelBytes, int usedBytes>
void exchangeReversed(TargetRows a, TargetRows bEnds, Extent pixels) {
  using E = Exchange<pixelBytes, usedBytes>;
  const size_t bytes = pixels.length * pixelBytes;
  if (bytes < kHalf)
    walkRows(
        pixels.rows, [=](Byte* left, Byte* rightEnd) { E::byPixels(left, rightEnd, pixels.length); }, a,
        bEnds);
  else
    walkRows(
        pixels.rows, [=](Byte* left, Byte* rightEnd) { E::row(left, rightEnd, bytes); }, a, bEnds);
}

namespace {

// Rows of a vector or more, of 16 or 32 bytes.
template <typename V, int pixelBytes, int usedBytes>
[[gnu::always_inline]] inline void exchangeVectors(Byte* a, Byte* b, size_t bytes) {
  constexpr size_t size = sizeof(V);
  static constexpr auto used = pixelMask<pixelBytes, usedBytes, kVector>();
  const auto load = [](const Byte* p) {
    if constexpr (size == kVector)
      return load32(p);
    else
      return load16(p);
  };
  const auto pick = [&](V yes, [[maybe_unused]] V no) {
    if constexpr (usedBytes < pixelBytes)
      return ifThenElse(load(used.bytes), yes, no);
    else
      return yes;
  };
  const V lastA = load(a + bytes - size), lastB = load(b + bytes - size);
  for (size_t at = 0; at + size < bytes; at += size) {
    const V fromA = load(a + at), fromB = load(b + at);
    Cached::store(a + at, pick(fromB, fromA));
    Cached::store(b + at, pick(fromA, fromB));
  }
  Cached::store(a + bytes - size, pick(lastB, lastA));
  Cached::store(b + bytes - size, pick(lastA, lastB));
}

}  // namespace

template <int pixelBytes, int usedBytes>
void exchangeRows(TargetRows a, TargetRows b, Extent pixels) {
  const size_t bytes = pixels.length * pixelBytes;
  const auto walk = [&](auto row) { walkRows(pixels.rows, row, a, b); };
  if (bytes >= kVector)
    walk([=](Byte* x, Byte* y) { exchangeVectors<Bytes32, pixelBytes, usedBytes>(x, y, bytes); });
  else if (bytes >= kHalf)
    walk([=](Byte* x, Byte* y) { exchangeVectors<Bytes16, pixelBytes, usedBytes>(x, y, bytes); });
  else
    walk([=](Byte* x, Byte* y) {
      for (size_t i = 0; i < bytes; ++i)
        if (i % pixelBytes < usedBytes) std::swap(x[i], y[i]);
    });
}

void copyRowsStreaming(SourceRows src, TargetRows dst, Extent bytes) {
  countPath(Path::StreamingRows);
  const auto copy = [length = bytes.length](const Byte* s, Byte* d) {
    if (length <= kShortCopy) return copyShort(s, d, length);
    size_t at = reachPastBoundary(d, kVector);
    store32(d, load32(s));
    for (; at + kVector <= length; at += kVector) stream32(d + at, load32(s + at));
    store32(d + length - kVector, load32(s + length - kVector));
  };
  walkRows(bytes.rows, copy, src, dst);
}

#define LUMI_EXCHANGE(pixel, used)                                              \
  template void reverseRows<pixel, used>(SourceRows, TargetRows, Extent, bool); \
  template void exchangeReversed<pixel, used>(TargetRows, TargetRows, Extent);
LUMI_EXCHANGE(1, 1)
LUMI_EXCHANGE(2, 2)
LUMI_EXCHANGE(3, 3)
LUMI_EXCHANGE(4, 3)
LUMI_EXCHANGE(4, 4)
LUMI_EXCHANGE(6, 6)
LUMI_EXCHANGE(8, 6)
LUMI_EXCHANGE(8, 8)
LUMI_EXCHANGE(12, 12)
LUMI_EXCHANGE(16, 12)
LUMI_EXCHANGE(16, 16)
#define LUMI_ROWS(pixel, used) template void exchangeRows<pixel, used>(TargetRows, TargetRows, Extent);
LUMI_ROWS(1, 1)
LUMI_ROWS(4, 3)
LUMI_ROWS(8, 6)
LUMI_ROWS(16, 12)

}  // namespace lumi
