// SPDX-License-Identifier: MIT
// The least and the greatest values for each channel of what a function makes of the samples at one place of
// one image or of several; the function is one as in kernels/statistics/sums.hpp, of Floats8 for floats.
//
// What is not a number never replaces a value, and neither does a zero another zero. Lanes of floats are of a
// number that no build changes, so that of two zeros every build keeps the same one.
#pragma once

#include <algorithm>
#include <limits>
#include <utility>

#include "kernels/channel_totals.hpp"
#include "kernels/rows.hpp"
#include "kernels/simd/elementary.hpp"
#include "kernels/simd/short_copy.hpp"

namespace lumi::simd {

// Which of two values is kept. The instructions take the second one where the comparison does not hold.
struct Least {
  template <typename V>
  static V better(V x, V kept) {
    return min(x, kept);
  }
  template <typename T>
  static T betterOf(T x, T kept) {
    return x < kept ? x : kept;
  }
  // What no value is better than, and the value that all are better than or equal to.
  template <typename T>
  static constexpr T best() {
    return std::numeric_limits<T>::has_infinity ? -std::numeric_limits<T>::infinity()
                                                : std::numeric_limits<T>::lowest();
  }
  template <typename T>
  static constexpr T worst() {
    return std::numeric_limits<T>::has_infinity ? std::numeric_limits<T>::infinity()
                                                : std::numeric_limits<T>::max();
  }
  // The worst value that is finite.
  template <typename T>
  static constexpr T worstFinite() {
    return std::numeric_limits<T>::max();
  }
};
struct Greatest {
  template <typename V>
  static V better(V x, V kept) {
    return max(x, kept);
  }
  template <typename T>
  static T betterOf(T x, T kept) {
    return x > kept ? x : kept;
  }
  template <typename T>
  static constexpr T best() {
    return Least::worst<T>();
  }
  template <typename T>
  static constexpr T worst() {
    return Least::best<T>();
  }
  template <typename T>
  static constexpr T worstFinite() {
    return std::numeric_limits<T>::lowest();
  }
};

// The better values of both halves, and of both halves of these, until the first so many bytes have all.
template <size_t bytes, typename Kind, typename T, size_t from = 16>
Bytes16 foldedTo(Bytes16 x) {
  if constexpr (from == bytes)
    return x;
  else
    return foldedTo<bytes, Kind, T, from / 2>(
        bytesOf(Kind::better(samplesOf<T>(bytesFrom<from / 2>(x)), samplesOf<T>(x))));
}

// Vectors of samples in extremes: sixteen bytes of integers, thirty-two of floats.
template <typename T>
struct ExtremeVectors {
  using V = Samples16<T>;
  static V load(const Byte* p) { return {load16(p)}; }
  static void store(Byte* p, V x) { store16(p, x.v); }
  static bool isSet(V mask) { return allSet(mask.v); }
  template <size_t bytes, typename Kind>
  static Bytes16 folded(V x) {
    return foldedTo<bytes, Kind, T>(x.v);
  }
};
template <>
struct ExtremeVectors<float> {
  using V = Floats8;
  static V load(const Byte* p) { return loadFloats8(p); }
  static void store(Byte* p, V x) { store32(p, bytesOf(x)); }
  static bool isSet(V mask) { return allSet(mask); }
  template <size_t bytes, typename Kind>
  static Bytes16 folded(V x) {
    const Floats4 low = samplesOf<float>(lowHalf(bytesOf(x))), high = samplesOf<float>(highHalf(bytesOf(x)));
    return foldedTo<bytes, Kind, float>(bytesOf(Kind::better(high, low)));
  }
};

// A block of whole pixels with the best values so far in each place.
template <typename T, int channels>
struct ExtremeLanes {
  using Vectors = ExtremeVectors<T>;
  using V = typename Vectors::V;
  static constexpr size_t kVectors = channels == 3 ? 3 : 1, kBlock = kVectors * sizeof(V) / sizeof(T);
  V of[kVectors];

  // Each channel at a value of its own.
  static ExtremeLanes at(const T* values) {
    T block[kBlock];
    for (size_t i = 0; i < kBlock; i += channels) std::memcpy(block + i, values, channels * sizeof(T));
    ExtremeLanes lanes;
    for (size_t i = 0; i < kVectors; ++i)
      lanes.of[i] = Vectors::load(reinterpret_cast<const Byte*>(block) + i * sizeof(V));
    return lanes;
  }
  static ExtremeLanes at(T value) {
    const T values[] = {value, value, value, value};
    return at(values);
  }
  template <typename Kind>
  void take(const ExtremeLanes& other) {
    for (size_t i = 0; i < kVectors; ++i) of[i] = Kind::better(other.of[i], of[i]);
  }
  // Whether any place has the value of the other one's.
  bool meets(const ExtremeLanes& other) const {
    bool any = false;
    for (size_t i = 0; i < kVectors; ++i) any = any | anySet(bytesOf(isEqual(of[i], other.of[i])));
    return any;
  }
  bool differsFrom(const ExtremeLanes& other) const {
    bool same = true;
    for (size_t i = 0; i < kVectors; ++i) same = same & Vectors::isSet(isEqual(of[i], other.of[i]));
    return !same;
  }
  // Apart from the loops, whose registers it would take.
  template <typename Kind>
  [[gnu::noinline]] ChannelTotals<T> channelsBy() const {
    T block[kBlock];
    size_t folded = channels;
    if constexpr (kVectors == 1) {
      store16(reinterpret_cast<Byte*>(block), Vectors::template folded<channels * sizeof(T), Kind>(of[0]));
    } else {
      for (size_t i = 0; i < kVectors; ++i)
        Vectors::store(reinterpret_cast<Byte*>(block) + i * sizeof(V), of[i]);
      folded = kBlock;
    }
    ChannelTotals<T> result{};
    std::copy(block, block + channels, result.of);
    for (size_t i = channels; i < folded; i += channels)
      for (size_t c = 0; c < channels; ++c) result.of[c] = Kind::betterOf(block[i + c], result.of[c]);
    return result;
  }
};

// The extremes of the kinds that are wanted, Least, Greatest or both, of values of type T that the function
// makes of samples S.
template <typename S, typename T, int channels, typename F, typename... Kind>
class Extremes {
 public:
  using Lanes = ExtremeLanes<T, channels>;
  static constexpr size_t kBlock = Lanes::kBlock;

