// SPDX-License-Identifier: MIT
#include "kernels/transforms/dct_8x8_float.hpp"

#include "kernels/simd/floats.hpp"

namespace lumi {
namespace {

using namespace simd;

// cos(i pi / 16) / 2, and the roots of 1/8 and 1/2.
constexpr float kCos1 = 0.490392640F, kCos2 = 0.461939766F, kCos3 = 0.415734806F, kCos5 = 0.277785117F,
                kCos6 = 0.191341716F, kCos7 = 0.0975451610F, kRootOfEighth = 0.353553391F,
                kRootOfHalf = 0.707106781F;

Floats8 times(Floats8 x, float factor) { return x * broadcastFloat<Floats8>(factor); }

// The coefficients of eight rows at once, one in each lane.
struct Forward {
  [[gnu::always_inline]] static void transform(Floats8 (&x)[8]) {
    const Floats8 s0 = x[0] + x[7], s1 = x[1] + x[6], s2 = x[2] + x[5], s3 = x[3] + x[4];
    const Floats8 d0 = x[0] - x[7], d1 = x[1] - x[6], d2 = x[2] - x[5], d3 = x[3] - x[4];
    const Floats8 outer = s0 + s3, inner = s1 + s2, outerTilt = s0 - s3, innerTilt = s1 - s2;
    x[0] = times(outer + inner, kRootOfEighth);
    x[4] = times(outer - inner, kRootOfEighth);
    x[2] = times(outerTilt, kCos2) + times(innerTilt, kCos6);
    x[6] = times(outerTilt, kCos6) - times(innerTilt, kCos2);
    const Floats8 middleSum = times(d1 + d2, kRootOfHalf), middleDifference = times(d1 - d2, kRootOfHalf);
    const Floats8 a = d0 + middleSum, b = d0 - middleSum, c = d3 + middleDifference,
                  d = d3 - middleDifference;
    x[1] = times(a, kCos1) + times(c, kCos7);
    x[7] = times(a, kCos7) - times(c, kCos1);
    x[3] = times(b, kCos3) - times(d, kCos5);
    x[5] = times(b, kCos5) + times(d, kCos3);
  }
};

// The same steps backwards.
struct Inverse {
  [[gnu::always_inline]] static void transform(Floats8 (&x)[8]) {
    const Floats8 outer = times(x[0] + x[4], kRootOfEighth), inner = times(x[0] - x[4], kRootOfEighth);
    const Floats8 outerTilt = times(x[2], kCos2) + times(x[6], kCos6),
                  innerTilt = times(x[2], kCos6) - times(x[6], kCos2);
    const Floats8 a = times(x[1], kCos1) + times(x[7], kCos7), c = times(x[1], kCos7) - times(x[7], kCos1);
    const Floats8 b = times(x[3], kCos3) + times(x[5], kCos5), d = times(x[5], kCos3) - times(x[3], kCos5);
    const Floats8 s0 = outer + outerTilt, s1 = inner + innerTilt, s2 = inner - innerTilt,
                  s3 = outer - outerTilt;
    const Floats8 middleSum = times(a - b, kRootOfHalf), middleDifference = times(c - d, kRootOfHalf);
    const Floats8 d0 = a + b, d1 = middleSum + middleDifference, d2 = middleSum - middleDifference,
                  d3 = c + d;
    x[0] = s0 + d0;
    x[7] = s0 - d0;
    x[1] = s1 + d1;
    x[6] = s1 - d1;
    x[2] = s2 + d2;
    x[5] = s2 - d2;
    x[3] = s3 + d3;
    x[4] = s3 - d3;
  }
};

// Columns of the source become rows, since half a row of each of two is one load.
template <typename Direction>
[[gnu::always_inline]] inline void transformTransposed(SourceRows src, TargetRows dst) {
  Floats8 x[8];
  for (int half = 0; half < 2; ++half) {
    TwoDwords4x4 quarters;
    for (int y = 0; y < 4; ++y)
      quarters.row[y] = joined(load16(src.row(y) + 16 * half), load16(src.row(y + 4) + 16 * half));
    quarters = transpose(quarters);
    for (int i = 0; i < 4; ++i) x[4 * half + i] = {asFloats(quarters.row[i])};
  }
  Direction::transform(x);
  for (int y = 0; y < 8; ++y) store32(dst.row(y), asBytes(x[y].v));
}

// All of the source is read before the destination is written.
template <typename Direction>
void transform(SourceRows src, TargetRows dst) {
  alignas(32) Byte block[256];
  transformTransposed<Direction>(src, {block, 32});
  transformTransposed<Direction>({block, 32}, dst);
}

}  // namespace

void forwardFloats8x8(SourceRows src, TargetRows dst) { transform<Forward>(src, dst); }
void inverseFloats8x8(SourceRows src, TargetRows dst) { transform<Inverse>(src, dst); }

}  // namespace lumi
