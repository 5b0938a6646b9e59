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

// Sums of 4 * vectors samples.
template <int vectors>
struct Sums {
  S32 at[vectors] = {};
};

// Adds the products of a pair of columns a and b, each of 4 * vectors samples.
template <int vectors>
void addPair(Sums<vectors>& sums, const uint8_t*, const Byte* a, const Byte* b, S16 taps) {
  const U8 x{loadFew<4 * vectors>(a)}, y{loadFew<4 * vectors>(b)};
  const U8 low = interleaveLow(x, y);
  sums.at[0] = sums.at[0] + multiplyAddPairs(wordsLow(low), taps);
  sums.at[1] = sums.at[1] + multiplyAddPairs(wordsHigh(low), taps);
  if constexpr (vectors == 4) {
    const U8 high = interleaveHigh(x, y);
    sums.at[2] = sums.at[2] + multiplyAddPairs(wordsLow(high), taps);
    sums.at[3] = sums.at[3] + multiplyAddPairs(wordsHigh(high), taps);
  }
}
template <int vectors>
void addPair(Sums<vectors>& sums, const int16_t*, const Byte* a, const Byte* b, S16 taps) {
  for (int i = 0; i < vectors; i += 2) {
    const S16 x{load16(a + 8 * i)}, y{load16(b + 8 * i)};
    sums.at[i] = sums.at[i] + multiplyAddPairs(interleaveLow(x, y), taps);
    sums.at[i + 1] = sums.at[i + 1] + multiplyAddPairs(interleaveHigh(x, y), taps);
  }
}

// The last column of an odd kernel: its partner's tap is 0, but it may lie behind the image.
template <int vectors, typename T>
void addSingle(Sums<vectors>& sums, const T*, const Byte* a, S16 taps) {
  for (int i = 0; i < vectors; ++i) {
    const auto x = widen<uint32_t>(
        Samples<std::make_unsigned_t<T>>{loadFew<4 * sizeof(T)>(a + 4 * sizeof(T) * static_cast<size_t>(i))});
    sums.at[i] = sums.at[i] + multiplyAddPairs({x.v}, taps);
  }
}

template <int vectors, typename T>
[[gnu::always_inline]] inline Sums<vectors> sumsOf(const FilterTaps& taps, FilterSource src) {
  constexpr const T* type = nullptr;
  const ptrdiff_t column = src.channels * static_cast<ptrdiff_t>(sizeof(T));
  const Byte* packed = reinterpret_cast<const Byte*>(taps.packed);
  Sums<vectors> sums;
  for (int y = 0; y < taps.rows; ++y) {
    const Byte* p = src.first + y * src.step;
    for (int x = taps.columns; x > 1; x -= 2, p += 2 * column, packed += kPairBytes)
      addPair(sums, type, p, p + column, {load16(packed)});
    if (taps.columns % 2 == 0) continue;
    addSingle(sums, type, p, {load16(packed)});
    packed += kPairBytes;
  }
  return sums;
}

// Divided by a power of two, to nearest, ties to even. The part below the quotient is rounded by itself: with
// the whole sum the bias could leave the type.
class ByShift {
 public:
  explicit ByShift(const FilterRounding& r)
      : shift_(r.shift), mask_(broadcast<int32_t>(r.mask)), bias_(broadcast<int32_t>(r.half - 1)) {}

  S32 operator()(S32 sum) const {
    const S32 quotient = sum >> shift_;
    const S32 rest = (sum & mask_) + bias_ + (quotient & broadcast<int32_t>(1));
    return quotient + (rest >> shift_);
  }

 private:
  Shift shift_;
  S32 mask_, bias_;
};

// Multiplied by the divisor's reciprocal. What is above every sample is limited, so that it fits an integer.
class ByScale {
 public:
  explicit ByScale(const FilterRounding& r) : scale_(broadcastFloat<Floats4>(r.scale)) {}

  S32 operator()(S32 sum) const {
    return roundedToEven(limitedFromAbove(floatsOf(sum) * scale_, broadcastFloat<Floats4>(INT16_MAX)));
  }

 private:
  Floats4 scale_;
};

template <int vectors, typename T, typename Divide>
void storeSums(Byte* dst, const Sums<vectors>& sums, const T*, const Divide& divide) {
  for (int i = 0; i < vectors; i += 2) {
    const S16 words = narrowSaturated<int16_t>(divide(sums.at[i]), divide(sums.at[i + 1]));
    if constexpr (sizeof(T) == 2)
      store16(dst + 8 * i, words.v);
    else
      storeFirst8(dst + 4 * i, narrowSaturated<uint8_t>(words, words).v);
  }
}

