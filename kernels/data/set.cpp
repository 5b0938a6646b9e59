// SPDX-License-Identifier: MIT
#include "kernels/data/set.hpp"

#include "kernels/path_count.hpp"
#include "kernels/simd/bytes.hpp"
#include "kernels/simd/strings.hpp"

namespace lumi {
namespace {

using namespace simd;

constexpr size_t kVector = sizeof(Bytes32);

// Whether every aligned vector of a row is the same one.
template <int pixelBytes>
constexpr bool kUniform = kVector % pixelBytes == 0;

// Rows below one vector: overlapping stores of halves from both ends, all from the pattern's phase.
[[gnu::always_inline]] inline void fillShort(const PixelPattern& p, Byte* dst, size_t bytes) {
  const auto ends = [&](auto half) {
    constexpr size_t n = decltype(half)::value;
    move<n>(dst, p.bytes);
    move<n>(dst + bytes - n, p.bytes + bytes - n);
  };
  if (bytes >= 16)
    ends(std::integral_constant<size_t, 16>());
  else if (bytes >= 8)
    ends(std::integral_constant<size_t, 8>());
  else if (bytes >= 4)
    ends(std::integral_constant<size_t, 4>());
  else
    for (size_t i = 0; i < bytes; ++i) dst[i] = p.bytes[i];
}

template <int pixelBytes>
Bytes32 lastVector(const PixelPattern& p, size_t bytes) {
  return load32(p.bytes + (kUniform<pixelBytes> ? 0 : (bytes - kVector) % PixelPattern::kPeriod));
}

// The first and the last vector go unaligned; between them the stores are aligned, at the phase that the
// first one has reached. All of the pattern is read before the first store, which might be anywhere.
template <int pixelBytes, typename Store>
[[gnu::always_inline]] inline void fillLong(const PixelPattern& p, Byte* dst, size_t bytes) {
  const size_t head = reachPastBoundary(dst, kVector);
  const Bytes32 first = load32(p.bytes), last = lastVector<pixelBytes>(p, bytes);
  Byte* d = dst + head;
  Byte* const end = dst + bytes;
  const auto left = [&] { return static_cast<size_t>(end - d); };
  if constexpr (kUniform<pixelBytes>) {
    const Bytes32 v = load32(p.bytes + head % pixelBytes);
    store32(dst, first);
    for (; left() >= 4 * kVector; d += 4 * kVector)
      for (size_t i = 0; i < 4; ++i) Store::store(d + i * kVector, v);
    for (; left() >= kVector; d += kVector) Store::store(d, v);
  } else {
    // head is at most 32: head + 96 stays inside the pattern.
    const Bytes32 v[] = {load32(p.bytes + head), load32(p.bytes + head + kVector),
                         load32(p.bytes + head + 2 * kVector)};
    store32(dst, first);
    for (; left() >= 6 * kVector; d += 6 * kVector)
      for (size_t i = 0; i < 6; ++i) Store::store(d + i * kVector, v[i % 3]);
    for (size_t i = 0; left() >= kVector; d += kVector, ++i) Store::store(d, v[i % 3]);
  }
  store32(end - kVector, last);
}

// Rows up to eight vectors, unaligned from their start on: less work than to find the boundaries.
constexpr size_t kShortFill = 8 * kVector;

template <int pixelBytes>
void fillShortRows(const PixelPattern& p, TargetRows dst, Extent bytes) {
  constexpr size_t period = kUniform<pixelBytes> ? 1 : 3;
  const size_t length = bytes.length;
  const Bytes32 last = lastVector<pixelBytes>(p, length);
  Bytes32 v[period];
  for (size_t i = 0; i < period; ++i) v[i] = load32(p.bytes + i * kVector);
  walkRows(
      bytes.rows,
      [&](Byte* row) {
        size_t at = 0;
        const auto one = [&](Bytes32 vector) {
          if (at + kVector >= length) return false;
          store32(row + at, vector);
          at += kVector;
          return true;
        };
        if constexpr (period == 1)
          while (one(v[0])) {
          }
        else
          while (one(v[0]) && one(v[1]) && one(v[2])) {
          }
        store32(row + length - kVector, last);
      },
      dst);
}

// From here on, measured from 1.5 MiB to beyond the largest cache, the processor's string store is ahead of
// vector stores, streaming ones included.
constexpr size_t kStringFill = 0x180000;

template <int pixelBytes>
void fillByString(const PixelPattern& p, Byte* dst, size_t bytes) {
  const size_t head = reachPastBoundary(dst, kVector);
  const Bytes32 first = load32(p.bytes), last = lastVector<pixelBytes>(p, bytes);
  uint32_t value = 0;
  std::memcpy(&value, p.bytes + head % pixelBytes, sizeof value);
  store32(dst, first);
  store32(dst + bytes - kVector, last);
  storeDwords(dst + head, value, (bytes - head) / sizeof value);
}

}  // namespace

template <int pixelBytes>
void fillRows(const PixelPattern& pattern, TargetRows dst, Extent bytes, bool streaming) {
  const size_t length = bytes.length;
  const auto eachRow = [&](auto fill) { walkRows(bytes.rows, fill, dst); };
  if (length < kVector) return eachRow([&](Byte* row) { fillShort(pattern, row, length); });
  if (length <= kShortFill) return fillShortRows<pixelBytes>(pattern, dst, bytes);
  if constexpr (4 % pixelBytes == 0)
    if (length >= kStringFill)
      return eachRow([&](Byte* row) { fillByString<pixelBytes>(pattern, row, length); });
  if (!streaming) return eachRow([&](Byte* row) { fillLong<pixelBytes, Cached>(pattern, row, length); });
  countPath(Path::StreamingFill);
  eachRow([&](Byte* row) { fillLong<pixelBytes, Streaming>(pattern, row, length); });
}

#define LUMI_PIXEL(bytes) template void fillRows<bytes>(const PixelPattern&, TargetRows, Extent, bool);
LUMI_PIXEL(1)
LUMI_PIXEL(2)
LUMI_PIXEL(3)
LUMI_PIXEL(4)
LUMI_PIXEL(6)
LUMI_PIXEL(8)
LUMI_PIXEL(12)
LUMI_PIXEL(16)

}  // namespace lumi
