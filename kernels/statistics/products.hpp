// SPDX-License-Identifier: MIT
// Reductions that add up products of two factors for each channel: a dot product, the squares of an image,
// the squares of the differences of two. Sums of integers are exact. Sums of floats have so many lanes in
// every build, and are joined in one order.
#pragma once

#include <cstdint>
#include <type_traits>

#include "kernels/reduce.hpp"
#include "kernels/simd/elementary.hpp"
#include "kernels/simd/quads.hpp"
#include "kernels/statistics/differences.hpp"

namespace lumi::simd {

template <typename V>
struct Factors {
  V first, second;
};

// Factors are made of a vector of each image.
struct Products {
  static constexpr bool kSquares = false;
  template <typename T>
  using Factor = T;
  template <typename V>
  static Factors<V> of(V a, V b) {
    return {a, b};
  }
};
struct Squares {
  static constexpr bool kSquares = true;
  template <typename T>
  using Factor = T;
  template <typename V>
  static Factors<V> of(V x) {
    return {x, x};
  }
};

struct DifferenceSquares {
  static constexpr bool kSquares = true;
  template <typename T>
  using Factor = MagnitudeOf<T>;
  template <typename V>
  static auto of(V a, V b) {
    const auto d = Distance()(a, b);
    return Factors<decltype(d)>{d, d};
  }
};

// Instructions that multiply words add the products of neighbours, so neighbours have to be of one channel:
// samples are paired with others of the block that are whole pixels away. Of one channel all are as they
// stand. Vector i has the pairs of the samples from i times half a vector on.
template <typename T, int channels>
struct Paired {
  using V = Samples16<T>;
  static constexpr size_t kVectors = channels == 1 ? 1 : channels == 3 ? 3 : 2;
  V of[kVectors];

  explicit Paired(const V (&x)[kVectors]) {
    if constexpr (channels == 1) {
      of[0] = x[0];
    } else if constexpr (channels == 3) {  // half a block away: eight of sixteen pixels, or four of eight
      const V second{permuteDwords<2, 3, 0, 1>(x[1].v)}, third{permuteDwords<2, 3, 0, 1>(x[2].v)};
      of[0] = interleaveLow(x[0], second);
      of[1] = interleaveHigh(x[0], third);
      of[2] = interleaveHigh(second, x[2]);
    } else {
      of[0] = interleaveLow(x[0], x[1]);
      of[1] = interleaveHigh(x[0], x[1]);
    }
  }
};

// Sums of products of bytes, in lanes of 32 bits.
template <typename T, int channels>
class ByteSums {
  using V = Samples16<T>;
  using Words = S16;
  using Pairs = Paired<T, channels>;
  static constexpr size_t kPhases = channels == 3 ? 3 : 1;  // of four lanes each, in the order of samples
  static constexpr size_t kInLane = 4 * Pairs::kVectors / kPhases;  // products of a block
  static constexpr uint32_t kLargest = std::is_signed_v<T> ? 128 * 128 : 255 * 255;

 public:
  using Lane = std::conditional_t<std::is_signed_v<T>, int32_t, uint32_t>;
  static constexpr size_t kVectors = Pairs::kVectors, kLanes = 4 * kPhases;
  static constexpr size_t kMost = std::numeric_limits<Lane>::max() / (kInLane * kLargest);

  void clear() { std::fill(std::begin(sums_), std::end(sums_), broadcast16<Lane>(0)); }
  [[gnu::always_inline]] void add(const V (&a)[kVectors], const V (&b)[kVectors]) {
    const Pairs x(a), y(b);
    for (size_t i = 0; i < kVectors; ++i) {
      addTo(2 * i % kPhases, multiplyAddPairs(low(x.of[i]), low(y.of[i])));
      addTo((2 * i + 1) % kPhases, multiplyAddPairs(high(x.of[i]), high(y.of[i])));
    }
  }
  void store(Lane* lanes) const {
    for (size_t k = 0; k < kPhases; ++k) store16(reinterpret_cast<Byte*>(lanes + 4 * k), sums_[k].v);
  }

 private:
  void addTo(size_t phase, S32 sums) { sums_[phase] = sums_[phase] + as<Lane>(sums); }
  // Of one channel it does not matter which half of the bytes is which; even and odd ones take fewer
  // instructions than the first and the last eight.
  static constexpr bool kInTurn = channels == 1 && std::is_unsigned_v<T>;
  static Words low(V x) {
    if constexpr (kInTurn)
      return as<int16_t>(x) & broadcast16<int16_t>(UINT8_MAX);
    else if constexpr (std::is_signed_v<T>)
      return widen<int16_t>(x);
    else
      return as<int16_t>(widenLow(x));
  }
  static Words high(V x) {
    if constexpr (kInTurn)
      return as<int16_t>(shiftRight<8>(as<uint16_t>(x)));
    else if constexpr (std::is_signed_v<T>)
      return widen<int16_t>(V{bytesFrom<8>(x.v)});
    else
      return as<int16_t>(widenHigh(x));
  }

