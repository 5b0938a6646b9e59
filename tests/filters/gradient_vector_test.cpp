// SPDX-License-Identifier: MIT
// Gradient vectors against the model, in exactly the memory that is promised; statuses in their order.
#include "model/filters/gradient_vector.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <type_traits>

#include "lumi/gradient_vector.h"
#include "support/member.hpp"
#include "support/named_faults.hpp"
#include "support/object_memory.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

using model::Gradient;

struct Name {
  std::string type;
  LumiDataType dataType;
};
template <typename T>
Name nameOf() {
  if (std::is_floating_point_v<T>) return {"32f", lumiData32f};
  if (sizeof(T) == 1) return {"8u16s", lumiData8u};
  return std::is_signed_v<T> ? Name{"16s32f", lumiData16s} : Name{"16u32f", lumiData16u};
}

const std::vector<Gradient> kGradients = {Gradient::Sobel, Gradient::Prewitt, Gradient::Scharr};

template <typename T>
std::string runName(Gradient kind, int channels) {
  const char* const names[] = {"Sobel", "Prewitt", "Scharr"};
  return "lumiGradientVector" + std::string(names[static_cast<int>(kind)]) + "_" + nameOf<T>().type +
         (channels == 1 ? "_C1R" : "_C3C1R");
}

const bool covered = [] {
  for (const Gradient kind : kGradients)
    for (const int channels : {1, 3})
      addCovered({runName<Lum8u>(kind, channels), runName<Lum16u>(kind, channels),
                  runName<Lum16s>(kind, channels), runName<Lum32f>(kind, channels)});
  return addCovered({"lumiGradientVectorGetBufferSize"});
}();

struct Trial {
  Gradient kind;
  int mask, norm, channels;
  LumiSize roi;
  LumiBorderType border;
  bool atEnd, isFlat;  // few samples differ, so that channels tie
  int outputs;         // bits: gx, gy, magnitude, angle

  int reach() const { return mask / 20; }
};

Trial anyTrial(Random& random, Gradient kind, int channels, int index) {
  Trial t;
  t.kind = kind;
  t.mask = kind == Gradient::Sobel && random.oneIn(2) ? 55 : 33;
  t.norm = random.oneIn(2) ? 2 : 4;
  t.channels = channels;
  t.roi = {index < 20 ? 1 + index : random.between(1, 70), random.between(1, 7)};
  // Wider than what is copied as one strip, and than what is done at a time in place.
  if (index == 20) t.roi = {random.between(510, 620), 3};
  if (index == 21) t.roi = {random.between(1080, 1200), 2};
  const int flags[] = {0, 0, 0x10, 0x20, 0x40, 0x80, 0xF0, 0x100, random.between(0, 15) * 16};
  t.border = random.pick(std::vector<int>{0, 1, 6}) | random.pick(flags);
  t.atEnd = random.oneIn(2);
  t.isFlat = random.oneIn(3);
  t.outputs = random.oneIn(2) ? 15 : random.between(0, 15);
  return t;
}

template <typename T>
T anySample(Random& random, bool isFlat) {
  if (isFlat) return static_cast<T>(random.between(0, 1));
  if constexpr (std::is_floating_point_v<T>)
    return static_cast<T>(random.between(-900000, 900000)) / 1021;
  else
    return random.oneIn(4)
               ? random.pick(std::vector<T>{std::numeric_limits<T>::min(), std::numeric_limits<T>::max()})
               : static_cast<T>(random.next());
}

// The ROI and what the mask covers of the sides in memory: no byte more.
template <typename T>
model::GradientImage place(Random& random, const Arena& arena, const Trial& t) {
  const auto beyond = [&](int flag) {
    return (t.border & 15) == 6 || (t.border & flag) != 0 ? t.reach() : 0;
  };
  const int top = beyond(16), bottom = beyond(32), left = beyond(64), right = beyond(128);
  const int pixel = t.channels * static_cast<int>(sizeof(T)), row = (left + t.roi.width + right) * pixel;
  const int step = row + static_cast<int>(sizeof(T)) * random.below(3);
  const ptrdiff_t bytes = ptrdiff_t{step} * (top + t.roi.height + bottom - 1) + row;
  Byte* const first = t.atEnd ? arena.end() - bytes : arena.begin();
  for (ptrdiff_t i = 0; i + static_cast<ptrdiff_t>(sizeof(T)) <= bytes;
       i += static_cast<ptrdiff_t>(sizeof(T))) {
    const T sample = anySample<T>(random, t.isFlat);
    std::memcpy(first + i, &sample, sizeof sample);
  }
  arena.copyToTwin(arena.begin(), arena.end());
  return {{first + ptrdiff_t{step} * top + ptrdiff_t{left} * pixel, step}, t.roi, t.channels, t.border};
}

