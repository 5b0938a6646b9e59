// SPDX-License-Identifier: MIT
#include "filters/large_median.hpp"

#include <algorithm>
#include <type_traits>

#include "frame/scratch.hpp"
#include "kernels/filters/median_histograms.hpp"
#include "kernels/filters/sample_ranks.hpp"
#include "kernels/simd/bytes.hpp"

namespace lumi {
namespace {

constexpr int64_t kBoundary = 64;

// Columns that are done together, so that their histograms stay in the second cache.
constexpr int64_t kStripe = 2048;

// Scratch on a boundary.
class AlignedScratch {
 public:
  explicit AlignedScratch(int64_t bytes) : block_(bytes + kBoundary - 1) {}

  explicit operator bool() const { return static_cast<bool>(block_); }
  Byte* data() const {
    auto* const first = static_cast<Byte*>(block_.data());
    return first + simd::bytesToBoundary(first, kBoundary);
  }

 private:
  Scratch block_;
};

bool fitHistograms(LumiSize mask) {
  using Columns = MedianColumns<Lum8u>;
  return mask.height <= Columns::kMostRows && int64_t{mask.width} * mask.height <= Columns::kMostSamples;
}

Byte* sampleAt(TargetRows rows, int64_t x, int y, int pixelBytes, int offset) {
  return rows.row(y) + static_cast<ptrdiff_t>(x) * pixelBytes + offset;
}
const Byte* sampleAt(SourceRows rows, int64_t x, int y, int pixelBytes, int offset) {
  return rows.row(y) + static_cast<ptrdiff_t>(x) * pixelBytes + offset;
}

// Calls each(first pixel, pixels) for the stripes of a row.
template <typename Each>
void inStripes(int64_t width, int64_t most, const Each& each) {
  for (int64_t x = 0; x < width; x += most) each(x, std::min(most, width - x));
}

template <typename T>
bool storeByHistograms(const LargeMedian& f) {
  const int64_t most = std::min<int64_t>(f.roi.width, kStripe), around = f.mask.width - 1;
  const AlignedScratch scratch(MedianColumns<T>::bytes(most + around, f.mask.height));
  if (!scratch) return false;
  inStripes(f.roi.width, most, [&](int64_t first, int64_t pixels) {
    for (int c = 0; c < f.channels; ++c) {
      const int offset = c * static_cast<int>(sizeof(T));
      MedianColumns<T> columns(scratch.data(), static_cast<int>(pixels + around), f.mask.height);
      const auto take = [&](int y) {
        columns.take(sampleAt(f.src, first, y, f.pixelBytes, offset), f.pixelBytes);
      };
      for (int y = 0; y < f.mask.height - 1; ++y) take(y);
      for (int y = 0; y < f.roi.height; ++y) {
        take(y + f.mask.height - 1);
        columns.medians(sampleAt(f.dst, first, y, f.pixelBytes, offset), f.pixelBytes, f.mask.width);
      }
    }
  });
  return true;
}

// Pieces of an image whose samples can be counted by words, with what their windows cover.
struct Tiles {
  int64_t columns, rows;  // that windows cover

  Tiles(LumiSize roi, LumiSize mask) {
    constexpr int64_t kSide = 256, kMost = kSide * kSide;
    columns = std::min<int64_t>(int64_t{roi.width} + mask.width - 1,
                                std::max<int64_t>(kSide, 2 * int64_t{mask.width}));
    rows = std::min<int64_t>(int64_t{roi.height} + mask.height - 1, kMost / columns);
  }
};

template <typename T>
class RankedTiles {
 public:
  explicit RankedTiles(const LargeMedian& f)
      : f_(f),
        tiles_(f.roi, f.mask),
        rankBytes_(roundedUp(SampleRanks<T>::bytes(tiles_.columns * tiles_.rows))),
        histogramBytes_(roundedUp(Columns::bytes(tiles_.columns, f.mask.height))) {}

