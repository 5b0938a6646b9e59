// SPDX-License-Identifier: MIT
// Integer taps.
#include "kernels/filters/filter_border.hpp"

#include <algorithm>
#include <limits>
#include <type_traits>

#include "kernels/filters/filter_blocks.hpp"
#include "kernels/filters/filter_columns.hpp"
#include "kernels/path_count.hpp"
#include "kernels/simd/filter.hpp"

namespace lumi {
namespace {

using namespace simd;

constexpr size_t kPairBytes = 16;

// Sums of `vectors` vectors. Samples of a pair of columns are interleaved by sixteen bytes, and so are the
// sums until they are narrowed.
template <int vectors, size_t bytes>
struct Sums {
  SamplesOf<int32_t, bytes> at[vectors] = {};

  void add(int i, SamplesOf<int16_t, bytes> pairs, SamplesOf<int16_t, bytes> taps) {
    at[i] = at[i] + multiplyAddPairs(pairs, taps);
  }
};

// How a block of so many samples is done: in vectors as wide as the build has where it fills four of them.
template <int samples>
inline constexpr size_t kBlockVector = samples * sizeof(int32_t) >= 4 * kVectorBytes ? kVectorBytes : 16;

// A pair of taps, all over a vector.
template <size_t bytes>
SamplesOf<int16_t, bytes> tapsAt(const Byte* packed) {
  if constexpr (bytes == 16)
    return {load16(packed)};
  else
    return {joined(load16(packed), load16(packed))};
}

// A column of an odd kernel has no partner; what lies there may be behind the image.
struct NoColumn {};

template <size_t bytes, typename T>
auto partnerOf(const Byte* p, T) {
  return loadSamples<bytes, T>(p);
}
template <size_t bytes, typename T>
auto partnerOf(NoColumn, T zero) {
  return broadcastLike(decltype(loadSamples<bytes, T>(nullptr))(), zero);
}

inline const Byte* partnerAt(const Byte* p, size_t bytes) { return p + bytes; }
inline NoColumn partnerAt(NoColumn, size_t) { return {}; }

// Adds the products of columns a and b.
template <typename T, int vectors, size_t bytes, typename Partner>
void addPair(Sums<vectors, bytes>& sums, const Byte* a, Partner b, SamplesOf<int16_t, bytes> taps) {
  if constexpr (sizeof(T) == 1) {
    constexpr size_t loaded = vectors * bytes / 4;
    const auto x = loadSamples<loaded, uint8_t>(a), y = partnerOf<loaded>(b, uint8_t{0});
    const auto low = interleaveLow(x, y);
    sums.add(0, wordsLow(low), taps);
    sums.add(1, wordsHigh(low), taps);
    if constexpr (vectors == 4) {
      const auto high = interleaveHigh(x, y);
      sums.add(2, wordsLow(high), taps);
      sums.add(3, wordsHigh(high), taps);
    }
  } else {
    for (int i = 0; i < vectors; i += 2) {
      const size_t at = bytes / 2 * static_cast<size_t>(i);
      const auto x = loadSamples<bytes, int16_t>(a + at);
      const auto y = partnerOf<bytes>(partnerAt(b, at), int16_t{0});
      sums.add(i, interleaveLow(x, y), taps);
      sums.add(i + 1, interleaveHigh(x, y), taps);
    }
  }
}

template <typename T, int vectors, size_t bytes>
[[gnu::always_inline]] inline Sums<vectors, bytes> sumsOf(const FilterTaps& taps, FilterSource src) {
  const ptrdiff_t column = src.channels * static_cast<ptrdiff_t>(sizeof(T));
  const Byte* packed = reinterpret_cast<const Byte*>(taps.packed);
  Sums<vectors, bytes> sums;
  for (int y = 0; y < taps.rows; ++y) {
    const Byte* p = src.first + y * src.step;
    for (int x = taps.columns; x > 1; x -= 2, p += 2 * column, packed += kPairBytes)
      addPair<T>(sums, p, p + column, tapsAt<bytes>(packed));
    if (taps.columns % 2 == 0) continue;
    addPair<T>(sums, p, NoColumn(), tapsAt<bytes>(packed));
    packed += kPairBytes;
  }
  return sums;
}

// Divided by a power of two, to nearest, ties to even. The part below the quotient is rounded by itself: with
// the whole sum the bias could leave the type. Words do for shifts of up to 14.
template <typename T>
class ByShift {
 public:
  explicit ByShift(const FilterRounding& r)
      : shift_(r.shift),
        mask_(broadcast(static_cast<T>(r.mask))),
        bias_(broadcast(static_cast<T>(r.half - 1))) {}

