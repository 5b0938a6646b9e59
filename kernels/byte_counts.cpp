// SPDX-License-Identifier: MIT
#include "kernels/byte_counts.hpp"

#include <cstring>
#include <utility>

namespace lumi {
namespace {

// A row is counted in rounds of whole pixels: of a word, or of two pixels where words are none. Neighbours
// have tables of their own, so that equal ones do not wait for one another's count to be stored.
template <int stored, int used>
class Counter {
  static constexpr bool kByWords = stored != 3;
  static constexpr size_t kRound = kByWords ? sizeof(size_t) : 2 * stored;
  static constexpr size_t kNeighbours = stored == 1 ? 4 : kRound / stored;
  using Round = std::make_index_sequence<kRound>;

 public:
  // Compilers must suppose that counting changes what is loaded after it. Each round is therefore loaded at
  // once, words before the one in front of them is counted.
  void row(const uint8_t* p, size_t bytes) {
    size_t at = 0;
    if constexpr (!kByWords) {
      for (; at + kRound <= bytes; at += kRound) countBytes(p + at, Round());
    } else if (bytes >= kRound) {
      size_t next = wordAt(p);
      for (; at + 2 * kRound <= bytes; at += kRound) {
        const size_t word = next;
        next = wordAt(p + at + kRound);
        countWord(word, Round());
      }
    }
    for (; at < bytes; ++at)
      if (const size_t i = at % kRound; i % stored < used) count(i, p[at]);
  }

  void sums(ByteCounts* counts) const {
    for (size_t c = 0; c < used; ++c) {
      counts[c] = tables_[c];
      for (size_t n = 1; n < kNeighbours; ++n)
        for (size_t i = 0; i < 256; ++i) counts[c].of[i] += tables_[n * used + c].of[i];
    }
  }

 private:
  static size_t wordAt(const uint8_t* p) {
    size_t word;
    std::memcpy(&word, p, sizeof word);
    return word;
  }
  // Byte i of a round.
  void count(size_t i, size_t sample) { ++tables_[i / stored % kNeighbours * used + i % stored].of[sample]; }
  template <size_t i>
  [[gnu::always_inline]] void countNext(size_t& word) {
    if constexpr (i % stored < used) count(i, word & 0xFF);
    word >>= 8;
  }
  template <size_t... i>
  [[gnu::always_inline]] void countWord(size_t word, std::index_sequence<i...>) {
    (countNext<i>(word), ...);
  }
  template <size_t... i>
  [[gnu::always_inline]] void countBytes(const uint8_t* p, std::index_sequence<i...>) {
    const size_t samples[] = {p[i]...};
    (count(i, samples[i]), ...);
  }

  ByteCounts tables_[kNeighbours * used] = {};
};

}  // namespace

template <int stored, int used>
void countBytes(SourceRows src, Extent pixels, ByteCounts* counts) {
  Counter<stored, used> counter;
  walkRows(
      pixels.rows, [&](const uint8_t* row) { counter.row(row, pixels.length * stored); }, src);
  counter.sums(counts);
}

template void countBytes<1, 1>(SourceRows, Extent, ByteCounts*);
template void countBytes<3, 3>(SourceRows, Extent, ByteCounts*);
template void countBytes<4, 3>(SourceRows, Extent, ByteCounts*);
template void countBytes<4, 4>(SourceRows, Extent, ByteCounts*);

}  // namespace lumi
