// SPDX-License-Identifier: MIT
#include "kernels/filters/median_histograms.hpp"

#include "kernels/filters/sample_order.hpp"
#include "kernels/simd/bits.hpp"
#include "kernels/simd/convert.hpp"
#include "kernels/simd/running.hpp"

namespace lumi {
namespace {

using namespace simd;

constexpr int kLevels = 16, kColumn = 16;  // bytes of a column's counters

// What a sample adds to running counters: one to those of its level and above.
struct LevelTable {
  alignas(16) Byte row[kLevels][kLevels];
};
constexpr LevelTable kFromLevel = [] {
  LevelTable table{};
  for (int level = 0; level < kLevels; ++level)
    for (int i = 0; i < kLevels; ++i) table.row[level][i] = i >= level;
  return table;
}();

// Shuffles that bring the counter below a level to all places; a zero below the lowest.
constexpr LevelTable kBelowLevel = [] {
  LevelTable table{};
  for (int level = 0; level < kLevels; ++level)
    for (Byte& place : table.row[level]) place = level == 0 ? kZero : static_cast<Byte>(level - 1);
  return table;
}();

[[gnu::always_inline]] inline U8 loadCounters(const Byte* p) { return {load16(p)}; }
[[gnu::always_inline]] inline U8 fromLevel(unsigned level) { return loadCounters(kFromLevel.row[level]); }
void add(Byte* counters, unsigned level) { store16(counters, (loadCounters(counters) + fromLevel(level)).v); }
void subtract(Byte* counters, unsigned level) {
  store16(counters, (loadCounters(counters) - fromLevel(level)).v);
}

[[gnu::always_inline]] inline unsigned countOf(Bytes16 mask) {
  return static_cast<unsigned>(__builtin_popcount(topBits(mask)));
}

// By the count of the bits up to it: processors at this level find bits no faster otherwise.
int lowestBit(unsigned bits) { return __builtin_popcount(bits ^ (bits - 1)) - 1; }

// Counters of a window with at most 255 samples. The level of a rank is the first one with more samples up to
// it: the number of those whose counter is not above.
struct ByteCounters {
  using Rank = U8;
  U8 count;

  [[gnu::always_inline]] static Rank rankOf(int rank) { return broadcast16(static_cast<uint8_t>(rank)); }
  static ByteCounters none() { return {broadcast16(uint8_t{0})}; }

  [[gnu::always_inline]] void add(U8 columns) { count = count + columns; }
  [[gnu::always_inline]] void move(U8 leaving, U8 entering) { count = count + entering - leaving; }
  [[gnu::always_inline]] unsigned levelOf(Rank rank) const { return countOf(notAbove(count, rank).v); }
  // What is left of a rank under a level.
  [[gnu::always_inline]] Rank rankUnder(unsigned level, Rank rank) const {
    return rank - U8{shuffleBytes(count.v, load16(kBelowLevel.row[level]))};
  }
};

// Of larger windows.
struct WordCounters {
  using Rank = U16;
  U16 low, high;

  [[gnu::always_inline]] static Rank rankOf(int rank) { return broadcast16(static_cast<uint16_t>(rank)); }
  static WordCounters none() { return {rankOf(0), rankOf(0)}; }

