// SPDX-License-Identifier: MIT
// Rows of more than 2 GiB, in memory that is there by its addresses only: of the source rows a few pages are
// touched, where the destination's pixels lie.
#include <gtest/gtest.h>
#include <sys/mman.h>

#include "geometry/resize_calls.hpp"
#include "model/geometry/resize.hpp"
#include "support/member.hpp"
#include "support/random.hpp"
#include "support/settings.hpp"

namespace test::resize {
namespace {

constexpr bool kHasRoom = sizeof(void*) == 8;

class SparseRow {
 public:
  explicit SparseRow(uint64_t bytes) : bytes_(static_cast<size_t>(bytes)) {
    void* const at =
        mmap(nullptr, bytes_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (at != MAP_FAILED) first = static_cast<Byte*>(at);
  }
  ~SparseRow() {
    if (first) munmap(first, bytes_);
  }
  SparseRow(const SparseRow&) = delete;
  SparseRow& operator=(const SparseRow&) = delete;

  Byte* first = nullptr;

 private:
  size_t bytes_;
};

template <typename T>
void fillPixel(Byte* pixel, int samples, Random& random) {
  for (int k = 0; k < samples; ++k) {
    const T value = static_cast<T>(random.below(256) * (sizeof(T) == 1 ? 1 : 100));
    std::memcpy(pixel + k * static_cast<ptrdiff_t>(sizeof(T)), &value, sizeof value);
  }
}

// One row serves as every row of the source, by a step of zero.
template <typename T>
void compareLongRow(const std::string& kind, const std::string& type, int channels, int srcWidth,
                    LumiPoint offset, LumiSize size, int dstWidth) {
  const model::resize::Tile tile{{srcWidth, 2}, {dstWidth, 3}, offset, size, channels, 1};
  const auto what = runName(kind, type, channels) + " of " + std::to_string(srcWidth) + " columns";
  const auto pixel = static_cast<ptrdiff_t>(sizeof(T)) * channels;
  const SparseRow row(static_cast<uint64_t>(srcWidth) * static_cast<uint64_t>(pixel));
  if (!row.first) GTEST_SKIP() << "no room for " << what;
  const model::resize::Axis axis = tile.horizontal();
  Random random(mixSeed(settings().seed, what, dstWidth));
  for (int x = 0; x < tile.width(); ++x) {
    const int index = kind == "Linear" ? axis.index(offset.x + x) : axis.nearest(offset.x + x);
    for (int column = std::max(index, 0); column <= std::min(index + 1, srcWidth - 1); ++column)
      fillPixel<T>(row.first + column * pixel, channels, random);
  }
  const PlanMemory plan(kind, type, tile.src, tile.dst);
  ASSERT_EQ(plan.status, lumStatusOk);
  Lum32s bytes = 0;
  ASSERT_EQ(getBufferSize(type, plan.at, size, channels, &bytes).run(), lumStatusOk);
  std::vector<Byte> scratch(static_cast<size_t>(bytes));
  const int dstStep = size.width * static_cast<int>(pixel);
  std::vector<Byte> result(static_cast<size_t>(dstStep * size.height)), expected(result.size());
  Byte* const start = row.first + axis.start(offset.x) * pixel;
  NamedCall call = apply(kind, type, channels, offset, size, plan.at, scratch.data());
  ASSERT_EQ(call.image("src", start, 0).image("dst", result.data(), dstStep).run(), lumStatusOk);
  // The model counts samples by int: it works on a row that holds what was touched.
  for (int y = 0; y < size.height; ++y)
    for (int x = 0; x < size.width; ++x) {
      using A = model::resize::Arithmetic<T>;
      const int position = offset.x + x, left = axis.index(position);
      const auto side = model::resize::sideOf(axis, position, false, false);
      const auto vertical = model::resize::sideOf(tile.vertical(), offset.y + y, false, false);
      for (int k = 0; k < channels; ++k) {
        const auto at = [&](int column) {
          T sample;
          std::memcpy(&sample, row.first + column * pixel + k * static_cast<ptrdiff_t>(sizeof(T)), sizeof(T));
          return sample;
        };
        using model::resize::Side;
        T value;
        const double fx = axis.fraction(position), fy = tile.vertical().fraction(offset.y + y);
        const int first = side == Side::Low ? 0 : side == Side::High ? srcWidth - 1 : left;
        const int second = side == Side::Middle ? left + 1 : first;
        if (kind == "Nearest")
          value = at(axis.nearest(position));
        else if (vertical != Side::Middle || side != Side::Middle)
          value = A::once(at(first), at(second), vertical != Side::Middle ? fx : fy);
        else
          value = A::rows(A::columns(at(first), at(second), fx), A::columns(at(first), at(second), fx), fy);
        std::memcpy(expected.data() + y * dstStep + x * pixel + k * static_cast<ptrdiff_t>(sizeof(T)), &value,
                    sizeof value);
      }
    }
  ASSERT_TRUE(result == expected) << what;
}

template <typename T>
void compareLongRows(const std::string& type) {
  if (!kHasRoom) GTEST_SKIP() << "a row of 2 GiB does not fit into 32 bits";
  for (const std::string kind : {"Nearest", "Linear"}) {
    if (kind == "Nearest" && type == "64f") continue;
    for (int channels : kChannels) {
      // 3 GiB, and the longest row of bytes; the whole destination, and a tile at its end.
      const int pixel = static_cast<int>(sizeof(T)) * channels;
      const int srcWidth = pixel == 1 ? INT32_MAX : static_cast<int>((int64_t{3} << 30) / pixel);
      compareLongRow<T>(kind, type, channels, srcWidth, {0, 0}, {37, 3}, 37);
      compareLongRow<T>(kind, type, channels, srcWidth, {30, 0}, {7, 3}, 37);
      if (testing::Test::HasFailure() || testing::Test::IsSkipped()) return;
    }
  }
}

TEST(ResizeLongRows, Bytes) { compareLongRows<Lum8u>("8u"); }
TEST(ResizeLongRows, Words) {
  compareLongRows<Lum16u>("16u");
  compareLongRows<Lum16s>("16s");
}
TEST(ResizeLongRows, Floats) {
  compareLongRows<Lum32f>("32f");
  compareLongRows<Lum64f>("64f");
}

}  // namespace
}  // namespace test::resize
