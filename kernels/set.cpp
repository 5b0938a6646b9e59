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

struct Cached {
  static void store(Byte* p, Bytes32 v) { store32(p, v); }
};
struct Streaming {
  static void store(Byte* p, Bytes32 v) { stream32(p, v); }
};

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

}  // namespace

FillPattern::FillPattern(const void* pixel, int pixelSize) : pixelBytes(pixelSize) {
  const auto n = static_cast<size_t>(pixelSize);
  std::memcpy(bytes, pixel, n);
  // Doubling what is there keeps the phase: every length copied is a multiple of the pixel.
  for (size_t have = n; have < sizeof bytes; have *= 2)
    std::memcpy(bytes + have, bytes, have < sizeof bytes - have ? have : sizeof bytes - have);
}

void fillRow(const FillPattern& pattern, uint8_t* dst, size_t bytes, bool streaming) {
  if (bytes < sizeof(Bytes32))
    fillShort(pattern, dst, bytes);
  else if (streaming)
    fillLong<Streaming>(pattern, dst, bytes);
  else
    fillLong<Cached>(pattern, dst, bytes);
}

}  // namespace lumi