  [[gnu::always_inline]] void add(U8 columns) {
    low = low + widenLow(columns);
    high = high + widenHigh(columns);
  }
  [[gnu::always_inline]] void move(U8 leaving, U8 entering) {
    const U8 moved = entering - leaving;  // of signed bytes
    low = low + as<uint16_t>(widen<int16_t>(as<int8_t>(moved)));
    high = high + as<uint16_t>(shiftRight<8>(as<int16_t>(interleaveHigh(moved, moved))));
  }
  [[gnu::always_inline]] unsigned levelOf(Rank rank) const {
    return countOf(
        narrowSigned<int8_t>(as<int16_t>(notAbove(low, rank)), as<int16_t>(notAbove(high, rank))).v);
  }
  [[gnu::always_inline]] Rank rankUnder(unsigned level, Rank rank) const {
    alignas(16) uint16_t counters[kLevels];
    store16(reinterpret_cast<Byte*>(counters), low.v);
    store16(reinterpret_cast<Byte*>(counters + 8), high.v);
    return rank - rankOf(level == 0 ? 0 : counters[level - 1]);
  }
};

// Columns one behind the other, of which a counter's sum fits a byte for `most` of them.
template <typename Counters>
Counters sumOf(const Byte* column, int columns, int most) {
  Counters sum = Counters::none();
  while (columns > 0) {
    const int together = columns < most ? columns : most;
    U8 part = loadCounters(column);
    for (int i = 1; i < together; ++i) part = part + loadCounters(column + kColumn * i);
    sum.add(part);
    column += kColumn * static_cast<ptrdiff_t>(together);
    columns -= together;
  }
  return sum;
}

// The lower levels of windows, one after the other along a row. Those under the upper level of the last
// window stay in registers; others are kept here until a window asks for them again.
template <typename Counters>
struct FineWindows {
  const Byte* fine;
  ptrdiff_t plane;
  int columns, most;
  Counters count[kLevels + 1];
  int window[kLevels + 1];  // of those counters; levels that were never asked for are far behind

  FineWindows(const Byte* first, ptrdiff_t planeBytes, int windowColumns, int rows)
      : fine(first), plane(planeBytes), columns(windowColumns), most(255 / rows) {
    for (int& x : window) x = -columns;
  }

  const Byte* columnOf(unsigned upper, int x) const {
    return fine + plane * static_cast<ptrdiff_t>(upper) + kColumn * static_cast<ptrdiff_t>(x);
  }
  void put(unsigned upper, int x, Counters counters) {
    count[upper] = counters;
    window[upper] = x;
  }
  // Brings counters to window x.
  [[gnu::noinline]] void fetch(unsigned upper, int x) {
    if (2 * (x - window[upper]) > columns) {
      count[upper] = sumOf<Counters>(columnOf(upper, x), columns, most);
      return;
    }
    Counters moved = count[upper];
    for (int i = window[upper]; i < x; ++i)
      moved.move(loadCounters(columnOf(upper, i)), loadCounters(columnOf(upper, i + columns)));
    count[upper] = moved;
  }
};

// Stores result(x, byte, rank) for each window: of the upper byte of its median, and of a function that tells
// how many of its samples with that byte are below the median.
template <typename T, typename Counters, typename Result>
[[gnu::always_inline]] inline void storeMedians(const Byte* coarse, FineWindows<Counters>& fine, Byte* dst,
                                                ptrdiff_t pixelBytes, int windows, int samples,
                                                const Result& result) {
  const ptrdiff_t across = kColumn * static_cast<ptrdiff_t>(fine.columns);
  const auto rank = Counters::rankOf(samples / 2);
  Counters uppers = sumOf<Counters>(coarse, fine.columns, fine.most), lowers = Counters::none();
  unsigned current = kLevels;
  const Byte* column = nullptr;  // of the lower levels, where the last window began
  for (int x = 0;; ++x, dst += pixelBytes) {
    const unsigned upper = uppers.levelOf(rank);
    if (upper != current) {
      fine.put(current, x - 1, lowers);
      current = upper;
      fine.fetch(upper, x);
      lowers = fine.count[upper];
      column = fine.columnOf(upper, x);
    } else {
      lowers.move(loadCounters(column), loadCounters(column + across));
      column += kColumn;
    }
    const auto left = uppers.rankUnder(upper, rank);
    const unsigned lower = lowers.levelOf(left);
    SampleOrder<T>::store(dst, result(x, upper << 4 | lower, [&] { return lowers.rankUnder(lower, left); }));
    if (x + 1 == windows) return;
    uppers.move(loadCounters(coarse), loadCounters(coarse + across));
    coarse += kColumn;
  }
}

// How many samples of a window have each lower byte, of those with one upper byte.
struct LowHistogram {
  uint16_t coarse[kLevels], fine[kLevels * kLevels];

