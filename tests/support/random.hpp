// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <string_view>

namespace test {

// Splitmix64: a full-period generator whose every seed is a good one.
class Random {
 public:
  explicit Random(uint64_t seed) : state_(seed) {}

  uint64_t next() {
    uint64_t z = (state_ += 0x9e3779b97f4a7c15u);
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9u;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebu;
    return z ^ (z >> 31);
  }
  int below(int limit) { return static_cast<int>(next() % static_cast<uint64_t>(limit)); }
  int between(int low, int high) { return low + below(high - low + 1); }
  bool oneIn(int n) { return below(n) == 0; }

  template <typename List>
  auto pick(const List& list) {
    return std::begin(list)[below(static_cast<int>(std::size(list)))];
  }

  void fill(unsigned char* first, size_t bytes) {
    for (; bytes >= sizeof(uint64_t); first += sizeof(uint64_t), bytes -= sizeof(uint64_t)) {
      const uint64_t word = next();
      std::memcpy(first, &word, sizeof word);
    }
    const uint64_t word = next();
    std::memcpy(first, &word, bytes);
  }

 private:
  uint64_t state_;
};

// A seed for each case of each export, so that a case can be run alone.
inline uint64_t mixSeed(uint64_t seed, std::string_view name, int index) {
  uint64_t hash = seed ^ 0xcbf29ce484222325u;
  for (char c : name) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3u;
  return Random(hash + static_cast<uint64_t>(index) * 0x9e3779b97f4a7c15u).next();
}

}  // namespace test
