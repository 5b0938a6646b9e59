// SPDX-License-Identifier: MIT
// The processor's string instructions, as inline assembly, for there is no intrinsic.
// They work by dwords, which every processor of the level moves in whole cache lines.
#pragma once

#include "kernels/path_count.hpp"
#include "kernels/simd/bytes.hpp"

namespace lumi::simd {

// Address checkers do not see into assembly: their builds take loops, which they do see.
#if defined(__SANITIZE_ADDRESS__)
#define LUMI_STRING_LOOPS 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define LUMI_STRING_LOOPS 1
#endif
#endif

inline void moveDwords(uint8_t* to, const uint8_t* from, size_t count) {
#ifdef LUMI_STRING_LOOPS
  for (size_t i = 0; i < 4 * count; ++i) to[i] = from[i];
#else
  asm volatile("rep movsl" : "+S"(from), "+D"(to), "+c"(count) : : "memory");
#endif
}

// At least one vector; the ends go unaligned.
inline void copyByString(const Byte* src, Byte* dst, size_t bytes) {
  countPath(Path::StringMove);
  const Bytes32 first = load32(src), last = load32(src + bytes - sizeof(Bytes32));
  const size_t head = reachPastBoundary(dst, sizeof(Bytes32));
  moveDwords(dst + head, src + head, (bytes - head) / 4);
  store32(dst, first);
  store32(dst + bytes - sizeof(Bytes32), last);
}

inline void storeDwords(uint8_t* to, uint32_t value, size_t count) {
  countPath(Path::StringFill);
#ifdef LUMI_STRING_LOOPS
  for (size_t i = 0; i < count; ++i) std::memcpy(to + 4 * i, &value, 4);
#else
  asm volatile("rep stosl" : "+D"(to), "+c"(count) : "a"(value) : "memory");
#endif
}

#undef LUMI_STRING_LOOPS

}  // namespace lumi::simd
