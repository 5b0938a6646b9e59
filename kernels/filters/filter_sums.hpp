// SPDX-License-Identifier: MIT
// Sums of integer taps over 8-bit and 16-bit samples, two taps at a time, and how they become samples.
#pragma once

#include <cstdint>
#include <type_traits>

#include "kernels/filters/filter_border.hpp"
#include "kernels/simd/filter.hpp"

namespace lumi {

inline constexpr size_t kPairBytes = 16;

// Sums of `vectors` vectors. Samples of a pair of taps are interleaved by sixteen bytes, and so are the
// sums until they are narrowed.
template <int vectors, size_t bytes>
struct Sums {
  simd::SamplesOf<int32_t, bytes> at[vectors] = {};

  void add(int i, simd::SamplesOf<int16_t, bytes> pairs, simd::SamplesOf<int16_t, bytes> taps) {
    at[i] = at[i] + multiplyAddPairs(pairs, taps);
  }
};

// Sums of 8-bit samples in words, for taps that are bytes and so small that no sum leaves a word.
template <int vectors, size_t bytes>
struct WordSums {
  simd::SamplesOf<int16_t, bytes> at[vectors] = {};

  void add(int i, simd::SamplesOf<uint8_t, bytes> pairs, simd::SamplesOf<int8_t, bytes> taps) {
    at[i] = at[i] + multiplyAddPairs(pairs, taps);
  }
};

// How a block of so many samples is done: in vectors as wide as the build has where it fills four of them.
template <int samples>
inline constexpr size_t kBlockVector = samples * sizeof(int32_t) >= 4 * simd::kVectorBytes
                                           ? simd::kVectorBytes
                                           : 16;

// A pair of taps, all over a vector.
template <size_t bytes, typename Tap = int16_t>
simd::SamplesOf<Tap, bytes> tapsAt(const simd::Byte* packed) {
  if constexpr (bytes == 16)
    return {simd::load16(packed)};
  else
    return {simd::joined(simd::load16(packed), simd::load16(packed))};
}

// A tap without a partner; what lies there may be behind the image.
struct NoPartner {};

template <size_t bytes, typename T>
auto partnerOf(const simd::Byte* p, T) {
  return simd::loadSamples<bytes, T>(p);
}
template <size_t bytes, typename T>
auto partnerOf(NoPartner, T zero) {
  return broadcastLike(decltype(simd::loadSamples<bytes, T>(nullptr))(), zero);
}

inline const simd::Byte* partnerAt(const simd::Byte* p, size_t bytes) { return p + bytes; }
inline NoPartner partnerAt(NoPartner, size_t) { return {}; }

// Calls use(i, words) for each vector of the samples under a pair of taps.
template <typename T, int vectors, size_t bytes, typename Partner, typename Use>
[[gnu::always_inline]] inline void eachPair(const simd::Byte* a, Partner b, Use use) {
  using namespace simd;
  if constexpr (sizeof(T) == 1) {
    constexpr size_t loaded = vectors * bytes / 4;
    const auto x = loadSamples<loaded, uint8_t>(a), y = partnerOf<loaded>(b, uint8_t{0});
    const auto low = interleaveLow(x, y);
    use(0, wordsLow(low));
    use(1, wordsHigh(low));
    if constexpr (vectors == 4) {
      const auto high = interleaveHigh(x, y);
      use(2, wordsLow(high));
      use(3, wordsHigh(high));
    }
  } else {
    for (int i = 0; i < vectors; i += 2) {
      const size_t at = bytes / 2 * static_cast<size_t>(i);
      const auto x = loadSamples<bytes, int16_t>(a + at);
      const auto y = partnerOf<bytes>(partnerAt(b, at), int16_t{0});
      use(i, interleaveLow(x, y));
      use(i + 1, interleaveHigh(x, y));
    }
  }
}

// The same with bytes, for sums in words.
template <int vectors, size_t bytes, typename Partner, typename Use>
[[gnu::always_inline]] inline void eachBytePair(const simd::Byte* a, Partner b, Use use) {
  using namespace simd;
  constexpr size_t loaded = vectors * bytes / 2;
  const auto x = loadSamples<loaded, uint8_t>(a), y = partnerOf<loaded>(b, uint8_t{0});
  use(0, interleaveLow(x, y));
  if constexpr (vectors == 2) use(1, interleaveHigh(x, y));
}

// Divided by a power of two, to nearest, ties to even. The part below the quotient is rounded by itself: with
// the whole sum the bias could leave the type. Words do for shifts of up to
// kMostWordShift.
template <typename T>
class ByShift {
 public:
  explicit ByShift(const FilterRounding& r)
      : shift_(r.shift),
        mask_(simd::broadcast(static_cast<T>(r.mask))),
        bias_(simd::broadcast(static_cast<T>(r.half - 1))) {}

