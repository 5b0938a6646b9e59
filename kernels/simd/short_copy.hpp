// SPDX-License-Identifier: MIT
// Copies of few bytes, without a loop: unaligned vectors from both ends that may overlap.
#pragma once

#include "kernels/simd/bytes.hpp"

namespace lumi::simd {

// At most two units of type V: one from each end, both read before either is stored.
template <typename V>
inline void copyEnds(const Byte* src, Byte* dst, size_t bytes) {
  V first, last;
  std::memcpy(&first, src, sizeof(V));
  std::memcpy(&last, src + bytes - sizeof(V), sizeof(V));
  std::memcpy(dst, &first, sizeof(V));
  std::memcpy(dst + bytes - sizeof(V), &last, sizeof(V));
}

// Four vectors from each place; the places may overlap, and all is read before anything is stored.
inline void copyFours(const Byte* src, Byte* dst, size_t second) {
  const Byte* s = src + second;
  Byte* d = dst + second;
  const Bytes32 a0 = load32(src), a1 = load32(src + sizeof(Bytes32)), a2 = load32(src + 2 * sizeof(Bytes32)),
                a3 = load32(src + 3 * sizeof(Bytes32));
  const Bytes32 b0 = load32(s), b1 = load32(s + sizeof(Bytes32)), b2 = load32(s + 2 * sizeof(Bytes32)),
                b3 = load32(s + 3 * sizeof(Bytes32));
  store32(dst, a0);
  store32(dst + sizeof(Bytes32), a1);
  store32(dst + 2 * sizeof(Bytes32), a2);
  store32(dst + 3 * sizeof(Bytes32), a3);
  store32(d, b0);
  store32(d + sizeof(Bytes32), b1);
  store32(d + 2 * sizeof(Bytes32), b2);
  store32(d + 3 * sizeof(Bytes32), b3);
}

inline void copyTwos(const Byte* src, Byte* dst, size_t second) {
  const Bytes32 a0 = load32(src), a1 = load32(src + sizeof(Bytes32));
  const Bytes32 b0 = load32(src + second), b1 = load32(src + second + sizeof(Bytes32));
  store32(dst, a0);
  store32(dst + sizeof(Bytes32), a1);
  store32(dst + second, b0);
  store32(dst + second + sizeof(Bytes32), b1);
}

inline constexpr size_t kShortCopy = 8 * sizeof(Bytes32);

// Calls run(copy) with the way to copy up to kShortCopy bytes: copy(src, dst), which reads all before it
// stores anything.
template <typename Run>
inline void withShortCopy(size_t bytes, Run run) {
  const auto ends = [&](auto unit) {
    run([=](const Byte* src, Byte* dst) { copyEnds<decltype(unit)>(src, dst, bytes); });
  };
  if (bytes >= sizeof(Bytes32)) {
    if (bytes > 4 * sizeof(Bytes32))
      run([=](const Byte* src, Byte* dst) { copyFours(src, dst, bytes - 4 * sizeof(Bytes32)); });
    else if (bytes > 2 * sizeof(Bytes32))
      run([=](const Byte* src, Byte* dst) { copyTwos(src, dst, bytes - 2 * sizeof(Bytes32)); });
    else
      ends(Bytes32());
  } else if (bytes >= 8) {
    if (bytes >= 16)
      ends(Bytes16());
    else
      ends(uint64_t());
  } else if (bytes >= 4) {
    ends(uint32_t());
  } else if (bytes >= 2) {
    ends(uint16_t());
  } else if (bytes) {
    run([](const Byte* src, Byte* dst) { *dst = *src; });
  }
}

inline void copyShort(const Byte* src, Byte* dst, size_t bytes) {
  withShortCopy(bytes, [=](auto copy) { copy(src, dst); });
}

}  // namespace lumi::simd
