// SPDX-License-Identifier: MIT
// Integer samples as floats, and sums of floats as samples.
#pragma once

#include <limits>
#include <type_traits>

#include "kernels/filters/filter_blocks.hpp"
#include "kernels/simd/filter.hpp"

namespace lumi {

// Eight samples.
template <typename T>
simd::Floats8 floatsAt(const simd::Byte* p) {
  using namespace simd;
  if constexpr (sizeof(T) == 1) {
    const U8 x{loadFew<8>(p)};
    const U32 low = widen<uint32_t>(x), high = widen<uint32_t>(upperDword(x));
    return floatsOf(joined(S32{low.v}, S32{high.v}));
  } else {
    const auto half = [](const Byte* q) {
      return S32{
          widen<std::conditional_t<std::is_signed_v<T>, int32_t, uint32_t>>(Samples16<T>{loadFew<8>(q)}).v};
    };
    return floatsOf(joined(half(p), half(p + 8)));
  }
}

// To nearest, ties to even, and limited to the type; the least sample for what is not a number.
template <typename T>
void storeAs(simd::Byte* dst, simd::Floats8 sums) {
  using namespace simd;
  constexpr float highest = std::numeric_limits<T>::max();
  const Ints8 integers = roundedToEven(min(broadcastFloat<Floats8>(highest), sums));
  if constexpr (sizeof(T) == 1) {
    const S16 words = narrowSaturated<int16_t>(lowHalf(integers), highHalf(integers));
    storeFirst8(dst, narrowSaturated<uint8_t>(words, words).v);
  } else {
    store16(dst, narrowSaturated<T>(lowHalf(integers), highHalf(integers)).v);
  }
}

// At least eight samples.
template <typename T>
void toFloats(const simd::Byte* src, float* dst, size_t samples) {
  inBlocks<8, 8>(samples, [&](auto, size_t i) {
    simd::storeFloats(reinterpret_cast<simd::Byte*>(dst + i), floatsAt<T>(src + i * sizeof(T)));
  });
}

}  // namespace lumi
