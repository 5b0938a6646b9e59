// SPDX-License-Identifier: MIT
#include "kernels/filters/hog.hpp"

#include <cstring>

#include "kernels/path_count.hpp"
#include "kernels/simd/filter.hpp"
#include "kernels/simd/lanes.hpp"
#include "kernels/simd/quotients.hpp"

namespace lumi {
namespace {

using namespace simd;

constexpr int kBinBytes = 16;  // of four cells
constexpr int kMostBins = 16;

struct Gradient {
  Floats8 x, y;

  Floats8 square() const { return x * x + y * y; }
};

Gradient ifThenElse(Floats8 mask, const Gradient& yes, const Gradient& no) {
  return {simd::ifThenElse(mask, yes.x, no.x), simd::ifThenElse(mask, yes.y, no.y)};
}

struct Votes {
  Ints8 bins;
  Floats8 low, high;
};

class Voting {
 public:
  explicit Voting(int binCount)
      : count_(broadcastFloat<Floats8>(static_cast<float>(binCount))),
        last_(broadcastFloat<Floats8>(static_cast<float>(binCount - 1))),
        perRadian_(broadcastFloat<Floats8>(static_cast<float>(binCount / 3.14159265358979324))) {}

  [[gnu::always_inline]] Votes operator()(const Gradient& g) const {
    const Floats8 zero = broadcastFloat<Floats8>(0), one = broadcastFloat<Floats8>(1);
    const Floats8 b = angle(g) * perRadian_ - broadcastFloat<Floats8>(0.5F);
    const Floats8 k = whole<kDownward>(b), rest = b - k;
    const Floats8 magnitude = squareRoot(g.square());
    // From -1 to 2 * count - 1; limits are for what is no number.
    Floats8 low = ifThenElse(isBelow(k, zero), k + count_, k);
    low = ifThenElse(isAtLeast(low, count_), low - count_, low);
    low = min(max(low, zero), last_);
    const Floats8 high = andNot(isEqual(low, last_), low + one);
    const Floats8 both = low * broadcastFloat<Floats8>(kBinBytes) +
                         high * broadcastFloat<Floats8>(kBinBytes * 65536.0F);  // exact: below 2^24
    return {truncated(both), magnitude * (one - rest), magnitude * rest};
  }

 private:
  [[gnu::always_inline]] static Floats8 angle(const Gradient& g) {
    const Floats8 zero = broadcastFloat<Floats8>(0), epsilon = broadcastFloat<Floats8>(2.220446e-16F);
    const Floats8 factor = broadcastFloat<Floats8>(0.28F), sign = broadcastFloat<Floats8>(-0.0F);
    const Floats8 xx = g.x * g.x, yy = g.y * g.y;
    const Floats8 isFlat = isAtLeast(xx, yy), isUp = isAtLeast(g.y, zero);
    const Floats8 divisor = ifThenElse(isFlat, (epsilon + xx) + factor * yy, (epsilon + factor * xx) + yy);
    const Floats8 quotient = (g.x * g.y) / divisor;
    const Floats8 flat = ifThenElse(isBelow(g.x, zero), broadcastFloat<Floats8>(3.14159265F),
                                    andNot(isUp, broadcastFloat<Floats8>(6.28318531F)));
    const Floats8 steep =
        ifThenElse(isUp, broadcastFloat<Floats8>(1.57079633F), broadcastFloat<Floats8>(4.71238898F));
    return (quotient ^ andNot(isFlat, sign)) + ifThenElse(isFlat, flat, steep);
  }

