// SPDX-License-Identifier: MIT
// The rule of a row whose samples become samples of another size.
#pragma once

#include "kernels/pointwise.hpp"

namespace lumi::simd {

// Source bytes of the samples that make so many bytes of D samples.
template <typename S, typename D>
inline constexpr size_t kSourceOfHalf = kHalf / sizeof(D) * sizeof(S);

// d = f(a), of S samples a sample D. f has block(p) and half(p): 32 and 16 bytes of results from the samples
// that begin at p. The phase is a copy of all that a block needs: byte stores could change anything that is
// reached through the rule, so that the loop would fetch it again and again.
template <typename S, typename D, typename F>
struct Conversion {
  ImageRow<S, D> a;
  F f;

  static constexpr size_t kSample = sizeof(D), kPeriod = 1;
  struct Phase {
    ImageRow<S, D> a;
    F f;
  };
  // Never less than a vector: pieces are gathered in steps of up to eight bytes, however few there are.
  struct Room {
    alignas(kHalf) Byte bytes[kSourceOfHalf<S, D> < kHalf ? kHalf : kSourceOfHalf<S, D>];
  };

  Phase phase(size_t) const { return {a, f}; }
  auto block(size_t at, const Phase& phase) const { return phase.f.block(phase.a(at)); }
  Bytes16 half(size_t at) const { return f.half(a(at)); }
  bool overlaps(const Byte* d, size_t bytes) const { return a.overlaps(d, bytes); }
  Conversion gathered(Room& room, size_t at, size_t bytes) const {
    copyFew(room.bytes, a(at), ImageRow<S, D>::sourceBytes(bytes));
    return {{room.bytes}, f};
  }
};

// Less than a block, from a row that shares no memory with the destination.
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
  typename Conversion<S, D, F>::Room room{};
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
  const Conversion<S, D, F> rule{{src}, f};
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
