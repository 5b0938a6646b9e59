// SPDX-License-Identifier: MIT
// Around the pixels that are worked on, those in memory are read that the interface tells, and all of them.
// What is read is a rectangle: where memory begins or ends with it a run succeeds, and where its first or its
// last pixel is missing one faults. These are corners, so that neither an outermost row nor a column is
// promised in vain.
#include <gtest/gtest.h>

#include "filters/filter_border_calls.hpp"
#include "geometry/resize_calls.hpp"
#include "support/fault.hpp"

namespace test {
namespace {

// Source pixels of the work itself, and how many more on each side are read.
struct Reach {
  LumiSize inner;
  int left, top, right, bottom;

  // What is left of it where only the flagged sides are in memory.
  Reach inMemory(LumiBorderType border) const {
    const auto kept = [&](int flag, int count) {
      return border == lumiBorderInMemory || (border & flag) != 0 ? count : 0;
    };
    return {inner, kept(lumiBorderInMemoryLeft, left), kept(lumiBorderInMemoryTop, top),
            kept(lumiBorderInMemoryRight, right), kept(lumiBorderInMemoryBottom, bottom)};
  }
};

const std::vector<LumiBorderType> kBorders = {lumiBorderReplicate,
                                              lumiBorderReplicate | lumiBorderInMemoryTop,
                                              lumiBorderReplicate | lumiBorderInMemoryBottom,
                                              lumiBorderReplicate | lumiBorderInMemoryLeft,
                                              lumiBorderReplicate | lumiBorderInMemoryRight,
                                              lumiBorderInMemory};

// Places the source of an otherwise complete call.
void expectExact(const Reach& reach, int pixelBytes, NamedCall call) {
  const Arena arena(1 << 16);
  const int step = (reach.left + reach.inner.width + reach.right) * pixelBytes;
  const ptrdiff_t bytes = ptrdiff_t{step} * (reach.top + reach.inner.height + reach.bottom);
  const auto faultFrom = [&](const Byte* first) {
    call.image("src", first + ptrdiff_t{step} * reach.top + reach.left * pixelBytes, step);
    LumStatus status = lumStatusOk;
    const auto fault = faultOf([&] { status = call.run(); });
    EXPECT_EQ(status, lumStatusOk);
    return fault;
  };
  EXPECT_FALSE(faultFrom(arena.begin())) << "reads before the first pixel";
  EXPECT_FALSE(faultFrom(arena.end() - bytes)) << "reads behind the last pixel";

  const auto guard = static_cast<ptrdiff_t>(Arena::pageBytes());
  const auto isIn = [](const std::optional<Fault>& fault, const Byte* low, const Byte* high) {
    return fault && fault->address >= low && fault->address < high;
  };
  EXPECT_TRUE(isIn(faultFrom(arena.begin() - pixelBytes), arena.begin() - guard, arena.begin()))
      << "does without the first pixel";
  EXPECT_TRUE(isIn(faultFrom(arena.end() - bytes + pixelBytes), arena.end(), arena.end() + guard))
      << "does without the last pixel";
}

// Even kernels reach one pixel further to the left and upward.
template <typename T>
void expectExactFilter(const filter::FilterKernel& kernel) {
  const auto [width, height] = kernel.size;
  const int left = width / 2, top = height / 2;
  for (const int channels : filter::kChannels)
    for (const LumiBorderType border : kBorders)
      for (const LumiSize roi : {LumiSize{20, 9}, LumiSize{4, 2}}) {
        SCOPED_TRACE(filter::runName(sizeof(T) == 1 ? "8u" : "32f", channels) + ", border " +
                     std::to_string(border) + ", width " + std::to_string(roi.width));
        filter::Work work(kernel, filter::dataType<T>(), channels, roi);
        const int pixelBytes = channels * static_cast<int>(sizeof(T));
        std::vector<T> dst(static_cast<size_t>(roi.width * roi.height * channels));
        const T value[4] = {};
        const auto call = filter::apply<T>(channels, {}, filter::imageOf(dst, roi.width * pixelBytes), roi,
                                           border, value, work.spec.data(), work.buffer.data());
        const Reach reach{roi, left, top, width - left - 1, height - top - 1};
        expectExact(reach.inMemory(border), pixelBytes, call);
      }
}

TEST(PromisedSurroundings, OfAKernel) {
  const std::vector<Lum32f> floats(24, 0.125F);
  expectExactFilter<Lum8u>({{6, 4}, std::vector<Lum16s>(24, 1), {}, 24, lumRoundNearestEven});
  expectExactFilter<Lum8u>({{6, 4}, {}, floats, 1, lumRoundNearestEven});
  expectExactFilter<Lum32f>({{6, 4}, {}, floats, 1, lumRoundNearestEven});
}

// A resize to a multiple of the size. The last tap of a tile lies behind the source pixels that it is told,
// and the first one before them where the tile begins at a multiple of the factor.
class Enlarging {
 public:
  Enlarging(const std::string& kind, const std::string& type, int channels, int factor)
      : kind_(kind),
        type_(type),
        channels_(channels),
        whole_{20 * factor, 15 * factor},
        plan_(kind, type, {20, 15}, whole_) {}

