// SPDX-License-Identifier: MIT
#include "kernels/filters/threshold_adaptive.hpp"

#include <cstring>
#include <type_traits>

#include "kernels/simd/convert.hpp"
#include "kernels/simd/rounding.hpp"

namespace lumi {
namespace {

using namespace simd;

constexpr size_t kBlock = 16;

struct Sixteen {
  Floats8 first, last;
};

Sixteen floatsOfBytes(const Byte* p) {
  const U8 bytes{load16Once(p)};
  const U16 low = widenLow(bytes), high = widenHigh(bytes);
  const auto eight = [](U16 words) {
    return floatsOf(joined(as<int32_t>(widenLow(words)), as<int32_t>(widenHigh(words))));
  };
  return {eight(low), eight(high)};
}

template <typename Sum>
Floats8 floatsOfSums(const Byte* p) {
  if constexpr (std::is_same_v<Sum, uint16_t>) {
    const U16 words{load16Once(p)};
    return floatsOf(joined(as<int32_t>(widenLow(words)), as<int32_t>(widenHigh(words))));
  } else if constexpr (std::is_same_v<Sum, uint32_t>) {
    return floatsOf(Ints8{load32(p)});
  } else {
    return loadFloats8(p);
  }
}

// Bytes by sixteen comparisons of floats.
U8 chosen(Floats8 firstMask, Floats8 lastMask, U8 above, U8 notAbove) {
  const Ints8 first = intsOf(firstMask), last = intsOf(lastMask);
  const S8 mask = narrowSigned<int8_t>(narrowSigned<int16_t>(lowHalf(first), highHalf(first)),
                                       narrowSigned<int16_t>(lowHalf(last), highHalf(last)));
  return ifThenElse(as<uint8_t>(mask), above, notAbove);
}

// make(i) is a block of results of the samples from i on, which it reads beyond the last one of a short row:
// `few` then is a copy of the source.
template <typename Make>
[[gnu::always_inline]] inline void inBlocksOfBytes(const Byte* src, Byte* dst, size_t count,
                                                   const Make& make) {
  if (count < kBlock) {
    Byte few[kBlock] = {}, results[kBlock];
    std::memcpy(few, src, count);
    store16(results, make(few, 0).v);
    std::memcpy(dst, results, count);
    return;
  }
  for (size_t i = 0;;) {
    store16(dst + i, make(src + i, i).v);
    if (i + kBlock == count) return;
    i = i + 2 * kBlock <= count ? i + kBlock : count - kBlock;
  }
}

}  // namespace

template <typename Sum>
void compareWithSums(const AdaptiveRule& rule, const uint8_t* sums, const uint8_t* src, uint8_t* dst,
                     size_t count) {
  const auto area = broadcastFloat<Floats8>(rule.area), delta = broadcastFloat<Floats8>(rule.delta);
  const U8 above = broadcast16(rule.above), notAbove = broadcast16(rule.notAbove);
  inBlocksOfBytes(src, dst, count, [=](const Byte* s, size_t i) {
    const Sixteen pixels = floatsOfBytes(s);
    const Byte* const sum = sums + i * sizeof(Sum);
    const auto mask = [=](Floats8 pixel, size_t at) {
      return isAbove(area * pixel, floatsOfSums<Sum>(sum + at * sizeof(Sum)) - delta);
    };
    return chosen(mask(pixels.first, 0), mask(pixels.last, 8), above, notAbove);
  });
}

void compareWithNinths(const AdaptiveRule& rule, const uint8_t* sums, const uint8_t* src, uint8_t* dst,
                       size_t count) {
  const S16 nine = broadcast16(int16_t{9}), ninth = broadcast16(rule.ninth);
  const U8 above = broadcast16(rule.above), notAbove = broadcast16(rule.notAbove);
  inBlocksOfBytes(src, dst, count, [=](const Byte* s, size_t i) {
    const U8 pixels{load16Once(s)};
    // All of them are below 2^12 in magnitude.
    const auto mask = [=](S16 pixel, size_t at) {
      return isAbove(pixel * nine + ninth, S16{load16(sums + (i + at) * 2)});
    };
    const S8 both =
        narrowSigned<int8_t>(mask(as<int16_t>(widenLow(pixels)), 0), mask(as<int16_t>(widenHigh(pixels)), 8));
    return ifThenElse(as<uint8_t>(both), above, notAbove);
  });
}

void weighRows(const uint8_t* const* rows, const float* weights, int count, bool first, uint8_t* sums,
               size_t samples) {
  size_t i = 0;
  for (; i + kBlock <= samples; i += kBlock) {
    Byte* const sum = sums + i * sizeof(float);
    Sixteen total{};
    int k = 0;
    const auto product = [=](int row) {
      const auto weight = broadcastFloat<Floats8>(weights[row]);
      const Sixteen pixels = floatsOfBytes(rows[row] + i);
      return Sixteen{weight * pixels.first, weight * pixels.last};
    };
    if (first)
      total = product(k++);
    else
      total = {loadFloats8(sum), loadFloats8(sum + 32)};
    for (; k < count; ++k) {
      const Sixteen more = product(k);
      total = {total.first + more.first, total.last + more.last};
    }
    store32(sum, bytesOf(total.first));
    store32(sum + 32, bytesOf(total.last));
  }
  for (; i < samples; ++i) {
    float total = 0;
    if (!first) move<4>(reinterpret_cast<Byte*>(&total), sums + i * sizeof(float));
    for (int k = 0; k < count; ++k) total += weights[k] * static_cast<float>(rows[k][i]);
    move<4>(sums + i * sizeof(float), reinterpret_cast<const Byte*>(&total));
  }
}

void compareWithWeighed(const AdaptiveRule& rule, const uint8_t* columns, const float* weights, int taps,
                        const uint8_t* src, uint8_t* dst, size_t count) {
  const auto delta = broadcastFloat<Floats8>(rule.delta);
  const U8 above = broadcast16(rule.above), notAbove = broadcast16(rule.notAbove);
  const auto block = [=](const Byte* s, const Byte* column) {
    const auto product = [=](int k) {
      const auto weight = broadcastFloat<Floats8>(weights[k]);
      const Byte* const at = column + static_cast<size_t>(k) * sizeof(float);
      return Sixteen{weight * loadFloats8(at), weight * loadFloats8(at + 32)};
    };
    Sixteen mean = product(0);
    for (int k = 1; k < taps; ++k) {
      const Sixteen more = product(k);
      mean = {mean.first + more.first, mean.last + more.last};
    }
    const Sixteen pixels = floatsOfBytes(s);
    return chosen(isAbove(pixels.first, mean.first - delta), isAbove(pixels.last, mean.last - delta), above,
                  notAbove);
  };
  if (count >= kBlock)
    return inBlocksOfBytes(src, dst, count,
                           [=](const Byte* s, size_t i) { return block(s, columns + i * sizeof(float)); });
  for (size_t i = 0; i < count; ++i) {
    float mean = 0;
    for (int k = 0; k < taps; ++k) {
      float column = 0;
      move<4>(reinterpret_cast<Byte*>(&column), columns + (i + static_cast<size_t>(k)) * sizeof(float));
      mean += weights[k] * column;
    }
    dst[i] = static_cast<float>(src[i]) > mean - rule.delta ? rule.above : rule.notAbove;
  }
}

template void compareWithSums<uint16_t>(const AdaptiveRule&, const uint8_t*, const uint8_t*, uint8_t*,
                                        size_t);
template void compareWithSums<uint32_t>(const AdaptiveRule&, const uint8_t*, const uint8_t*, uint8_t*,
                                        size_t);
template void compareWithSums<float>(const AdaptiveRule&, const uint8_t*, const uint8_t*, uint8_t*, size_t);

}  // namespace lumi
