// SPDX-License-Identifier: MIT
// Bytes of one table, by shuffles: sixteen entries are in reach of one.
#include "kernels/data/lut.hpp"
#include "kernels/pointwise.hpp"
#include "kernels/simd/lut.hpp"

namespace lumi {
namespace {

using namespace simd;

// A shuffle tells 16 entries apart by the low four bits of a byte, and gives zero where its highest bit is
// set: so two shuffles, joined, do 32 entries of which 16 lie 128 behind the others. The bits between choose
// among such pairs.
template <int entries>
struct Shuffle {
  using Results = Samples<uint8_t>;
  const Byte* table;
  Results low, high;  // the bytes, and with their highest bit turned

  Shuffle(const Byte* of, Results x)
      : table(of),
        low(entries == 256 ? x : x & broadcast<uint8_t>(entries - 1)),
        high(x ^ broadcast<uint8_t>(0x80)) {}

  Results piece(Results index, int at) const { return {shuffleBytes(repeated(load16(table + at)), index.v)}; }
  [[gnu::always_inline]] Results joined(int at) const {
    if constexpr (entries < 256) return piece(low, at);
    return piece(low, at) | piece(high, at + 128);
  }
  // A bit of each byte goes up to the highest; what that leaves in the neighbour's low bits does not matter.
  template <int bit>
  Results mask() const {
    return as<uint8_t>(shiftLeft<7 - bit>(as<uint16_t>(low)));
  }
  [[gnu::always_inline]] Results byBit4(Results mask, int at) const {
    return byHighestBit(mask, joined(at + 16), joined(at));
  }
  [[gnu::always_inline]] Results results() const {
    if constexpr (entries == 16) return joined(0);
    const Results bit4 = mask<4>(), bit5 = mask<5>();
    const Results first = byHighestBit(bit5, byBit4(bit4, 32), byBit4(bit4, 0));
    if constexpr (entries == 64) return first;
    const Results second = byHighestBit(bit5, byBit4(bit4, 96), byBit4(bit4, 64));
    return byHighestBit(mask<6>(), second, first);
  }
};

template <int entries>
struct ByVectors {
  const Byte* table;
  [[gnu::always_inline]] VectorBytes vector(const Byte* p) const {
    return Shuffle<entries>(loadedAnew(table), {loadVector(p)}).results().v;
  }
};
// Two vectors of sixteen bytes, which are stored apart.
template <int entries>
struct ByBlocks {
  ByVectors<entries> each;
  auto half(const Byte* p) const { return each.vector(p); }
  [[gnu::always_inline]] auto block(const Byte* p) const {
    return halves(each.vector(p), each.vector(p + 16));
  }
};

}  // namespace

template <int entries, int alpha>
void lookUpBytesRows(SourceRows src, TargetRows dst, Extent samples, const uint8_t* table) {
  using F = std::conditional_t<kVectorBytes == kBlock, ByVectors<entries>, ByBlocks<entries>>;
  runPixels<4, 4 - alpha>(dst, samples, Unary<Byte, Byte, F>{ImageRow<Byte, Byte>(src), F{{table}}});
}

template void lookUpBytesRows<16, 0>(SourceRows, TargetRows, Extent, const uint8_t*);
template void lookUpBytesRows<64, 0>(SourceRows, TargetRows, Extent, const uint8_t*);
template void lookUpBytesRows<256, 0>(SourceRows, TargetRows, Extent, const uint8_t*);
template void lookUpBytesRows<256, 1>(SourceRows, TargetRows, Extent, const uint8_t*);

}  // namespace lumi
