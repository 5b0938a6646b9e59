// SPDX-License-Identifier: MIT
#include "kernels/arithmetic/shift.hpp"

#include <algorithm>
#include <utility>

#include "kernels/pointwise.hpp"
#include "kernels/simd/shift.hpp"

namespace lumi {

using namespace simd;

namespace {

// Bytes shift as words, which brings no signs: they are filled in by hand.
template <typename Op, typename T>
constexpr bool kFillsSigns = std::is_same_v<Op, Right>&& std::is_same_v<T, int8_t>;

// Shifted as if unsigned; `sign` is the bit to which the sign has come, and above which it is to be.
template <typename T>
Samples<T> signExtended(Samples<T> x, Samples<T> sign) {
  return (x ^ sign) - sign;
}

// The bits of bytes that are their own after a shift as words.
template <typename Op>
constexpr uint8_t ownBits(int bits) {
  return static_cast<uint8_t>(std::is_same_v<Op, Left> ? 0xFFu << bits : 0xFFu >> bits);
}

// Words by 1 to 15 bits, bytes by 1 to 7, as products: by a count in a register they take fewer steps than
// shifts, since their loads are a part of them.
template <typename Op, typename T>
class WordShift {
 public:
  explicit WordShift(int bits)
      : factor_(broadcast(static_cast<uint16_t>(1u << (std::is_same_v<Op, Left> ? bits : 16 - bits)))),
        own_(broadcast(ownBits<Op>(bits))) {}
  Samples<T> operator()(Samples<T> x) const {
    const Samples<T> shifted = as<T>(times(as<uint16_t>(x)));
    return sizeof(T) == 1 ? shifted & as<T>(own_) : shifted;
  }

 private:
  Samples<uint16_t> times(Samples<uint16_t> x) const {
    return std::is_same_v<Op, Left> ? x * factor_ : multiplyHigh(x, factor_);
  }

  Samples<uint16_t> factor_;
  Samples<uint8_t> own_;
};

template <typename Op, typename T>
using UniformShift =
    std::conditional_t<sizeof(T) == 1 || std::is_same_v<T, uint16_t>, WordShift<Op, T>,
                       std::conditional_t<std::is_same_v<Op, Left>, LeftShift<T>, RightShift<T>>>;

// Blocks are stored at once: a store of sixteen bytes takes as long as one of thirty-two.
template <typename Op, typename T>
struct ByOneCount {
  UniformShift<Op, T> shift;
  Samples<T> sign;

  explicit ByOneCount(int bits) : shift(bits), sign(broadcast(static_cast<T>(0x80 >> bits))) {}

  VectorBytes half(const Byte* p) const {
    const Samples<T> shifted = shift({loadVector(p)});
    return bytesOf(kFillsSigns<Op, T> ? signExtended(shifted, sign) : shifted);
  }
  Bytes32 block(const Byte* p) const {
    if constexpr (kVectorBytes == kBlock)
      return half(p);
    else
      return joined(half(p), half(p + kVectorBytes));
  }
};

// There are no shifts by a vector of counts at this level, but there are products: with 2^bits for shifts to
// the left, and of 32-bit samples with 2^(30 - bits), divided by 2^30, for those to the right.
template <typename Op, typename T>
struct ByFactors {
  static constexpr bool kExist = std::is_same_v<Op, Left> ? sizeof(T) > 1 : sizeof(T) == 4;
  static constexpr int kMostBits = std::is_same_v<Op, Left> ? 8 * sizeof(T) : 30;

  static T factor(int bits) {
    return static_cast<T>(uint64_t{1} << (std::is_same_v<Op, Left> ? bits : kMostBits - bits));
  }
  Samples<T> operator()(Samples<T> x, Samples<T> factors) const {
    if constexpr (std::is_same_v<Op, Left>)
      return x * factors;
    else
      return multiplyShifted30(x, factors);
  }
};

// The whole vector by every channel's count, of which each channel takes what it wants. Of the constant rows
// the first has the bits of bytes that are their own after a shift as words; the others choose the samples of
// a channel.
template <typename Op, typename T, size_t channels>
struct ByCounts {
  Shift bits[channels];

  static Samples<T> shifted(Samples<T> x, Shift by) {
    if constexpr (std::is_same_v<Op, Right>)
      return shiftedAsWords(x, by);
    else
      return as<T>(as<uint16_t>(x) << by);
  }

  template <size_t... c, typename... Choice>
  Samples<T> chosen(std::index_sequence<c...>, Samples<T> x, Choice... choice) const {
    Samples<T> result = shifted(x, bits[0]);
    ((result = ifThenElse(choice, shifted(x, bits[c + 1]), result)), ...);
    return result;
  }
  template <typename... Choice>
  Samples<T> operator()(Samples<T> x, Samples<T> own, Choice... choice) const {
    const Samples<T> result = chosen(std::index_sequence_for<Choice...>(), x, choice...);
    if constexpr (kFillsSigns<Op, T>)  // the highest of the own bits, which are 2^n - 1
      return signExtended(result & own, as<T>(averageUp(as<uint8_t>(own), broadcast<uint8_t>(0))));
    else
      return sizeof(T) == 1 ? result & own : result;
  }
};

// d = f(a, constant rows): what Binary is to two operands. The rows are numbered by k.
template <typename T, typename F, bool ofThree, size_t... k>
struct WithConstants {
  using Constant = ConstantRow<ofThree>;
  ImageRow<T, T> a;
  Constant constants[sizeof...(k)];
  F f;

