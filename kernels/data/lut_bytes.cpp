// SPDX-License-Identifier: MIT
// Bytes of one table, by shuffles: sixteen entries are in reach of one.
#include "kernels/data/lut.hpp"
#include "kernels/pointwise.hpp"
#include "kernels/simd/lut.hpp"

namespace lumi {
namespace {

using namespace simd;

// A shuffle tells 16 entries apart by the low four bits of a byte, and gives zero where its highest bit is
// set: so two shuffles, joined, do 32 entries that lie 128 apart. The bits between choose among such pairs.
template <int entries>
struct Shuffled {
  const Byte* table;

  // Entries from `at` on, by the low four bits.
  VectorBytes piece(VectorBytes x, int at) const { return shuffleBytes(repeated(load16(table + at)), x); }
  struct Index {
    VectorBytes low, high;              // the byte, and with its highest bit turned
    Samples<uint8_t> bit4, bit5, bit6;  // in the highest bit of each byte
    explicit Index(Samples<uint8_t> x)
        : low((x & broadcast<uint8_t>(entries == 256 ? 0xFF : entries - 1)).v),
          high((x ^ broadcast<uint8_t>(0x80)).v),
          bit4(shiftedUp<3>(x)),
          bit5(shiftedUp<2>(x)),
          bit6(shiftedUp<1>(x)) {}
  };
  Samples<uint8_t> sixteen(const Index& x, int at) const {
    if constexpr (entries < 256)
      return {piece(x.low, at)};
    else
      return Samples<uint8_t>{piece(x.low, at)} | Samples<uint8_t>{piece(x.high, at + 128)};
  }
  Samples<uint8_t> thirtyTwo(const Index& x, int at) const {
    return ifThenElse(x.bit4, sixteen(x, at + 16), sixteen(x, at));
  }
  Samples<uint8_t> sixtyFour(const Index& x, int at) const {
    return ifThenElse(x.bit5, thirtyTwo(x, at + 32), thirtyTwo(x, at));
  }
  [[gnu::always_inline]] VectorBytes vector(const Byte* p) const {
    const Index x(Samples<uint8_t>{loadVector(p)});
    if constexpr (entries == 16)
      return sixteen(x, 0).v;
    else if constexpr (entries == 64)
      return sixtyFour(x, 0).v;
    else
      return ifThenElse(x.bit6, sixtyFour(x, 64), sixtyFour(x, 0)).v;
  }

 private:
  // The bytes' low bits go up; what their high bits leave in the neighbour's low ones does not matter.
  template <int bits>
  static Samples<uint8_t> shiftedUp(Samples<uint8_t> x) {
    return as<uint8_t>(shiftLeft<bits>(as<uint16_t>(x)));
  }
};

}  // namespace

template <int entries, int alpha>
void lookUpBytesRows(SourceRows src, TargetRows dst, Extent samples, const uint8_t* table) {
  using F = Shuffled<entries>;
  runPixels<4, 4 - alpha>(dst, samples, Unary<Byte, Byte, F>{ImageRow<Byte, Byte>(src), F{table}});
}

template void lookUpBytesRows<16, 0>(SourceRows, TargetRows, Extent, const uint8_t*);
template void lookUpBytesRows<64, 0>(SourceRows, TargetRows, Extent, const uint8_t*);
template void lookUpBytesRows<256, 0>(SourceRows, TargetRows, Extent, const uint8_t*);
template void lookUpBytesRows<256, 1>(SourceRows, TargetRows, Extent, const uint8_t*);

}  // namespace lumi