// An image of results between guards, and what it was before.
template <typename D>
struct Output {
  int step;
  GuardedBlock block;
  std::vector<Byte> before;

  Output(Random& random, LumiSize roi)
      : step((roi.width + random.below(3)) * static_cast<int>(sizeof(D))),
        block(step * (roi.height - 1) + roi.width * static_cast<int>(sizeof(D)), random.below(40), random),
        before(block.at(), block.at() + block.bytes()) {}
  D got(int x, int y) const { return model::load<D>(block.at() + ptrdiff_t{y} * step, x); }
  void expect(int x, int y, D right) const {
    const D result = got(x, y);
    ASSERT_EQ(result, right) << x << ", " << y;
  }
  // Nothing but the pixels was written; without any, nothing at all.
  void expectKept(int width) const {
    ASSERT_TRUE(block.staysInside());
    for (int i = 0; i < block.bytes(); ++i)
      if (i % step >= width * static_cast<int>(sizeof(D))) {
        ASSERT_EQ(block.at()[i], before[static_cast<size_t>(i)]) << i;
      }
  }
};

template <typename T>
void expectModel(Random& random, const Arena& arena, const Trial& t) {
  using D = std::conditional_t<sizeof(T) == 1, Lum16s, Lum32f>;
  const model::GradientImage image = place<T>(random, arena, t);
  const T value[3] = {anySample<T>(random, false), anySample<T>(random, false), anySample<T>(random, false)};
  int bytes = 0;
  ASSERT_EQ(lumiGradientVectorGetBufferSize(t.roi, t.mask, nameOf<T>().dataType, t.channels, &bytes),
            lumStatusOk);
  const GuardedBlock buffer(bytes, random.below(64), random);
  const Output<D> gx(random, t.roi), gy(random, t.roi), magnitude(random, t.roi);
  const Output<Lum32f> angle(random, t.roi);
  NamedCall call(runName<T>(t.kind, t.channels));
  call.image("src", image.src.first, image.src.step).size("roi", t.roi).number("mask", t.mask);
  const auto give = [&](int bit, const char* name, const auto& output) {
    const bool isGiven = (t.outputs >> bit & 1) != 0;
    call.pointer(name, isGiven ? output.block.at() : nullptr);
    call.number(std::string(name) + "Step", isGiven ? output.step : 0);
  };
  give(0, "gx", gx), give(1, "gy", gy), give(2, "magnitude", magnitude), give(3, "angle", angle);
  call.number("norm", (t.outputs & 4) != 0 ? t.norm : 0).number("border", t.border);
  call.values("borderValue", value).pointer("buffer", buffer.at());
  ASSERT_EQ(call.run(), lumStatusOk);
  ASSERT_TRUE(buffer.staysInside() && !arena.firstDifference(arena.begin(), arena.end()));
  for (int y = 0; y < t.roi.height; ++y)
    for (int x = 0; x < t.roi.width; ++x) {
      const auto g = model::strongestGradient(t.kind, t.mask % 10, image, value, x, y);
      const auto expect = [&](int bit, const Output<D>& output, D right) {
        if ((t.outputs & bit) != 0) output.expect(x, y, right);
      };
      ASSERT_NO_FATAL_FAILURE(expect(1, gx, static_cast<D>(g.x)));
      ASSERT_NO_FATAL_FAILURE(expect(2, gy, static_cast<D>(g.y)));
      ASSERT_NO_FATAL_FAILURE(expect(4, magnitude, model::gradientMagnitude<D>(g, t.norm)));
      if (t.outputs & 8) {
        const double right = model::gradientAngle(static_cast<double>(g.x), static_cast<double>(g.y));
        ASSERT_NEAR(angle.got(x, y), right, std::fabs(right) * 0x1p-22) << x << ", " << y;
      }
    }
  ASSERT_NO_FATAL_FAILURE(gx.expectKept(t.outputs & 1 ? t.roi.width : 0));
  ASSERT_NO_FATAL_FAILURE(gy.expectKept(t.outputs & 2 ? t.roi.width : 0));
  ASSERT_NO_FATAL_FAILURE(magnitude.expectKept(t.outputs & 4 ? t.roi.width : 0));
  ASSERT_NO_FATAL_FAILURE(angle.expectKept(t.outputs & 8 ? t.roi.width : 0));
}

