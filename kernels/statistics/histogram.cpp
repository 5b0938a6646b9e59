// SPDX-License-Identifier: MIT
#include "kernels/statistics/histogram.hpp"

#include <algorithm>
#include <cstring>
#include <limits>
#include <type_traits>

#include "kernels/simd/elementary.hpp"
#include "kernels/simd/floats.hpp"
#include "kernels/simd/samples.hpp"

namespace lumi {
namespace {

using namespace simd;

// Samples of a channel that stand side by side; eight more may be put behind them.
constexpr size_t kBlock = 1024;
template <typename T>
struct Block {
  T samples[kBlock + 8] = {};
  size_t count = 0;
};

// Calls work(block) for all samples of the channel.
template <typename T, typename Work>
[[gnu::always_inline]] inline void forBlocks(const Channel& channel, const Work& work) {
  Block<T> block;
  walkRows(
      channel.pixels.rows,
      [&](const uint8_t* row) {
        for (size_t left = channel.pixels.length; left > 0;) {
          const size_t n = std::min(left, kBlock - block.count);
          T* const to = block.samples + block.count;
          if (channel.pixelBytes == sizeof(T))
            std::memcpy(to, row, n * sizeof(T));
          else
            for (size_t i = 0; i < n; ++i) std::memcpy(to + i, row + i * channel.pixelBytes, sizeof(T));
          row += n * channel.pixelBytes;
          left -= n;
          block.count += n;
          if (block.count == kBlock) {
            work(block);
            block.count = 0;
          }
        }
      },
      channel.rows);
  if (block.count > 0) work(block);
}

// The bins of a list, at any address.
class Bins {
 public:
  template <typename L>
  explicit Bins(const BinList<L>& list) : first_(static_cast<uint8_t*>(list.bins)) {}
  void clear(int size) { std::memset(first_, 0, static_cast<size_t>(size) * sizeof(uint32_t)); }
  void add(size_t k, uint32_t n) {
    const uint32_t sum = (*this)[k] + n;
    set(k, sum);
  }
  uint32_t operator[](size_t k) const {
    return Unaligned<uint32_t>{reinterpret_cast<const uint32_t*>(first_)}[k];
  }
  void set(size_t k, uint32_t n) { std::memcpy(first_ + k * sizeof n, &n, sizeof n); }
  void setRun(size_t k, const void* counts, size_t n) {
    std::memcpy(first_ + k * sizeof(uint32_t), counts, n * sizeof(uint32_t));
  }

 private:
  uint8_t* first_;
};

// Levels in a row, each one above the last: the bins of so many are entries of the table themselves.
constexpr int kRun = 8;
bool isRun(Unaligned<int32_t> levels, int k) {
  alignas(16) static constexpr int32_t kSteps[kRun] = {1, 2, 3, 4, 5, 6, 7, 8};
  const auto* const at =
      reinterpret_cast<const Byte*>(levels.first) + sizeof(int32_t) * static_cast<size_t>(k);
  const auto* const steps = reinterpret_cast<const Byte*>(kSteps);
  const S32 first = broadcast16(levels[k]);
  const S32 low = isEqual(S32{load16(at + 4)} - first, S32{load16(steps)}),
            high = isEqual(S32{load16(at + 20)} - first, S32{load16(steps + 16)});
  return allSet((low & high).v);
}

// Bins of a table that has an entry for each sample from `low` on.
void binTable(Unaligned<uint32_t> table, int low, int entries, const BinList<int32_t>& list) {
  Bins bins(list);
  const auto entryOf = [=](int level) { return std::clamp(level, low, low + entries) - low; };
  for (int k = 0; k < list.size();) {
    const int from = entryOf(list.levels[k]), to = entryOf(list.levels[k + 1]);
    if (to - from == 1 && k + kRun <= list.size() && from + kRun <= entries && isRun(list.levels, k)) {
      bins.setRun(static_cast<size_t>(k), table.first + from, kRun);
      k += kRun;
      continue;
    }
    uint32_t sum = 0;
    for (int i = from; i < to; ++i) sum += table[i];
    bins.set(static_cast<size_t>(k), sum);
    ++k;
  }
}

template <typename T>
constexpr int kLow = std::numeric_limits<T>::min();
template <typename T>
constexpr int kHigh = std::numeric_limits<T>::max();

// How many samples are at or above a level: counted in lanes, which hold the samples of a block. Words are
// compared as signed ones, unsigned ones with their top bit turned.
template <typename T>
struct Lanes {
  static constexpr size_t kLanes = 8;
  S16 below, counts;

