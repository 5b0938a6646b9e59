// SPDX-License-Identifier: MIT
#include "kernels/statistics/differences.hpp"
#include "kernels/statistics/norm.hpp"
#include "kernels/statistics/relative.hpp"
#include "kernels/statistics/sums.hpp"

namespace lumi {
namespace {

using namespace simd;

template <typename T, typename Total, int channels, typename F>
using Sums = std::conditional_t<
    std::is_same_v<T, float>,
    FloatSums<std::conditional_t<std::is_same_v<Total, float>, Floats4, Doubles4>, channels, F>,
    IntegerSums<T, MagnitudeOf<T>, channels, F>>;

// Differences of bytes of one channel, which an instruction adds up by itself. No image overflows the lanes.
class ByteDistances {
 public:
  using Sample = uint8_t;
  static constexpr size_t kBlock = 16, kSets = 4, kMost = 0;
  using Lanes = Samples16<uint64_t>;

  Lanes none() const { return broadcast16<uint64_t>(0); }
  [[gnu::always_inline]] void add(Lanes& lanes, const Byte* a, const Byte* b) const {
    lanes = lanes + sumsOfDifferences(U8{load16(a)}, U8{load16(b)});
  }
  [[gnu::always_inline]] void addTail(Lanes& lanes, size_t samples, const Byte* a, const Byte* b) const {
    addFilled(*this, lanes, uint8_t{0}, samples, a, b);
  }
  void empty(const Lanes& lanes) {
    uint64_t values[2];
    store16(reinterpret_cast<Byte*>(values), lanes.v);
    total_ += values[0] + values[1];
  }
  ChannelTotals<double> totals(Extent) const { return {{static_cast<double>(total_)}}; }

 private:
  uint64_t total_ = 0;
};

template <typename T, typename Total, int channels>
auto distances() {
  if constexpr (sizeof(T) == 1 && channels == 1)
    return ByteDistances();
  else
    return Sums<T, Total, channels, Distance>(Distance());
}

template <typename Reduction>
NormTotals totalsOf(const Reduction& sums, Extent pixels) {
  if constexpr (std::is_same_v<typename Reduction::Sample, float>) {
    return inDoubles(sums.totals());
  } else {
    return sums.totals(pixels);
  }
}

}  // namespace

template <Norm norm, typename T, typename Total, int channels>
NormTotals normOfImage(SourceRows src, Extent pixels) {
  Sums<T, Total, channels, Magnitude> sums{Magnitude()};
  reduceRows(sums, pixels.times(channels), src);
  return totalsOf(sums, pixels);
}

template <Norm norm, typename T, typename Total, int channels>
NormTotals normOfDifferences(SourceRows a, SourceRows b, Extent pixels) {
  auto sums = distances<T, Total, channels>();
  reduceRows(sums, pixels.times(channels), a, b);
  return totalsOf(sums, pixels);
}

template <Norm norm, typename T, typename Total, int channels>
RelativeTotals relativeNorm(SourceRows a, SourceRows b, Extent pixels) {
  using OfSecond = Sums<T, Total, channels, Magnitude>;
  Relative<decltype(distances<T, Total, channels>()), OfSecond> sums{distances<T, Total, channels>(),
                                                                     OfSecond(Magnitude())};
  reduceRows(sums, pixels.times(channels), a, b);
  return {totalsOf(sums.differences, pixels), totalsOf(sums.ofSecond, pixels)};
}

#define LUMI_IMAGE(T, Total, channels) \
  template NormTotals normOfImage<Norm::L1, T, Total, channels>(SourceRows, Extent);
#define LUMI_TWO_IMAGES(T, Total, channels)                                                            \
  template NormTotals normOfDifferences<Norm::L1, T, Total, channels>(SourceRows, SourceRows, Extent); \
  template RelativeTotals relativeNorm<Norm::L1, T, Total, channels>(SourceRows, SourceRows, Extent);
#define LUMI_EACH(MEMBERS, T, Total) MEMBERS(T, Total, 1) MEMBERS(T, Total, 3) MEMBERS(T, Total, 4)
LUMI_EACH(LUMI_IMAGE, int16_t, uint64_t)
LUMI_EACH(LUMI_IMAGE, float, float)
LUMI_EACH(LUMI_IMAGE, float, double)
LUMI_EACH(LUMI_TWO_IMAGES, uint8_t, uint64_t)
LUMI_EACH(LUMI_TWO_IMAGES, uint16_t, uint64_t)
LUMI_EACH(LUMI_TWO_IMAGES, int16_t, uint64_t)
LUMI_EACH(LUMI_TWO_IMAGES, float, float)
LUMI_EACH(LUMI_TWO_IMAGES, float, double)

}  // namespace lumi
