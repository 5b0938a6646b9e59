// SPDX-License-Identifier: MIT
#include "kernels/geometry/resize_by_two.hpp"

#include <algorithm>

#include "kernels/path_count.hpp"
#include "kernels/simd/resize.hpp"

namespace lumi {
namespace {

using namespace simd;

// Bytes, or pixels of three, and their right neighbours as pairs of samples.
template <int channels>
Bytes16 neighbours(Bytes16 pixels) {
  if constexpr (channels == 1) return pixels;
  constexpr Control kPairs{0, 3, 1, 4, 2, 5, 6, 9, 7, 10, 8, 11, kZero, kZero, kZero, kZero};
  return shuffleBytes(pixels, vectorOf(kPairs));
}

// Blocks make kStored samples from twice as many, of which kUsed count.
template <typename T, int channels>
struct Halves;

// Both stages round to (a + b + c + d + 2) >> 2.
template <int channels>
struct Halves<uint8_t, channels> {
  static constexpr size_t kStored = 16, kUsed = channels == 3 ? 12 : 16;

  static S16 mean(const Byte* first, const Byte* second) {
    const S8 ones = broadcast16<int8_t>(1);
    const S16 sum = multiplyAddPairs(U8{neighbours<channels>(load16(first))}, ones) +
                    multiplyAddPairs(U8{neighbours<channels>(load16(second))}, ones);
    return multiplyHighRounded(sum, broadcast16<int16_t>(1 << 13));
  }
  static void block(const Byte* first, const Byte* second, Byte* dst) {
    const Bytes16 v = narrowSaturated<uint8_t>(mean(first, second), mean(first + kUsed, second + kUsed)).v;
    constexpr Control kSixes{0, 1, 2, 3, 4, 5, 8, 9, 10, 11, 12, 13, kZero, kZero, kZero, kZero};
    store16(dst, channels == 3 ? shuffleBytes(v, vectorOf(kSixes)) : v);
  }
};

// In bytes: the mean of two means, each rounded up, is one too large where the means differ in their last bit
// and one of them was rounded.
template <>
struct Halves<uint8_t, 4> {
  static constexpr size_t kStored = 16, kUsed = 16;

  static void block(const Byte* first, const Byte* second, Byte* dst) {
    const Bytes16 a = load16Once(first), b = load16Once(first + 16);
    const Bytes16 c = load16Once(second), d = load16Once(second + 16);
    const U8 upperLeft{evenPixels<4>(a, b)}, upperRight{oddDwords(a, b)};
    const U8 lowerLeft{evenPixels<4>(c, d)}, lowerRight{oddDwords(c, d)};
    const U8 upper = averageUp(upperLeft, upperRight), lower = averageUp(lowerLeft, lowerRight);
    const U8 roundedUp = (upperLeft ^ upperRight) | (lowerLeft ^ lowerRight);
    const U8 excess = roundedUp & (upper ^ lower) & broadcast16<uint8_t>(1);
    store16(dst, (averageUp(upper, lower) - excess).v);
  }
};

// Sums of four words are exact in floats, and so are their quarters, which are rounded once.
template <typename T>
struct HalvesOfWords {
  static constexpr size_t kStored = 8, kUsed = 8;

  static S32 sum(const Byte* first, const Byte* second) {
    const Bytes16 a = load16(first), b = load16(second);
    return lowWords<T>(a) + highWords<T>(a) + lowWords<T>(b) + highWords<T>(b);
  }
  static void block(const Byte* first, const Byte* second, Byte* dst) {
    const Floats8 sums = floatsOf(joined(sum(first, second), sum(first + 16, second + 16)));
    const Ints8 means = roundedToEven(sums * broadcastWide(0.25F));
    store16(dst, narrowSaturated<T>(lowHalf(means), highHalf(means)).v);
  }
};
template <>
struct Halves<uint16_t, 1> : HalvesOfWords<uint16_t> {};
template <>
struct Halves<int16_t, 1> : HalvesOfWords<int16_t> {};

template <>
struct Halves<float, 1> {
  static constexpr size_t kStored = 8, kUsed = 8;

