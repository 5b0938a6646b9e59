// SPDX-License-Identifier: MIT
#include "kernels/statistics/ssim.hpp"

#include "kernels/pointwise.hpp"
#include "kernels/simd/quotients.hpp"

namespace lumi {
namespace {

using namespace simd;

// The order of the operations is part of the result.
template <typename V>
V similarity(const Several<4, V>& means, V product, float c1, float c2) {
  const V a = means[0], b = means[1], two = broadcastReal<V>(2), k1 = broadcastReal<V>(double{c1}),
          k2 = broadcastReal<V>(double{c2});
  const V t = two * a * b, s = a * a + b * b;
  return ((t + k1) * ((two * product - t) + k2)) / ((s + k1) * ((means[2] + means[3] - s) + k2));
}

template <typename Real>
struct Similarity {
  float c1, c2;

  template <typename V>
  V operator()(const Several<4, V>& means, V product) const {
    return similarity(means, product, c1, c2);
  }
};

template <>
struct Similarity<double> {
  float c1, c2;

  Floats4 operator()(const Several<4, Floats4>& means, Floats4 product) const {
    Several<4, Doubles4> wide;
    for (size_t i = 0; i < 4; ++i) wide.each[i] = doublesOf(means[i]);
    return floatsOf(similarity(wide, doublesOf(product), c1, c2));
  }
  Floats8 operator()(const Several<4, Floats8>& means, Floats8 product) const {
    const auto half = [&](auto which) {
      Several<4, Floats4> of;
      for (size_t i = 0; i < 4; ++i) of.each[i] = which(means[i]);
      return (*this)(of, which(product));
    };
    return joined(half([](Floats8 x) { return lowHalf(x); }), half([](Floats8 x) { return highHalf(x); }));
  }
};

}  // namespace

template <typename Real>
void similarityRows(const LocalStatistics& src, TargetRows dst, Extent samples, float c1, float c2) {
  using Row = ImageRow<float, float>;
  const ImageRows<float, 4> means{
      {Row(src.mean1), Row(src.mean2), Row(src.meanSquare1), Row(src.meanSquare2)}};
  runRows(dst, samples,
          Binary<float, Similarity<Real>, ImageRows<float, 4>, Row>{means, Row(src.meanProduct), {c1, c2}});
}

template void similarityRows<float>(const LocalStatistics&, TargetRows, Extent, float, float);
template void similarityRows<double>(const LocalStatistics&, TargetRows, Extent, float, float);

}  // namespace lumi
