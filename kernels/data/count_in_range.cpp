// SPDX-License-Identifier: MIT
#include "kernels/data/count_in_range.hpp"

#include <cstring>

#include "kernels/reduce.hpp"
#include "kernels/simd/floats.hpp"

namespace lumi {
namespace {

using namespace simd;

// Vectors of samples with a count in each lane, and how many samples a lane counts exactly.
template <typename T>
struct SampleCounts;

template <>
struct SampleCounts<uint8_t> {
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
struct SampleCounts<float> {
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
class Counts {
  using L = SampleCounts<T>;
  static constexpr size_t kVectors = channels == 3 ? 3 : 1;

 public:
  using Sample = T;
  static constexpr size_t kBlock = kVectors * L::kLanes, kSets = 1, kMost = L::kMost;
  struct Lanes {
    typename L::V of[kVectors];
  };

  explicit Counts(const Ranges<T>& ranges) : ranges_(ranges) {
    for (size_t i = 0; i < kBlock; ++i) {
      lower_[i] = ranges.lower[i % channels];
      upper_[i] = ranges.upper[i % channels];
    }
  }
  Lanes none() const {
    Lanes lanes;
    for (auto& vector : lanes.of) vector = L::none();
    return lanes;
  }
  [[gnu::always_inline]] void add(Lanes& lanes, const Byte* p) const {
    for (size_t i = 0; i < kVectors; ++i) {
      const auto from = [=](const T* bounds) {
        return reinterpret_cast<const Byte*>(bounds + i * L::kLanes);
      };
      const typename L::Range range(from(lower_), from(upper_));
      lanes.of[i] = range.counted(lanes.of[i], p + i * L::kLanes * sizeof(T));
    }
  }
  // No sample is outside every range and could fill a block up.
  void addTail(Lanes&, size_t samples, const Byte* p) {
    for (size_t i = 0; i < samples; ++i) {
      T x;
      std::memcpy(&x, p + i * sizeof(T), sizeof x);
      const size_t c = i % channels;
      counts_.of[c] += x >= ranges_.lower[c] && !(x > ranges_.upper[c]);
    }
  }
  void empty(const Lanes& lanes) {
    T counts[kBlock];
    for (size_t i = 0; i < kVectors; ++i)
      L::store(reinterpret_cast<Byte*>(counts + i * L::kLanes), lanes.of[i]);
    addToChannels<channels>(counts_, counts, kBlock);
  }
  const ChannelCounts& counts() const { return counts_; }

 private:
  const Ranges<T>& ranges_;
  ChannelCounts counts_{};
  T lower_[kBlock], upper_[kBlock];
};

}  // namespace

template <typename T, int channels>
ChannelCounts countInRanges(SourceRows src, Extent pixels, const Ranges<T>& ranges) {
  Counts<T, channels> counts(ranges);
  reduceRows(counts, pixels.times(channels), src);
  return counts.counts();
}

#define LUMI_COUNTS(T)                                                              \
  template ChannelCounts countInRanges<T, 1>(SourceRows, Extent, const Ranges<T>&); \
  template ChannelCounts countInRanges<T, 3>(SourceRows, Extent, const Ranges<T>&); \
  template ChannelCounts countInRanges<T, 4>(SourceRows, Extent, const Ranges<T>&);
LUMI_COUNTS(uint8_t)
LUMI_COUNTS(float)

}  // namespace lumi