  Samples16<Lane> sums_[kPhases];
};

// Sums of products of words, in pairs of lanes of 64 bits: one has the sum of all dwords, odd ones 2^32
// times, the other that of the odd ones. Unsigned words lose 2^15 before they are multiplied, and get back
// what that takes from their product:
//
//   x y = (x - 2^15) (y - 2^15) + 2^15 ((x - 2^15) + (y - 2^15)) + 2^30
template <typename T, int channels, bool squares>
class WordSums {
  using V = Samples16<T>;
  using Pairs = Paired<T, channels>;
  static constexpr bool kShifted = std::is_unsigned_v<T>;
  static constexpr size_t kPhases = channels == 3 ? 3 : 1;
  static constexpr size_t kInLane = Pairs::kVectors / kPhases;  // pairs of a block
  // Two products come to -2^31 + 2^16 at the least and 2^31 at the most, which only has 33 bits as a signed
  // number. Those that may be negative are made positive; squares are.
  static constexpr uint32_t kBias = squares ? 0 : 0x7FFF0000;

 public:
  using Lane = int64_t;
  static constexpr size_t kVectors = Pairs::kVectors, kLanes = 4 * kPhases;
  // A block adds at most 2^17 a pair to a lane of what was taken away; all other lanes hold more.
  static constexpr size_t kMost = (size_t{1} << 14) / kInLane - 1;

  void clear() {
    for (Phase& phase : phases_) phase = {broadcastQuad(0), broadcastQuad(0), zeros()};
    blocks_ = 0;
  }
  [[gnu::always_inline]] void add(const V (&a)[kVectors], const V (&b)[kVectors]) {
    const Pairs x(a), y(b);
    for (size_t i = 0; i < kVectors; ++i)
      addPairs(phases_[i % kPhases], signedOf(x.of[i]), signedOf(y.of[i]));
    ++blocks_;
  }
  void store(Lane* lanes) const {
    const int64_t pairs = static_cast<int64_t>(blocks_ * kInLane);
    for (size_t k = 0; k < kPhases; ++k) {
      uint64_t all[2], odd[2];
      int32_t shifted[4];
      store16(reinterpret_cast<Byte*>(all), phases_[k].all.v);
      store16(reinterpret_cast<Byte*>(odd), phases_[k].odd.v);
      store16(reinterpret_cast<Byte*>(shifted), phases_[k].shifted.v);
      for (size_t j = 0; j < 4; ++j) {
        const uint64_t sum = j % 2 == 1 ? odd[j / 2] : all[j / 2] - (odd[j / 2] << 32);
        lanes[4 * k + j] =
            static_cast<int64_t>(sum) - pairs * kBias +
            (kShifted ? shifted[j] * (int64_t{1} << (squares ? 16 : 15)) + pairs * (int64_t{1} << 31) : 0);
      }
    }
  }

 private:
  struct Phase {
    Quads all, odd;
    S32 shifted;
  };

  static S32 zeros() { return broadcast16<int32_t>(0); }
  static S16 signedOf(V x) { return as<int16_t>(kShifted ? x ^ broadcast16(static_cast<T>(0x8000)) : x); }
  [[gnu::always_inline]] static void addPairs(Phase& phase, S16 x, S16 y) {
    S32 sums = multiplyAddPairs(x, y);
    if (!squares) sums = sums + broadcast16(static_cast<int32_t>(kBias));
    phase.all = phase.all + Quads{sums.v};
    phase.odd = phase.odd + highHalves(Quads{sums.v});
    if (kShifted) {
      const S16 ones = broadcast16<int16_t>(1);
      const S32 sum = multiplyAddPairs(x, ones);
      phase.shifted = phase.shifted + (squares ? sum : sum + multiplyAddPairs(y, ones));
    }
  }

  Phase phases_[kPhases];
  size_t blocks_;
};

// What adds is inlined everywhere: lanes that a function takes by their address would stay in memory.
//
// Totals are of 64 bits and go around, or doubles, which add up lanes that have been emptied.
template <typename F, typename T, int channels, typename Total>
class IntegerProducts {
  using Factor = typename F::template Factor<T>;
  using Sums =
      std::conditional_t<sizeof(T) == 1, ByteSums<Factor, channels>, WordSums<Factor, channels, F::kSquares>>;
  static constexpr size_t kVectors = Sums::kVectors;

