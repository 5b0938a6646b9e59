// SPDX-License-Identifier: MIT
// The loop of pointwise rows on vectors of doubles, which no export has yet.
#include "kernels/pointwise.hpp"

#include <gtest/gtest.h>

#include <vector>

namespace test {
namespace {

using namespace lumi;
using namespace lumi::simd;

struct Weighted {
  template <typename V>
  V operator()(V a, V b) const {
    return a * b - a + b;
  }
};

double weighted(double a, double b) { return a * b - a + b; }

TEST(PointwiseDoubles, RowsOfAnyLengthAndGap) {
  for (size_t length = 1; length <= 70; ++length)
    for (size_t gap : {0U, 1U, 3U}) {
      const size_t step = length + gap;
      std::vector<double> a(3 * step), b(3 * step), dst(3 * step, -7.0);
      for (size_t i = 0; i < a.size(); ++i) a[i] = 0.1 * static_cast<double>(i), b[i] = 3.7 - a[i] * a[i];
      const auto rowsOf = [=](const std::vector<double>& image) {
        return SourceRows{reinterpret_cast<const uint8_t*>(image.data()), static_cast<ptrdiff_t>(8 * step)};
      };
      using Image = ImageRow<double, double>;
      runRows({reinterpret_cast<uint8_t*>(dst.data()), static_cast<ptrdiff_t>(8 * step)}, {length, 3},
              Binary<double, Weighted, Image, Image>{Image(rowsOf(a)), Image(rowsOf(b)), {}});
      for (size_t i = 0; i < dst.size(); ++i)
        ASSERT_EQ(dst[i], i % step < length ? weighted(a[i], b[i]) : -7.0) << i << " of rows of " << length;
    }
}

// Each sample is one further than the sum of the one before, as if they were made one by one.
TEST(PointwiseDoubles, OverlappingRowsAreDoneInOrder) {
  for (size_t shift = 1; shift <= 9; ++shift) {
    std::vector<double> image(40), expected(40);
    for (size_t i = 0; i < image.size(); ++i) expected[i] = image[i] = 1.0 / static_cast<double>(i + 1);
    for (size_t i = 0; i + shift < expected.size(); ++i)
      expected[i + shift] = weighted(expected[i], expected[i]);
    auto* const first = reinterpret_cast<uint8_t*>(image.data());
    using Image = ImageRow<double, double>;
    const Image src(SourceRows{first, 0});
    runRows({first + 8 * shift, 0}, {image.size() - shift, 1},
            Binary<double, Weighted, Image, Image>{src, src, {}});
    EXPECT_EQ(image, expected) << "shifted by " << shift;
  }
}

}  // namespace
}  // namespace test
