// SPDX-License-Identifier: MIT
#include "kernels/filters/fixed_means.hpp"

namespace lumi {
namespace simd {
namespace {

// Words of each half of the samples.
struct WordPair {
  Samples<uint16_t> even, odd;
};
WordPair operator+(WordPair a, WordPair b) { return {a.even + b.even, a.odd + b.odd}; }

// A row of weights comes to 65,025 at most, which a word holds; two rows above or below the centre to 40,290.
// All five need more, 145,605.
struct GaussOfBytes5 {
  using Source = uint8_t;
  using Result = uint8_t;
  static constexpr int kRows = 5, kVectors = 1;

  WordPair outermost{}, next{};  // of the row before
  WordPair last{};
  // By row: both rows above a centre, and centres. Rows of a band are few enough to keep all of them.
  WordPair above[kBandRows + 4], centres[kBandRows + 4];
  int row = -1;

  GaussOfBytes5() {}  // NOLINT: what is not written is not read

  void take(WindowRows rows) {
    const RowWindow<uint8_t> x{rows};
    const auto outer = x.outer(), inner = x.inner(), here = x.at(0);
    const auto words = [](WordPairSums v) { return WordPair{as<uint16_t>(v.even), as<uint16_t>(v.odd)}; };
    const WordPair ofOutermost = words(GaussRows::outer(outer, inner, here)),
                   ofNext = words(GaussRows::inner(outer, inner, here));
    ++row;
    above[row] = outermost + ofNext;
    centres[row] = words(GaussRows::centre(outer, inner, here));
    last = next + ofOutermost;
    outermost = ofOutermost;
    next = ofNext;
  }

  WordPairSums result(WindowRows) const {
    const WordPair &first = above[row - 3], &centre = centres[row - 2];
    return {divided(first.even, centre.even, last.even), divided(first.odd, centre.odd, last.odd)};
  }

  // The sum S by 571, to nearest, which is what (float)S * (1.0f / 571) rounds to: no S is nearer to a tie
  // than 1 / 1142. S / 4, off by one at the most, gives a quotient that is right or one too low; the rest
  // tells, which words hold.
  template <size_t bytes>
  static SamplesOf<int16_t, bytes> divided(SamplesOf<uint16_t, bytes> a, SamplesOf<uint16_t, bytes> b,
                                           SamplesOf<uint16_t, bytes> c) {
    const auto quarter = averageUp(averageUp(a, c), shiftRight<1>(b));
    const auto quotient = as<int16_t>(multiplyHigh(quarter, broadcastLike(quarter, uint16_t{459})));
    const auto rest = as<int16_t>(a + b + c) - quotient * broadcastLike(quotient, int16_t{571});
    return quotient - isAboveSigned(rest, broadcastLike(rest, int16_t{285}));
  }
};

}  // namespace

template <>
struct FilterOf<FixedFilter::Gauss5, uint8_t, uint8_t> {
  using Type = GaussOfBytes5;
};

}  // namespace simd

template <>
WindowFilter fixedFilter<uint8_t, uint8_t>(FixedFilter filter) {
  using F = FixedFilter;
  return simd::oneOf<uint8_t, uint8_t, F::SobelVert3, F::SobelHoriz3, F::PrewittVert, F::PrewittHoriz,
                     F::Laplace3, F::Laplace5, F::Hipass5, F::Gauss3, F::Gauss5, F::Lowpass3, F::Lowpass5,
                     F::Sharpen>(filter);
}

}  // namespace lumi
