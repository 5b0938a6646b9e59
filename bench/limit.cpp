// SPDX-License-Identifier: MIT
#include "bench/limit.hpp"

#include <immintrin.h>

#include <cstring>

namespace bench {
namespace {

const __m256i* vectors(const Lum8u* bytes) { return reinterpret_cast<const __m256i*>(bytes); }
__m256i* vectors(Lum8u* bytes) { return reinterpret_cast<__m256i*>(bytes); }

enum class Stores { plain, streaming };

template <Stores kind>
void store(__m256i* to, __m256i value) {
  kind == Stores::streaming ? _mm256_stream_si256(to, value) : _mm256_store_si256(to, value);
}

// Whole blocks of 128 bytes; the rest is too little to matter.
template <Stores kind>
void fill(Lum8u* to, std::size_t size) {
  const __m256i value = _mm256_set1_epi8(7);
  for (std::size_t at = 0; at + 128 <= size; at += 128) {
    for (int i = 0; i < 4; ++i) store<kind>(vectors(to + at) + i, value);
  }
  if (kind == Stores::streaming) _mm_sfence();
}

template <Stores kind>
void copy(const Lum8u* from, Lum8u* to, std::size_t size) {
  for (std::size_t at = 0; at + 128 <= size; at += 128) {
    for (int i = 0; i < 4; ++i) store<kind>(vectors(to + at) + i, _mm256_load_si256(vectors(from + at) + i));
  }
  if (kind == Stores::streaming) _mm_sfence();
}

}  // namespace

std::vector<Peer> fillLimits(Lum8u* to, std::size_t size) {
  return {peer("limit", [=] { std::memset(to, 7, size); }),
          peer("limit", [=] { fill<Stores::plain>(to, size); }),
          peer("limit", [=] { fill<Stores::streaming>(to, size); })};
}

std::vector<Peer> copyLimits(const Lum8u* from, Lum8u* to, std::size_t size) {
  return {peer("limit", [=] { std::memcpy(to, from, size); }),
          peer("limit", [=] { copy<Stores::plain>(from, to, size); }),
          peer("limit", [=] { copy<Stores::streaming>(from, to, size); })};
}

}  // namespace bench