  // Every sample is at or above the lowest one, which therefore is not looked for.
  explicit Lanes(int level)
      : below(broadcast16(
            static_cast<int16_t>(std::clamp<int64_t>(int64_t{level} - 1, kLow<T>, kHigh<T>) - kTurn))),
        counts(broadcast16<int16_t>(0)) {}
  void count(const Byte* p) { counts = counts - isAbove(S16{load16(p)}, below); }  // all ones is -1
  uint32_t sum() const {
    int16_t lanes[kLanes];
    store16(reinterpret_cast<Byte*>(lanes), counts.v);
    uint32_t sum = 0;
    for (const int16_t lane : lanes) sum += static_cast<uint32_t>(lane);
    return sum;
  }
  static bool isBelowAll(int level) { return level <= kLow<T>; }
  // Turns the samples; the lowest one, which is above no level, stands behind them.
  static void prepare(Block<T>& block) {
    std::fill_n(block.samples + block.count, kLanes, std::numeric_limits<T>::min());
    if constexpr (kTurn != 0)
      for (T& sample : block.samples) sample = static_cast<T>(sample ^ kTurn);
  }

 private:
  static constexpr int kTurn = kLow<T> == 0 ? 0x8000 : 0;
};

template <>
struct Lanes<float> {
  static constexpr size_t kLanes = 8;
  Floats8 level, counts;

  explicit Lanes(float at) : level(broadcastFloat<Floats8>(at)), counts(broadcastFloat<Floats8>(0)) {}
  void count(const Byte* p) {
    counts = counts + (isAtLeast(loadFloats8(p), level) & broadcastFloat<Floats8>(1));
  }
  uint32_t sum() const {
    float lanes[kLanes];
    store32(reinterpret_cast<Byte*>(lanes), bytesOf(counts));
    uint32_t sum = 0;
    for (const float lane : lanes) sum += static_cast<uint32_t>(lane);
    return sum;
  }
  static bool isBelowAll(float) { return false; }
  static void prepare(Block<float>& block) {
    std::fill_n(block.samples + block.count, kLanes, std::numeric_limits<float>::quiet_NaN());
  }
};

// How many samples of a block are at or above four levels.
template <typename T, typename L>
[[gnu::always_inline]] inline void countAtLeast(const Block<T>& block, const L (&levels)[4],
                                                uint32_t (&sums)[4]) {
  Lanes<T> a(levels[0]), b(levels[1]), c(levels[2]), d(levels[3]);
  for (size_t at = 0; at < block.count; at += Lanes<T>::kLanes) {
    const auto* const p = reinterpret_cast<const Byte*>(block.samples + at);
    a.count(p), b.count(p), c.count(p), d.count(p);
  }
  sums[0] = a.sum(), sums[1] = b.sum(), sums[2] = c.sum(), sums[3] = d.sum();
}

// Where samples would lie if bins had one width. That grows with the sample, whatever is rounded.
class Places {
 public:
  template <typename L>
  explicit Places(const BinList<L>& list) : all_(list.size()) {
    const auto first = static_cast<float>(list.levels[0]), last = static_cast<float>(list.levels[all_]);
    first_ = broadcastFloat<Floats8>(first);
    scale_ = broadcastFloat<Floats8>(static_cast<float>(all_) / (last - first));
    top_ = broadcastFloat<Floats8>(static_cast<float>(std::min(all_ - 1, kMost)));
  }

