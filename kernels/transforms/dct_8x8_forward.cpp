// SPDX-License-Identifier: MIT
#include "kernels/simd/convert.hpp"
#include "kernels/transforms/dct_8x8.hpp"
#include "kernels/transforms/words8x8.hpp"

namespace lumi {
namespace {

using namespace simd;

// Tangents as parts of 2^16, since products are cut off to their upper word. That of 3 pi / 16 is beyond a
// signed word: the constant is the tangent less 1, and the factor itself is added.
constexpr int16_t kTangent1 = 13036, kTangent2 = 27146, kTangent3Less1 = -21746;
constexpr int16_t kHalfRoot = 23170;  // cos(pi / 4) * 2^15

// The transform of eight columns at once, times 8, each row divided by a factor of its own: the cosine that
// its tangents were made with.
Words8x8 transformColumns(const Words8x8& x) {
  const auto sum = [&](int i) { return shiftLeft<3>(addSaturated(x.row[i], x.row[7 - i])); };
  const auto difference = [&](int i) { return subSaturated(x.row[i], x.row[7 - i]); };
  const S16 tangent1 = broadcast16(kTangent1), tangent2 = broadcast16(kTangent2),
            tangent3Less1 = broadcast16(kTangent3Less1), halfRoot = broadcast16(kHalfRoot);
  Words8x8 y;

  const S16 s0 = sum(0), s1 = sum(1), s2 = sum(2), s3 = sum(3);
  const S16 outer = addSaturated(s0, s3), inner = addSaturated(s1, s2);
  y.row[0] = addSaturated(outer, inner);
  y.row[4] = subSaturated(outer, inner);
  const S16 outerTilt = subSaturated(s0, s3), innerTilt = subSaturated(s1, s2);
  y.row[2] = addSaturated(outerTilt, multiplyHigh(innerTilt, tangent2));
  y.row[6] = subSaturated(multiplyHigh(outerTilt, tangent2), innerTilt);

  // One bit more makes up for the constant's 2^15. The bias of the cut-off is taken from one of the two
  // products.
  const S16 d0 = shiftLeft<3>(difference(0)), d1 = shiftLeft<4>(difference(1)),
            d2 = shiftLeft<4>(difference(2)), d3 = shiftLeft<3>(difference(3));
  const S16 middleSum = multiplyHigh(addSaturated(d1, d2), halfRoot) | broadcast16(int16_t{1}),
            middleDifference = multiplyHigh(subSaturated(d1, d2), halfRoot);
  const S16 a = addSaturated(d0, middleSum), b = subSaturated(d0, middleSum),
            c = addSaturated(d3, middleDifference), d = subSaturated(d3, middleDifference);
  y.row[1] = addSaturated(a, multiplyHigh(c, tangent1));
  y.row[7] = subSaturated(multiplyHigh(a, tangent1), c);
  y.row[3] = subSaturated(b, addSaturated(d, multiplyHigh(d, tangent3Less1)));
  y.row[5] = addSaturated(addSaturated(b, multiplyHigh(b, tangent3Less1)), d);
  return y;
}

// Cosines of the rows, with the factors that the columns left out. s and d are the sums and the differences
// of samples that lie opposite one another; each dword of (s0 s1 d0 d1 s2 s3 d2 d3), or of its halves in the
// other order, makes a part of one coefficient: of 0 to 3 with the first two rows, of 4 to 7 with the others.
struct RowTable {
  alignas(16) int16_t parts[4][8];
};
constexpr RowTable kTables[] = {{{{16384, 16384, 22725, 19266, -8867, -21407, -22725, -12873},
                                  {16384, 16384, 12873, 4520, 21407, 8867, 19266, -4520},
                                  {16384, -16384, 12873, -22725, 21407, -8867, 19266, -22725},
                                  {-16384, 16384, 4520, 19266, 8867, -21407, 4520, -12873}}},
                                {{{22725, 22725, 31521, 26722, -12299, -29692, -31521, -17855},
                                  {22725, 22725, 17855, 6270, 29692, 12299, 26722, -6270},
                                  {22725, -22725, 17855, -31521, 29692, -12299, 26722, -31521},
                                  {-22725, 22725, 6270, 26722, 12299, -29692, 6270, -17855}}},
                                {{{21407, 21407, 29692, 25172, -11585, -27969, -29692, -16819},
                                  {21407, 21407, 16819, 5906, 27969, 11585, 25172, -5906},
                                  {21407, -21407, 16819, -29692, 27969, -11585, 25172, -29692},
                                  {-21407, 21407, 5906, 25172, 11585, -27969, 5906, -16819}}},
                                {{{19266, 19266, 26722, 22654, -10426, -25172, -26722, -15137},
                                  {19266, 19266, 15137, 5315, 25172, 10426, 22654, -5315},
                                  {19266, -19266, 15137, -26722, 25172, -10426, 22654, -26722},
                                  {-19266, 19266, 5315, 22654, 10426, -25172, 5315, -15137}}}};
constexpr int kTableOfRow[] = {0, 1, 2, 3, 0, 3, 2, 1};

// Words as bytes of a control.
constexpr Control wordControl(const std::array<int, 8>& words) {
  Control control{};
  for (size_t i = 0; i < 8; ++i) {
    control[2 * i] = static_cast<Byte>(2 * words[i]);
    control[2 * i + 1] = static_cast<Byte>(2 * words[i] + 1);
  }
  return control;
}
constexpr Control kFirstHalf = wordControl({0, 1, 0, 1, 2, 3, 2, 3}),
                  kMirrored = wordControl({7, 6, 7, 6, 5, 4, 5, 4});

S32 part(S16 samples, const int16_t* table) {
  return multiplyAddPairs(samples, S16{load16(reinterpret_cast<const Byte*>(table))});
}

// Sums are modulo 2^32: those of large words leave the type.
S16 transformRow(S16 x, const RowTable& table) {
  const S16 half{shuffleBytes(x.v, vectorOf(kFirstHalf))}, mirrored{shuffleBytes(x.v, vectorOf(kMirrored))};
  const S16 first{blendDwords<0b1010>(addSaturated(half, mirrored).v, subSaturated(half, mirrored).v)},
      second{permuteDwords<2, 3, 0, 1>(first.v)};
  const S32 rounding = broadcast16(int32_t{0x80000});
  const S32 low = part(first, table.parts[0]) + part(second, table.parts[1]) + rounding,
            high = part(first, table.parts[2]) + part(second, table.parts[3]) + rounding;
  return narrowSigned<int16_t>(shiftRight<20>(low), shiftRight<20>(high));
}

void transform(const Words8x8& samples, Byte* block) {
  const Words8x8 columns = transformColumns(samples);
  for (int y = 0; y < 8; ++y)
    store16(block + 16 * y, transformRow(columns.row[y], kTables[kTableOfRow[y]]).v);
}

}  // namespace

void forwardWords8x8(SourceRows src, Byte* block) {
  Words8x8 samples;
  for (int y = 0; y < 8; ++y) samples.row[y] = {load16(src.row(y))};
  transform(samples, block);
}

void forwardBytes8x8(SourceRows src, Byte* block, int16_t levelShift) {
  Words8x8 samples;
  for (int y = 0; y < 8; ++y)
    samples.row[y] = widen<int16_t>(U8{loadFew<8>(src.row(y))}) + broadcast16(levelShift);
  transform(samples, block);
}

}  // namespace lumi
