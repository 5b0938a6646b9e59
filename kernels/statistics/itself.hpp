// SPDX-License-Identifier: MIT
#pragma once

namespace lumi::simd {

// The function of reductions that take samples as they are.
struct Itself {
  template <typename V>
  V operator()(V x) const {
    return x;
  }
};

}  // namespace lumi::simd