  static constexpr size_t kSample = sizeof(T), kPeriod = Constant::kBlocks;
  static constexpr int kSources = 1;
  struct Phase {
    typename Constant::Phase constants[sizeof...(k)];
  };

  Phase phase(size_t at) const { return {{constants[k].phase(at)...}}; }
  auto block(size_t at, const Phase& phase) const {
    return applyToBlock<T>(f, a.block(at, {}), phase.constants[k]...);
  }
  VectorBytes vector(size_t at) const {
    return bytesOf(f(samplesOf<T>(a.vector(at)), samplesOf<T>(constants[k].vector(at))...));
  }
  void advance(int rows) { a.advance(rows); }
  bool isApart(TargetRows dst, size_t bytes, int rows) const { return a.isApart(dst, bytes, rows); }
  void describe(PieceSource* source) const { a.describe(source); }
  WithConstants onPieces(const Byte* const* pieces, size_t at) const {
    return {a.onPieces(pieces, at), {constants[k].onPieces(pieces, at)...}, f};
  }
};

// A pixel over and over.
template <typename T, int stored>
PixelPattern patternOf(const T (&pixel)[stored]) {
  return makePattern<stored* int{sizeof(T)}>(pixel);
}

template <typename Op, typename T, int stored, int used>
[[gnu::always_inline]] inline void multiplyChannels(SourceRows src, TargetRows dst, Extent samples,
                                                    const int* bits) {
  using F = ByFactors<Op, T>;
  using Constant = ConstantRow<stored == 3>;
  T pixel[stored] = {};
  for (int c = 0; c < used; ++c) pixel[c] = F::factor(bits[c]);
  const PixelPattern factors = patternOf(pixel);
  runPixels<stored * sizeof(T), used * sizeof(T)>(
      dst, samples, Binary<T, F, ImageRow<T, T>, Constant>{ImageRow<T, T>(src), {factors}, {}});
}

template <typename Op, typename T, int stored, int used, size_t... c>
[[gnu::always_inline]] inline void chooseChannels(std::index_sequence<c...>, SourceRows src, TargetRows dst,
                                                  Extent samples, const int* bits) {
  T own[stored] = {}, choice[stored][stored] = {};
  for (int i = 0; i < used; ++i) {
    own[i] = static_cast<T>(ownBits<Op>(bits[i]));
    choice[i][i] = static_cast<T>(-1);
  }
  const PixelPattern constants[] = {c == 0 ? patternOf(own) : patternOf(choice[c])...};
  using F = ByCounts<Op, T, used>;
  runPixels<stored * sizeof(T), used * sizeof(T)>(
      dst, samples,
      WithConstants<T, F, stored == 3, c...>{
          ImageRow<T, T>(src), {{constants[c]}...}, {{Shift(bits[c])...}}});
}

}  // namespace

template <typename Op, typename T, bool alpha>
[[gnu::flatten]] void shiftRows(SourceRows src, TargetRows dst, Extent samples, int bits) {
  using F = ByOneCount<Op, T>;
  runPixels<alpha ? 4 * sizeof(T) : sizeof(T), alpha ? 3 * sizeof(T) : sizeof(T)>(
      dst, samples, Unary<T, T, F>{ImageRow<T, T>(src), F(bits)});
}

template <typename Op, typename T, int stored, int used>
[[gnu::flatten]] void shiftChannels(SourceRows src, TargetRows dst, Extent samples, const int* bits) {
  if constexpr (ByFactors<Op, T>::kExist)
    if (*std::max_element(bits, bits + used) <= ByFactors<Op, T>::kMostBits)
      return multiplyChannels<Op, T, stored, used>(src, dst, samples, bits);
  if constexpr (!(std::is_same_v<Op, Left> && ByFactors<Op, T>::kExist))
    chooseChannels<Op, T, stored, used>(std::make_index_sequence<used>(), src, dst, samples, bits);
}

#define LUMI_SHIFTS(Op, T)                                                              \
  template void shiftRows<Op, T, false>(SourceRows, TargetRows, Extent, int);           \
  template void shiftRows<Op, T, true>(SourceRows, TargetRows, Extent, int);            \
  template void shiftChannels<Op, T, 3, 3>(SourceRows, TargetRows, Extent, const int*); \
  template void shiftChannels<Op, T, 4, 4>(SourceRows, TargetRows, Extent, const int*); \
  template void shiftChannels<Op, T, 4, 3>(SourceRows, TargetRows, Extent, const int*);
LUMI_SHIFTS(Left, uint8_t)
LUMI_SHIFTS(Left, uint16_t)
LUMI_SHIFTS(Left, int32_t)
LUMI_SHIFTS(Right, uint8_t)
LUMI_SHIFTS(Right, int8_t)
LUMI_SHIFTS(Right, uint16_t)
LUMI_SHIFTS(Right, int16_t)
LUMI_SHIFTS(Right, int32_t)

}  // namespace lumi
