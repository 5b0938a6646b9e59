// SPDX-License-Identifier: MIT
// Rows whose samples become samples of another type: f(p) as Unary has it, over source and destination of any
// two sizes.
#pragma once

#include "kernels/pointwise.hpp"

namespace lumi::simd {

// Source bytes of the samples that make so many bytes of D samples.
template <typename S, typename D>
inline constexpr size_t kSourceOfHalf = kHalf / sizeof(D) * sizeof(S);

// Less than a block, from a row that shares no memory with the destination. Pieces are copied out of line:
// there are many conversions.
[[gnu::noinline]] inline void copyPiece(Byte* to, const Byte* from, size_t bytes) {
  copyFew(to, from, bytes);
}
template <typename S, typename D, typename F>
[[gnu::noinline]] void runShort(const Byte* src, Byte* dst, size_t bytes, const F& f) {
  using Source = ImageRow<S, D>;
  if (bytes >= kHalf) {
    for (size_t at = 0;; at = bytes - kHalf) {
      store16(dst + at, f.half(src + Source::sourceBytes(at)));
      if (at == bytes - kHalf) return;
    }
  }
  typename Source::Room room{};
  alignas(kHalf) Byte results[kHalf];
  copyPiece(room.bytes, src, Source::sourceBytes(bytes));
  store16(results, f.half(room.bytes));
  copyPiece(dst, results, bytes);
}

// A row of a block or more that shares no memory with its source. It counts in samples: offsets of the wider
// side follow from those of the narrower one for nothing, but not the other way round. First come the blocks
// on boundaries, in rounds, then the first block and those that are left.
template <typename S, typename D, typename Store, typename F, size_t... k>
[[gnu::noinline, gnu::flatten]] void runApart(const Byte* src, Byte* dst, size_t samples, const F& work,
                                              std::index_sequence<k...>) {
  constexpr size_t block = kBlock / sizeof(D), round = sizeof...(k) * block;
  const F f = work;  // no store changes a copy
  const auto results = [&](size_t i) { return f.block(src + i * sizeof(S)); };
  size_t next = (reachPastBoundary(dst, kBlock) + sizeof(D) - 1) / sizeof(D);  // 1 at least
  for (; next + round <= samples; next += round)
    (Store::store(dst + (next + k * block) * sizeof(D), results(next + k * block)), ...);
  for (size_t i = 0; i < samples; i = i == 0 ? next : i + block) {
    const size_t at = i + block <= samples ? i : samples - block;
    Cached::store(dst + at * sizeof(D), results(at));
  }
}

// Runs a conversion over `samples` samples, of which the last `alpha` of every four stay; `blocks` a round.
// Store is how blocks on boundaries are stored; samples at odd addresses never reach one.
template <typename S, typename D, int alpha, size_t blocks = 4, typename Store = Cached, typename F>
void runConversion(const Byte* src, Byte* dst, size_t samples, const F& f) {
  const Unary<S, D, F> rule{{src}, f};
  const size_t bytes = samples * sizeof(D);
  if constexpr (alpha != 0) {
    runPixels<4 * sizeof(D), (4 - alpha) * sizeof(D)>(dst, bytes, rule);
  } else if constexpr (sizeof(S) == sizeof(D)) {
    runRow(dst, bytes, rule);
  } else if (bytes < kBlock) {
    runShort<S, D>(src, dst, bytes, f);
  } else if (isAligned(dst, sizeof(D))) {
    runApart<S, D, Store>(src, dst, samples, f, std::make_index_sequence<blocks>());
  } else {
    runApart<S, D, Cached>(src, dst, samples, f, std::make_index_sequence<blocks>());
  }
}

}  // namespace lumi::simd
