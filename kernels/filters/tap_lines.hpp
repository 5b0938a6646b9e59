// SPDX-License-Identifier: MIT
// Sums of integer taps over 8-bit samples that lie one step apart from one another: along a row of the image,
// or down a column.
#pragma once

#include "kernels/filters/filter_sums.hpp"
#include "kernels/rows.hpp"

namespace lumi {

// Taps in the order of their samples, in pairs, each of which fills kPairBytes. A row of the result takes
// `first`; one whose samples begin a step further on takes `second`, where all taps come one place later: so
// both share what is loaded and interleaved. Each has (taps + 2) / 2 pairs, filled up with zeros.
struct TapPairs {
  int count;
  const uint8_t *first, *second;
};

// How samples are paired and summed: in 32 bits, or, where the sums fit, in 16.
struct InDwords {
  using Tap = int16_t;
  static constexpr int kSumBytes = 4;
  template <int vectors, size_t bytes>
  using SumsOf = Sums<vectors, bytes>;

  template <int vectors, size_t bytes, typename Partner, typename Use>
  [[gnu::always_inline]] static void each(const uint8_t* a, Partner b, Use use) {
    eachPair<uint8_t, vectors, bytes>(a, b, use);
  }
};
struct InWords {
  using Tap = int8_t;
  static constexpr int kSumBytes = 2;
  template <int vectors, size_t bytes>
  using SumsOf = WordSums<vectors, bytes>;

  template <int vectors, size_t bytes, typename Partner, typename Use>
  [[gnu::always_inline]] static void each(const uint8_t* a, Partner b, Use use) {
    eachBytePair<vectors, bytes>(a, b, use);
  }
};

// A block of so many samples of one row of the result, or of two whose samples are a step apart.
template <typename Form, int rows, int samples, typename Divide>
[[gnu::always_inline]] inline void storeTapSums(const TapPairs& taps, const uint8_t* p, ptrdiff_t step,
                                                TargetRows dst, const Divide& divide) {
  constexpr size_t bytes = kBlockVector<samples>;
  constexpr int vectors = samples * Form::kSumBytes / static_cast<int>(bytes);
  using Tap = typename Form::Tap;
  typename Form::template SumsOf<vectors, bytes> sums[rows];
  const uint8_t* first = taps.first;
  [[maybe_unused]] const uint8_t* second = taps.second;
  const auto add = [&](const uint8_t* a, auto partner) {
    Form::template each<vectors, bytes>(a, partner, [&](int i, auto pair) {
      sums[0].add(i, pair, tapsAt<bytes, Tap>(first));
      if constexpr (rows == 2) sums[1].add(i, pair, tapsAt<bytes, Tap>(second));
    });
    first += kPairBytes;
    if constexpr (rows == 2) second += kPairBytes;
  };
  int left = taps.count + rows - 1;
  for (; left > 1; left -= 2, p += 2 * step) add(p, p + step);
  if (left > 0) add(p, NoPartner());
  for (int r = 0; r < rows; ++r) storeSums<uint8_t>(dst.row(r), sums[r], divide);
}

}  // namespace lumi
