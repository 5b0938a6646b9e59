// SPDX-License-Identifier: MIT
// The loop of pointwise rows: vectors of doubles, marks of bad samples, and several constants.
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

// Half of each sample; negative ones are bad, and give 0.
struct HalfOfGood {
  static auto vector(const Byte* p) {
    const Samples<int16_t> x{loadVector(p)}, bad = isAtLeast(broadcast<int16_t>(-1), x);
    return bytesOf(Marked<Samples<int16_t>>{andNot(shiftRight<1>(x), bad), bad});
  }
};

// Whether a walk over an image tells of a bad sample at any place that counts, and of no other.
template <size_t usedBytes>
void expectMarks(size_t pixels, size_t gap, ptrdiff_t distance) {
  constexpr size_t rows = 2, pixelBytes = 8, samples = 4;
  const size_t length = pixels * samples, step = length + gap;
  for (size_t bad = 0; bad <= rows * step; bad += 1 + bad % 3) {
    std::vector<int16_t> image(rows * step + 64, 100);
    int16_t* const src = image.data() + 32;
    src[bad] = -5;
    if (usedBytes < pixelBytes)
      for (size_t i = 3; i < step; i += samples) src[i] = -7;  // alpha, in the first row
    const auto byteStep = static_cast<ptrdiff_t>(2 * step);
    std::vector<int16_t> apart(image.size());
    auto* const dst = reinterpret_cast<uint8_t*>(distance == 99 ? apart.data() + 32 : src + distance);
    const bool any = runPixels<pixelBytes, usedBytes>(
                         {dst, byteStep}, {length, rows},
                         Unary<int16_t, int16_t, HalfOfGood>{
                             ImageRow<int16_t, int16_t>({reinterpret_cast<uint8_t*>(src), byteStep}), {}})
                         .any();
    const size_t at = bad % step;
    const bool counts = bad < rows * step && at < length && at % samples < usedBytes / 2;
    ASSERT_EQ(any, counts) << "sample " << bad << " of rows of " << length << " and " << gap << ", to "
                           << distance;
  }
}

TEST(PointwiseMarks, BadSamplesAreMarkedWhereverTheyAre) {
  for (size_t pixels : {1U, 2U, 3U, 4U, 5U, 9U, 20U, 33U, 40U})
    for (size_t gap : {0U, 3U})
      for (ptrdiff_t distance : {99, 0}) {
        expectMarks<8>(pixels, gap, distance);
        expectMarks<6>(pixels, gap, distance);
      }
}

// One by one or a few at a time: what is in the rest of a vector does not count. Results replace sources
// that were not read yet, and none of them is bad.
TEST(PointwiseMarks, SamplesMadeInOrder) {
  for (size_t pixels : {1U, 3U, 9U, 20U}) {
    expectMarks<8>(pixels, 0, -1);
    expectMarks<8>(pixels, 3, -5);
    expectMarks<8>(pixels, 3, -16);
  }
}

// Each sample times the first constant of its channel, and the second one added.
struct TimesAndPlus {
  template <typename V>
  V operator()(V a, const Several<2, V>& c) const {
    return a * c[0] + c[1];
  }
};

template <typename T, int channels>
void expectConstants(size_t pixels, size_t gap, ptrdiff_t distance) {
  constexpr bool ofThree = channels == 3;
  const T factors[] = {2, 3, -5, 7}, sums[] = {100, -200, 300, -400};
  const PixelPattern patterns[] = {makePattern<sizeof(T) * channels>(factors),
                                   makePattern<sizeof(T) * channels>(sums)};
  const size_t length = pixels * channels, step = length + gap;
  std::vector<T> image(2 * step + 8), expected;
  for (size_t i = 0; i < image.size(); ++i) image[i] = static_cast<T>(i % 50);
  expected = image;
  for (size_t y = 0; y < 2; ++y)
    for (size_t i = 0; i < length; ++i)
      expected[y * step + i + static_cast<size_t>(distance)] =
          static_cast<T>(expected[y * step + i] * factors[i % channels] + sums[i % channels]);
  auto* const src = reinterpret_cast<uint8_t*>(image.data());
  const auto byteStep = static_cast<ptrdiff_t>(step * sizeof(T));
  using Constants = ConstantRows<T, 2, ofThree>;
  runRows({src + distance * static_cast<ptrdiff_t>(sizeof(T)), byteStep}, {length, 2},
          Binary<T, TimesAndPlus, ImageRow<T, T>, Constants>{
              ImageRow<T, T>({src, byteStep}), Constants{patterns}, {}});
  ASSERT_EQ(image, expected) << pixels << " pixels of " << channels << ", gap " << gap << ", to " << distance;
}

TEST(PointwiseConstants, EachChannelHasItsOwn) {
  for (size_t pixels = 1; pixels <= 70; ++pixels)
    for (size_t gap : {8U, 9U})
      for (ptrdiff_t distance : {0, 1, 8}) {
        expectConstants<int16_t, 1>(pixels, gap, distance);
        expectConstants<int16_t, 3>(pixels, gap, distance);
        expectConstants<int16_t, 4>(pixels, gap, distance);
        expectConstants<float, 3>(pixels, gap, distance % 2);
        expectConstants<float, 4>(pixels, gap, 0);
      }
}

}  // namespace
}  // namespace test
