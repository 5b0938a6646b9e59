// SPDX-License-Identifier: MIT
// Rows whose samples become samples of another type: f.vector(p) as Unary has it, over source and destination
// of any two sizes.
#pragma once

#include "kernels/pointwise.hpp"

namespace lumi::simd {

// Source bytes of the samples that make a vector of D samples.
template <typename S, typename D>
inline constexpr size_t kSourceOfVector = kVectorBytes / sizeof(D) * sizeof(S);

// Rows of a vector or more that share no memory with their source. They count in samples: offsets of the
// wider side follow from those of the narrower one for nothing, but not the other way round. First come the
// blocks on boundaries, in rounds, then the first block and those that are left.
template <typename S, typename D, typename Store, typename F, size_t... k>
[[gnu::always_inline]] inline void convertApart(SourceRows src, TargetRows dst, Extent samples, const F& work,
                                                std::index_sequence<k...>) {
  constexpr size_t block = kBlock / sizeof(D), vector = kVectorBytes / sizeof(D),
                   round = sizeof...(k) * block;
  const F f = work;  // no store changes a copy
  const size_t length = samples.length;
  for (int y = 0; y < samples.rows; ++y) {
    const Byte* const s = src.row(y);
    Byte* const d = dst.row(y);
    if (length < block) {
      const VectorBytes first = vectorOf(f, s), last = vectorOf(f, s + (length - vector) * sizeof(S));
      storeVector(d, first);
      storeVector(d + (length - vector) * sizeof(D), last);
      continue;
    }
    const auto results = [&](size_t i) { return blockOf<S, D>(f, s + i * sizeof(S)); };
    size_t next = block;
    if (length * sizeof(D) > kShortRow) {
      next = (reachPastBoundary(d, kBlock) + sizeof(D) - 1) / sizeof(D);  // 1 at least
      for (; next + round <= length; next += round)
        (Store::store(d + (next + k * block) * sizeof(D), results(next + k * block)), ...);
    }
    const size_t last = length - block;
    for (size_t at = 0;; next += block) {
      Cached::store(d + at * sizeof(D), results(at));
      if (next >= length) break;
      at = next < last ? next : last;
    }
  }
}

// Runs a conversion over rows of samples, of which the last `alpha` of every four stay; `blocks` a round.
// Store is how blocks on boundaries are stored; samples at odd addresses never reach one.
template <typename S, typename D, int alpha, size_t blocks = 4, typename Store = Cached, typename F>
[[gnu::flatten]] void runConversion(SourceRows src, TargetRows dst, Extent samples, const F& f) {
  const Unary<S, D, F> rule{ImageRow<S, D>(src), f};
  if constexpr (alpha != 0) {
    runPixels<4 * sizeof(D), (4 - alpha) * sizeof(D)>(dst, samples, rule);
  } else if constexpr (sizeof(S) == sizeof(D)) {
    runRows(dst, samples, rule);
  } else if (samples.length * sizeof(D) < kVectorBytes) {
    runCarefully(dst, samples, rule);
  } else if (std::is_same_v<Store, Cached> || !allAligned<sizeof(D)>(dst)) {
    convertApart<S, D, Cached>(src, dst, samples, f, std::make_index_sequence<blocks>());
  } else {
    countPath(Path::StreamingRows);
    convertApart<S, D, Store>(src, dst, samples, f, std::make_index_sequence<blocks>());
  }
}

}  // namespace lumi::simd
