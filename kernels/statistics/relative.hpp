// SPDX-License-Identifier: MIT
// Two reductions of one walk over two images: one of both, the other of the second.
#pragma once

#include <algorithm>

#include "kernels/reduce.hpp"

namespace lumi {

template <typename Differences, typename OfSecond>
class Relative {
 public:
  using Sample = typename Differences::Sample;
  static constexpr size_t kBlock = Differences::kBlock, kSets = Differences::kSets,
                          kMost = Differences::kMost == 0 ? OfSecond::kMost
                                  : OfSecond::kMost == 0  ? Differences::kMost
                                                          : std::min(Differences::kMost, OfSecond::kMost);
  static_assert(OfSecond::kBlock == kBlock);
  struct Lanes {
    typename Differences::Lanes differences;
    typename OfSecond::Lanes ofSecond;
  };

  Lanes none() const { return {differences.none(), ofSecond.none()}; }
  [[gnu::always_inline]] void add(Lanes& lanes, const uint8_t* a, const uint8_t* b) const {
    differences.add(lanes.differences, a, b);
    ofSecond.add(lanes.ofSecond, b);
  }
  [[gnu::always_inline]] void addTail(Lanes& lanes, size_t samples, const uint8_t* a, const uint8_t* b) {
    differences.addTail(lanes.differences, samples, a, b);
    ofSecond.addTail(lanes.ofSecond, samples, b);
  }
  void empty(const Lanes& lanes) {
    differences.empty(lanes.differences);
    ofSecond.empty(lanes.ofSecond);
  }

  Differences differences;
  OfSecond ofSecond;
};

}  // namespace lumi
