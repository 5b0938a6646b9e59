// SPDX-License-Identifier: MIT
#include "kernels/arithmetic/logic.hpp"

#include "kernels/pointwise.hpp"

namespace lumi {

using namespace simd;

namespace {

// Float vectors combine the bits of whole blocks in every build.
template <typename Op>
struct Bitwise : Op {
  using Block = Floats8;
};

template <typename Op, size_t pixelBytes, size_t usedBytes, typename A>
[[gnu::always_inline]] inline void run(A a, SourceRows b, TargetRows dst, Extent bytes) {
  using B = ImageRow<Byte, Byte>;
  runPixels<pixelBytes, usedBytes>(dst, bytes, Binary<Byte, Bitwise<Op>, A, B>{a, B(b), {}});
}

}  // namespace

template <typename Op, size_t pixelBytes, size_t usedBytes>
[[gnu::flatten]] void combineBits(SourceRows a, SourceRows b, TargetRows dst, Extent bytes) {
  run<Op, pixelBytes, usedBytes>(ImageRow<Byte, Byte>(a), b, dst, bytes);
}

template <typename Op, size_t pixelBytes, size_t usedBytes, bool ofThree>
[[gnu::flatten]] void combineBitsWithConstant(const PixelPattern& a, SourceRows b, TargetRows dst,
                                              Extent bytes) {
  run<Op, pixelBytes, usedBytes>(ConstantRow<ofThree>{a}, b, dst, bytes);
}

#define LUMI_LOGIC(Op, pixelBytes, usedBytes)                                                              \
  template void combineBits<Op, pixelBytes, usedBytes>(SourceRows, SourceRows, TargetRows, Extent);        \
  template void combineBitsWithConstant<Op, pixelBytes, usedBytes, false>(const PixelPattern&, SourceRows, \
                                                                          TargetRows, Extent);
#define LUMI_ALL_PIXELS(Op) \
  LUMI_LOGIC(Op, 1, 1)      \
  LUMI_LOGIC(Op, 4, 3)      \
  LUMI_LOGIC(Op, 8, 6)      \
  LUMI_LOGIC(Op, 16, 12)    \
  template void combineBitsWithConstant<Op, 1, 1, true>(const PixelPattern&, SourceRows, TargetRows, Extent);
LUMI_ALL_PIXELS(And)
LUMI_ALL_PIXELS(Or)
LUMI_ALL_PIXELS(Xor)

}  // namespace lumi