  Floats8 count_, last_, perRadian_;
};

template <int channels>
[[gnu::always_inline]] inline Gradient gradientAt(const HogStrip& strip, size_t i) {
  const auto of = [&](int c) {
    const ptrdiff_t at = c * strip.channel + static_cast<ptrdiff_t>(i);
    return Gradient{loadLanes<Floats8>(strip.centre + at + 1) - loadLanes<Floats8>(strip.centre + at - 1),
                    loadLanes<Floats8>(strip.below + at) - loadLanes<Floats8>(strip.above + at)};
  };
  const Gradient first = of(0);
  if constexpr (channels == 1) return first;
  const Gradient second = of(1), third = of(2);
  const Gradient two = ifThenElse(isAtLeast(second.square(), first.square()), second, first);
  return ifThenElse(isAbove(third.square(), two.square()), third, two);
}

// Eight pixels: bins and both votes of each side by side.
void store(uint8_t* at, const Votes& votes) {
  const Bytes32 bins = permuteDwords<0, 3, 2, 1>(votes.bins.v);
  const Bytes32 low = permuteDwords<1, 0, 3, 2>(bytesOf(votes.low));
  const Bytes32 high = permuteDwords<2, 1, 0, 3>(bytesOf(votes.high));
  const auto thirds = [](Bytes32 outer, Bytes32 second, Bytes32 third) {
    return blendDwords<0b01000100>(blendDwords<0b00100010>(outer, second), third);
  };
  storeThirds<Cached>(at, thirds(bins, low, high), thirds(low, high, bins), thirds(high, bins, low));
}

// Several blocks at once: additions to one histogram wait for one another where neighbours count in one bin.
constexpr size_t kTogether = 4;

struct alignas(32) Histogram {
  uint8_t bytes[kMostBins * kBinBytes];
};

template <size_t blocks>
[[gnu::always_inline]] inline void addUp(const HogGrid& grid, ptrdiff_t rowBytes, const uint8_t** rows,
                                         Histogram* histograms) {
  for (size_t i = 0; i < blocks; ++i)
    std::memset(histograms[i].bytes, 0, static_cast<size_t>(grid.binCount) * kBinBytes);
  const uint8_t* weights = grid.weights;
  for (int y = 0; y < grid.blockSize; ++y) {
    const uint8_t* at[blocks];
    for (size_t i = 0; i < blocks; ++i) at[i] = rows[i] + y * rowBytes;
    for (ptrdiff_t x = 0; x < 12 * grid.blockSize; x += 12, weights += kBinBytes) {
      const Floats4 weight = loadFloats4(weights);
      for (size_t i = 0; i < blocks; ++i) {
        const uint8_t* const pixel = at[i] + x;
        uint32_t bins;
        std::memcpy(&bins, pixel, sizeof bins);
        uint8_t* const low = histograms[i].bytes + (bins & 0xFFFF);
        uint8_t* const high = histograms[i].bytes + (bins >> 16);
        const Floats4 inLow = loadFloats4(low) + broadcastFrom<Floats4>(pixel + 4) * weight;
        const Floats4 inHigh = loadFloats4(high) + broadcastFrom<Floats4>(pixel + 8) * weight;
        storeFloats(low, inLow);
        storeFloats(high, inHigh);
      }
    }
  }
}

// 1 / sqrt(s + a little) in all lanes, of the sum of all lanes.
Floats4 scaleOf(Floats4 sums) {
  float of[4];
  std::memcpy(of, &sums, sizeof of);
  const float sum = ((of[0] + of[1]) + of[2]) + of[3];
  return broadcastFloat<Floats4>(1) / squareRoot(broadcastFloat<Floats4>(sum + 1.1920929e-7F));
}

void storeNormalised(const HogGrid& grid, Histogram& histogram, uint8_t* dst) {
  const auto at = [&](int bin) { return histogram.bytes + bin * kBinBytes; };
  Floats4 sum = broadcastFloat<Floats4>(0), limitedSum = sum;
  for (int bin = 0; bin < grid.binCount; ++bin) {
    const Floats4 h = loadFloats4(at(bin));
    sum = sum + h * h;
  }
  const Floats4 scale = scaleOf(sum), clipping = broadcastFloat<Floats4>(grid.clipping);
  for (int bin = 0; bin < grid.binCount; ++bin) {
    const Floats4 h = min(loadFloats4(at(bin)) * scale, clipping);
    storeFloats(at(bin), h);
    limitedSum = limitedSum + h * h;
  }
  const Floats4 last = scaleOf(limitedSum);
  const ptrdiff_t cellBytes = 4 * grid.binCount;
  for (int bin = 0; bin < grid.binCount; bin += 4) {
    // Four bins of all cells, stepping back at the end, become bins of each cell.
    const int first = bin + 4 <= grid.binCount || grid.binCount < 4 ? bin : grid.binCount - 4;
    const auto scaled = [&](int i) { return bytesOf(loadFloats4(at(first + i)) * last); };
    const Dwords4x4 cells = transpose(Dwords4x4{scaled(0), scaled(1), scaled(2), scaled(3)});
    for (size_t c = 0; c < 4; ++c) {
      uint8_t* const to = dst + static_cast<ptrdiff_t>(c) * cellBytes + 4 * first;
      if (grid.binCount >= 4)
        store16(to, cells.row[c]);
      else
        std::memcpy(to, &cells.row[c], static_cast<size_t>(cellBytes));
    }
  }
}

}  // namespace

template <int channels>
void hogVotes(const HogStrip& strip, int binCount, uint8_t* votes, size_t pixels) {
  const Voting voting(binCount);
  size_t i = 0;
  for (; i + 8 <= pixels; i += 8) store(votes + 12 * i, voting(gradientAt<channels>(strip, i)));
  if (i == pixels) return;
  uint8_t rest[96];
  store(rest, voting(gradientAt<channels>(strip, i)));
  std::memcpy(votes + 12 * i, rest, 12 * (pixels - i));
}

template void hogVotes<1>(const HogStrip&, int, uint8_t*, size_t);
template void hogVotes<3>(const HogStrip&, int, uint8_t*, size_t);

void hogDescriptor(const HogGrid& grid, const HogVotes& votes, uint8_t* dst) {
  Histogram histograms[kTogether] = {};
  const int inner = grid.byColumns ? grid.down : grid.across;
  ptrdiff_t column = 0, row = 0;
  const auto nextBlock = [&]() -> const uint8_t* {
    const ptrdiff_t x = grid.stride * (grid.byColumns ? row : column);
    const ptrdiff_t y = grid.stride * (grid.byColumns ? column : row);
    if (++column == inner) column = 0, ++row;
    return votes.at(x, y);
  };
  size_t left = grid.blocks();
  const auto describe = [&](auto count) {
    constexpr size_t blocks = decltype(count)::value;
    const uint8_t* at[blocks];
    for (const uint8_t*& block : at) block = nextBlock();
    addUp<blocks>(grid, votes.row, at, histograms);
    for (size_t i = 0; i < blocks; ++i, dst += kBinBytes * grid.binCount)
      storeNormalised(grid, histograms[i], dst);
    left -= blocks;
  };
  while (left >= kTogether) {
    countPath(Path::HogBlocksTogether);
    describe(std::integral_constant<size_t, kTogether>());
  }
  if (left >= 2) describe(std::integral_constant<size_t, 2>());
  if (left == 1) describe(std::integral_constant<size_t, 1>());
}

}  // namespace lumi
