// SPDX-License-Identifier: MIT
#include "kernels/filters/filter_box.hpp"

#include "kernels/filters/fixed_functions.hpp"

namespace lumi {
namespace simd {
namespace {

// sum * 29128 / 2^18, cut off or to nearest; a factor of 16 bits takes in what its 2^3 leaves.
struct CutOff {
  template <size_t bytes>
  static SamplesOf<int16_t, bytes> of(SamplesOf<int16_t, bytes> sum) {
    const auto words = as<uint16_t>(sum);
    return as<int16_t>(multiplyHigh(words, broadcastLike(words, uint16_t{29128 / 4})));
  }
};
struct Nearest {
  template <size_t bytes>
  static SamplesOf<int16_t, bytes> of(SamplesOf<int16_t, bytes> sum) {
    const auto words = as<uint16_t>(sum);
    const auto fourfold = multiplyHigh(words, broadcastLike(words, uint16_t{29128}));
    return as<int16_t>(shiftRight<2>(fourfold + broadcastLike(words, uint16_t{2})));
  }
};

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

}  // namespace lumi
