// SPDX-License-Identifier: MIT
#include "kernels/statistics/norm.hpp"
#include "kernels/statistics/products.hpp"
#include "kernels/statistics/relative.hpp"

namespace lumi {
namespace {

using namespace simd;

// Differences of bytes of one channel: by 1 and -1 pairs are widened and subtracted at once.
class ByteDifferenceSquares {
 public:
  using Sample = uint8_t;
  using Lanes = U32;
  static constexpr size_t kBlock = 16, kSets = 2, kMost = UINT32_MAX / (4 * 255 * 255);

  Lanes none() const { return broadcast16<uint32_t>(0); }
  [[gnu::always_inline]] void add(Lanes& lanes, const Byte* at, const Byte* other) const {
    const U8 a{load16Once(at)}, b{load16Once(other)};
    const S8 signs = as<int8_t>(broadcast16<uint16_t>(0xFF01));
    const S16 low = multiplyAddPairs(interleaveLow(a, b), signs),
              high = multiplyAddPairs(interleaveHigh(a, b), signs);
    lanes = lanes + as<uint32_t>(multiplyAddPairs(low, low) + multiplyAddPairs(high, high));
  }
  [[gnu::always_inline]] void addTail(Lanes& lanes, size_t samples, const Byte* a, const Byte* b) const {
    addFilled(*this, lanes, uint8_t{0}, samples, a, b);
  }
  void empty(const Lanes& lanes) {
    uint32_t values[4];
    store16(reinterpret_cast<Byte*>(values), lanes.v);
    addToChannels<1>(totals_, values, 4);
  }
  ChannelTotals<uint64_t> totals() const { return totals_; }

 private:
  ChannelTotals<uint64_t> totals_{};
};

template <typename T, typename Total, int channels>
using OfDifferences = std::conditional_t<sizeof(T) == 1 && channels == 1, ByteDifferenceSquares,
                                         ProductSums<DifferenceSquares, T, channels, Total>>;

}  // namespace

template <Norm norm, typename T, typename Total, int channels>
NormTotals normOfImage(SourceRows src, Extent pixels) {
  ProductSums<Squares, T, channels, Total> sums;
  reduceRows(sums, pixels.times(channels), src);
  return channelsInDoubles<channels>(sums.totals());
}

template <Norm norm, typename T, typename Total, int channels>
NormTotals normOfDifferences(SourceRows a, SourceRows b, Extent pixels) {
  OfDifferences<T, Total, channels> sums;
  reduceRows(sums, pixels.times(channels), a, b);
  return channelsInDoubles<channels>(sums.totals());
}

template <Norm norm, typename T, typename Total, int channels>
RelativeTotals relativeNorm(SourceRows a, SourceRows b, Extent pixels) {
  Relative<OfDifferences<T, Total, channels>, ProductSums<Squares, T, channels, Total>> sums;
  reduceRows(sums, pixels.times(channels), a, b);
  return {channelsInDoubles<channels>(sums.differences.totals()),
          channelsInDoubles<channels>(sums.ofSecond.totals())};
}

double squareRootOf(double x) { return squareRoot(x); }

#define LUMI_NORMS(T, Total, channels)                                                                 \
  template NormTotals normOfImage<Norm::L2, T, Total, channels>(SourceRows, Extent);                   \
  template NormTotals normOfDifferences<Norm::L2, T, Total, channels>(SourceRows, SourceRows, Extent); \
  template RelativeTotals relativeNorm<Norm::L2, T, Total, channels>(SourceRows, SourceRows, Extent);
#define LUMI_NORMS_OF(T, Total) LUMI_NORMS(T, Total, 1) LUMI_NORMS(T, Total, 3) LUMI_NORMS(T, Total, 4)
LUMI_NORMS_OF(uint8_t, uint64_t)
LUMI_NORMS_OF(uint16_t, uint64_t)
LUMI_NORMS_OF(int16_t, uint64_t)
LUMI_NORMS_OF(float, float)
LUMI_NORMS_OF(float, double)

}  // namespace lumi
