// SPDX-License-Identifier: MIT
#include "kernels/byte_counts.hpp"

#include <cstring>
#include <utility>

namespace lumi {
namespace {

// A row is counted in rounds of words that are whole pixels. Neighbours have tables of their own, so that
// equal ones do not wait for one another's count to be stored.
template <int stored, int used>
class Counter {
  static constexpr size_t kWord = sizeof(size_t), kWords = stored == 3 ? 3 : 1, kRound = kWords * kWord;
  static constexpr size_t kNeighbours = stored == 1 ? 4 : 2;
  // Rounds of three words have no registers for another one in 32 bits.
  static constexpr bool kAhead = kWords == 1 || kWord == 8;
  using Words = std::make_index_sequence<kWords>;
  using Bytes = std::make_index_sequence<kWord>;

 public:
  // Compilers must suppose that counting changes what is loaded after it: a round is loaded at once, and
  // before the one in front of it is counted.
  void row(const uint8_t* p, size_t bytes) {
    size_t at = 0;
    if constexpr (kAhead) {
      if (bytes >= kRound) {
        Round next = roundAt(p, Words());
        for (; at + 2 * kRound <= bytes; at += kRound) {
          const Round round = next;
          next = roundAt(p + at + kRound, Words());
          countRound(round, Words());
        }
        countRound(next, Words());
        at += kRound;
      }
    } else {
      for (; at + kRound <= bytes; at += kRound) countRound(roundAt(p + at, Words()), Words());
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
  struct Round {
    size_t words[kWords];
  };
  static size_t wordAt(const uint8_t* p) {
    size_t word;
    std::memcpy(&word, p, sizeof word);
    return word;
  }
  template <size_t... w>
  [[gnu::always_inline]] static Round roundAt(const uint8_t* p, std::index_sequence<w...>) {
    return {{wordAt(p + w * kWord)...}};
  }
  // Byte i of a round.
  void count(size_t i, size_t sample) { ++tables_[i / stored % kNeighbours * used + i % stored].of[sample]; }
  template <size_t i>
  [[gnu::always_inline]] void countNext(size_t& word) {
    if constexpr (i % stored < used) count(i, word & 0xFF);
    word >>= 8;
  }
  template <size_t w, size_t... i>
  [[gnu::always_inline]] void countWord(size_t word, std::index_sequence<i...>) {
    (countNext<w * kWord + i>(word), ...);
  }
  template <size_t... w>
  [[gnu::always_inline]] void countRound(const Round& round, std::index_sequence<w...>) {
    (countWord<w>(round.words[w], Bytes()), ...);
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
