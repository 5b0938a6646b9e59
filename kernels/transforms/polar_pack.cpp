// SPDX-License-Identifier: MIT
#include "kernels/transforms/polar_pack.hpp"

#include "kernels/data/copy.hpp"
#include "kernels/simd/convert.hpp"
#include "kernels/simd/pairs.hpp"

namespace lumi {
namespace {

using namespace simd;

template <typename T>
Samples16<T> negativeOf(Samples16<T> x) {
  return subSaturated(broadcast16(T{0}), x);
}

// Of as many numbers as sixteen bytes hold parts.
template <typename T>
Samples16<T> imaginaryParts(const Byte* numbers) {
  const Bytes16 first = load16(numbers), second = load16(numbers + 16);
  if constexpr (sizeof(T) == 2)
    return narrowSigned<int16_t>(shiftRight<16>(S32{first}), shiftRight<16>(S32{second}));
  else
    return {oddDwords(first, second)};
}

}  // namespace

template <int sample, int channels>
void joinParts(const uint8_t* pairs, uint8_t* numbers, size_t count) {
  constexpr size_t pair = 2 * sample * channels;
  if constexpr (channels == 1) {
    copyRow(pairs, numbers, count * pair);
  } else {
    static_assert(channels == 3);
    for (size_t at = 0; at < count * pair; at += pair)
      if constexpr (sample == 2) {
        store16(numbers + at, WordPairs<3, 3>::load(pairs + at));
      } else {
        const Parts<16> x = DwordPairs<3, 3, 16>::load(pairs + at);
        store16(numbers + at, interleaveLowDwords(x.real, x.imaginary));
        storeFirst8(numbers + at + 16, interleaveHighDwords(x.real, x.imaginary));
      }
  }
}

template <typename T>
void lowerNumbers(const uint8_t* numbers, uint8_t* lowered, size_t count) {
  constexpr Control kImaginaryWords = {0, 0, 0xFF, 0xFF, 0, 0, 0xFF, 0xFF,
                                       0, 0, 0xFF, 0xFF, 0, 0, 0xFF, 0xFF};
  constexpr Control kImaginaryDwords = {0, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0xFF,
                                        0, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0xFF};
  const Samples16<T> isImaginary{vectorOf(sizeof(T) == 2 ? kImaginaryWords : kImaginaryDwords)};
  for (size_t at = 0; at < 2 * count * sizeof(T); at += 16) {
    const Samples16<T> x{load16(numbers + at)};
    store16(lowered + at, ifThenElse(isImaginary, min(x, negativeOf(x)), x).v);
  }
}

template <typename T>
void bothPhases(const uint8_t* phases, const uint8_t* numbers, uint8_t* own, uint8_t* conjugate,
                size_t count) {
  for (size_t at = 0; at < count * sizeof(T); at += 16)
    if constexpr (std::is_same_v<T, float>) {
      const S32 x{load16(phases + at)};
      store16(own + at, x.v);
      store16(conjugate + at, (x ^ broadcast16(INT32_MIN)).v);
    } else {
      const Samples16<T> x{load16(phases + at)}, imaginary = imaginaryParts<T>(numbers + 2 * at),
                                                 none = broadcast16(T{0});
      store16(own + at, ifThenElse(isAboveSigned(imaginary, none), negativeOf(x), x).v);
      store16(conjugate + at, ifThenElse(isAboveSigned(none, imaginary), negativeOf(x), x).v);
    }
}

template void joinParts<2, 1>(const uint8_t*, uint8_t*, size_t);
template void joinParts<2, 3>(const uint8_t*, uint8_t*, size_t);
template void joinParts<4, 1>(const uint8_t*, uint8_t*, size_t);
template void joinParts<4, 3>(const uint8_t*, uint8_t*, size_t);
template void lowerNumbers<int16_t>(const uint8_t*, uint8_t*, size_t);
template void lowerNumbers<int32_t>(const uint8_t*, uint8_t*, size_t);
template void bothPhases<int16_t>(const uint8_t*, const uint8_t*, uint8_t*, uint8_t*, size_t);
template void bothPhases<int32_t>(const uint8_t*, const uint8_t*, uint8_t*, uint8_t*, size_t);
template void bothPhases<float>(const uint8_t*, const uint8_t*, uint8_t*, uint8_t*, size_t);

}  // namespace lumi