  template <int by>
  void count(Byte low) {
    coarse[low >> 4] = static_cast<uint16_t>(coarse[low >> 4] + by);
    fine[low] = static_cast<uint16_t>(fine[low] + by);
  }
  // The byte with so many samples below it.
  [[gnu::always_inline]] unsigned byteOf(U16 rank) const {
    const WordCounters uppers = running(coarse);
    const unsigned upper = uppers.levelOf(rank);
    return upper << 4 | running(fine + kLevels * upper).levelOf(uppers.rankUnder(upper, rank));
  }

 private:
  [[gnu::always_inline]] static WordCounters running(const uint16_t* counts) {
    const auto* const p = reinterpret_cast<const Byte*>(counts);
    const U16 low = sumsSoFar<1>(U16{load16(p)}), high = sumsSoFar<1>(U16{load16(p + 16)});
    static constexpr Control kLast = lastPixelControl<1, 2>();
    return {low, high + U16{shuffleBytes(low.v, vectorOf(kLast))}};
  }
};

// Lower bytes of medians, from the windows' samples with their upper byte.
class LowBytes {
 public:
  LowBytes(const Byte* samples, const Byte* lows, int rows, int slots, int columns, Byte* memory)
      : samples_(samples),
        lows_(lows),
        slots_(slots),
        columns_(columns),
        lastBlock_(0xFFFF >> (slots - rows)),
        all_(reinterpret_cast<LowHistogram*>(memory)) {
    for (int& x : window_) x = -columns;
  }

  [[gnu::always_inline]] unsigned at(int x, unsigned upper, U16 rank) { return of(x, upper).byteOf(rank); }
  [[gnu::always_inline]] unsigned at(int x, unsigned upper, U8 rank) { return at(x, upper, widenLow(rank)); }
  const LowHistogram& of(int x, unsigned upper) {
    LowHistogram& histogram = all_[upper];
    int& window = window_[upper];
    if (2 * (x - window) > columns_) {
      histogram = {};
      for (int i = 0; i < columns_; ++i) count<1>(histogram, upper, x + i);
    } else {
      for (; window < x; ++window) {
        count<-1>(histogram, upper, window);
        count<1>(histogram, upper, window + columns_);
      }
    }
    window = x;
    return histogram;
  }

 private:
  template <int by>
  void count(LowHistogram& histogram, unsigned upper, int column) const {
    const U8 wanted = broadcast16(static_cast<uint8_t>(upper));
    const ptrdiff_t first = static_cast<ptrdiff_t>(column) * slots_;
    for (int i = 0; i < slots_; i += 16) {
      unsigned found = topBits(isEqual(U8{load16(samples_ + first + i)}, wanted).v);
      if (i + 16 == slots_) found &= lastBlock_;
      for (; found; found &= found - 1) histogram.count<by>(lows_[first + i + lowestBit(found)]);
    }
  }

