// SPDX-License-Identifier: MIT
#include "kernels/filters/filter_box.hpp"

#include "kernels/filters/fixed_functions.hpp"

namespace lumi {
namespace simd {
namespace {

// sum * 29128 / 2^18, cut off.
struct CutOff {
  template <size_t bytes>
  static SamplesOf<int16_t, bytes> of(SamplesOf<int16_t, bytes> sum) {
    const auto words = as<uint16_t>(sum);
    return as<int16_t>(multiplyHigh(words, broadcastLike(words, uint16_t{29128 / 4})));
  }
};
// (sum * factor + half) >> 16 + shift, where half is that of the shift: the product's lower word has no part
// in the rounding.
template <uint16_t factor, int shift>
struct NearestBy {
  template <size_t bytes>
  static SamplesOf<int16_t, bytes> of(SamplesOf<int16_t, bytes> sum) {
    const auto words = as<uint16_t>(sum);
    const auto more = multiplyHigh(words, broadcastLike(words, factor));
    return as<int16_t>(shiftRight<shift>(more + broadcastLike(words, uint16_t{1 << (shift - 1)})));
  }
};
using Nearest = NearestBy<29128, 2>;

template <typename Finish>
using BoxOfFive = Separable<uint8_t, uint8_t, 5, Box5, BoxDown5, Finish>;

// Neighbours are bytes side by side: one sum of pairs serves the samples at even and at odd places.
struct AdjacentBox3 {
  template <typename S>
  static WordPairSums of(RowWindow<S> x) {
    const Samples<uint8_t> bytes{loadVector(x.rows(x.row, 0))};
    const auto pairs = multiplyAddPairs(bytes, broadcastLike(as<int8_t>(bytes), int8_t{1}));
    return {pairs + x.at(-1).even, pairs + x.at(1).odd};
  }
};

}  // namespace
}  // namespace simd

const WindowFilter kBox3x3 = simd::windowFilter<
    simd::Separable<uint8_t, uint8_t, 3, simd::AdjacentBox3, simd::BoxDown3, simd::CutOff>>();
const WindowFilter kBox3x3Colours =
    simd::windowFilter<simd::Separable<uint8_t, uint8_t, 3, simd::Box3, simd::BoxDown3, simd::CutOff>>();
const WindowFilter kBox3x3Nearest =
    simd::windowFilter<simd::Separable<uint8_t, uint8_t, 3, simd::Box3, simd::BoxDown3, simd::Nearest>>();

const WindowFilter kBox5x5 = simd::windowFilter<simd::BoxOfFive<simd::NearestBy<20971, 3>>>();
const WindowFilter kBoxBorder5x5 = simd::windowFilter<simd::BoxOfFive<simd::NearestBy<41943, 4>>>();

}  // namespace lumi
