// SPDX-License-Identifier: MIT
#include "kernels/simd/convert.hpp"
#include "kernels/transforms/dct_8x8.hpp"
#include "kernels/transforms/words8x8.hpp"

namespace lumi {
namespace {

using namespace simd;

// One dimension of an inverse as sums of products: of N samples, those in the first half are even + odd
// parts, their mirror images even - odd parts. Even parts take coefficients 0 and 2, then 4 and 6; odd parts
// 1 and 3, then 5 and 7. Weights are sqrt(8) a(u) cos(...) in parts of 2^13: with coefficient 0 twice,
// magnitudes of one sum come to less than 61300 of those parts, so that no sum of words leaves 32 bits, with
// what is added for rounding.
constexpr int kWeightBits = 13;
struct Pair {
  int16_t first, second;
};
template <int samples>
struct Weights {
  Pair even[samples / 2][2], odd[samples / 2][2];
};

// sqrt(2) cos(i pi / 16) * 2^13.
constexpr int16_t k0 = 8192, k1 = 11363, k2 = 10703, k3 = 9633, k4 = 8192, k5 = 6436, k6 = 4433, k7 = 2260;
constexpr Weights<8> kSamples = {
    {{{k0, k2}, {k4, k6}}, {{k0, k6}, {-k4, -k2}}, {{k0, -k6}, {-k4, k2}}, {{k0, -k2}, {k4, -k6}}},
    {{{k1, k3}, {k5, k7}}, {{k3, -k7}, {-k1, -k5}}, {{k5, -k1}, {k7, k3}}, {{k7, -k5}, {k3, -k1}}}};

// Means of two neighbours: each weight is that of a transform of four samples times cos(u pi / 16).
constexpr Weights<4> kMeansOfTwo = {{{{8192, 7568}, {0, -3135}}, {{8192, -7568}, {0, 3135}}},
                                    {{{10498, 3686}, {-2463, -2088}}, {{4348, -8900}, {5946, -865}}}};
// Means of four: coefficients 2, 4 and 6 have none.
constexpr Weights<2> kMeansOfFour = {{{{8192, 0}, {0, 0}}}, {{{7423, -2607}, {1742, -1477}}}};

// The samples of as many columns as words have lanes, or of their first four. Coefficients from `inputs` on
// are taken as zero; of two, so are those that lie in pairs with them.
template <int inputs, int shift, int lanes, int samples>
[[gnu::always_inline]] inline Words8x8 inverseColumns(const Words8x8& x, const Weights<samples>& weights) {
  const S16 zero = broadcast16(int16_t{0});
  const S16 second[] = {inputs > 2 ? x.row[2] : zero, inputs > 2 ? x.row[3] : zero};
  const S32 rounding = broadcast16(int32_t{1} << (shift - 1));
  const auto weigh = [](S16 pairs, Pair weight) {
    const int32_t both = static_cast<uint16_t>(weight.first) | weight.second * 65536;
    return multiplyAddPairs(pairs, as<int16_t>(broadcast16(both)));
  };
  // The sums of four columns, by pairs of coefficients that a function puts together.
  const auto sums = [&](auto pairsOf, S32(&first)[4], S32(&last)[4]) {
    const S16 even02 = pairsOf(x.row[0], second[0]), odd13 = pairsOf(x.row[1], second[1]);
    for (int i = 0; i < samples / 2; ++i) {
      S32 even = weigh(even02, weights.even[i][0]) + rounding, odd = weigh(odd13, weights.odd[i][0]);
      if constexpr (inputs > 4) {
        even = even + weigh(pairsOf(x.row[4], x.row[6]), weights.even[i][1]);
        odd = odd + weigh(pairsOf(x.row[5], x.row[7]), weights.odd[i][1]);
      }
      first[i] = shiftRight<shift>(even + odd);
      last[i] = shiftRight<shift>(even - odd);
    }
  };
  S32 lowFirst[4], lowLast[4], highFirst[4], highLast[4];
  sums([](S16 a, S16 b) { return interleaveLow(a, b); }, lowFirst, lowLast);
  if constexpr (lanes == 8) sums([](S16 a, S16 b) { return interleaveHigh(a, b); }, highFirst, highLast);
  Words8x8 y{};
  for (int i = 0; i < samples / 2; ++i) {
    y.row[i] = narrowSigned<int16_t>(lowFirst[i], lanes == 8 ? highFirst[i] : lowFirst[i]);
    y.row[samples - 1 - i] = narrowSigned<int16_t>(lowLast[i], lanes == 8 ? highLast[i] : lowLast[i]);
  }
  return y;
}

// Words between the stages are the samples of the columns times sqrt(8) * 2^(kWeightBits - firstShift): 2^3
// of them for samples up to 511. Both stages together multiply by 8, which the second shift takes away.
constexpr int kFirstShift = kWeightBits - 3;
template <int firstShift>
constexpr int kSecondShift = 2 * kWeightBits + 3 - firstShift;

template <int inputs, int firstShift>
[[gnu::always_inline]] inline Words8x8 inverse(const Words8x8& coefficients) {
  constexpr int kLanes = inputs > 4 ? 8 : 4;
  const Words8x8 columns = inverseColumns<inputs, firstShift, kLanes>(coefficients, kSamples);
  return transposed(inverseColumns<inputs, kSecondShift<firstShift>, 8>(transposed(columns), kSamples));
}

void storeBlock(const Words8x8& words, Byte* block) {
  for (int y = 0; y < 8; ++y) store16(block + 16 * y, words.row[y].v);
}

template <int side>
Words8x8 loadCorner(const Byte* block) {
  Words8x8 words{};
  for (int y = 0; y < side; ++y) words.row[y] = {loadFew<2 * side>(block + 16 * y)};
  return words;
}

}  // namespace

void inverseWords8x8(const Byte* block, TargetRows dst) {
  const Words8x8 samples = inverse<8, kFirstShift>(loadWords8x8(block));
  for (int y = 0; y < 8; ++y) store16(dst.row(y), samples.row[y].v);
}

void inverseBytes8x8(const Byte* block, TargetRows dst, ByteRange range) {
  const Words8x8 samples = inverse<8, kFirstShift>(loadWords8x8(block));
  const S16 shift = broadcast16(range.levelShift);
  const U8 least = broadcast16(range.least), most = broadcast16(range.most);
  for (int y = 0; y < 8; y += 2) {
    const U8 bytes =
        narrowSigned<uint8_t>(addSaturated(samples.row[y], shift), addSaturated(samples.row[y + 1], shift));
    const Bytes16 limited = min(max(bytes, least), most).v;
    storeFirst8(dst.row(y), limited);
    storeLast8(dst.row(y + 1), limited);
  }
}

void inverseTenBits8x8(const Byte* block, Byte* samples) {
  storeBlock(inverse<8, kFirstShift + 1>(loadWords8x8(block)), samples);
}

void inverseOfCorner2(const Byte* block, Byte* samples) {
  storeBlock(inverse<2, kFirstShift>(loadCorner<2>(block)), samples);
}

void inverseOfCorner4(const Byte* block, Byte* samples) {
  storeBlock(inverse<4, kFirstShift>(loadCorner<4>(block)), samples);
}

void meansOfInverse2(const Byte* block, Byte* means) {
  constexpr int kShift = kFirstShift + 1;
  const Words8x8 columns = transposed(inverseColumns<8, kShift, 8>(loadWords8x8(block), kMeansOfFour));
  const Words8x8 result = inverseColumns<8, kSecondShift<kShift>, 4>(columns, kMeansOfFour);
  // Column by column; the means lie in the first two words of each.
  storeFirst8(means, interleaveLow(result.row[0], result.row[1]).v);
}

void meansOfInverse4(const Byte* block, Byte* means) {
  constexpr int kShift = kFirstShift + 1;
  const Words8x8 columns = transposed(inverseColumns<8, kShift, 8>(loadWords8x8(block), kMeansOfTwo));
  const Words8x8 result = transposed(inverseColumns<8, kSecondShift<kShift>, 4>(columns, kMeansOfTwo));
  for (int y = 0; y < 4; ++y) storeFirst8(means + 8 * y, result.row[y].v);
}

}  // namespace lumi
