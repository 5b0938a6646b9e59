// SPDX-License-Identifier: MIT
#include "kernels/data/copy.hpp"

#include "kernels/simd/short_copy.hpp"
#include "kernels/simd/strings.hpp"

namespace lumi {
namespace {

using namespace simd;

constexpr size_t kVector = sizeof(Bytes32);

// The ends go unaligned, the aligned middle four vectors at a time.
[[gnu::always_inline]] inline void copyForwards(const Byte* src, Byte* dst, size_t bytes) {
  const Bytes32 first = load32(src), last = load32(src + bytes - kVector);
  Byte* const end = dst + bytes;
  const size_t head = reachPastBoundary(dst, kVector);
  const Byte* s = src + head;
  Byte* d = dst + head;
  store32(dst, first);
  for (; static_cast<size_t>(end - d) >= 4 * kVector; d += 4 * kVector, s += 4 * kVector) {
    const Bytes32 a = load32(s), b = load32(s + kVector), c = load32(s + 2 * kVector),
                  e = load32(s + 3 * kVector);
    store32(d, a);
    store32(d + kVector, b);
    store32(d + 2 * kVector, c);
    store32(d + 3 * kVector, e);
  }
  for (; static_cast<size_t>(end - d) >= kVector; d += kVector, s += kVector) store32(d, load32(s));
  store32(end - kVector, last);
}

void copyBackwards(const Byte* src, Byte* dst, size_t bytes) {
  const Bytes32 first = load32(src), last = load32(src + bytes - kVector);
  Byte* const end = dst + bytes;
  const size_t tail = reinterpret_cast<uintptr_t>(end) & (kVector - 1);
  Byte* d = end - tail;
  const Byte* s = src + bytes - tail;
  store32(end - kVector, last);
  for (; static_cast<size_t>(d - dst) >= 4 * kVector;) {
    d -= 4 * kVector, s -= 4 * kVector;
    const Bytes32 a = load32(s), b = load32(s + kVector), c = load32(s + 2 * kVector),
                  e = load32(s + 3 * kVector);
    store32(d + 3 * kVector, e);
    store32(d + 2 * kVector, c);
    store32(d + kVector, b);
    store32(d, a);
  }
  for (; static_cast<size_t>(d - dst) >= kVector;) {
    d -= kVector, s -= kVector;
    store32(d, load32(s));
  }
  store32(dst, first);
}

// The processor matches loads against earlier stores by page offset: where the destination lies just
// above the source in its page, every forward load would wait for the store before it.
bool storesAliasLaterLoads(const Byte* src, const Byte* dst) {
  constexpr uintptr_t page = 4096, reach = 160;
  const uintptr_t above = (reinterpret_cast<uintptr_t>(dst) - reinterpret_cast<uintptr_t>(src)) & (page - 1);
  return above >= 1 && above <= reach;
}

// From here on source and destination no longer share the first-level cache, and the processor's string
// move is the fastest copy at every size: ahead of streaming stores beyond the largest cache too (23 to 30
// against 17 to 24 GB/s). That is why no copy asks for the cache size.
constexpr size_t kStringMove = 0x7000;

}  // namespace

void copyRows(SourceRows src, TargetRows dst, Extent bytes) {
  const size_t length = bytes.length;
  if (length <= kShortCopy)
    withShortCopy(length, [=](auto copy) { walkRows(bytes.rows, copy, src, dst); });
  else if (length >= kStringMove)
    walkRows(
        bytes.rows, [=](const Byte* s, Byte* d) { copyByString(s, d, length); }, src, dst);
  else
    walkRows(
        bytes.rows,
        [=](const Byte* s, Byte* d) {
          if (storesAliasLaterLoads(s, d))
            copyBackwards(s, d, length);
          else
            copyForwards(s, d, length);
        },
        src, dst);
}

void copyRow(const uint8_t* src, uint8_t* dst, size_t bytes) { copyRows({src, 0}, {dst, 0}, {bytes, 1}); }

namespace {

void copyRowManaged(const Byte* src, Byte* dst, size_t bytes, CacheUse use) {
  constexpr size_t line = 64;
  if (bytes < line) return copyShort(src, dst, bytes);
  const size_t head = bytesToBoundary(src, line);
  if (head > bytes) return copyRow(src, dst, bytes);
  copyRow(src, dst, head);
  src += head, dst += head, bytes -= head;
  const bool stream = use.streamingStores && isAligned(dst, kVector);
  for (; bytes >= line; src += line, dst += line, bytes -= line)
    for (size_t i = 0; i < line; i += kVector) {
      const Bytes32 v = use.streamingLoads ? joined(streamingLoad16(src + i), streamingLoad16(src + i + 16))
                                           : load32(src + i);
      if (stream)
        stream32(dst + i, v);
      else
        store32(dst + i, v);
    }
  copyShort(src, dst, bytes);
}

}  // namespace

void copyRowsManaged(SourceRows src, TargetRows dst, Extent bytes, CacheUse use) {
  if (!use.streamingStores && !use.streamingLoads) return copyRows(src, dst, bytes);
  walkRows(
      bytes.rows, [=](const Byte* s, Byte* d) { copyRowManaged(s, d, bytes.length, use); }, src, dst);
}

}  // namespace lumi
