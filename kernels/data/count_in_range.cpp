// SPDX-License-Identifier: MIT
#include "kernels/data/count_in_range.hpp"

#include <algorithm>
#include <cstring>
#include <utility>

#include "kernels/simd/floats.hpp"

namespace lumi {
namespace {

using namespace simd;

// Vectors of samples with a count in each lane, and how many samples a lane counts exactly.
template <typename T>
struct Lanes;

template <>
struct Lanes<uint8_t> {
  using V = U8;
  static constexpr size_t kLanes = 16, kMost = 255;

  static V none() { return broadcast16<uint8_t>(0); }
  // A difference from the lower bound that goes around is larger than any range.
  struct Range {
    V lower, span;
    Range(const Byte* low, const Byte* high) : lower{load16(low)}, span(V{load16(high)} - lower) {}
    V counted(V counts, const Byte* p) const {
      const V above = V{load16(p)} - lower;
      return counts - isEqual(min(above, span), above);  // all ones is -1
    }
  };
  static void store(Byte* p, V counts) { store16(p, counts.v); }
};

template <>
struct Lanes<float> {
  using V = Floats8;
  static constexpr size_t kLanes = 8, kMost = size_t{1} << 24;

  static V none() { return broadcastFloat<V>(0); }
  struct Range {
    V lower, upper;
    Range(const Byte* low, const Byte* high) : lower(loadFloats8(low)), upper(loadFloats8(high)) {}
    V counted(V counts, const Byte* p) const {
      const V x = loadFloats8(p), holds = andNot(isAbove(x, upper), isAtLeast(x, lower));
      return counts + (holds & broadcastFloat<V>(1));
    }
  };
  static void store(Byte* p, V counts) { store32(p, bytesOf(counts)); }
};

template <typename T, int channels>
class Counter {
  using L = Lanes<T>;
  static constexpr size_t kVectors = channels == 3 ? 3 : 1, kRound = kVectors * L::kLanes;

 public:
  explicit Counter(const Ranges<T>& ranges) : ranges_(ranges) {
    for (auto& lanes : lanes_) lanes = L::none();
    for (size_t i = 0; i < kRound; ++i) {
      lower_[i] = ranges.lower[i % channels];
      upper_[i] = ranges.upper[i % channels];
    }
  }

  // Rounds of whole vectors, then what is left of the row one by one.
  void row(const Byte* p, size_t samples) {
    size_t at = 0;
    while (at + kRound <= samples) {
      const size_t rounds = std::min((samples - at) / kRound, L::kMost - counted_);
      count(p + at * sizeof(T), rounds, std::make_index_sequence<kVectors>());
      counted_ += rounds;
      if (counted_ == L::kMost) flush();
      at += rounds * kRound;
    }
    for (; at < samples; ++at) {
      T x;
      std::memcpy(&x, p + at * sizeof(T), sizeof x);
      const size_t c = at % channels;
      counts_.of[c] += x >= ranges_.lower[c] && !(x > ranges_.upper[c]);
    }
  }
  const ChannelCounts& counts() {
    flush();
    return counts_;
  }

 private:
  typename L::Range range(size_t i) const {
    const auto from = [=](const T* bounds) { return reinterpret_cast<const Byte*>(bounds + i * L::kLanes); };
    return {from(lower_), from(upper_)};
  }
  template <size_t... i>
  [[gnu::always_inline]] void count(const Byte* p, size_t rounds, std::index_sequence<i...>) {
    const typename L::Range ranges[] = {range(i)...};
    typename L::V lanes[] = {lanes_[i]...};
    for (; rounds > 0; --rounds, p += kRound * sizeof(T))
      ((lanes[i] = ranges[i].counted(lanes[i], p + i * L::kLanes * sizeof(T))), ...);
    ((lanes_[i] = lanes[i]), ...);
  }
  // What the lanes have counted since they were empty goes to the channels.
  void flush() {
    T sums[kRound];
    for (size_t i = 0; i < kVectors; ++i) {
      L::store(reinterpret_cast<Byte*>(sums + i * L::kLanes), lanes_[i]);
      lanes_[i] = L::none();
    }
    for (size_t k = 0; k < kRound; ++k) counts_.of[k % channels] += static_cast<uint32_t>(sums[k]);
    counted_ = 0;
  }

  const Ranges<T>& ranges_;
  ChannelCounts counts_{};
  typename L::V lanes_[kVectors];
  size_t counted_ = 0;  // rounds that the lanes hold
  T lower_[kRound], upper_[kRound];
};

}  // namespace

template <typename T, int channels>
ChannelCounts countInRanges(SourceRows src, Extent pixels, const Ranges<T>& ranges) {
  Counter<T, channels> counter(ranges);
  walkRows(
      pixels.rows, [&](const Byte* row) { counter.row(row, pixels.length * channels); }, src);
  return counter.counts();
}

#define LUMI_COUNTS(T)                                                              \
  template ChannelCounts countInRanges<T, 1>(SourceRows, Extent, const Ranges<T>&); \
  template ChannelCounts countInRanges<T, 3>(SourceRows, Extent, const Ranges<T>&); \
  template ChannelCounts countInRanges<T, 4>(SourceRows, Extent, const Ranges<T>&);
LUMI_COUNTS(uint8_t)
LUMI_COUNTS(float)

}  // namespace lumi
