// SPDX-License-Identifier: MIT
#include "kernels/filters/median_planes.hpp"

#include "kernels/filters/median_networks.hpp"
#include "kernels/pointwise.hpp"

namespace lumi {
namespace {

using namespace simd;

struct MedianOfThree {
  static constexpr bool kStoresBind = true;

  template <typename V>
  V operator()(const Several<2, V>& two, V third) const {
    return median(two[0], two[1], third);
  }
};

}  // namespace

void medianOfPlanes(const PlaneRows<const uint8_t, 3>& planes, TargetRows dst, Extent samples) {
  using Row = ImageRow<uint8_t, uint8_t>;
  const auto plane = [&](size_t i) { return Row(SourceRows{planes.first[i], planes.step}); };
  using Two = ImageRows<uint8_t, 2>;
  runRows(dst, samples, Binary<uint8_t, MedianOfThree, Two, Row>{Two{{plane(0), plane(1)}}, plane(2), {}});
}

}  // namespace lumi