  template <size_t bytes>
  SamplesOf<T, bytes> operator()(SamplesOf<T, bytes> sum) const {
    const auto quotient = sum >> shift_;
    const auto rest =
        (sum & firstOf<bytes>(mask_)) + firstOf<bytes>(bias_) + (quotient & broadcastLike(sum, T{1}));
    return quotient + (rest >> shift_);
  }

 private:
  Shift shift_;
  Samples<T> mask_, bias_;
};

// Multiplied by the divisor's reciprocal. What is above every sample is limited, so that it fits an integer.
class ByScale {
 public:
  explicit ByScale(const FilterRounding& r) : scale_(r.scale) {}

  template <size_t bytes>
  SamplesOf<int32_t, bytes> operator()(SamplesOf<int32_t, bytes> sum) const {
    const auto x = floatsOf(sum);
    using V = std::decay_t<decltype(x)>;
    return roundedToEven(min(broadcastFloat<V>(INT16_MAX), x * broadcastFloat<V>(scale_)));
  }
  template <size_t bytes>
  SamplesOf<int16_t, bytes> operator()(SamplesOf<int16_t, bytes> sum) const {
    const auto sign = shiftRight<15>(sum);
    return narrowInterleaved<int16_t>((*this)(as<int32_t>(interleaveLow(sum, sign))),
                                      (*this)(as<int32_t>(interleaveHigh(sum, sign))));
  }

