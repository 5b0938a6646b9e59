// SPDX-License-Identifier: MIT
// The row kernels of thresholds, for the sources that instantiate them.
#pragma once

#include "kernels/data/threshold.hpp"
#include "kernels/pointwise.hpp"

namespace lumi {

namespace simd {

// Of a sample and constants, as Beyond lists them. Of floats the order of operands tells what a NaN becomes.
struct LimitedAbove {
  static constexpr size_t kConstants = 1;
  static constexpr bool kStoresBind = true;
  template <typename V>
  V operator()(V x, const Several<1, V>& c) const {
    return min(x, c[0]);
  }
};
struct LimitedBelow {
  static constexpr size_t kConstants = 1;
  static constexpr bool kStoresBind = true;
  template <typename V>
  V operator()(V x, const Several<1, V>& c) const {
    return max(x, c[0]);
  }
};
struct ReplacedAbove {
  static constexpr size_t kConstants = 2;
  template <typename V>
  V operator()(V x, const Several<2, V>& c) const {
    return ifAboveThenElse(x, c[0], c[1], x);
  }
};
struct ReplacedBelow {
  static constexpr size_t kConstants = 2;
  template <typename V>
  V operator()(V x, const Several<2, V>& c) const {
    return ifAtLeastThenElse(x, c[0], x, c[1]);
  }
};
struct ReplacedBoth {
  static constexpr size_t kConstants = 4;
  template <typename V>
  V operator()(V x, const Several<4, V>& c) const {
    return ifAboveThenElse(x, c[2], c[3], ifAtLeastThenElse(x, c[0], x, c[1]));
  }
};

}  // namespace simd

template <typename T, bool alpha, bool ofThree, bool streaming>
[[gnu::flatten]] void thresholdRows(SourceRows src, TargetRows dst, Extent samples, Beyond beyond,
                                    const PixelPattern* constants) {
  using namespace simd;
  constexpr size_t pixel = alpha ? 4 * sizeof(T) : sizeof(T), used = alpha ? 3 * sizeof(T) : sizeof(T);
  using Store = std::conditional_t<streaming, Streaming, Cached>;
  const auto run = [&](auto f) {
    using F = decltype(f);
    using Constants = ConstantRows<T, F::kConstants, ofThree>;
    runPixels<pixel, used, Store>(
        dst, samples, Binary<T, F, ImageRow<T, T>, Constants>{ImageRow<T, T>(src), Constants{constants}, f});
  };
  switch (beyond) {
    case Beyond::LimitedAbove:
      return run(LimitedAbove());
    case Beyond::LimitedBelow:
      return run(LimitedBelow());
    case Beyond::ReplacedAbove:
      return run(ReplacedAbove());
    case Beyond::ReplacedBelow:
      return run(ReplacedBelow());
    case Beyond::ReplacedBoth:
      return run(ReplacedBoth());
  }
}

#define LUMI_ROWS(...) \
  template void thresholdRows<__VA_ARGS__>(SourceRows, TargetRows, Extent, Beyond, const PixelPattern*);
#define LUMI_LAYOUTS(T)      \
  LUMI_ROWS(T, false, false) \
  LUMI_ROWS(T, false, true)  \
  LUMI_ROWS(T, true, false)

}  // namespace lumi