template <typename T>
void expectModels() {
  const Arena arena(1 << 17);
  const int trials = settings().scaled(26);
  for (const Gradient kind : kGradients)
    for (const int channels : {1, 3})
      for (int i = 0; i < trials; ++i) {
        const std::string name = runName<T>(kind, channels);
        Random random(mixSeed(settings().seed, name, i));
        const Trial t = anyTrial(random, kind, channels, i);
        ASSERT_NO_FATAL_FAILURE(expectModel<T>(random, arena, t))
            << name << " trial " << i << " mask " << t.mask << " norm " << t.norm << " roi " << t.roi.width
            << "x" << t.roi.height << " border " << t.border << " outputs " << t.outputs;
      }
}

TEST(GradientVector, OfBytesIsTheModels) { expectModels<Lum8u>(); }
TEST(GradientVector, OfUnsignedWordsIsTheModels) { expectModels<Lum16u>(); }
TEST(GradientVector, OfWordsIsTheModels) { expectModels<Lum16s>(); }
TEST(GradientVector, OfFloatsIsTheModels) { expectModels<Lum32f>(); }

// Every sum of 8-bit samples fits into words, and so does every magnitude.
TEST(GradientVector, OfTheSteepestEdgesIsExact) {
  const Lum8u image[5][5] = {{0, 0, 0, 255, 255},
                             {0, 0, 0, 255, 255},
                             {0, 0, 0, 255, 255},
                             {0, 0, 0, 255, 255},
                             {0, 0, 0, 255, 255}};
  Lum16s gx = 0, magnitude = 0;
  std::vector<Byte> buffer(512);
  const auto at = [&](int mask, int norm) {
    EXPECT_EQ(lumiGradientVectorSobel_8u16s_C1R(&image[2][2], 5, &gx, 2, nullptr, 0, &magnitude, 2, nullptr,
                                                0, {1, 1}, mask, norm, lumiBorderInMemory, 0, buffer.data()),
              lumStatusOk);
    return std::pair{int{gx}, int{magnitude}};
  };
  EXPECT_EQ(at(33, 2), (std::pair{-1020, 1020}));
  EXPECT_EQ(at(55, 2), (std::pair{-12240, 12240}));
  EXPECT_EQ(at(55, 4), (std::pair{-12240, 12240}));
}