  LumiSize whole() const { return whole_; }

  // Of the tile by what the plan tells.
  Reach reach(LumiPoint offset, LumiSize size) const {
    LumiPoint first{};
    LumiSize inner{};
    LumiBorderSize more{};
    EXPECT_EQ(resize::getSrcRoi(type_, plan_.at, offset, size, &first, &inner).run(), lumStatusOk);
    EXPECT_EQ(resize::getBorderSize(type_, plan_.at, &more).run(), lumStatusOk);
    return {inner, static_cast<int>(more.left), static_cast<int>(more.top), static_cast<int>(more.right),
            static_cast<int>(more.bottom)};
  }

  void expectExactTile(LumiPoint offset, LumiSize size, LumiBorderType border, const Reach& reach) const {
    SCOPED_TRACE(resize::runName(kind_, type_, channels_) + " to width " + std::to_string(whole_.width) +
                 ", tile of width " + std::to_string(size.width) + ", border " + std::to_string(border));
    const int pixelBytes = channels_ * resize::sampleBytes(type_), step = size.width * pixelBytes;
    Lum32s bytes = 0;
    EXPECT_EQ(resize::getBufferSize(type_, plan_.at, size, channels_, &bytes).run(), lumStatusOk);
    std::vector<Byte> dst(static_cast<size_t>(step * size.height)), scratch(static_cast<size_t>(bytes));
    NamedCall call = resize::apply(kind_, type_, channels_, offset, size, plan_.at, scratch.data(), border);
    expectExact(reach, pixelBytes, call.image("dst", dst.data(), step));
  }

 private:
  std::string kind_, type_;
  int channels_;
  LumiSize whole_;
  resize::PlanMemory plan_;
};

constexpr int kFactors[] = {2, 4};  // two is a path of its own

// What lies around a tile inside the image is in memory without a flag.
TEST(PromisedSurroundings, OfATileInsideTheImage) {
  for (const char* kind : {"Nearest", "Linear"})
    for (const char* type : {"8u", "32f"})
      for (const int channels : resize::kChannels)
        for (const int factor : kFactors) {
          const Enlarging enlarging(kind, type, channels, factor);
          for (const LumiSize size : {LumiSize{2, 2}, LumiSize{26, 18}})
            enlarging.expectExactTile({8, 4}, size, lumiBorderReplicate, enlarging.reach({8, 4}, size));
        }
}

TEST(PromisedSurroundings, OfAWholeResizedImage) {
  for (const char* type : {"8u", "32f"})
    for (const int channels : resize::kChannels)
      for (const int factor : kFactors)
        for (const LumiBorderType border : kBorders) {
          const Enlarging enlarging("Linear", type, channels, factor);
          const Reach reach = enlarging.reach({0, 0}, enlarging.whole());
          enlarging.expectExactTile({0, 0}, enlarging.whole(), border, reach.inMemory(border));
        }
}

}  // namespace
}  // namespace test
