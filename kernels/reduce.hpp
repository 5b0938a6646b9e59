// SPDX-License-Identifier: MIT
// Reductions: what the samples of each channel come to. A reduction says how a block of samples joins lanes
// and how lanes join the totals of the channels:
//
//   struct Reduction {
//     using Sample = T;
//     static constexpr size_t kBlock;  samples of a block: whole pixels
//     static constexpr size_t kSets;   sets of lanes that take blocks in turn, so that none waits for itself
//     static constexpr size_t kMost;   blocks that a set takes before it must be emptied; 0 if any number
//     struct Lanes;
//     Lanes none() const;                                      what adds nothing
//     void add(Lanes&, const Byte*...) const                   a block of each image
//     void addTail(Lanes&, size_t samples, const Byte*...)     whole pixels that are fewer than a block
//     void empty(const Lanes&)                                 adds lanes to the totals
//   };
//
// Sums of floats depend on the sets, so that their number must not depend on the build.
#pragma once

#include <algorithm>
#include <type_traits>
#include <utility>

#include "kernels/channel_totals.hpp"
#include "kernels/rows.hpp"
#include "kernels/simd/short_copy.hpp"

namespace lumi {

// Adds values that lie in the order of samples.
template <int channels, typename Total, typename Value>
[[gnu::always_inline]] inline void addToChannels(ChannelTotals<Total>& totals, const Value* values,
                                                 size_t count) {
  for (size_t i = 0; i < count; ++i) totals.of[i % channels] += static_cast<Total>(values[i]);
}

// Adds fewer samples than a block as a block with fillers behind them, which add nothing.
template <typename Reduction, typename... At>
[[gnu::always_inline]] inline void addFilled(const Reduction& reduction, typename Reduction::Lanes& lanes,
                                             typename Reduction::Sample filler, size_t samples, At... at) {
  using T = typename Reduction::Sample;
  struct Block {
    T samples[Reduction::kBlock];
  };
  const auto filled = [=](const uint8_t* from) {
    Block block;
    if (samples >= Reduction::kBlock) __builtin_unreachable();  // no code for longer copies
    std::fill(std::begin(block.samples), std::end(block.samples), filler);
    simd::copyShort(from, reinterpret_cast<uint8_t*>(block.samples), samples * sizeof(T));
    return block;
  };
  const auto add = [&](const auto&... block) {
    reduction.add(lanes, reinterpret_cast<const uint8_t*>(block.samples)...);
  };
  add(filled(at)...);
}

// So many samples of so many rows.
struct Tile {
  size_t length;
  int rows;
};

// The sets of lanes of a tile.
template <typename Reduction>
class LaneSets {
  using Lanes = typename Reduction::Lanes;
  using Sample = typename Reduction::Sample;
  static constexpr size_t kBlock = Reduction::kBlock, kSets = Reduction::kSets, kMost = Reduction::kMost,
                          kRound = kSets * kBlock;
  static constexpr auto kEach = std::make_index_sequence<kSets>();

 public:
  explicit LaneSets(Reduction& reduction) : reduction_(reduction) { clear(kEach); }
  LaneSets(const LaneSets&) = delete;
  LaneSets& operator=(const LaneSets&) = delete;
  ~LaneSets() { empty(kEach); }

  // What lanes hold. Of a row a set takes, besides its share of the rounds, at most one block and the tail.
  static Tile tileOf(Extent samples) {
    if constexpr (kMost == 0) {
      return {samples.length, samples.rows};
    } else {
      static_assert(kMost > 2);
      const size_t length = std::min(samples.length, (kMost - 2) * kRound),
                   rows = kMost / (length / kRound + 2);
      return {length, static_cast<int>(std::min(rows, static_cast<size_t>(samples.rows)))};
    }
  }

  // A row of each image.
  template <typename... At>
  [[gnu::always_inline]] void addRow(size_t samples, At... at) {
    size_t done = 0;
    for (; done + kRound <= samples; done += kRound) addRound(kEach, (at + done * sizeof(Sample))...);
    done += addBlocks(kEach, samples - done, (at + done * sizeof(Sample))...);
    if (done < samples) reduction_.addTail(sets_[0], samples - done, (at + done * sizeof(Sample))...);
  }

 private:
  template <size_t... i>
  void clear(std::index_sequence<i...>) {
    ((sets_[i] = reduction_.none()), ...);
  }
  template <size_t... i>
  void empty(std::index_sequence<i...>) {
    (reduction_.empty(sets_[i]), ...);
  }
  template <size_t... set, typename... At>
  [[gnu::always_inline]] void addRound(std::index_sequence<set...>, At... at) {
    (addBlock<set>(at...), ...);
  }
  // Fewer blocks than sets; returns their samples.
  template <size_t... set, typename... At>
  [[gnu::always_inline]] size_t addBlocks(std::index_sequence<set...>, size_t samples, At... at) {
    size_t done = 0;
    (((set + 1) * kBlock <= samples ? (addBlock<set>(at...), done += kBlock) : 0), ...);
    return done;
  }
  template <size_t set, typename... At>
  [[gnu::always_inline]] void addBlock(At... at) {
    reduction_.add(sets_[set], (at + set * kBlock * sizeof(Sample))...);
  }

  Reduction& reduction_;
  Lanes sets_[kSets];
};

// Reduces all rows, by tiles that lanes hold; then the reduction has the totals.
template <typename Reduction, typename... Image>
void reduceRows(Reduction& reduction, Extent samples, Image... images) {
  using Sets = LaneSets<Reduction>;
  const Tile tile = Sets::tileOf(samples);
  for (int y = 0; y < samples.rows;) {
    const int rows = std::min(tile.rows, samples.rows - y);
    for (size_t x = 0; x < samples.length; x += tile.length) {
      const size_t length = std::min(tile.length, samples.length - x);
      Sets sets(reduction);
      walkRows(
          rows, [&](auto... row) { sets.addRow(length, row...); },
          SourceRows{images.row(y) + x * sizeof(typename Reduction::Sample), images.step}...);
    }
    y += rows;
  }
}

}  // namespace lumi
