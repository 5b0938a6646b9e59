// SPDX-License-Identifier: MIT
// The processor's string instructions, as inline assembly, for there is no intrinsic.
// They work by dwords, which every processor of the level moves in whole cache lines.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

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

inline void storeDwords(uint8_t* to, uint32_t value, size_t count) {
#ifdef LUMI_STRING_LOOPS
  for (size_t i = 0; i < count; ++i) std::memcpy(to + 4 * i, &value, 4);
#else
  asm volatile("rep stosl" : "+D"(to), "+c"(count) : "a"(value) : "memory");
#endif
}

#undef LUMI_STRING_LOOPS

}  // namespace lumi::simd
