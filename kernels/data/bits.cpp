// SPDX-License-Identifier: MIT
#include "kernels/data/bits.hpp"

#include <algorithm>

#include "kernels/pointwise.hpp"
#include "kernels/simd/bits.hpp"

namespace lumi {
namespace {

using namespace simd;

// Which end of a byte its bits are counted from.
struct FromLow {
  static constexpr Byte bit(size_t k) { return static_cast<Byte>(1 << k); }
};
struct FromHigh {
  static constexpr Byte bit(size_t k) { return static_cast<Byte>(0x80 >> k); }
};

// What becomes of a sample that is all ones for a 1 bit, and zero for a 0 bit.
struct AsItIs {
  template <typename D>
  Samples16<D> operator()(Samples16<D> mask) const {
    return mask;
  }
};
template <typename D>
struct OneOfTwo {
  Samples16<D> zero, difference;
  OneOfTwo(D zeroValue, D oneValue)
      : zero(broadcast16(zeroValue)), difference(broadcast16(static_cast<D>(zeroValue ^ oneValue))) {}
  Samples16<D> operator()(Samples16<D> mask) const { return zero ^ (mask & difference); }
};

// A row of D samples made of a row of bits. Every block of a phase begins at the same bit of a byte: a
// shuffle puts each bit's byte into the bit's sample, and a mask leaves the bit alone.
template <typename D, typename Order, typename Choice>
struct Expand {
  const Byte* src;
  ptrdiff_t step;
  size_t start;  // the first pixel's bit
  Choice choice;

  static constexpr size_t kSample = sizeof(D), kPeriod = 1, kHalf = 16;
  static constexpr size_t kHalfPixels = kHalf / sizeof(D), kBlockPixels = 2 * kHalfPixels;
  // A block's bits are in this many bytes, and in one more if they begin within a byte. As nothing behind
  // the last one may be read, it comes by a second load of as many bytes.
  static constexpr size_t kLoad = kBlockPixels / 8;

  struct Tables {
    alignas(kHalf) Byte byte[(kBlockPixels + 7) * sizeof(D)], bit[(kBlockPixels + 7) * sizeof(D)];
  };
  static constexpr Tables tables() {
    Tables t{};
    for (size_t i = 0; i < sizeof t.byte; ++i) {
      const size_t pixel = i / sizeof(D), byte = pixel / 8;
      const bool lowest = i % sizeof(D) == 0;
      t.byte[i] = !lowest ? kZero : static_cast<Byte>(byte < kLoad ? byte : 2 * kLoad - 1);
      t.bit[i] = lowest ? Order::bit(pixel % 8) : Byte{0};
    }
    return t;
  }
  static constexpr Tables kTables = tables();

  struct Lanes {
    Bytes16 byte;
    Samples16<D> bit;
    // Of samples whose first one has bit `first` of the first byte.
    explicit Lanes(size_t first)
        : byte(load16(kTables.byte + first * sizeof(D))), bit{load16(kTables.bit + first * sizeof(D))} {}
    Bytes16 results(Bytes16 bytes, const Choice& choose) const {
      return choose(isEqual(Samples16<D>{shuffleBytes(bytes, byte)} & bit, bit)).v;
    }
  };
  struct Phase {
    Lanes low, high;
  };
  size_t bitOf(size_t at) const { return start + at / sizeof(D); }
  Phase phase(size_t at) const {
    const size_t first = bitOf(at) % 8;
    return {Lanes(first), Lanes(first + kHalfPixels)};
  }
  Halves32 block(size_t at, const Phase& phase) const {
    const size_t first = bitOf(at), last = first + kBlockPixels - 1;
    const Bytes16 bytes = loadTwo<kLoad>(src + first / 8, src + last / 8 + 1 - kLoad);
    return {phase.low.results(bytes, choice), phase.high.results(bytes, choice)};
  }
  Bytes16 half(size_t at) const {
    const size_t first = bitOf(at), last = first + kHalfPixels - 1;
    uint32_t bytes = 0;
    for (size_t i = last / 8 + 1; i-- > first / 8;) bytes = bytes << 8 | src[i];
    return Lanes(first % 8).results(bytesOfWord(bytes), choice);
  }
  VectorBytes vector(size_t at) const {
    if constexpr (kVectorBytes == kBlock)
      return joined(block(at, phase(at)));
    else
      return half(at);
  }
  void advance(int rows) { src = SourceRows{src, step}.row(rows); }
};

template <typename D, typename Order, typename Choice>
void expand(SourceRows src, unsigned offset, TargetRows dst, Extent pixels, const Choice& choice) {
  using Rule = Expand<D, Order, Choice>;
  const size_t bytes = pixels.length * sizeof(D);
  if (bytes >= kVectorBytes) {
    runApart<Cached>(dst, bytes, pixels.rows, Rule{src.first, src.step, offset, choice});
    return;
  }
  // Of rows shorter than a vector nothing behind the last bit may be read.
  walkRows(
      pixels.rows,
      [&, length = pixels.length](const Byte* s, Byte* d) {
        Byte bits[16] = {}, results[kVectorBytes];
        std::memcpy(bits, s, (offset + length - 1) / 8 + 1);
        storeVector(results, Rule{bits, 0, offset, choice}.vector(0));
        std::memcpy(d, results, bytes);
      },
      src, dst);
}

// A row of samples, of which some are compared at a time: bit k of a result tells whether sample x + k is
// above the threshold.
template <typename S>
class Comparison {
 public:
  static constexpr size_t kMany = 32, kByte = 8;