  // Kinds begin at these lanes, in their order.
  template <typename... Start>
  explicit Extremes(const F& f, const Start&... start) : f_(f) {
    static_assert(sizeof...(Start) == sizeof...(Kind));
    for (Set& set : sets_) (set.KindLanes<Kind>::begin(start), ...);
  }

  // A row of each image. The last block lies over those before it, which changes no extreme.
  template <typename... At>
  [[gnu::always_inline]] void addRow(size_t samples, At... at) {
    if (samples < kBlock) return addShort(samples, at...);
    size_t done = 0;
    for (; done + kRound <= samples; done += kRound) addRound(kEach, (at + done * sizeof(S))...);
    for (; done + kBlock <= samples; done += kBlock) addBlock(sets_[0], (at + done * sizeof(S))...);
    if (done < samples) addBlock(sets_[0], (at + (samples - kBlock) * sizeof(S))...);
  }

  template <typename Which>
  Lanes lanes() const {
    Lanes lanes = sets_[0].KindLanes<Which>::lanes;
    for (size_t i = 1; i < kSets; ++i) lanes.template take<Which>(sets_[i].KindLanes<Which>::lanes);
    return lanes;
  }
  template <typename Which>
  ChannelTotals<T> of() const {
    return lanes<Which>().template channelsBy<Which>();
  }

 private:
  static constexpr size_t kSets = Lanes::kVectors == 1 ? 4 / sizeof...(Kind) : 1, kRound = kSets * kBlock;
  static constexpr auto kEach = std::make_index_sequence<kSets>();

  template <typename K>
  struct KindLanes {
    Lanes lanes;
    void begin(const Lanes& start) { lanes = start; }
    template <size_t i>
    void take(typename Lanes::V x) {
      lanes.of[i] = K::better(x, lanes.of[i]);
    }
  };
  struct Set : KindLanes<Kind>... {};

  template <size_t... set, typename... At>
  [[gnu::always_inline]] void addRound(std::index_sequence<set...>, At... at) {
    (addPlaced<set>(at...), ...);
  }
  template <size_t set, typename... At>
  [[gnu::always_inline]] void addPlaced(At... at) {
    addBlock(sets_[set], (at + set * kBlock * sizeof(S))...);
  }
  template <typename... At>
  [[gnu::always_inline]] void addBlock(Set& set, At... at) const {
    addVectors(std::make_index_sequence<Lanes::kVectors>(), set, at...);
  }
  // Not by a loop: compilers would keep lanes in memory until they unroll it, and so for ever.
  template <size_t... i, typename... At>
  [[gnu::always_inline]] void addVectors(std::index_sequence<i...>, Set& set, At... at) const {
    (addVector<i>(set, at...), ...);
  }
  template <size_t i, typename... At>
  [[gnu::always_inline]] void addVector(Set& set, At... at) const {
    const auto x = f_(ExtremeVectors<S>::load(at + i * sizeof(typename Lanes::V))...);
    (set.KindLanes<Kind>::template take<i>(x), ...);
  }
  // Pixels that are fewer than a block, the first of them again and again behind them.
  template <typename... At>
  void addShort(size_t samples, At... at) {
    struct Block {
      S samples[kBlock];
    };
    const auto filled = [=](const Byte* from) {
      Block block;
      if (samples >= kBlock) __builtin_unreachable();  // no code for longer copies
      for (size_t i = 0; i < kBlock; i += channels)
        std::memcpy(block.samples + i, from, channels * sizeof(S));
      copyShort(from, reinterpret_cast<Byte*>(block.samples), samples * sizeof(S));
      return block;
    };
    const auto add = [&](const auto&... block) {
      addBlock(sets_[0], reinterpret_cast<const Byte*>(block.samples)...);
    };
    add(filled(at)...);
  }

  F f_;
  Set sets_[kSets];
};

// The extremes of one kind over all rows, not beyond `start`.
template <typename Kind, typename S, typename T, int channels, typename F, typename... Image>
ChannelTotals<T> extremesOf(const F& f, T start, Extent pixels, Image... images) {
  Extremes<S, T, channels, F, Kind> extremes(f, ExtremeLanes<T, channels>::at(start));
  walkRows(
      pixels.rows, [&](auto... row) { extremes.addRow(pixels.length * channels, row...); }, images...);
  return extremes.template of<Kind>();
}

}  // namespace lumi::simd
