// SPDX-License-Identifier: MIT
// Sums for each channel of what a function makes of the samples at one place of one image or of several. The
// function takes a vector of each image and gives one of as many values, 0 where all samples are 0:
//
//   struct Magnitude {
//     auto operator()(S16 x) const { return magnitude(x); }
//   };
//
// Integer sums are exact. Sums of floats have lanes of a number that no build changes; which samples meet in
// a lane depends on the width of rows alone.
#pragma once

#include "kernels/reduce.hpp"
#include "kernels/simd/elementary.hpp"

namespace lumi::simd {

// How integers join lanes: vectors of a block, sets of lanes and the blocks that a lane takes as in
// kernels/reduce.hpp. add(lanes, value) has value(i) for the vector i of the block.
template <typename T, int channels>
struct SumLanes;

// Bytes of one channel, by eights. No image overflows the lanes.
template <>
struct SumLanes<uint8_t, 1> {
  using Lane = uint64_t;
  static constexpr size_t kVectors = 1, kLanes = 1, kSets = 4, kMost = 0;
  static constexpr size_t channelOf(size_t) { return 0; }

  template <typename Value>
  [[gnu::always_inline]] static void add(Samples16<Lane>* lanes, Value value) {
    lanes[0] = lanes[0] + sumsOfDifferences(value(0), broadcast16<uint8_t>(0));
  }
};

// Bytes of several channels, in lanes of words: the even and the odd ones of a vector apart.
struct BytesInWords {
  using Lane = uint16_t;
  static U16 even(U8 x) { return as<uint16_t>(x) & broadcast16<uint16_t>(UINT8_MAX); }
  static U16 odd(U8 x) { return shiftRight<8>(as<uint16_t>(x)); }
};

// A vector's even bytes are of the channels 0, 2, 1, 0 and so on, of the next one 1, 0, 2, as are its own odd
// ones, so that each lane takes two bytes of a block.
template <>
struct SumLanes<uint8_t, 3> : BytesInWords {
  static constexpr size_t kVectors = 3, kLanes = 3, kSets = 1, kMost = UINT16_MAX / (2 * UINT8_MAX);
  static constexpr size_t channelOf(size_t lane) { return 2 * lane % 3; }

  template <typename Value>
  [[gnu::always_inline]] static void add(U16* lanes, Value value) {
    for (size_t i = 0; i < 3; ++i) {  // one after the other: so all lanes have registers in 32 bits
      const U8 x = value(i);
      lanes[i] = lanes[i] + even(x);
      lanes[(i + 1) % 3] = lanes[(i + 1) % 3] + odd(x);
    }
  }
};

template <>
struct SumLanes<uint8_t, 4> : BytesInWords {
  static constexpr size_t kVectors = 1, kLanes = 2, kSets = 2, kMost = UINT16_MAX / UINT8_MAX;
  static constexpr size_t channelOf(size_t lane) { return lane % 2 * 2 + lane / 8; }

  template <typename Value>
  [[gnu::always_inline]] static void add(U16* lanes, Value value) {
    const U8 x = value(0);
    lanes[0] = lanes[0] + even(x);
    lanes[1] = lanes[1] + odd(x);
  }
};

// Words in pairs of one channel, in lanes of dwords: two of them at a time, each at least -2^16.
template <int channels>
struct SumLanes<int16_t, channels> {
  using Lane = int32_t;
  // Vectors after which the channels are the same again.
  static constexpr size_t kPeriod = channels == 3 ? 3 : 1;
  static constexpr size_t kVectors = 2 * kPeriod, kLanes = kPeriod, kSets = channels == 3 ? 1 : 2;
  static constexpr size_t kMost = (1 << 14) - 1;
  static constexpr size_t channelOf(size_t lane) { return lane % channels; }

  template <typename Value>
  [[gnu::always_inline]] static void add(S32* lanes, Value value) {
    const auto pairs = [](S16 x) { return multiplyAddPairs(x, broadcast16<int16_t>(1)); };
    if constexpr (channels == 1) {
      lanes[0] = lanes[0] + (pairs(value(0)) + pairs(value(1)));
    } else {
      for (size_t i = 0; i < kPeriod; ++i) {
        const S16 a = value(i), b = value(i + kPeriod);
        S32 &first = lanes[2 * i % kLanes], &second = lanes[(2 * i + 1) % kLanes];
        first = first + pairs(interleaveLow(a, b));
        second = second + pairs(interleaveHigh(a, b));
      }
    }
  }
};

// Sums modulo 2^64 of bytes or words, of images of samples T.
template <typename T, typename Value, int channels, typename F>
class IntegerSums {
  // Unsigned words lose 2^15 before they are added up, and gain it again at the end.
  static constexpr bool kLowered = std::is_same_v<Value, uint16_t>;
  using L = SumLanes<std::conditional_t<kLowered, int16_t, Value>, channels>;
  static constexpr size_t kVectorSamples = 16 / sizeof(T);

 public:
  using Sample = T;
  static constexpr size_t kBlock = L::kVectors * kVectorSamples, kSets = L::kSets, kMost = L::kMost;
  struct Lanes {
    Samples16<typename L::Lane> of[L::kLanes];
  };