template <typename T, typename Divide>
void filterBlocks(const FilterTaps& taps, FilterSource src, Byte* dst, size_t samples, const Divide& divide) {
  inBlocks<16, 8>(samples, [&](auto count, size_t i) {
    constexpr int vectors = decltype(count)::value / 4;
    constexpr const T* type = nullptr;
    const size_t at = i * sizeof(T);
    storeSums(dst + at, sumsOf<vectors, T>(taps, src.at(at)), type, divide);
  });
}

// Sums of 8-bit samples in words, for taps that are bytes and so small that no sum leaves a word.
template <int vectors>
struct WordSums {
  S16 at[vectors] = {};
};

template <int vectors>
[[gnu::always_inline]] inline WordSums<vectors> wordSumsOf(const FilterTaps& taps, FilterSource src) {
  const Byte* packed = reinterpret_cast<const Byte*>(taps.packed);
  WordSums<vectors> sums;
  const auto add = [&](U8 x, U8 y) {
    const S16 pair{load16(packed)};
    const S8 factors = simd::narrowSaturated<int8_t>(pair, pair);
    sums.at[0] = sums.at[0] + multiplyAddPairs(interleaveLow(x, y), factors);
    if constexpr (vectors == 2) sums.at[1] = sums.at[1] + multiplyAddPairs(interleaveHigh(x, y), factors);
    packed += kPairBytes;
  };
  for (int y = 0; y < taps.rows; ++y) {
    const Byte* p = src.first + y * src.step;
    for (int x = taps.columns; x > 1; x -= 2, p += 2 * src.channels)
      add({loadFew<8 * vectors>(p)}, {loadFew<8 * vectors>(p + src.channels)});
    if (taps.columns % 2) add({loadFew<8 * vectors>(p)}, broadcast<uint8_t>(0));
  }
  return sums;
}

// As ByShift, for shifts of up to 14: the rest of a division fits a word.
class WordsByShift {
 public:
  explicit WordsByShift(const FilterRounding& r)
      : shift_(r.shift),
        mask_(broadcast(static_cast<int16_t>(r.mask))),
        bias_(broadcast(static_cast<int16_t>(r.half - 1))) {}

  S16 operator()(S16 sum) const {
    const S16 quotient = sum >> shift_;
    const S16 rest = (sum & mask_) + bias_ + (quotient & broadcast<int16_t>(1));
    return quotient + (rest >> shift_);
  }

 private:
  Shift shift_;
  S16 mask_, bias_;
};

struct WordsAsTheyAre {
  S16 operator()(S16 sum) const { return sum; }
};

class WordsByScale {
 public:
  explicit WordsByScale(const FilterRounding& r) : scale_(r) {}

  S16 operator()(S16 sum) const {
    return narrowSaturated<int16_t>(scale_(widen<int32_t>(sum)), scale_(widen<int32_t>(upperHalf(sum))));
  }

 private:
  ByScale scale_;
};

template <typename Divide>
void filterWordSums(const FilterTaps& taps, FilterSource src, Byte* dst, size_t samples,
                    const Divide& divide) {
  countPath(Path::FilterWordSums);
  inBlocks<16, 8>(samples, [&](auto count, size_t i) {
    constexpr int vectors = decltype(count)::value / 8;
    const WordSums<vectors> sums = wordSumsOf<vectors>(taps, src.at(i));
    const S16 first = divide(sums.at[0]);
    if constexpr (vectors == 2)
      store16(dst + i, narrowSaturated<uint8_t>(first, divide(sums.at[1])).v);
    else
      storeFirst8(dst + i, narrowSaturated<uint8_t>(first, first).v);
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
    filterBlocks<T>(taps, src, dst, samples, ByShift(rounding));
  else
    filterBlocks<T>(taps, src, dst, samples, ByScale(rounding));
}

void filterWideSmall(const FilterTaps& taps, const FilterRounding& rounding, FilterSource src, uint8_t* dst,
                     size_t samples) {
  if (rounding.shift > kMostWordShift)
    filterWide<uint8_t>(taps, rounding, src, dst, samples);
  else if (rounding.shift > 0)
    filterWordSums(taps, src, dst, samples, WordsByShift(rounding));
  else if (rounding.divisorClass == DivisorClass::One)
    filterWordSums(taps, src, dst, samples, WordsAsTheyAre());
  else
    filterWordSums(taps, src, dst, samples, WordsByScale(rounding));
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
      const Sums<2> sums = sumsOf<2, T>(taps, src.at(first * sizeof(T)));
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
