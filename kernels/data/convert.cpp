// SPDX-License-Identifier: MIT
#include "kernels/data/convert.hpp"

#include "kernels/conversion.hpp"
#include "kernels/simd/convert.hpp"
#include "kernels/simd/rounding.hpp"

namespace lumi {
namespace {

using namespace simd;

// Results from the S samples that begin at p.
template <typename S, typename D>
struct Converted {
  static VectorBytes vector(const Byte* p) {
    if constexpr (std::is_same_v<D, float>)
      return bytesOf(floatsOf(loadAs<S, std::conditional_t<std::is_same_v<S, uint32_t>, S, int32_t>>(p)));
    else if constexpr (sizeof(D) >= sizeof(S))
      return loadAs<S, D>(p).v;
    else
      return loadNarrow<S, D>(p).v;
  }
};

// Two vectors of words by one load.
struct WordsOfBytes {
  static Bytes16 half(const Byte* p) { return widen<uint16_t>(U8{loadFew<8>(p)}).v; }
  static Bytes32 block(const Byte* p) {
    const U8 x{load16Once(p)};
    return joined(widenLow(x).v, widenHigh(x).v);
  }
};

struct FloatsOfInts {
  static Bytes16 half(const Byte* p) { return bytesOf(floatsOf(S32{load16(p)})); }
  static Bytes32 block(const Byte* p) { return bytesOf(floatsOf(Ints8{load32(p)})); }
};

template <typename S, typename D>
auto conversion() {
  if constexpr (std::is_same_v<S, uint8_t> && sizeof(D) == 2 && kVectorBytes == 16)
    return WordsOfBytes();
  else if constexpr (std::is_same_v<S, int32_t> && std::is_same_v<D, float>)
    return FloatsOfInts();
  else
    return Converted<S, D>();
}

}  // namespace

template <typename S, typename D, int alpha, bool streaming>
void convertRows(SourceRows src, TargetRows dst, Extent samples) {
  using Store = std::conditional_t<streaming, Streaming, Cached>;
  runConversion<S, D, alpha, 4, Store>(src, dst, samples, conversion<S, D>());
}

#define LUMI_PLAIN(S, D) template void convertRows<S, D, 0, false>(SourceRows, TargetRows, Extent);
#define LUMI_ALPHA(S, D) \
  LUMI_PLAIN(S, D) template void convertRows<S, D, 1, false>(SourceRows, TargetRows, Extent);
#define LUMI_STREAMING(S, D) \
  LUMI_ALPHA(S, D) template void convertRows<S, D, 0, true>(SourceRows, TargetRows, Extent);
LUMI_STREAMING(uint8_t, int16_t)
LUMI_STREAMING(uint8_t, uint16_t)
LUMI_STREAMING(uint8_t, int32_t)
LUMI_STREAMING(uint8_t, float)
LUMI_STREAMING(int8_t, int32_t)
LUMI_STREAMING(int8_t, float)
LUMI_STREAMING(int16_t, float)
LUMI_STREAMING(uint16_t, float)
LUMI_STREAMING(int16_t, uint8_t)
LUMI_STREAMING(uint16_t, uint8_t)
LUMI_ALPHA(int16_t, int32_t)
LUMI_ALPHA(uint16_t, int32_t)
LUMI_ALPHA(int32_t, uint8_t)
LUMI_ALPHA(int32_t, int8_t)
LUMI_PLAIN(int8_t, int16_t)
LUMI_PLAIN(uint16_t, uint32_t)
LUMI_PLAIN(int32_t, float)
LUMI_PLAIN(uint32_t, float)
LUMI_PLAIN(int8_t, uint8_t)
LUMI_PLAIN(int8_t, uint16_t)
LUMI_PLAIN(int8_t, uint32_t)
LUMI_PLAIN(int16_t, uint16_t)
LUMI_PLAIN(int16_t, uint32_t)
LUMI_PLAIN(int32_t, uint32_t)

}  // namespace lumi
