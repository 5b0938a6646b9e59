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
  Samples<D> operator()(Samples<D> mask) const {
    return mask;
  }
};
template <typename D>
struct OneOfTwo {
  Samples<D> zero, difference;
  OneOfTwo(D zeroValue, D oneValue)
      : zero(broadcast(zeroValue)), difference(broadcast(static_cast<D>(zeroValue ^ oneValue))) {}
  Samples<D> operator()(Samples<D> mask) const { return zero ^ (mask & difference); }
};

// A row of D samples made of a row of bits. Every block of a phase begins at the same bit of a byte: a
// shuffle puts each bit's byte into the bit's sample, and a mask leaves the bit alone.
template <typename D, typename Order, typename Choice>
struct Expand {
  const Byte* src;
  size_t start;  // the first pixel's bit
  Choice choice;

  static constexpr size_t kSample = sizeof(D), kPeriod = 1;
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
    Samples<D> bit;
    // Of samples whose first one has bit `first` of the first byte.
    explicit Lanes(size_t first)
        : byte(load16(kTables.byte + first * sizeof(D))), bit{load16(kTables.bit + first * sizeof(D))} {}
    Bytes16 results(Bytes16 bytes, const Choice& choose) const {
      return choose(isEqual(Samples<D>{shuffleBytes(bytes, byte)} & bit, bit)).v;
    }
  };
  struct Phase {
    Lanes low, high;
  };
  struct Room {
    Byte bytes[kHalf];  // more than there can be, as few bytes are copied in steps of up to eight
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
  size_t distance(const Byte*, size_t bytes) const { return bytes; }
  Expand gathered(Room& room, size_t at, size_t bytes) const {
    const size_t first = bitOf(at), last = first + bytes / sizeof(D) - 1;
    copyFew(room.bytes, src + first / 8, last / 8 - first / 8 + 1);
    return {room.bytes, first % 8, choice};
  }
};

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
    copyFew(samples, at(x), count * sizeof(S));
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

}  // namespace

template <typename D>
void expandBitsRow(const uint8_t* src, unsigned offset, uint8_t* dst, size_t pixels, D zero, D one) {
  runRow(dst, pixels * sizeof(D), Expand<D, FromLow, OneOfTwo<D>>{src, offset, {zero, one}});
}

void expandBitsToFullRow(const uint8_t* src, unsigned offset, uint8_t* dst, size_t pixels) {
  runRow(dst, pixels, Expand<uint8_t, FromHigh, AsItIs>{src, offset, {}});
}

template <typename S>
void bitsAboveRow(const uint8_t* src, uint8_t* dst, unsigned offset, size_t pixels, S threshold) {
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

template void expandBitsRow<uint8_t>(const Byte*, unsigned, Byte*, size_t, uint8_t, uint8_t);
template void expandBitsRow<uint16_t>(const Byte*, unsigned, Byte*, size_t, uint16_t, uint16_t);
template void expandBitsRow<uint32_t>(const Byte*, unsigned, Byte*, size_t, uint32_t, uint32_t);
template void bitsAboveRow<uint8_t>(const Byte*, Byte*, unsigned, size_t, uint8_t);
template void bitsAboveRow<int16_t>(const Byte*, Byte*, unsigned, size_t, int16_t);
template void bitsAboveRow<uint16_t>(const Byte*, Byte*, unsigned, size_t, uint16_t);
template void bitsAboveRow<float>(const Byte*, Byte*, unsigned, size_t, float);

}  // namespace lumi
