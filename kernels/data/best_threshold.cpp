// SPDX-License-Identifier: MIT
#include "kernels/data/best_threshold.hpp"

#include "kernels/simd/bytes.hpp"

namespace lumi {
namespace {

using namespace simd;

// A table for each byte of a word, so that equal neighbours do not wait for one another's count to be stored.
struct Tables {
  uint32_t of[sizeof(size_t)][256] = {};
};

size_t wordAt(const Byte* p) {
  size_t word = 0;
  std::memcpy(&word, p, sizeof word);
  return word;
}

// Each word is loaded before the one in front of it is counted: compilers must suppose that counting changes
// what is loaded after it.
void countRow(const Byte* p, size_t bytes, Tables& tables) {
  constexpr size_t word = sizeof(size_t);
  size_t at = 0;
  if (bytes >= word) {
    size_t next = wordAt(p);
    for (; at + 2 * word <= bytes; at += word) {
      size_t samples = next;
      next = wordAt(p + at + word);
      for (uint32_t(&table)[256] : tables.of) {
        ++table[samples & 0xFF];
        samples >>= 8;
      }
    }
  }
  for (; at < bytes; ++at) ++tables.of[at % word][p[at]];
}

}  // namespace

ByteCounts countBytes(SourceRows src, Extent bytes) {
  Tables tables;
  walkRows(
      bytes.rows, [&](const Byte* row) { countRow(row, bytes.length, tables); }, src);
  ByteCounts sums{};
  for (const uint32_t(&table)[256] : tables.of)
    for (size_t i = 0; i < 256; ++i) sums.of[i] += table[i];
  return sums;
}

}  // namespace lumi