 private:
  float scale_;
};

template <typename T, int vectors, size_t bytes, typename Divide>
void storeSums(Byte* dst, const Sums<vectors, bytes>& sums, const Divide& divide) {
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

template <typename T, typename Divide>
void filterBlocks(const FilterTaps& taps, FilterSource src, Byte* dst, size_t samples, const Divide& divide) {
  inVectorBlocks(samples, [&](auto count, size_t i) {
    constexpr size_t bytes = kBlockVector<decltype(count)::value>;
    constexpr int vectors = decltype(count)::value * 4 / static_cast<int>(bytes);
    const size_t at = i * sizeof(T);
    storeSums<T>(dst + at, sumsOf<T, vectors, bytes>(taps, src.at(at)), divide);
  });
}

// Sums of 8-bit samples in words, for taps that are bytes and so small that no sum leaves a word.
template <int vectors, size_t bytes>
struct WordSums {
  SamplesOf<int16_t, bytes> at[vectors] = {};
};

template <int vectors, size_t bytes>
[[gnu::always_inline]] inline WordSums<vectors, bytes> wordSumsOf(const FilterTaps& taps, FilterSource src) {
  constexpr size_t loaded = vectors * bytes / 2;
  const Byte* packed = reinterpret_cast<const Byte*>(taps.packed);
  WordSums<vectors, bytes> sums;
  const auto add = [&](const Byte* a, auto partner) {
    const auto x = loadSamples<loaded, uint8_t>(a), y = partnerOf<loaded>(partner, uint8_t{0});
    const auto pair = tapsAt<bytes>(packed);
    const auto factors = narrowInterleaved<int8_t>(pair, pair);
    sums.at[0] = sums.at[0] + multiplyAddPairs(interleaveLow(x, y), factors);
    if constexpr (vectors == 2) sums.at[1] = sums.at[1] + multiplyAddPairs(interleaveHigh(x, y), factors);
    packed += kPairBytes;
  };
  for (int y = 0; y < taps.rows; ++y) {
    const Byte* p = src.first + y * src.step;
    for (int x = taps.columns; x > 1; x -= 2, p += 2 * src.channels) add(p, p + src.channels);
    if (taps.columns % 2) add(p, NoColumn());
  }
  return sums;
}

struct AsTheyAre {
  template <size_t bytes>
  SamplesOf<int16_t, bytes> operator()(SamplesOf<int16_t, bytes> sum) const {
    return sum;
  }
};

template <typename Divide>
void filterWordSums(const FilterTaps& taps, FilterSource src, Byte* dst, size_t samples,
                    const Divide& divide) {
  countPath(Path::FilterWordSums);
  inVectorBlocks(samples, [&](auto count, size_t i) {
    constexpr size_t bytes = kBlockVector<decltype(count)::value>;
    constexpr int vectors = decltype(count)::value * 2 / static_cast<int>(bytes);
    const auto sums = wordSumsOf<vectors, bytes>(taps, src.at(i));
    const auto first = divide(sums.at[0]);
    if constexpr (vectors == 2)
      storeVector(dst + i, narrowInterleaved<uint8_t>(first, divide(sums.at[1])).v);
    else
      storeFirst8(dst + i, narrowInterleaved<uint8_t>(first, first).v);
  });
}

constexpr int kMostWordShift = 14;

template <typename T>
using WideSum = std::conditional_t<sizeof(T) == 1, int32_t, int64_t>;

template <typename T>
WideSum<T> sumAt(const FilterTaps& taps, FilterSource src) {
  const ptrdiff_t column = src.channels * static_cast<ptrdiff_t>(sizeof(T));
  const int16_t* tap = taps.integers + static_cast<ptrdiff_t>(taps.columns) * taps.rows;
  std::make_unsigned_t<WideSum<T>> sum = 0;
  for (int y = 0; y < taps.rows; ++y) {
    const Byte* p = src.first + y * src.step;
    for (int x = 0; x < taps.columns; ++x, p += column) {
      T sample;
      move<sizeof(T)>(reinterpret_cast<Byte*>(&sample), p);
      sum += static_cast<std::make_unsigned_t<WideSum<T>>>(sample * *--tap);  // 8u sums wrap
    }
  }
  return static_cast<WideSum<T>>(sum);
}

// x to nearest, ties to even or away from zero, where it is within the limits of T.
template <typename T>
int64_t rounded(double x, bool tiesToEven) {
  using Limits = std::numeric_limits<T>;
  if (x >= Limits::max()) return Limits::max();
  if (x <= Limits::min()) return Limits::min();
  const double magnitude = x < 0 ? -x : x;
  auto result = static_cast<int64_t>(magnitude + 0.5);
  if (tiesToEven && static_cast<double>(result) - magnitude == 0.5) result &= ~int64_t{1};
  // Below a half the sum with it may be rounded up to 1.
  if (magnitude < 0.5) result = 0;
  return x < 0 ? -result : result;
}

int64_t shifted(int64_t sum, const FilterRounding& r) {
  if (r.mode == 0) return (sum < 0 ? sum + r.mask : sum) >> r.shift;
  const int64_t quotient = sum >> r.shift, rest = sum & r.mask;
  if (r.mode == 1) return quotient + (((quotient & 1) + rest + r.half - 1) >> r.shift);
  return sum < 0 ? quotient + ((rest + r.half - 1) >> r.shift) : (sum + r.half) >> r.shift;
}

template <typename T>
int64_t divided(int64_t sum, const FilterRounding& r) {
  if (r.divisorClass == DivisorClass::One) return sum;
  if (r.divisorClass == DivisorClass::PowerOfTwo) {
    if (std::is_unsigned_v<T> && sum < 1) return 0;
    return shifted(sum, r);
  }
  if (r.mode == 0) return sum / r.divisor;
  return rounded<T>(static_cast<double>(sum) / r.divisorD, r.mode == 1);
}

template <typename T>
T sampleOf(int64_t sum, const FilterRounding& r) {
  using Limits = std::numeric_limits<T>;
  return static_cast<T>(std::clamp<int64_t>(divided<T>(sum, r), Limits::min(), Limits::max()));
}

}  // namespace

template <typename T>
void filterWide(const FilterTaps& taps, const FilterRounding& rounding, FilterSource src, uint8_t* dst,
                size_t samples) {
  if (rounding.shift > 0)
    filterBlocks<T>(taps, src, dst, samples, ByShift<int32_t>(rounding));
  else
    filterBlocks<T>(taps, src, dst, samples, ByScale(rounding));
}

void filterWideSmall(const FilterTaps& taps, const FilterRounding& rounding, FilterSource src, uint8_t* dst,
                     size_t samples) {
  if (rounding.shift > kMostWordShift)
    filterWide<uint8_t>(taps, rounding, src, dst, samples);
  else if (rounding.shift > 0)
    filterWordSums(taps, src, dst, samples, ByShift<int16_t>(rounding));
  else if (rounding.divisorClass == DivisorClass::One)
    filterWordSums(taps, src, dst, samples, AsTheyAre());
  else
    filterWordSums(taps, src, dst, samples, ByScale(rounding));
}

template <typename T>
void filterNarrow(const FilterTaps& taps, const FilterRounding& rounding, FilterSource src, uint8_t* dst,
                  size_t samples, bool packed) {
  const auto store = [&](size_t i, int64_t sum) {
    const T sample = sampleOf<T>(sum, rounding);
    move<sizeof(T)>(dst + i * sizeof(T), reinterpret_cast<const Byte*>(&sample));
  };
  // To nearest, ties to even, both forms are the same but for divisors that are no power of two.
  const bool asWide = rounding.divisorClass == DivisorClass::One ||
                      (rounding.divisorClass == DivisorClass::PowerOfTwo && rounding.mode == 1);
  if (packed && samples >= 8 && asWide) return filterWide<T>(taps, rounding, src, dst, samples);
  if (packed && samples >= 8)
    return inBlocks<8, 8>(samples, [&](auto, size_t first) {
      const auto sums = sumsOf<T, 2, 16>(taps, src.at(first * sizeof(T)));
      int32_t each[8];
      for (int i = 0; i < 2; ++i) store16(reinterpret_cast<Byte*>(each + 4 * i), sums.at[i].v);
      for (size_t i = 0; i < 8; ++i) store(first + i, each[i]);
    });
  for (size_t i = 0; i < samples; ++i) store(i, sumAt<T>(taps, src.at(i * sizeof(T))));
}

template <typename T>
void filterNarrowStrip(const FilterTaps& taps, const FilterRounding& rounding, FilterSource src,
                       FilterStrip dst) {
  filterColumns<T, uint32_t>(taps, taps.integers, src, dst,
                             [&](uint32_t sum) { return sampleOf<T>(static_cast<int32_t>(sum), rounding); });
}

template void filterWide<uint8_t>(const FilterTaps&, const FilterRounding&, FilterSource, uint8_t*, size_t);
template void filterWide<int16_t>(const FilterTaps&, const FilterRounding&, FilterSource, uint8_t*, size_t);
template void filterNarrow<uint8_t>(const FilterTaps&, const FilterRounding&, FilterSource, uint8_t*, size_t,
                                    bool);
template void filterNarrow<int16_t>(const FilterTaps&, const FilterRounding&, FilterSource, uint8_t*, size_t,
                                    bool);
template void filterNarrowStrip<uint8_t>(const FilterTaps&, const FilterRounding&, FilterSource, FilterStrip);
template void filterNarrowStrip<int16_t>(const FilterTaps&, const FilterRounding&, FilterSource, FilterStrip);

}  // namespace lumi