  explicit IntegerSums(const F& f) : f_(f) {}
  Lanes none() const {
    Lanes lanes;
    for (auto& each : lanes.of) each = broadcast16<typename L::Lane>(0);
    return lanes;
  }
  template <typename... At>
  [[gnu::always_inline]] void add(Lanes& lanes, At... at) const {
    L::add(lanes.of, [&](size_t i) { return lowered(f_(Samples16<T>{load16(at + 16 * i)}...)); });
  }
  template <typename... At>
  void addTail(Lanes& lanes, size_t samples, At... at) {
    fillers_ += (kBlock - samples) / channels;
    addFilled(*this, lanes, T{0}, samples, at...);
  }
  void empty(const Lanes& lanes) {
    constexpr size_t count = 16 * L::kLanes / sizeof(typename L::Lane);
    typename L::Lane values[count];
    for (size_t i = 0; i < L::kLanes; ++i) store16(reinterpret_cast<Byte*>(values) + 16 * i, lanes.of[i].v);
    for (size_t i = 0; i < count; ++i) totals_.of[L::channelOf(i)] += static_cast<uint64_t>(values[i]);
  }
  // Of so many pixels.
  ChannelTotals<double> totals(Extent pixels) const {
    ChannelTotals<double> result{};
    const uint64_t taken = static_cast<uint64_t>(pixels.count()) + fillers_;
    for (size_t c = 0; c < channels; ++c) {
      const uint64_t total = totals_.of[c] + (kLowered ? taken << 15 : 0);
      result.of[c] = std::is_signed_v<Value> ? static_cast<double>(static_cast<int64_t>(total))
                                             : static_cast<double>(total);
    }
    return result;
  }

 private:
  static auto lowered(Samples16<Value> x) {
    if constexpr (kLowered)
      return as<int16_t>(x ^ broadcast16<uint16_t>(1 << 15));
    else
      return x;
  }

  F f_;
  ChannelTotals<uint64_t> totals_{};
  uint64_t fillers_ = 0;  // pixels
};

// How floats join lanes of V: vectors of lanes, and how many vectors of a block are added up before they join
// one, so that lanes wait less for one another.
template <typename V, int channels>
struct FloatLanes {
  static constexpr size_t kVectors = channels == 4 ? 2 : 3, kFolds = 2;
};
template <>
struct FloatLanes<Doubles4, 1> {
  static constexpr size_t kVectors = 2, kFolds = 2;
};
template <>
struct FloatLanes<Doubles4, 4> {
  static constexpr size_t kVectors = 4, kFolds = 1;
};

inline void loadFours(const Byte* p, Floats4& x) { x = loadFloats4(p); }
inline void loadFours(const Byte* p, Doubles4& x) { x = doublesOf(loadFloats4(p)); }

// Sums of floats in lanes of V, Floats4 or Doubles4, which are added up in the same precision at the end.
template <typename V, int channels, typename F>
class FloatSums {
  using L = FloatLanes<V, channels>;
  static constexpr size_t kLanes = 4 * L::kVectors;

 public:
  using Sample = float;
  using Total = std::conditional_t<std::is_same_v<V, Floats4>, float, double>;
  static constexpr size_t kBlock = kLanes * L::kFolds, kSets = 1, kMost = 0;
  struct Lanes {
    V of[L::kVectors];
  };

  explicit FloatSums(const F& f) : f_(f) {}
  Lanes none() const {
    Lanes lanes;
    for (V& each : lanes.of) each = V{};
    return lanes;
  }
  template <typename... At>
  [[gnu::always_inline]] void add(Lanes& lanes, At... at) const {
    const auto values = [&](size_t i) { return f_(loaded(at + 16 * i)...); };
    for (size_t i = 0; i < L::kVectors; ++i) {
      V sum = values(i);
      for (size_t fold = 1; fold < L::kFolds; ++fold) sum = sum + values(i + fold * L::kVectors);
      lanes.of[i] = lanes.of[i] + sum;
    }
  }
  template <typename... At>
  void addTail(Lanes& lanes, size_t samples, At... at) const {
    addFilled(*this, lanes, 0.0f, samples, at...);
  }
  void empty(const Lanes& lanes) {
    Total values[kLanes];
    std::memcpy(values, lanes.of, sizeof values);
    addToChannels<channels>(totals_, values, kLanes);
  }
  const ChannelTotals<Total>& totals() const { return totals_; }

 private:
  static V loaded(const Byte* p) {
    V x;
    loadFours(p, x);
    return x;
  }

  F f_;
  ChannelTotals<Total> totals_{};
};

// Exact sums, but for the last rounding, of images of integers whose function gives Values.
template <typename T, typename Value, int channels, typename F, typename... Image>
ChannelTotals<double> integerSums(const F& f, Extent pixels, Image... images) {
  IntegerSums<T, Value, channels, F> sums(f);
  reduceRows(sums, pixels.times(channels), images...);
  return sums.totals(pixels);
}

// Sums of floats by lanes of V that are kept over all rows.
template <typename V, int channels, typename F, typename... Image>
ChannelTotals<double> floatSums(const F& f, Extent pixels, Image... images) {
  FloatSums<V, channels, F> sums(f);
  reduceRows(sums, pixels.times(channels), images...);
  return inDoubles(sums.totals());
}

// The same by lanes of V within each row, and totals of extended precision over the rows.
template <typename V, int channels, typename F, typename... Image>
ChannelTotals<double> floatSumsByRow(const F& f, Extent pixels, Image... images) {
  ChannelTotals<long double> totals{};
  walkRows(
      pixels.rows,
      [&](auto... row) {
        FloatSums<V, channels, F> sums(f);
        LaneSets(sums).addRow(pixels.length * channels, row...);
        for (size_t c = 0; c < channels; ++c) totals.of[c] += static_cast<long double>(sums.totals().of[c]);
      },
      images...);
  return inDoubles(totals);
}

}  // namespace lumi::simd