  bool areWide() const { return tiles_.rows >= f_.mask.height; }
  int64_t bytes() const { return rankBytes_ + histogramBytes_ + tiles_.columns * int64_t{sizeof(uint16_t)}; }

  void store(Byte* memory) const {
    const int64_t pixels = tiles_.columns - f_.mask.width + 1, rows = tiles_.rows - f_.mask.height + 1;
    inStripes(f_.roi.height, rows, [&](int64_t y, int64_t height) {
      inStripes(f_.roi.width, pixels, [&](int64_t x, int64_t width) {
        for (int c = 0; c < f_.channels; ++c)
          storeTile(memory, x, static_cast<int>(y), {static_cast<int>(width), static_cast<int>(height)},
                    c * static_cast<int>(sizeof(T)));
      });
    });
  }

 private:
  using Columns = MedianColumns<uint16_t>;
  static int64_t roundedUp(int64_t n) { return (n + kBoundary - 1) / kBoundary * kBoundary; }

  void storeTile(Byte* memory, int64_t x, int y, LumiSize size, int offset) const {
    const int columns = size.width + f_.mask.width - 1, rows = size.height + f_.mask.height - 1;
    SampleRanks<T> ranks(memory, tiles_.columns * tiles_.rows);
    ranks.rank(sampleAt(f_.src, x, y, f_.pixelBytes, offset), f_.src.step, f_.pixelBytes, columns, rows);
    Columns histograms(memory + rankBytes_, columns, f_.mask.height);
    auto* const medians = reinterpret_cast<uint16_t*>(memory + rankBytes_ + histogramBytes_);
    const auto take = [&](int row) {
      histograms.take(reinterpret_cast<const Byte*>(ranks.row(row)), sizeof(uint16_t));
    };
    for (int row = 0; row < f_.mask.height - 1; ++row) take(row);
    for (int row = 0; row < size.height; ++row) {
      take(row + f_.mask.height - 1);
      histograms.medians(reinterpret_cast<Byte*>(medians), sizeof(uint16_t), f_.mask.width);
      Byte* dst = sampleAt(f_.dst, x, y + row, f_.pixelBytes, offset);
      for (int i = 0; i < size.width; ++i, dst += f_.pixelBytes) ranks.store(dst, medians[i]);
    }
  }

  const LargeMedian& f_;
  Tiles tiles_;
  int64_t rankBytes_, histogramBytes_;
};

template <typename T>
bool storeByRanks(const LargeMedian& f) {
  const RankedTiles<T> tiles(f);
  if (!tiles.areWide()) return false;
  const AlignedScratch scratch(tiles.bytes());
  if (scratch) tiles.store(scratch.data());
  return static_cast<bool>(scratch);
}

}  // namespace

template <typename T>
bool storeMedians(const LargeMedian& filter) {
  if (!fitHistograms(filter.mask)) return false;
  bool stored = false;
  if constexpr (std::is_floating_point_v<T>)
    stored = storeByRanks<T>(filter);
  else
    stored = storeByHistograms<T>(filter);
  if (stored) countPath(Path::MedianHistograms);
  return stored;
}

template <typename T>
void storeSelectedMedians(const LargeMedian& f) {
  for (int y = 0; y < f.roi.height; ++y)
    for (int c = 0; c < f.channels; ++c) {
      const int offset = c * static_cast<int>(sizeof(T));
      selectMedians<T>({f.src.row(y) + offset, f.src.step, f.pixelBytes, f.mask.height, f.mask.width},
                       f.dst.row(y) + offset, f.roi.width);
    }
}

#define LUMI_LARGE_MEDIAN(T)                         \
  template bool storeMedians<T>(const LargeMedian&); \
  template void storeSelectedMedians<T>(const LargeMedian&);
LUMI_LARGE_MEDIAN(Lum8u)
LUMI_LARGE_MEDIAN(Lum16u)
LUMI_LARGE_MEDIAN(Lum16s)
LUMI_LARGE_MEDIAN(Lum32f)
LUMI_LARGE_MEDIAN(Lum64f)
#undef LUMI_LARGE_MEDIAN

}  // namespace lumi
