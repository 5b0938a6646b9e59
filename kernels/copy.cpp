// SPDX-License-Identifier: MIT
#include "kernels/copy.hpp"

#include "kernels/simd/bytes.hpp"

namespace lumi {
namespace {

using namespace simd;

constexpr size_t kVector = sizeof(Bytes32);

// At most twice `count` vectors of type V: as many from each end, all read before any is stored.
template <typename V, size_t count = 1>
void copyEnds(const Byte* src, Byte* dst, size_t bytes) {
  constexpr size_t n = sizeof(V);
  V first[count], last[count];
  for (size_t i = 0; i < count; ++i) std::memcpy(&first[i], src + i * n, n);
  for (size_t i = 0; i < count; ++i) std::memcpy(&last[i], src + bytes - (i + 1) * n, n);
  for (size_t i = 0; i < count; ++i) std::memcpy(dst + i * n, &first[i], n);
  for (size_t i = 0; i < count; ++i) std::memcpy(dst + bytes - (i + 1) * n, &last[i], n);
}

constexpr size_t kShort = 8 * kVector;

void copyShort(const Byte* src, Byte* dst, size_t bytes) {
  if (bytes > 4 * kVector)
    copyEnds<Bytes32, 4>(src, dst, bytes);
  else if (bytes > 2 * kVector)
    copyEnds<Bytes32, 2>(src, dst, bytes);
  else if (bytes >= 32)
    copyEnds<Bytes32>(src, dst, bytes);
  else if (bytes >= 16)
    copyEnds<Bytes16>(src, dst, bytes);
  else if (bytes >= 8)
    copyEnds<uint64_t>(src, dst, bytes);
  else if (bytes >= 4)
    copyEnds<uint32_t>(src, dst, bytes);
  else if (bytes >= 2)
    copyEnds<uint16_t>(src, dst, bytes);
  else if (bytes)
    *dst = *src;
}

// The ends go unaligned, the aligned middle four vectors at a time.
void copyForwards(const Byte* src, Byte* dst, size_t bytes) {
  const Bytes32 first = load32(src), last = load32(src + bytes - kVector);
  Byte* const end = dst + bytes;
  const size_t head = kVector - (reinterpret_cast<uintptr_t>(dst) & (kVector - 1));
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
// against 17 to 24 GB/s). That is why no size asks for the cache here. The move is by dwords, which every
// processor of the level does in whole lines.
constexpr size_t kStringMove = 0x7000;

void copyByString(const Byte* src, Byte* dst, size_t bytes) {
  const Bytes32 first = load32(src), last = load32(src + bytes - kVector);
  const size_t head = kVector - (reinterpret_cast<uintptr_t>(dst) & (kVector - 1));
  const Byte* from = src + head;
  Byte* to = dst + head;
  size_t count = (bytes - head) / 4;
  asm volatile("rep movsl" : "+S"(from), "+D"(to), "+c"(count) : : "memory");
  store32(dst, first);
  store32(dst + bytes - kVector, last);
}

}  // namespace

void copyRow(const uint8_t* src, uint8_t* dst, size_t bytes) {
  if (bytes <= kShort)
    copyShort(src, dst, bytes);
  else if (bytes >= kStringMove)
    copyByString(src, dst, bytes);
  else if (storesAliasLaterLoads(src, dst))
    copyBackwards(src, dst, bytes);
  else
    copyForwards(src, dst, bytes);
}

void copyRowManaged(const uint8_t* src, uint8_t* dst, size_t bytes, CacheUse use) {
  constexpr size_t line = 64;
  if (bytes < line || !(use.streamingStores || use.streamingLoads)) return copyRow(src, dst, bytes);
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

}  // namespace lumi
