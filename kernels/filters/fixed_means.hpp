// SPDX-License-Identifier: MIT
// Fixed filters with weights that add up to a divisor, by the rules of each sample type.
#pragma once

#include "kernels/filters/fixed_functions.hpp"

namespace lumi::simd {

// A sixteenth, or an eighth, to nearest, ties to even; of floats times its reciprocal.
template <int bits>
struct ShiftedToEven {
  template <typename T, size_t bytes>
  static SamplesOf<T, bytes> of(SamplesOf<T, bytes> sum) {
    const auto odd = shiftRight<bits>(sum) & broadcastLike(sum, T{1});
    return shiftRight<bits>(sum + broadcastLike(sum, T{(1 << (bits - 1)) - 1}) + odd);
  }
  static Floats8 of(Floats8 sum) { return sum * broadcastFloat<Floats8>(1.0F / (1 << bits)); }
};

template <typename S, typename D>
struct FilterOf<FixedFilter::Gauss3, S, D> {
  using Type = Separable<S, D, 3, Smooth3, JoinedTwice, ShiftedToEven<4>>;
};
template <typename S, typename D>
struct FilterOf<FixedFilter::Sharpen, S, D> {
  using Type = AgainstSum<S, D, 3, 17, Box3, BoxDown3, ShiftedToEven<3>>;
};

// Means of 9 or 25 samples by the reciprocals that are part of the interface. They are not exact divisions.
template <typename S, int count>
struct MeanOf;

// 7281 is 2^16 / 9, and 10485 is 2^18 / 25, both cut.
template <int count>
struct MeanOf<uint8_t, count> {
  template <size_t bytes>
  static SamplesOf<int16_t, bytes> of(SamplesOf<int16_t, bytes> sum) {
    const auto more = as<uint16_t>(sum + broadcastLike(sum, int16_t{(count + 1) / 2}));
    const auto high = multiplyHigh(more, broadcastLike(more, uint16_t{count == 9 ? 7281 : 10485}));
    return as<int16_t>(count == 9 ? high : shiftRight<2>(high));
  }
};

// Samples are taken from -32768 on; 477218588 is 2^32 / 9, and 171798691 2^32 / 25, both cut.
template <int count>
struct MeanOf<int16_t, count> {
  template <size_t bytes>
  static SamplesOf<int32_t, bytes> of(SamplesOf<int32_t, bytes> sum) {
    const auto more = as<uint32_t>(sum + broadcastLike(sum, int32_t{count * 32768 + (count + 1) / 2}));
    const auto mean = multiplyHigh(more, broadcastLike(more, uint32_t{count == 9 ? 477218588 : 171798691}));
    return as<int32_t>(mean) - broadcastLike(sum, int32_t{32768});
  }
};

template <int count>
struct MeanOf<float, count> {
  static Floats8 of(Floats8 sum) { return sum * broadcastFloat<Floats8>(count == 9 ? 0.11111111F : 0.04F); }
};
template <int count>
struct MeanOf<uint16_t, count> {
  template <size_t bytes>
  static SamplesOf<int32_t, bytes> of(SamplesOf<int32_t, bytes> sum) {
    const auto x = floatsOf(sum);
    return roundedToEven(x * broadcastFloat<std::decay_t<decltype(x)>>(count == 9 ? 0.11111111F : 0.04F));
  }
};

template <typename S, typename D>
struct FilterOf<FixedFilter::Lowpass3, S, D> {
  using Type = Separable<S, D, 3, Box3, BoxDown3, MeanOf<S, 9>>;
};
template <typename S, typename D>
struct FilterOf<FixedFilter::Lowpass5, S, D> {
  using Type = Separable<S, D, 5, Box5, BoxDown5, MeanOf<S, 25>>;
};

// 2 7 12 7 2, 7 31 52 31 7 and 12 52 127 52 12, which with the first two again add up to 571; floats are
// multiplied by the quotients.
struct GaussRows {
  template <int n, typename V>
  static V weighted(V x) {
    if constexpr (std::is_same_v<V, Floats8>)
      return x * broadcastFloat<V>(static_cast<float>(n / 571.0));
    else
      return times<n>(x);
  }
  template <int a, int b, int c, typename V>
  static V sum(V outer, V inner, V centre) {
    return weighted<a>(outer) + weighted<b>(inner) + weighted<c>(centre);
  }
  template <typename V>
  static V outer(V outer, V inner, V centre) {
    return sum<2, 7, 12>(outer, inner, centre);
  }
  template <typename V>
  static V inner(V outer, V inner, V centre) {
    return sum<7, 31, 52>(outer, inner, centre);
  }
  template <typename V>
  static V centre(V outer, V inner, V centre) {
    return sum<12, 52, 127>(outer, inner, centre);
  }
};

}  // namespace lumi::simd