 public:
  using Sample = T;
  using Lanes = Sums;
  static constexpr size_t kBlock = kVectors * (16 / sizeof(T)),
                          kSets = sizeof(T) == 1 && kVectors == 1 ? 2 : 1, kMost = Sums::kMost;

  Lanes none() const {
    Lanes lanes;
    lanes.clear();
    return lanes;
  }
  template <typename... At>
  [[gnu::always_inline]] void add(Lanes& lanes, At... at) const {
    Samples16<Factor> first[kVectors], second[kVectors];
    for (size_t i = 0; i < kVectors; ++i) {
      const auto factors = F::of(Samples16<T>{load16(at + 16 * i)}...);
      first[i] = factors.first;
      second[i] = factors.second;
    }
    lanes.add(first, second);
  }
  template <typename... At>
  [[gnu::always_inline]] void addTail(Lanes& lanes, size_t samples, At... at) const {
    addFilled(*this, lanes, T{0}, samples, at...);
  }
  void empty(const Lanes& lanes) {
    typename Sums::Lane values[Sums::kLanes];
    lanes.store(values);
    addToChannels<channels>(totals_, values, Sums::kLanes);
  }
  ChannelTotals<Total> totals() const { return totals_; }

 private:
  ChannelTotals<Total> totals_{};
};

// Samples as floats, or as doubles.
template <typename V, typename T>
V loadFloating(const Byte* p) {
  if constexpr (std::is_same_v<V, Floats8>) {
    return loadFloats8(p);
  } else if constexpr (std::is_same_v<T, float>) {
    return doublesOf(loadFloats4(p));
  } else {
    const S32 x{load16(p)};
    if constexpr (std::is_signed_v<T>) return doublesOf(x);
    return doublesOf(x ^ broadcast16(INT32_MIN)) + broadcastDouble(0x1p31);
  }
}

// Total is float or double, and so are all products and sums. Images of one channel are taken as if they had
// four, so that they share the code.
template <typename F, typename T, int channels, typename Total>
class FloatingProducts {
  using V = std::conditional_t<std::is_same_v<Total, float>, Floats8, Doubles4>;
  static constexpr size_t kVectors = channels == 3 ? 3 : 1, kLanes = sizeof(V) / sizeof(Total);

 public:
  using Sample = T;
  static constexpr size_t kBlock = kVectors * kLanes, kSets = channels == 3 ? 2 : 4, kMost = 0;
  struct Lanes {
    V of[kVectors];
  };

  FloatingProducts() : sums_(none()) {}
  Lanes none() const {
    Lanes lanes;
    for (V& lane : lanes.of) lane = samplesOf<Total>(bytesOf(broadcastFloat<Floats8>(0)));
    return lanes;
  }
  template <typename... At>
  [[gnu::always_inline]] void add(Lanes& lanes, At... at) const {
    for (size_t i = 0; i < kVectors; ++i) {
      const auto factors = F::of(loadFloating<V, T>(at + i * kLanes * sizeof(T))...);
      lanes.of[i] = lanes.of[i] + factors.first * factors.second;
    }
  }
  template <typename... At>
  [[gnu::always_inline]] void addTail(Lanes& lanes, size_t samples, At... at) const {
    addFilled(*this, lanes, T{0}, samples, at...);
  }
  void empty(const Lanes& lanes) {
    for (size_t i = 0; i < kVectors; ++i) sums_.of[i] = sums_.of[i] + lanes.of[i];
  }
  ChannelTotals<Total> totals() const {
    Total values[kBlock];
    for (size_t i = 0; i < kVectors; ++i)
      store32(reinterpret_cast<Byte*>(values + i * kLanes), bytesOf(sums_.of[i]));
    ChannelTotals<Total> totals{};
    addToChannels<channels>(totals, values, kBlock);
    return totals;
  }

 private:
  Lanes sums_;
};

// What is reduced to sums of type Total: those of bytes and words are integers.
template <typename F, typename T, int channels, typename Total>
using ProductSums = std::conditional_t<sizeof(T) <= 2, IntegerProducts<F, T, channels, Total>,
                                       FloatingProducts<F, T, channels == 1 ? 4 : channels, Total>>;

// In doubles. Of one channel the four totals come to one, in the first.
template <int channels, typename Total>
ChannelTotals<double> channelsInDoubles(const ChannelTotals<Total>& totals) {
  ChannelTotals<double> result = inDoubles(totals);
  if (channels == 1)
    result.of[0] = static_cast<double>((totals.of[0] + totals.of[1]) + (totals.of[2] + totals.of[3]));
  return result;
}

}  // namespace lumi::simd