  template <size_t bytes>
  simd::SamplesOf<T, bytes> operator()(simd::SamplesOf<T, bytes> sum) const {
    const auto quotient = sum >> shift_;
    const auto rest = (sum & simd::firstOf<bytes>(mask_)) + simd::firstOf<bytes>(bias_) +
                      (quotient & broadcastLike(sum, T{1}));
    return quotient + (rest >> shift_);
  }

 private:
  simd::Shift shift_;
  simd::Samples<T> mask_, bias_;
};

inline constexpr int kMostWordShift = 14;

// The same for sums that are not negative and may take all of a word.
class ByShiftUnsigned {
 public:
  explicit ByShiftUnsigned(const FilterRounding& r) : divide_(r) {}

  template <size_t bytes>
  simd::SamplesOf<int16_t, bytes> operator()(simd::SamplesOf<int16_t, bytes> sum) const {
    return simd::as<int16_t>(divide_(simd::as<uint16_t>(sum)));
  }

 private:
  ByShift<uint16_t> divide_;
};

// Multiplied by the divisor's reciprocal. What is above every sample is limited, so that it fits an integer.
class ByScale {
 public:
  explicit ByScale(const FilterRounding& r) : scale_(r.scale) {}

  template <size_t bytes>
  simd::SamplesOf<int32_t, bytes> operator()(simd::SamplesOf<int32_t, bytes> sum) const {
    const auto x = floatsOf(sum);
    using V = std::decay_t<decltype(x)>;
    return roundedToEven(min(simd::broadcastFloat<V>(INT16_MAX), x * simd::broadcastFloat<V>(scale_)));
  }
  template <size_t bytes>
  simd::SamplesOf<int16_t, bytes> operator()(simd::SamplesOf<int16_t, bytes> sum) const {
    const auto sign = simd::shiftRight<15>(sum);
    return simd::narrowInterleaved<int16_t>((*this)(simd::as<int32_t>(interleaveLow(sum, sign))),
                                            (*this)(simd::as<int32_t>(interleaveHigh(sum, sign))));
  }

 private:
  float scale_;
};

struct AsTheyAre {
  template <size_t bytes>
  simd::SamplesOf<int16_t, bytes> operator()(simd::SamplesOf<int16_t, bytes> sum) const {
    return sum;
  }
};

template <typename T, int vectors, size_t bytes, typename Divide>
[[gnu::always_inline]] inline void storeSums(simd::Byte* dst, const Sums<vectors, bytes>& sums,
                                             const Divide& divide) {
  using namespace simd;
  const auto words = [&](int i) {
    return narrowInterleaved<int16_t>(divide(sums.at[i]), divide(sums.at[i + 1]));
  };
  if constexpr (sizeof(T) == 2) {
    for (int i = 0; i < vectors; i += 2) storeVector(dst + bytes / 2 * static_cast<size_t>(i), words(i).v);
  } else if constexpr (vectors == 4) {
    storeVector(dst, narrowInterleaved<uint8_t>(words(0), words(2)).v);
  } else {
    storeFirst8(dst, narrowInterleaved<uint8_t>(words(0), words(0)).v);
  }
}

template <typename T, int vectors, size_t bytes, typename Divide>
[[gnu::always_inline]] inline void storeSums(simd::Byte* dst, const WordSums<vectors, bytes>& sums,
                                             const Divide& divide) {
  static_assert(sizeof(T) == 1);
  const auto first = divide(sums.at[0]);
  if constexpr (vectors == 2)
    simd::storeVector(dst, simd::narrowInterleaved<uint8_t>(first, divide(sums.at[1])).v);
  else
    simd::storeFirst8(dst, simd::narrowInterleaved<uint8_t>(first, first).v);
}

// Calls run(divide) with what makes samples of sums in dwords.
template <typename Run>
void withDivision(const FilterRounding& rounding, Run run) {
  if (rounding.shift > 0)
    run(ByShift<int32_t>(rounding));
  else
    run(ByScale(rounding));
}

// The same for sums in words, where the shift is one that words do for.
template <typename Run>
void withWordDivision(const FilterRounding& rounding, Run run) {
  if (rounding.shift > 0)
    run(ByShift<int16_t>(rounding));
  else if (rounding.divisorClass == DivisorClass::One)
    run(AsTheyAre());
  else
    run(ByScale(rounding));
}

}  // namespace lumi