  Comparison(const Byte* src, size_t pixels, S threshold)
      : src_(src), pixels_(pixels), threshold_(thresholdOf(threshold)) {}

  uint32_t many(size_t x) const {
    return ~(notAbove16(at(x), threshold_) | notAbove16(at(x + kMany / 2), threshold_) << kMany / 2);
  }
  uint32_t byte(size_t x) const { return byteAt(at(x)); }

  // Less than a byte's; the bits behind them are anything.
  uint32_t few(size_t x, size_t count) const {
    if (x + kByte <= pixels_) return byte(x);
    if (x + count >= kByte) return byte(x + count - kByte) >> (kByte - count);
    Byte samples[kBlock] = {};  // of any type eight
    std::memcpy(samples, at(x), count * sizeof(S));
    return byteAt(samples);
  }

 private:
  const Byte* at(size_t x) const { return src_ + x * sizeof(S); }
  uint32_t byteAt(const Byte* p) const { return ~notAbove8(p, threshold_); }

  const Byte* src_;
  size_t pixels_;
  decltype(thresholdOf(S())) threshold_;
};

// Puts `count` bits into a byte, from bit `at` on; the others stay.
void putBits(Byte* d, uint32_t bits, size_t at, size_t count) {
  const uint32_t mask = ((1U << count) - 1) << at;
  *d = static_cast<Byte>((*d & ~mask) | (bits << at & mask));
}

template <typename S>
void setBitsAbove(const Byte* src, Byte* dst, unsigned offset, size_t pixels, S threshold) {
  const Comparison<S> row(src, pixels, threshold);
  size_t x = 0;
  if (offset != 0) {
    x = std::min<size_t>(8 - offset, pixels);
    putBits(dst++, row.few(0, x), offset, x);
  }
  for (; x + row.kMany <= pixels; x += row.kMany, dst += 4) {
    const uint32_t bits = row.many(x);
    std::memcpy(dst, &bits, sizeof bits);
  }
  for (; x + row.kByte <= pixels; x += row.kByte) *dst++ = static_cast<Byte>(row.byte(x));
  if (x < pixels) putBits(dst, row.few(x, pixels - x), 0, pixels - x);
}

}  // namespace

template <typename D>
void expandBitsRows(SourceRows src, unsigned offset, TargetRows dst, Extent pixels, D zero, D one) {
  expand<D, FromLow>(src, offset, dst, pixels, OneOfTwo<D>(zero, one));
}

void expandBitsToFullRows(SourceRows src, unsigned offset, TargetRows dst, Extent pixels) {
  expand<uint8_t, FromHigh>(src, offset, dst, pixels, AsItIs());
}

template <typename S>
void bitsAboveRows(SourceRows src, TargetRows dst, unsigned offset, Extent pixels, S threshold) {
  walkRows(
      pixels.rows, [&](const Byte* s, Byte* d) { setBitsAbove(s, d, offset, pixels.length, threshold); }, src,
      dst);
}

template void expandBitsRows<uint8_t>(SourceRows, unsigned, TargetRows, Extent, uint8_t, uint8_t);
template void expandBitsRows<uint16_t>(SourceRows, unsigned, TargetRows, Extent, uint16_t, uint16_t);
template void expandBitsRows<uint32_t>(SourceRows, unsigned, TargetRows, Extent, uint32_t, uint32_t);
template void bitsAboveRows<uint8_t>(SourceRows, TargetRows, unsigned, Extent, uint8_t);
template void bitsAboveRows<int16_t>(SourceRows, TargetRows, unsigned, Extent, int16_t);
template void bitsAboveRows<uint16_t>(SourceRows, TargetRows, unsigned, Extent, uint16_t);
template void bitsAboveRows<float>(SourceRows, TargetRows, unsigned, Extent, float);

}  // namespace lumi
