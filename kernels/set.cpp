// SPDX-License-Identifier: MIT
#include "kernels/set.hpp"

#include "kernels/simd/bytes.hpp"

namespace lumi {
namespace {

using namespace simd;

// Rows below one vector: overlapping stores of halves from both ends, all from the pattern's phase.
void fillShort(const FillPattern& p, Byte* dst, size_t bytes) {
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

// The first vector goes unaligned to the row's start and the last to its end; the loop between them
// is aligned, and starts at the phase that the head has reached.
template <typename Store>
void fillLong(const FillPattern& p, Byte* dst, size_t bytes) {
  constexpr size_t period = FillPattern::kPeriod, vector = sizeof(Bytes32);
  Byte* const end = dst + bytes;
  store32(end - vector, load32(p.bytes + (bytes - vector) % period));
  store32(dst, load32(p.bytes));
  const size_t head = vector - (reinterpret_cast<uintptr_t>(dst) & (vector - 1));
  // head is at most 32: head + 96 stays inside the pattern.
  const Bytes32 a = load32(p.bytes + head), b = load32(p.bytes + head + vector),
                c = load32(p.bytes + head + 2 * vector);
  Byte* d = dst + head;
  for (; static_cast<size_t>(end - d) >= 2 * period; d += 2 * period) {
    Store::store(d, a);
    Store::store(d + vector, b);
    Store::store(d + 2 * vector, c);
    Store::store(d + 3 * vector, a);
    Store::store(d + 4 * vector, b);
    Store::store(d + 5 * vector, c);
  }
  for (; static_cast<size_t>(end - d) >= period; d += period) {
    Store::store(d, a);
    Store::store(d + vector, b);
    Store::store(d + 2 * vector, c);
  }
  if (static_cast<size_t>(end - d) >= vector) Store::store(d, a), d += vector;
  if (d < end && static_cast<size_t>(end - d) >= vector) Store::store(d, b);
}

// From here on, measured from 2 MiB to beyond the largest cache, the processor's string store is ahead of
// vector stores, streaming ones included.
constexpr size_t kStringFill = 0x200000;

void fillByString(const FillPattern& p, Byte* dst, size_t bytes) {
  constexpr size_t vector = sizeof(Bytes32);
  store32(dst + bytes - vector, load32(p.bytes + (bytes - vector) % FillPattern::kPeriod));
  store32(dst, load32(p.bytes));
  const size_t head = vector - (reinterpret_cast<uintptr_t>(dst) & (vector - 1));
  uint32_t value = 0;
  std::memcpy(&value, p.bytes + head % 4, sizeof value);
  Byte* to = dst + head;
  size_t count = (bytes - head) / sizeof value;
  asm volatile("rep stosl" : "+D"(to), "+c"(count) : "a"(value) : "memory");
}

// A pixel in the low bytes of a vector, by way of registers: a vector load would have to wait for the
// stores of a copy.
template <int pixelBytes>
Bytes16 loadPixel(const Byte* pixel) {
  if constexpr (pixelBytes == 16) {
    return load16(pixel);
  } else {
    uint32_t dwords[3] = {};
    for (int i = 0; i < 3; ++i)
      if (4 * i < pixelBytes)
        std::memcpy(&dwords[i], pixel + 4 * i,
                    static_cast<size_t>(pixelBytes - 4 * i < 4 ? pixelBytes - 4 * i : 4));
    return dwordsOf(dwords[0], dwords[1], dwords[2]);
  }
}

template <int pixelBytes>
constexpr Control repeatControl(int vector) {
  Control c{};
  for (int j = 0; j < 16; ++j) c[j] = static_cast<Byte>((vector * 16 + j) % pixelBytes);
  return c;
}

}  // namespace

template <int pixelBytes>
FillPattern makePattern(const void* pixel) {
  static constexpr Control controls[] = {repeatControl<pixelBytes>(0), repeatControl<pixelBytes>(1),
                                         repeatControl<pixelBytes>(2)};
  const Bytes16 once = loadPixel<pixelBytes>(static_cast<const Byte*>(pixel));
  FillPattern p;
  p.dwords = 4 % pixelBytes == 0;
  for (size_t i = 0; i < sizeof p.bytes / 16; ++i)
    store16(p.bytes + 16 * i, shuffle(once, vectorOf(controls[i % 3])));
  return p;
}

template FillPattern makePattern<1>(const void*);
template FillPattern makePattern<2>(const void*);
template FillPattern makePattern<3>(const void*);
template FillPattern makePattern<4>(const void*);
template FillPattern makePattern<6>(const void*);
template FillPattern makePattern<8>(const void*);
template FillPattern makePattern<12>(const void*);
template FillPattern makePattern<16>(const void*);

void fillRow(const FillPattern& pattern, uint8_t* dst, size_t bytes, bool streaming) {
  if (bytes < sizeof(Bytes32))
    fillShort(pattern, dst, bytes);
  else if (pattern.dwords && bytes >= kStringFill)
    fillByString(pattern, dst, bytes);
  else if (streaming)
    fillLong<Streaming>(pattern, dst, bytes);
  else
    fillLong<Cached>(pattern, dst, bytes);
}

}  // namespace lumi