// The order of the checks; steps are looked at where there is an image.
template <typename T>
void expectInOrderOf(Gradient kind, int channels) {
  using D = std::conditional_t<sizeof(T) == 1, Lum16s, Lum32f>;
  const std::string name = runName<T>(kind, channels);
  const int row = 8 * channels * static_cast<int>(sizeof(T));
  const std::vector<Byte> image(static_cast<size_t>(row) * 4), value(16);
  std::vector<Byte> results(4 * 8 * 4 * 4, 0x5a), buffer(4096, 0x5a);
  NamedCall right(name);
  right.image("src", image.data(), row).size("roi", {8, 4}).number("mask", 33).number("norm", 2);
  right.number("border", lumiBorderConst)
      .values("borderValue", value.data())
      .pointer("buffer", buffer.data());
  const char* const outputs[] = {"gx", "gy", "magnitude", "angle"};
  for (int i = 0; i < 4; ++i)
    right.pointer(outputs[i], results.data() + 128 * i).number(outputs[i] + std::string("Step"), 32);
  std::vector<NamedFault> faults;
  const auto add = [&](const std::string& argument, int n, LumStatus status, int exclusive) {
    faults.push_back({[=](NamedCall& c) { c.number(argument, n); }, status, exclusive});
  };
  const auto addStep = [&](const std::string& image_, size_t bytes, int exclusive) {
    for (const int bad : {0, -1, -32}) add(image_ + "Step", bad, lumStatusBadStep, exclusive);
    if (bytes > 1) add(image_ + "Step", row + 1, lumStatusOddStep, exclusive);
    if (bytes > 2) add(image_ + "Step", row + 2, lumStatusOddStep, exclusive);
  };
  faults.push_back(nullFault("src"));
  addStep("src", sizeof(T), 1);
  faults.push_back(nullFault("buffer"));
  addStep("gx", sizeof(D), 2);
  addStep("gy", sizeof(D), 3);
  addStep("magnitude", sizeof(D), 4);
  for (const int bad : {0, 1, 3, 5, -2}) add("norm", bad, lumStatusBadArgument, 5);
  addStep("angle", 4, 6);
  for (const LumiSize roi : {LumiSize{0, 4}, {8, -1}})
    faults.push_back({[=](NamedCall& c) { c.size("roi", roi); }, lumStatusBadSize, 7});
  for (const int bad : {2, 3, 4, 5, 7, 0xF3, 0x108}) add("border", bad, lumStatusBadArgument, 8);
  if (channels == 3) faults.push_back(nullFault("borderValue"));
  for (const int bad : {0, 13, 51, 35, 77}) add("mask", bad, lumStatusBadMaskSize, 9);
  if (kind != Gradient::Sobel) add("mask", 55, lumStatusBadMaskSize, 9);
  expectInOrder(right, faults, [&](LumStatus) {
    ASSERT_EQ(results, std::vector<Byte>(results.size(), 0x5a));
    ASSERT_EQ(buffer, std::vector<Byte>(buffer.size(), 0x5a));
  });
  // Of images that are not given nothing is looked at, nor is the norm; without any of them nothing is done.
  for (const char* const output : outputs)
    right.pointer(output, nullptr).number(output + std::string("Step"), -7);
  EXPECT_EQ(right.number("norm", 7).run(), lumStatusOk);
  EXPECT_EQ(results, std::vector<Byte>(results.size(), 0x5a));
}

TEST(GradientVectorStatus, OfRuns) {
  for (const int channels : {1, 3}) {
    ASSERT_NO_FATAL_FAILURE(expectInOrderOf<Lum8u>(Gradient::Sobel, channels));
    ASSERT_NO_FATAL_FAILURE(expectInOrderOf<Lum16u>(Gradient::Prewitt, channels));
    ASSERT_NO_FATAL_FAILURE(expectInOrderOf<Lum16s>(Gradient::Sobel, channels));
    ASSERT_NO_FATAL_FAILURE(expectInOrderOf<Lum32f>(Gradient::Scharr, channels));
  }
}

TEST(GradientVectorStatus, SizesAreTheFormula) {
  const auto sizeOf = [](LumiSize roi, int mask, int type, int channels) {
    int size = -1;
    EXPECT_EQ(lumiGradientVectorGetBufferSize(roi, mask, type, channels, &size), lumStatusOk);
    return size;
  };
  EXPECT_EQ(sizeOf({40, 30}, 33, lumiData8u, 1), 42 * 3 + 80 * 2);
  EXPECT_EQ(sizeOf({30, 40}, 33, lumiData16u, 3), 42 * 3 * 6 + 60 * 4);
  EXPECT_EQ(sizeOf({40, 3}, 33, lumiData16s, 1), 42 * 5 * 2 + 80 * 4);
  EXPECT_EQ(sizeOf({4, 40}, 33, lumiData32f, 1), 42 * 3 * 4 + 8 * 4);
  EXPECT_EQ(sizeOf({40, 8}, 55, lumiData32f, 3), 44 * 6 * 12 + 80 * 4);
  EXPECT_EQ(sizeOf({40, 7}, 55, lumiData8u, 1), 44 * 11 + 80 * 2);
}

}  // namespace
}  // namespace test