  static Floats8 halfway(Floats8 a, Floats8 b) { return a + (b - a) * broadcastWide(0.5F); }
  static Floats8 columns(const Byte* p) {
    const Bytes32 a = joined(load16(p), load16(p + 32)), b = joined(load16(p + 16), load16(p + 48));
    return halfway(evens(a, b), odds(a, b));
  }
  static void block(const Byte* first, const Byte* second, Byte* dst) {
    store32(dst, bytesOf(halfway(columns(first), columns(second))));
  }
};

// Blocks take kGaps pixels, each with its right neighbour, and make two results of each in each of two rows.
// They store kStored bytes.
template <typename T, int channels>
struct Doubles;

// Between four neighbours, both stages round S = 9 a + 3 b + 3 c + d to (S + 8) >> 4.
template <int channels>
struct Doubles<uint8_t, channels> {
  static constexpr size_t kGaps = channels == 1 ? 8 : 2, kStored = 16;

  struct TwoRows {
    S16 nearFirst, nearSecond;
  };

  // Sums of both rows with a bias; where the weights are 16 times as large, they fill all 16 bits.
  static TwoRows sums(U8 first, U8 second, S8 weights, int16_t bias) {
    const S16 p = multiplyAddPairs(first, weights), q = multiplyAddPairs(second, weights);
    const S16 sum = p + q + broadcast16(bias);
    return {sum + (p + p), sum + (q + q)};
  }
  // The results next to the left samples are the low bytes, those next to the right ones the high bytes.
  static Bytes16 inOrder(S16 left, S16 right) {
    const Bytes16 words =
        bitOr((U16{left.v} >> Shift(4)).v, bitAnd(right.v, broadcast16<uint16_t>(0xFF00).v));
    if constexpr (channels == 1) return words;
    constexpr Control kPixels =
        channels == 3 ? Control{0, 2, 4, 1, 3, 5, 6, 8, 10, 7, 9, 11, kZero, kZero, kZero, kZero}
                      : Control{0, 2, 4, 6, 1, 3, 5, 7, 8, 10, 12, 14, 9, 11, 13, 15};
    return shuffleBytes(words, vectorOf(kPixels));
  }
  static U8 pairs(const Byte* p) { return interleaveLow(U8{loadFew<8>(p)}, U8{loadFew<8>(p + channels)}); }

  static void block(const Byte* first, const Byte* second, Byte* nearFirst, Byte* nearSecond) {
    const U8 a = pairs(first), b = pairs(second);
    const TwoRows left = sums(a, b, {broadcast16<int16_t>(0x0103).v}, 8);
    const TwoRows right = sums(a, b, {broadcast16<int16_t>(0x3010).v}, 8 * 16);
    store16(nearFirst, inOrder(left.nearFirst, right.nearFirst));
    store16(nearSecond, inOrder(left.nearSecond, right.nearSecond));
  }
};

template <>
struct Doubles<float, 1> {
  static constexpr size_t kGaps = 8, kStored = 64;

