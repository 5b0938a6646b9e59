// SPDX-License-Identifier: MIT
#include "kernels/filters/window_means.hpp"

#include <cstring>
#include <type_traits>

#include "kernels/filters/window_floats.hpp"
#include "kernels/simd/convert.hpp"
#include "kernels/simd/elementary.hpp"
#include "kernels/simd/ties_to_even.hpp"

namespace lumi {
namespace {

using namespace simd;

// make(sums, dst) makes a block of results. The last block steps back, and is made before the results that it
// lies over; a row that is shorter than a block is made in copies.
template <typename T, typename Sum, size_t block, typename Make>
[[gnu::always_inline]] inline void inMeanBlocks(const Byte* sums, Byte* dst, size_t samples,
                                                const Make& make) {
  if (samples < block) {
    Byte few[block * sizeof(Sum)] = {}, means[block * sizeof(T)];
    std::memcpy(few, sums, samples * sizeof(Sum));
    make(few, means);
    std::memcpy(dst, means, samples * sizeof(T));
    return;
  }
  const size_t last = samples - block;
  Byte means[block * sizeof(T)];
  if (samples % block != 0) make(sums + last * sizeof(Sum), means);
  for (size_t i = 0; i <= last; i += block) make(sums + i * sizeof(Sum), dst + i * sizeof(T));
  if (samples % block != 0) std::memcpy(dst + last * sizeof(T), means, sizeof(means));
}

U8 packed(U16 a, U16 b) { return narrowSigned<uint8_t>(as<int16_t>(a), as<int16_t>(b)); }
U8 packed(S32 a, S32 b, S32 c, S32 d) {
  return narrowSigned<uint8_t>(narrowSigned<int16_t>(a, b), narrowSigned<int16_t>(c, d));
}

template <typename T>
Samples16<T> vectorAt(const Byte* p, size_t i) {
  return {load16(p + 16 * i)};
}

void wordMeans(const WindowMean& mean, const Byte* sums, Byte* dst, size_t samples) {
  const U16 factor = broadcast16(static_cast<uint16_t>(mean.factor)),
            half = broadcast16(static_cast<uint16_t>(mean.half));
  const Shift up(mean.up), down(mean.down);
  inMeanBlocks<uint8_t, uint16_t, 16>(sums, dst, samples, [=](const Byte* s, Byte* d) {
    const auto mean8 = [=](U16 sum) { return (multiplyHigh(sum << up, factor) + half) >> down; };
    store16(d, packed(mean8(vectorAt<uint16_t>(s, 0)), mean8(vectorAt<uint16_t>(s, 1))).v);
  });
}

void dwordMeans(const WindowMean& mean, const Byte* sums, Byte* dst, size_t samples) {
  const S32 factor = broadcast16(static_cast<int32_t>(mean.factor));
  const U32 half = broadcast16(mean.half);
  const Shift down(mean.down);
  inMeanBlocks<uint8_t, uint32_t, 16>(sums, dst, samples, [=](const Byte* s, Byte* d) {
    const auto mean4 = [=](size_t i) {
      return as<int32_t>((as<uint32_t>(vectorAt<int32_t>(s, i) * factor) + half) >> down);
    };
    store16(d, packed(mean4(0), mean4(1), mean4(2), mean4(3)).v);
  });
}

// Eight sums as floats.
template <typename Sum, bool wholeRange = false>
Floats8 floatsAt(const Byte* sums, size_t i) {
  if constexpr (std::is_floating_point_v<Sum>) {
    return loadFloats8(sums + 32 * i);
  } else if constexpr (sizeof(Sum) == 2) {
    const auto four = [&](size_t k) { return widen<int32_t>(U16{loadFew<8>(sums + 16 * i + 8 * k)}); };
    return floatsOf(joined(four(0), four(1)));
  } else if constexpr (wholeRange) {
    return joined(floatsOf(vectorAt<uint32_t>(sums, 2 * i)), floatsOf(vectorAt<uint32_t>(sums, 2 * i + 1)));
  } else {
    return floatsOf(Ints8{load32(sums + 32 * i)});
  }
}

template <typename T, typename Sum, bool cutOff>
void floatMeans(const WindowMean& mean, const Byte* sums, Byte* dst, size_t samples) {
  const auto reciprocal = broadcastFloat<Floats8>(static_cast<float>(mean.reciprocal)),
             lift = broadcastFloat<Floats8>(9e-6F);
  inMeanBlocks<T, Sum, 16>(sums, dst, samples, [=](const Byte* s, Byte* d) {
    const auto mean8 = [=](size_t i) {
      const Floats8 x = reciprocal * floatsAt<Sum>(s, i);
      return cutOff ? simd::truncated(lift + x) : roundedToEven(x);
    };
    const Ints8 a = mean8(0), b = mean8(1);
    if constexpr (sizeof(T) == 1) {
      store16(d, packed(lowHalf(a), highHalf(a), lowHalf(b), highHalf(b)).v);
    } else {
      store16(d, narrowSigned<T>(lowHalf(a), highHalf(a)).v);
      store16(d + 16, narrowSigned<T>(lowHalf(b), highHalf(b)).v);
    }
  });
}

template <typename T, typename Sum>
void floatSums(const WindowMean&, const Byte* sums, Byte* dst, size_t samples) {
  inMeanBlocks<float, Sum, 8>(sums, dst, samples, [=](const Byte* s, Byte* d) {
    store32(d, bytesOf(floatsAt<Sum, std::is_unsigned_v<T>>(s, 0)));
  });
}

}  // namespace

WindowMean wordMean(uint32_t factor, bool rounded, int shift, int up) {
  // The product's lower word has no part in the rounding: half is a multiple of 2^16.
  const int down = shift + up - 16;
  return {wordMeans, factor, rounded ? 1u << (down - 1) : 0, up, down, 0};
}

WindowMean dwordMean(uint32_t factor, int shift) {
  return {dwordMeans, factor, 1u << (shift - 1), 0, shift, 0};
}

template <typename T, typename Sum>
WindowMean nearestMean(float reciprocal) {
  return {floatMeans<T, Sum, false>, 0, 0, 0, 0, reciprocal};
}
template <typename Sum>
WindowMean truncatedMean(float reciprocal) {
  return {floatMeans<uint8_t, Sum, true>, 0, 0, 0, 0, reciprocal};
}
template <typename F>
WindowMean floatMean(F reciprocal) {
  const auto row = [](const WindowMean& mean, const Byte* sums, Byte* dst, size_t samples) {
    scaleFloats<F>(sums, static_cast<F>(mean.reciprocal), dst, samples);
  };
  return {row, 0, 0, 0, 0, reciprocal};
}
template <typename T, typename Sum>
WindowMean floatSum() {
  return {floatSums<T, Sum>};
}

template WindowMean nearestMean<uint8_t, uint16_t>(float);
template WindowMean nearestMean<uint8_t, uint32_t>(float);
template WindowMean nearestMean<uint8_t, float>(float);
template WindowMean nearestMean<uint16_t, uint32_t>(float);
template WindowMean nearestMean<uint16_t, float>(float);
template WindowMean nearestMean<int16_t, uint32_t>(float);
template WindowMean nearestMean<int16_t, float>(float);
template WindowMean truncatedMean<uint32_t>(float);
template WindowMean truncatedMean<float>(float);
template WindowMean floatMean<float>(float);
template WindowMean floatMean<double>(double);
template WindowMean floatSum<uint8_t, uint16_t>();
template WindowMean floatSum<uint8_t, uint32_t>();
template WindowMean floatSum<uint8_t, float>();
template WindowMean floatSum<uint16_t, uint32_t>();
template WindowMean floatSum<uint16_t, float>();
template WindowMean floatSum<int16_t, uint32_t>();
template WindowMean floatSum<int16_t, float>();

}  // namespace lumi