  // Of eight samples, NaN at 0.
  void find(const float* samples, int* places) const {
    const Floats8 x = loadFloats8(reinterpret_cast<const Byte*>(samples));
    const Floats8 place = min(max((x - first_) * scale_, broadcastFloat<Floats8>(0)), top_);
    store32(reinterpret_cast<Byte*>(places), truncated(place).v);
  }
  // Whether each level's place is its own or the one before it. Those of the samples between two levels are
  // then the lower one's, or one of both beside it.
  template <typename L>
  bool areClose(const BinList<L>& list) const {
    bool close = all_ <= kMost;
    for (int from = 0; from < all_ && close; from += 8) {
      float levels[8] = {};
      int places[8];
      const int count = std::min(8, all_ - from);
      for (int i = 0; i < count; ++i) levels[i] = static_cast<float>(list.levels[from + i]);
      find(levels, places);
      for (int i = 0; i < count; ++i) close &= places[i] == from + i || places[i] == from + i - 1;
    }
    return close;
  }

 private:
  static constexpr int kMost = 1 << 24;  // as floats count
  int all_;
  Floats8 first_, scale_, top_;
};

// All places are found before any sample is counted, so that no vector is loaded from words just stored. The
// list is a copy: compilers must suppose that counting changes any other.
template <typename T, typename L>
void countNearPlaces(const Block<T>& block, const Places& places, BinList<L> list, Bins bins) {
  int at[kBlock + 8];
  float converted[std::is_same_v<T, float> ? 1 : kBlock + 8];
  const float* samples = converted;
  if constexpr (std::is_same_v<T, float>)
    samples = block.samples;
  else
    std::copy_n(block.samples, kBlock + 8, converted);
  for (size_t i = 0; i < block.count; i += 8) places.find(samples + i, at + i);
  for (size_t i = 0; i < block.count; ++i) {
    const T x = block.samples[i];
    int bin = at[i];
    if (!(x >= list.levels[bin]))
      --bin;
    else if (x >= list.levels[bin + 1])
      ++bin;
    if (bin >= 0 && bin < list.size()) bins.add(static_cast<size_t>(bin), 1);
  }
}

template <typename T, typename L>
void countBySearch(const Block<T>& block, BinList<L> list, Bins bins) {
  const L first = list.levels[0], last = list.levels[list.size()];
  for (size_t i = 0; i < block.count; ++i) {
    const T x = block.samples[i];
    if (!(x >= first && x < last)) continue;
    size_t bin = 0;
    for (auto among = static_cast<size_t>(list.size()); among > 1;) {
      const size_t half = among / 2;
      bin += x >= list.levels[bin + half] ? half : 0;
      among -= half;
    }
    bins.add(bin, 1);
  }
}

}  // namespace

void binBytes(const ByteCounts& counts, const BinList<int32_t>& list) { binTable({counts.of}, 0, 256, list); }

template <typename T>
void binWordsByTable(const Channel& channel, const BinList<int32_t>& list, uint8_t* table) {
  std::memset(table, 0, kWordTableBytes);
  const auto entryOf = [](const uint8_t* p) {
    T x;
    std::memcpy(&x, p, sizeof x);
    return static_cast<size_t>(x - kLow<T>) * sizeof(uint32_t);
  };
  const auto count = [=](size_t entry) {
    uint32_t sum;
    std::memcpy(&sum, table + entry, sizeof sum);
    ++sum;
    std::memcpy(table + entry, &sum, sizeof sum);
  };
  walkRows(
      channel.pixels.rows,
      [&](const uint8_t* row) {
        const size_t step = channel.pixelBytes;
        size_t left = channel.pixels.length;
        // Compilers must suppose that counting changes the samples: four are loaded before any is counted.
        for (; left >= 4; left -= 4, row += 4 * step) {
          const size_t a = entryOf(row), b = entryOf(row + step), c = entryOf(row + 2 * step),
                       d = entryOf(row + 3 * step);
          count(a), count(b), count(c), count(d);
        }
        for (; left > 0; --left, row += step) count(entryOf(row));
      },
      channel.rows);
  binTable({reinterpret_cast<const uint32_t*>(table)}, kLow<T>, 65536, list);
}

// A bin between levels in their order has what is at or above its lower one, less what is at or above its
// upper one. The bins hold the former, until all are known.
template <typename T, typename L>
void binByLevels(const Channel& channel, const BinList<L>& list) {
  if (list.size() < 1) return;
  Bins bins(list);
  bins.clear(list.size());
  uint32_t atLast = 0, all = 0;
  forBlocks<T>(channel, [&](Block<T>& block) {
    all += static_cast<uint32_t>(block.count);
    Lanes<T>::prepare(block);
    for (int k = 0; k < list.count; k += 4) {
      L levels[4];
      for (int i = 0; i < 4; ++i) levels[i] = list.levels[std::min(k + i, list.size())];
      uint32_t sums[4];
      countAtLeast(block, levels, sums);
      for (int i = 0; i < 4 && k + i < list.size(); ++i) bins.add(static_cast<size_t>(k + i), sums[i]);
      if (k + 4 >= list.count) atLast += sums[list.size() - k];
    }
  });
  const auto atLeast = [&](int k) {
    if (Lanes<T>::isBelowAll(list.levels[k])) return all;
    return k == list.size() ? atLast : bins[static_cast<size_t>(k)];
  };
  for (int k = 0; k < list.size(); ++k)
    bins.set(static_cast<size_t>(k), list.levels[k] < list.levels[k + 1] ? atLeast(k) - atLeast(k + 1) : 0);
}

template <typename T, typename L>
void binBySearch(const Channel& channel, const BinList<L>& list) {
  if (list.size() < 1) return;
  Bins bins(list);
  bins.clear(list.size());
  const Places places(list);
  if (list.size() <= channel.pixels.count() && places.areClose(list))
    return forBlocks<T>(channel, [&](const Block<T>& block) { countNearPlaces(block, places, list, bins); });
  forBlocks<T>(channel, [&](const Block<T>& block) { countBySearch(block, list, bins); });
}

template <typename T>
void binByDivision(const Channel& channel, const BinList<int32_t>& list) {
  if (list.size() < 1) return;
  Bins bins(list);
  bins.clear(list.size());
  // Differences of 32-bit numbers are exact in doubles.
  const double first = list.levels[0], last = list.levels[list.size()];
  const auto width = static_cast<float>((last - first) / list.size());
  if (!(first < last)) return;
  constexpr float kMost = 0x1.FFFFFEp30F;  // what converts to an integer
  forBlocks<T>(channel, [&](const Block<T>& block) {
    int places[kBlock];
    for (size_t i = 0; i < block.count; ++i) {
      const float place = static_cast<float>(block.samples[i] - first) / width;
      places[i] = std::min(static_cast<int>(place < 0 ? 0 : place < kMost ? place : kMost), list.size() - 1);
    }
    for (size_t i = 0; i < block.count; ++i)
      if (block.samples[i] >= first && block.samples[i] < last) bins.add(static_cast<size_t>(places[i]), 1);
  });
}

#define LUMI_BINS(T, L)                                            \
  template void binByLevels<T>(const Channel&, const BinList<L>&); \
  template void binBySearch<T>(const Channel&, const BinList<L>&);
LUMI_BINS(uint16_t, int32_t)
LUMI_BINS(int16_t, int32_t)
LUMI_BINS(float, float)
#define LUMI_WORD_BINS(T)                                                              \
  template void binWordsByTable<T>(const Channel&, const BinList<int32_t>&, uint8_t*); \
  template void binByDivision<T>(const Channel&, const BinList<int32_t>&);
LUMI_WORD_BINS(uint16_t)
LUMI_WORD_BINS(int16_t)

}  // namespace lumi
