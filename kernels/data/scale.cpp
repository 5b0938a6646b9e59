// SPDX-License-Identifier: MIT
#include "kernels/data/scale.hpp"

#include "kernels/conversion.hpp"
#include "kernels/simd/scale.hpp"

namespace lumi {
namespace {

using namespace simd;

// The byte in each place of the sample, with the top bit inverted for signed ones. Constants are made where
// they are used: as members they would be read again after every store, which might have changed them.
template <typename D>
struct Widen {
  static U8 highBytes(U8 bytes) {
    if constexpr (std::is_signed_v<D>) bytes = bytes ^ broadcast16(Byte{0x80});
    return bytes;
  }
  Bytes32 block(const Byte* p) const {
    const U8 bytes{load16(p)}, high = highBytes(bytes);
    return joined(interleaveLow(bytes, high).v, interleaveHigh(bytes, high).v);
  }
  Bytes16 half(const Byte* p) const {
    const U8 bytes{loadFew<8>(p)};
    return interleaveLow(bytes, highBytes(bytes)).v;
  }
};

template <>
struct Widen<int32_t> {
  static constexpr Control kFirstFour = {0, 0, 0, 0, 1, 1, 1, 1, 2, 2, 2, 2, 3, 3, 3, 3},
                           kNextFour = {4, 4, 4, 4, 5, 5, 5, 5, 6, 6, 6, 6, 7, 7, 7, 7};

  static Bytes16 four(Bytes16 bytes, const Control& which) {
    return bytesOf(S32{shuffleBytes(bytes, vectorOf(which))} ^ broadcast16(INT32_MIN));
  }
  Bytes32 block(const Byte* p) const {
    const Bytes16 bytes = loadFew<8>(p);
    return joined(four(bytes, kFirstFour), four(bytes, kNextFour));
  }
  Bytes16 half(const Byte* p) const { return four(loadFew<4>(p), kFirstFour); }
};

// w - w / 256, of w with the range about zero, has its result in the high byte. The fast way divides rounding
// down, and so takes its steps up one early where w is negative. With the quotient rounded to the nearest,
// halves up, the result is that of the division in floats, for every sample.
template <typename S, bool accurate>
struct Narrow {
  using W = std::make_signed_t<S>;

  static Samples<W> scaled(const Byte* p) {
    Samples<W> w{loadVector(p)};
    if constexpr (std::is_unsigned_v<S>) w = w ^ broadcast(std::numeric_limits<W>::min());
    return shiftRight<8 * sizeof(S) - 8>(w - (accurate ? nearest256th(w) : shiftRight<8>(w)));
  }
  static Samples<int16_t> words(const Byte* p) {
    if constexpr (sizeof(S) == sizeof(int16_t))
      return scaled(p);
    else
      return narrowSaturated<int16_t>(scaled(p), scaled(p + kVectorBytes));
  }
  VectorBytes vector(const Byte* p) const {
    const auto bytes = narrowSaturated<int8_t>(words(p), words(p + kVectorBytes / 2 * sizeof(S)));
    return bytesOf(bytes ^ broadcast<int8_t>(INT8_MIN));
  }
};

struct WidenToFloats {
  Floats8 factor, offset;

  explicit WidenToFloats(LinearMap map)
      : factor(broadcastFloat<Floats8>(map.factor)), offset(broadcastFloat<Floats8>(map.offset)) {}

  Bytes32 block(const Byte* p) const { return bytesOf(floatsOf8Bytes(p) * factor + offset); }
  Bytes16 half(const Byte* p) const { return bytesOf(floatsOf4Bytes(p) * lowHalf(factor) + lowHalf(offset)); }
};

template <typename D>
struct NarrowFloats {
  Floats8 factor, offset, limit = broadcastFloat<Floats8>(255);

  explicit NarrowFloats(LinearMap map)
      : factor(broadcastFloat<Floats8>(map.factor)), offset(broadcastFloat<Floats8>(map.offset)) {}

  Ints8 at(const Byte* p, size_t i) const {
    return rounded(min(limit, loadFloats8(p + i * kBlock) * factor - offset));
  }
  S16 words(const Byte* p, size_t i) const {
    const Ints8 v = at(p, i);
    return narrowSaturated<int16_t>(lowHalf(v), highHalf(v));
  }
  VectorBytes vector(const Byte* p) const {
    if constexpr (kVectorBytes == kBlock)
      return bytesOf(narrowSaturated<D>(at(p, 0), at(p, 1), at(p, 2), at(p, 3)));
    else
      return bytesOf(narrowSaturated<D>(words(p, 0), words(p, 1)));
  }
};

template <typename S, typename D, bool alpha, typename F>
void run(SourceRows src, TargetRows dst, Extent samples, const F& f, bool streaming) {
  if (streaming)
    runConversion<S, D, alpha, 4, Streaming>(src, dst, samples, f);
  else
    runConversion<S, D, alpha>(src, dst, samples, f);
}

}  // namespace

template <typename D, bool alpha>
void widenRows(SourceRows src, TargetRows dst, Extent samples, bool streaming) {
  run<uint8_t, D, alpha>(src, dst, samples, Widen<D>(), streaming);
}

template <typename S, bool alpha>
void narrowRows(SourceRows src, TargetRows dst, Extent samples, bool accurate, bool streaming) {
  if (accurate)
    run<S, uint8_t, alpha>(src, dst, samples, Narrow<S, true>(), streaming);
  else
    run<S, uint8_t, alpha>(src, dst, samples, Narrow<S, false>(), streaming);
}

LinearMap bytesToFloats(float lower, float upper) { return {(upper - lower) / 255, lower}; }

template <bool alpha>
void widenToFloatsRows(SourceRows src, TargetRows dst, Extent samples, LinearMap map, bool streaming) {
  run<uint8_t, float, alpha>(src, dst, samples, WidenToFloats(map), streaming);
}

LinearMap floatsToBytes(float lower, float upper) {
  const float factor = 255 / (upper - lower);
  return {factor, factor * lower};
}

template <bool alpha>
void narrowFloatsRows(SourceRows src, TargetRows dst, Extent samples, LinearMap map) {
  run<float, uint8_t, alpha>(src, dst, samples, NarrowFloats<uint8_t>(map), false);
}

#define LUMI_SCALE(alpha)                                                                  \
  template void widenRows<uint16_t, alpha>(SourceRows, TargetRows, Extent, bool);          \
  template void widenRows<int16_t, alpha>(SourceRows, TargetRows, Extent, bool);           \
  template void widenRows<int32_t, alpha>(SourceRows, TargetRows, Extent, bool);           \
  template void narrowRows<uint16_t, alpha>(SourceRows, TargetRows, Extent, bool, bool);   \
  template void narrowRows<int16_t, alpha>(SourceRows, TargetRows, Extent, bool, bool);    \
  template void narrowRows<int32_t, alpha>(SourceRows, TargetRows, Extent, bool, bool);    \
  template void widenToFloatsRows<alpha>(SourceRows, TargetRows, Extent, LinearMap, bool); \
  template void narrowFloatsRows<alpha>(SourceRows, TargetRows, Extent, LinearMap);
LUMI_SCALE(false)
LUMI_SCALE(true)

}  // namespace lumi