  struct Quarters {
    Floats8 nearFirst, nearSecond;
  };
  static Quarters between(Floats8 a, Floats8 b) {
    const Floats8 difference = b - a;
    return {a + difference * broadcastWide(0.25F), a + difference * broadcastWide(0.75F)};
  }
  static void interleave(Byte* dst, Floats8 left, Floats8 right) {
    const Bytes32 low = interleaveLow(left, right), high = interleaveHigh(left, right);
    store32(dst, permuteHalves<0, 0>(low, high));
    store32(dst + 32, permuteHalves<1, 1>(low, high));
  }
  static void block(const Byte* first, const Byte* second, Byte* nearFirst, Byte* nearSecond) {
    const Quarters p = between(loadFloats8(first), loadFloats8(first + 4));
    const Quarters q = between(loadFloats8(second), loadFloats8(second + 4));
    const Quarters left = between(p.nearFirst, q.nearFirst), right = between(p.nearSecond, q.nearSecond);
    interleave(nearFirst, left.nearFirst, right.nearFirst);
    interleave(nearSecond, left.nearSecond, right.nearSecond);
  }
};

// Some pixels of a block, from pixel `left` of its first gap on.
template <typename Block, size_t kPixel>
void doublePart(const Byte* first, const Byte* second, Byte* nearFirst, Byte* nearSecond, size_t left,
                size_t pixels) {
  Byte rows[2][Block::kStored] = {}, results[2][Block::kStored];
  const size_t read = ((left + pixels + 1) / 2 + 1) * kPixel;
  std::memcpy(rows[0], first, read);
  std::memcpy(rows[1], second, read);
  Block::block(rows[0], rows[1], results[0], results[1]);
  std::memcpy(nearFirst, results[0] + left * kPixel, pixels * kPixel);
  std::memcpy(nearSecond, results[1] + left * kPixel, pixels * kPixel);
}

}  // namespace

template <typename T, int channels>
void halveRows(const uint8_t* first, const uint8_t* second, uint8_t* dst, size_t count) {
  countPath(Path::LinearHalved);
  using Block = Halves<T, channels>;
  constexpr size_t kStored = Block::kStored * sizeof(T), kUsed = Block::kUsed * sizeof(T);
  const size_t bytes = count * channels * sizeof(T);
  size_t i = 0;
  for (; i + kStored <= bytes; i += kUsed) Block::block(first + 2 * i, second + 2 * i, dst + i);
  for (; i < bytes; i += kUsed) {
    const size_t rest = std::min(bytes - i, kUsed);
    Byte rows[2][2 * kStored] = {}, result[kStored];
    std::memcpy(rows[0], first + 2 * i, 2 * rest);
    std::memcpy(rows[1], second + 2 * i, 2 * rest);
    Block::block(rows[0], rows[1], result);
    std::memcpy(dst + i, result, rest);
  }
}

template <typename T, int channels>
void doubleRows(const uint8_t* first, const uint8_t* second, uint8_t* nearFirst, uint8_t* nearSecond,
                size_t phase, size_t count) {
  countPath(Path::LinearDoubled);
  using Block = Doubles<T, channels>;
  constexpr size_t kPixel = channels * sizeof(T), kUsed = 2 * Block::kGaps * kPixel;
  const size_t bytes = count * kPixel;
  size_t from = 0, i = 0;
  if (phase != 0 && count > 0) {
    doublePart<Block, kPixel>(first, second, nearFirst, nearSecond, 1, 1);
    from = i = kPixel;
  }
  for (; i + Block::kStored <= bytes; i += kUsed, from += kUsed / 2)
    Block::block(first + from, second + from, nearFirst + i, nearSecond + i);
  for (; i < bytes; i += kUsed, from += kUsed / 2)
    doublePart<Block, kPixel>(first + from, second + from, nearFirst + i, nearSecond + i, 0,
                              std::min(bytes - i, kUsed) / kPixel);
}

template void halveRows<uint8_t, 1>(const uint8_t*, const uint8_t*, uint8_t*, size_t);
template void halveRows<uint8_t, 3>(const uint8_t*, const uint8_t*, uint8_t*, size_t);
template void halveRows<uint8_t, 4>(const uint8_t*, const uint8_t*, uint8_t*, size_t);
template void halveRows<uint16_t, 1>(const uint8_t*, const uint8_t*, uint8_t*, size_t);
template void halveRows<int16_t, 1>(const uint8_t*, const uint8_t*, uint8_t*, size_t);
template void halveRows<float, 1>(const uint8_t*, const uint8_t*, uint8_t*, size_t);
template void doubleRows<uint8_t, 1>(const uint8_t*, const uint8_t*, uint8_t*, uint8_t*, size_t, size_t);
template void doubleRows<uint8_t, 3>(const uint8_t*, const uint8_t*, uint8_t*, uint8_t*, size_t, size_t);
template void doubleRows<uint8_t, 4>(const uint8_t*, const uint8_t*, uint8_t*, uint8_t*, size_t, size_t);
template void doubleRows<float, 1>(const uint8_t*, const uint8_t*, uint8_t*, uint8_t*, size_t, size_t);

}  // namespace lumi
