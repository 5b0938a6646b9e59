// SPDX-License-Identifier: MIT
// Rows come to their extremes without any index; only a row that holds a better one is looked at again.
#include "kernels/statistics/min_max_index.hpp"

#include "kernels/statistics/extremes.hpp"
#include "kernels/statistics/itself.hpp"

namespace lumi {
namespace {

using namespace simd;

// The places of one channel in a block: those of channel c from sample channels - c on.
template <typename T, int channels>
constexpr auto kChannelMarks =
    pixelMask<channels * sizeof(T), sizeof(T), (ExtremeLanes<T, channels>::kBlock + channels) * sizeof(T)>();

// The first pixel of a row whose sample of a channel is that of `wanted`, and 0 if there is none.
template <typename T, int channels>
int firstIn(const Byte* row, size_t pixels, size_t channel, const ExtremeLanes<T, channels>& wanted,
            T value) {
  using Lanes = ExtremeLanes<T, channels>;
  using Vectors = typename Lanes::Vectors;
  constexpr size_t kBlockPixels = Lanes::kBlock / channels;
  const Byte* const marks = kChannelMarks<T, channels>.bytes + (channels - channel) * sizeof(T);
  size_t x = 0;
  for (; x + kBlockPixels <= pixels; x += kBlockPixels) {
    bool found = false;
    for (size_t i = 0; i < Lanes::kVectors; ++i) {
      const size_t at = i * sizeof(typename Lanes::V);
      const auto equal = isEqual(Vectors::load(row + (x * channels * sizeof(T) + at)), wanted.of[i]);
      found = found | anySet(bytesOf(equal & Vectors::load(marks + at)));
    }
    if (found) break;
  }
  for (; x < pixels; ++x) {
    T sample;
    std::memcpy(&sample, row + (x * channels + channel) * sizeof(T), sizeof sample);
    if (sample == value) return static_cast<int>(x);
  }
  return 0;
}

// The best values so far.
template <typename Kind, typename T, int channels>
class Best {
  using Lanes = ExtremeLanes<T, channels>;
  static constexpr T kStart = std::is_floating_point_v<T> && channels == 1 ? Kind::template worstFinite<T>()
                                                                           : Kind::template worst<T>();

 public:
  // Unused channels begin with what nothing is better than.
  explicit Best(size_t used) : used_(used) {
    for (size_t c = 0; c < channels; ++c) values_[c] = c < used ? kStart : Kind::template best<T>();
    lanes_ = Lanes::at(values_);
  }

  // Lanes begin with the best values, so that they differ where one of a row is better.
  bool isBeatenBy(const Byte* row, size_t samples) {
    Extremes<T, T, channels, Itself, Kind> extremes(Itself(), lanes_);
    extremes.addRow(samples, row);
    const Lanes lanes = extremes.template lanes<Kind>();
    const bool beaten = lanes.differsFrom(lanes_);
    if (beaten) lanes_ = lanes;  // else rows would wait for one another
    return beaten;
  }
  // After a row that was better.
  void place(int y) {
    const ChannelTotals<T> found = lanes_.template channelsBy<Kind>();
    for (size_t c = 0; c < used_; ++c) {
      if (found.of[c] == values_[c]) continue;
      values_[c] = found.of[c];
      y_[c] = y;
    }
    lanes_ = Lanes::at(values_);
  }
  bool isUnbeatable() const {
    bool every = std::is_integral_v<T>;
    for (size_t c = 0; c < used_; ++c) every = every & (values_[c] == Kind::template best<T>());
    return every;
  }

  PlacedExtremes<T> placedIn(SourceRows src, size_t pixels) const {
    PlacedExtremes<T> result{};
    for (size_t c = 0; c < used_; ++c) {
      result.value.of[c] = values_[c];
      result.x.of[c] = firstIn<T, channels>(src.row(y_[c]), pixels, c, lanes_, values_[c]);
      result.y.of[c] = y_[c];
    }
    return result;
  }

 private:
  size_t used_;
  Lanes lanes_;
  T values_[channels];
  int y_[channels]{};
};

template <typename Kind, typename T, int channels>
PlacedExtremes<T> placedExtremesOf(SourceRows src, Extent pixels, size_t used) {
  Best<Kind, T, channels> best(used);
  for (int y = 0; y < pixels.rows; ++y) {
    if (!best.isBeatenBy(src.row(y), pixels.length * channels)) continue;
    best.place(y);
    if (best.isUnbeatable()) break;
  }
  return best.placedIn(src, pixels.length);
}

}  // namespace

template <typename T, int channels>
PlacedExtremes<T> placedLeastOf(SourceRows src, Extent pixels, size_t used) {
  return placedExtremesOf<Least, T, channels>(src, pixels, used);
}
template <typename T, int channels>
PlacedExtremes<T> placedGreatestOf(SourceRows src, Extent pixels, size_t used) {
  return placedExtremesOf<Greatest, T, channels>(src, pixels, used);
}

#define LUMI_PLACED(T, channels)                                                     \
  template PlacedExtremes<T> placedLeastOf<T, channels>(SourceRows, Extent, size_t); \
  template PlacedExtremes<T> placedGreatestOf<T, channels>(SourceRows, Extent, size_t);
#define LUMI_PLACED_OF(T) LUMI_PLACED(T, 1) LUMI_PLACED(T, 3) LUMI_PLACED(T, 4)
LUMI_PLACED_OF(uint8_t)
LUMI_PLACED_OF(uint16_t)
LUMI_PLACED_OF(int16_t)
LUMI_PLACED_OF(float)

}  // namespace lumi
