// SPDX-License-Identifier: MIT
// Integer taps.
#include "kernels/filters/filter_border.hpp"

#include <algorithm>
#include <limits>
#include <type_traits>

#include "kernels/filters/filter_blocks.hpp"
#include "kernels/filters/filter_columns.hpp"
#include "kernels/filters/filter_sums.hpp"
#include "kernels/path_count.hpp"

namespace lumi {
namespace {

using namespace simd;

template <typename T, int vectors, size_t bytes>
[[gnu::always_inline]] inline Sums<vectors, bytes> sumsOf(const FilterTaps& taps, FilterSource src) {
  const ptrdiff_t column = src.channels * static_cast<ptrdiff_t>(sizeof(T));
  const Byte* packed = reinterpret_cast<const Byte*>(taps.packed);
  Sums<vectors, bytes> sums;
  const auto add = [&](const Byte* a, auto partner) {
    const auto pair = tapsAt<bytes>(packed);
    eachPair<T, vectors, bytes>(a, partner, [&](int i, auto samples) { sums.add(i, samples, pair); });
    packed += kPairBytes;
  };
  for (int y = 0; y < taps.rows; ++y) {
    const Byte* p = src.first + y * src.step;
    for (int x = taps.columns; x > 1; x -= 2, p += 2 * column) add(p, p + column);
    if (taps.columns % 2) add(p, NoPartner());
  }
  return sums;
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

template <int vectors, size_t bytes>
[[gnu::always_inline]] inline WordSums<vectors, bytes> wordSumsOf(const FilterTaps& taps, FilterSource src) {
  const Byte* packed = reinterpret_cast<const Byte*>(taps.packed);
  WordSums<vectors, bytes> sums;
  const auto add = [&](const Byte* a, auto partner) {
    const auto pair = tapsAt<bytes>(packed);
    const auto factors = narrowInterleaved<int8_t>(pair, pair);
    eachBytePair<vectors, bytes>(a, partner, [&](int i, auto samples) { sums.add(i, samples, factors); });
    packed += kPairBytes;
  };
  for (int y = 0; y < taps.rows; ++y) {
    const Byte* p = src.first + y * src.step;
    for (int x = taps.columns; x > 1; x -= 2, p += 2 * src.channels) add(p, p + src.channels);
    if (taps.columns % 2) add(p, NoPartner());
  }
  return sums;
}

template <typename Divide>
void filterWordSums(const FilterTaps& taps, FilterSource src, Byte* dst, size_t samples,
                    const Divide& divide) {
  countPath(Path::FilterWordSums);
  inVectorBlocks(samples, [&](auto count, size_t i) {
    constexpr size_t bytes = kBlockVector<decltype(count)::value>;
    constexpr int vectors = decltype(count)::value * 2 / static_cast<int>(bytes);
    storeSums<uint8_t>(dst + i, wordSumsOf<vectors, bytes>(taps, src.at(i)), divide);
  });
}

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
  withDivision(rounding, [&](const auto& divide) { filterBlocks<T>(taps, src, dst, samples, divide); });
}

void filterWideSmall(const FilterTaps& taps, const FilterRounding& rounding, FilterSource src, uint8_t* dst,
                     size_t samples) {
  if (rounding.shift > kMostWordShift)
    filterWide<uint8_t>(taps, rounding, src, dst, samples);
  else
    withWordDivision(rounding, [&](const auto& divide) { filterWordSums(taps, src, dst, samples, divide); });
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