  const Byte *samples_, *lows_;
  int slots_, columns_;
  unsigned lastBlock_;
  LowHistogram* all_;
  int window_[256];
};

constexpr int64_t roundedUp(int64_t n, int64_t to) { return (n + to - 1) / to * to; }

// Planes of lower levels, and behind them that of the upper ones. A column's lines of sixteen of them fall
// into different sets of the cache.
constexpr int kPlanes = kLevels + 1;
int64_t planeBytes(int64_t columns) { return roundedUp(kColumn * columns, 128) + 64; }
int slotsFor(int rows) { return static_cast<int>(roundedUp(rows, 16)); }

}  // namespace

template <typename T>
int64_t MedianColumns<T>::bytes(int64_t columns, int rows) {
  const int64_t histograms = kPlanes * planeBytes(columns);
  const int64_t samples = columns * slotsFor(rows);
  return sizeof(T) == 1 ? histograms + samples
                        : histograms + 2 * samples + 256 * static_cast<int64_t>(sizeof(LowHistogram));
}

template <typename T>
MedianColumns<T>::MedianColumns(uint8_t* memory, int columns, int rows)
    : columns_(columns),
      rows_(rows),
      slots_(slotsFor(rows)),
      plane_(static_cast<ptrdiff_t>(planeBytes(columns))),
      counters_(memory),
      samples_(counters_ + kPlanes * plane_),
      lowBytes_(samples_ + static_cast<ptrdiff_t>(columns) * slots_),
      lowHistograms_(lowBytes_ + static_cast<ptrdiff_t>(columns) * slots_) {
  std::memset(counters_, 0, static_cast<size_t>(kPlanes * plane_));
}

template <typename T>
void MedianColumns<T>::take(const uint8_t* row, ptrdiff_t pixelBytes) {
  const ptrdiff_t slots = slots_, plane = plane_;
  const auto each = [&](const auto& count) {
    Byte *column = counters_, *sample = samples_ + slot_;
    for (Byte* const end = column + kColumn * static_cast<ptrdiff_t>(columns_); column != end;
         column += kColumn, sample += slots, row += pixelBytes) {
      unsigned in = SampleOrder<T>::keyAt(row);
      if constexpr (sizeof(T) == 2) {
        sample[lowBytes_ - samples_] = static_cast<Byte>(in);
        in >>= 8;
      }
      unsigned out = *sample;
      *sample = static_cast<Byte>(in);
      // Where registers are few, compilers would put bytes aside and wait for the dword that they read back.
      asm("" : "+r"(in), "+r"(out));
      count(column, out, in);
    }
  };
  const auto lower = [plane](Byte* column, unsigned byte) {
    return column + static_cast<ptrdiff_t>(byte >> 4) * plane;
  };
  if (isFull_)
    each([&](Byte* column, unsigned out, unsigned in) {
      Byte* const upper = column + kLevels * plane;
      store16(upper, (loadCounters(upper) + fromLevel(in >> 4) - fromLevel(out >> 4)).v);
      subtract(lower(column, out), out & 15);
      add(lower(column, in), in & 15);
    });
  else
    each([&](Byte* column, unsigned, unsigned in) {
      add(column + kLevels * plane, in >> 4);
      add(lower(column, in), in & 15);
    });
  if (++slot_ == rows_) {
    slot_ = 0;
    isFull_ = true;
  }
}

template <typename T>
void MedianColumns<T>::medians(uint8_t* dst, ptrdiff_t pixelBytes, int windowColumns) {
  const int windows = columns_ - windowColumns + 1, samples = windowColumns * rows_;
  const Byte* const uppers = counters_ + kLevels * plane_;
  const auto run = [&](auto counters) {
    FineWindows<decltype(counters)> fine(counters_, plane_, windowColumns, rows_);
    if constexpr (sizeof(T) == 1) {
      storeMedians<T>(uppers, fine, dst, pixelBytes, windows, samples,
                      [](int, unsigned byte, const auto&) { return static_cast<Byte>(byte); });
    } else {
      LowBytes lows(samples_, lowBytes_, rows_, slots_, windowColumns, lowHistograms_);
      storeMedians<T>(uppers, fine, dst, pixelBytes, windows, samples,
                      [&](int x, unsigned byte, const auto& rank) {
                        return static_cast<uint16_t>(byte << 8 | lows.at(x, byte, rank()));
                      });
    }
  };
  if (samples <= 255)
    run(ByteCounters::none());
  else
    run(WordCounters::none());
}

template class MedianColumns<uint8_t>;
template class MedianColumns<uint16_t>;
template class MedianColumns<int16_t>;

}  // namespace lumi
