// SPDX-License-Identifier: MIT
#include "kernels/arithmetic/logic.hpp"

#include "kernels/pointwise.hpp"

namespace lumi {

using namespace simd;

namespace {

// Whole blocks at once, as float vectors combine bits in every build.
template <typename Op, typename A>
struct Bitwise : Binary<Byte, Op, A, ImageRow<Byte, Byte>> {
  using Both = Binary<Byte, Op, A, ImageRow<Byte, Byte>>;

  Bytes32 block(size_t at, const typename Both::Phase& phase) const {
    return applyToBlock<float>(this->f, this->a.block(at, phase.a), this->b.block(at, phase.b));
  }
  Bitwise onPieces(const Byte* const* pieces, size_t at) const { return {Both::onPieces(pieces, at)}; }
};

template <typename Op, size_t pixelBytes, size_t usedBytes, typename A>
[[gnu::always_inline]] inline void run(A a, SourceRows b, TargetRows dst, Extent bytes) {
  const ImageRow<Byte, Byte> second(b);
  runPixels<pixelBytes, usedBytes>(dst, bytes, Bitwise<Op, A>{{a, second, Op()}});
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
