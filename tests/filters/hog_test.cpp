// SPDX-License-Identifier: MIT
// Histograms of oriented gradients against the model, in exactly the memory that is promised.
#include "model/filters/hog.hpp"

#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <string>
#include <type_traits>

#include "lumi/hog.h"
#include "support/member.hpp"
#include "support/named_faults.hpp"
#include "support/object_memory.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

const std::vector<int> kChannels = {1, 3};

template <typename T>
std::string runName(int channels) {
  const std::string type = std::is_floating_point_v<T> ? "32f"
                           : sizeof(T) == 1            ? "8u32f"
                           : std::is_signed_v<T>       ? "16s32f"
                                                       : "16u32f";
  return "lumiHOG_" + type + "_C" + std::to_string(channels) + "R";
}

const bool covered = [] {
  for (const int channels : kChannels)
    addCovered({runName<Lum8u>(channels), runName<Lum16u>(channels), runName<Lum16s>(channels),
                runName<Lum32f>(channels)});
  return addCovered({"lumiHOGGetSize", "lumiHOGInit", "lumiHOGGetBufferSize", "lumiHOGGetDescriptorSize"});
}();

constexpr int kHeader = 72;

NamedCall sizeOf(const LumiHOGConfig& config) {
  return NamedCall("lumiHOGGetSize").pointer("config", &config);
}
NamedCall initOf(const LumiHOGConfig& config) { return NamedCall("lumiHOGInit").pointer("config", &config); }

std::vector<float> weightsAt(const Byte* object, const LumiHOGConfig& config) {
  std::vector<float> weights(static_cast<size_t>(4 * config.blockSize * config.blockSize));
  std::memcpy(weights.data(), object + kHeader, weights.size() * sizeof(float));
  return weights;
}

// Doubles with errors of a few units of their last place, rounded once.
TEST(HogObject, HasTheWeightsOfTheFormula) {
  Random random(settings().seed);
  for (const int cell : {2, 3, 8, 15, 16})
    for (const float sigma : {0.05F, 0.7F, 4.0F, 1e30F, std::numeric_limits<float>::denorm_min()}) {
      LumiHOGConfig config = {0, cell, 2 * cell, cell, 9, sigma, 0.2F, 2 * cell, 2 * cell};
      ObjectSteps steps(random);
      ASSERT_EQ(steps.init(sizeOf(config), "size", initOf(config), "spec"), "");
      const std::vector<float> weights = weightsAt(steps.object().at(), config);
      const std::vector<double> expected = model::hogWeights(config);
      ASSERT_EQ(steps.object().bytes(), kHeader + 16 * config.blockSize * config.blockSize);
      for (size_t i = 0; i < expected.size(); ++i)
        ASSERT_LE(std::fabs(static_cast<double>(weights[i]) - expected[i]),
                  expected[i] * (0x1p-24 + 0x1p-44) + 0x1p-149)
            << cell << " " << sigma << " " << i;
    }
}

struct Trial {
  LumiHOGConfig config;
  LumiSize roi;
  LumiBorderType border;
  std::vector<LumiPoint> locations;
  bool atEnd;
};

Trial anyTrial(Random& random, bool isLarge) {
  Trial t;
  const int cell = isLarge ? random.between(10, 16) : random.between(2, 5), block = 2 * cell;
  const int stride = cell * random.between(1, 3);
  const auto side = [&](int most) { return block + stride * random.between(0, most); };
  t.config = {random.between(-1, 1),
              cell,
              block,
              stride,
              random.between(2, 16),
              random.pick(std::vector<float>{0.4F, 1.5F, 8.0F}),
              random.pick(std::vector<float>{0.05F, 0.2F, 1.0F}),
              isLarge ? block + stride * 2 : side(3),
              side(2)};
  // Strips of 256 columns, and what is left of one.
  const int across = isLarge ? random.between(250, 300) : t.config.windowWidth + random.between(0, 9);
  t.roi = {across, t.config.windowHeight + random.between(0, 7)};
  const int flags[] = {0, 0x10, 0x20, 0x40, 0x80, 0xF0, 0x100, random.between(0, 15) * 16};
  t.border = random.pick(std::vector<int>{0, 1, 3, 6}) | random.pick(flags);
  const int windows = random.between(1, isLarge ? 2 : 4);
  for (int i = 0; i < windows; ++i)
    t.locations.push_back({random.between(-1, t.roi.width - t.config.windowWidth + 1),
                           random.between(-1, t.roi.height - t.config.windowHeight + 1)});
  if (random.oneIn(4)) t.locations[0] = {INT32_MAX, INT32_MAX};
  t.atEnd = random.oneIn(2);
  return t;
}

template <typename T>
T anySample(Random& random, bool areAlike) {
  if constexpr (std::is_floating_point_v<T>)
    return static_cast<T>(random.between(-900000, 900000)) / (areAlike ? 900000 : 1021);
  else
    return static_cast<T>(areAlike ? random.between(0, 2) : static_cast<int>(random.next() & 0xFFFF));
}

// The source's first and last bytes are those of the first and the last pixel that are read: of the image
// that blocks fit, and of sides in memory, but of no corner.
class Source {
 public:
  template <typename T>
  model::HogImage place(Random& random, const Trial& t, int channels, T) {
    const LumiSize size = model::hogSize(t.config, t.roi);
    const auto reach = [&](int flag) { return (t.border & 15) == 6 || (t.border & flag) != 0 ? 1 : 0; };
    const int pixel = channels * static_cast<int>(sizeof(T));
    const int top = reach(16), bottom = reach(32), left = reach(64), right = reach(128);
    const int step = (size.width + 2) * pixel + pixel * random.below(3);
    const ptrdiff_t first = top ? -ptrdiff_t{step} : -ptrdiff_t{left} * pixel;
    const ptrdiff_t end =
        ptrdiff_t{step} * (size.height - 1 + bottom) + ptrdiff_t{size.width + (bottom ? 0 : right)} * pixel;
    Byte* const at = t.atEnd ? arena_.end() - end : arena_.begin() - first;
    const bool areAlike = random.oneIn(2);
    for (ptrdiff_t i = first; i < end; i += static_cast<ptrdiff_t>(sizeof(T))) {
      const T sample = anySample<T>(random, areAlike);
      std::memcpy(at + i, &sample, sizeof sample);
    }
    arena_.copyToTwin(arena_.begin(), arena_.end());
    return {{at, step}, t.roi, channels, t.border};
  }
  bool isUnchanged() const { return !arena_.firstDifference(arena_.begin(), arena_.end()); }

 private:
  Arena arena_{1 << 18};
};

template <typename T>
void expectModel(Random& random, Source& memory, const Trial& t, int channels) {
  ObjectSteps steps(random);
  ASSERT_EQ(steps.init(sizeOf(t.config), "size", initOf(t.config), "spec"), "");
  const Byte* const object = steps.object().at();
  const NamedCall query = NamedCall("lumiHOGGetBufferSize").pointer("spec", object).size("roi", t.roi);
  ASSERT_EQ(steps.makeScratch(query, "size"), "");
  ASSERT_EQ(steps.scratch().bytes(), 12 * t.roi.width * t.roi.height);
  const model::HogImage image = memory.place(random, t, channels, T());
  const T value[3] = {anySample<T>(random, false), anySample<T>(random, true), anySample<T>(random, false)};
  const auto expected = model::hog(image, t.config, value, weightsAt(object, t.config), t.locations);
  const int bytes = static_cast<int>(expected.size() * sizeof(float));
  const GuardedBlock descriptors(std::max(bytes, 1), random.below(9), random);
  const bool isDefault = t.locations.size() == 1 && t.locations[0].x == 0 && t.locations[0].y == 0;
  NamedCall call(runName<T>(channels));
  call.image("src", image.src.first, image.src.step).size("roi", t.roi);
  call.pointer("locations", isDefault ? nullptr : t.locations.data());
  call.number("locationCount", static_cast<double>(t.locations.size()));
  call.pointer("descriptors", descriptors.at()).number("border", t.border).values("borderValue", value);
  ASSERT_EQ(steps.run(call, "spec", "buffer"), "");
  ASSERT_TRUE(bytes > 0 ? descriptors.staysInside() : descriptors.isUnchanged());
  ASSERT_TRUE(memory.isUnchanged());
  for (size_t i = 0; i < expected.size(); ++i) {
    const float got = model::load<float>(descriptors.at(), static_cast<int>(i));
    ASSERT_EQ(std::memcmp(&got, &expected[i], sizeof got), 0) << i << ": " << got << ", not " << expected[i];
  }
}

template <typename T>
void expectModels(const char* name) {
  Source memory;
  const int trials = settings().scaled(24);
  for (int i = 0; i < trials; ++i)
    for (const int channels : kChannels) {
      Random random(mixSeed(settings().seed, name, i * 4 + channels));
      const Trial t = anyTrial(random, i % 12 == 11);
      ASSERT_NO_FATAL_FAILURE(expectModel<T>(random, memory, t, channels))
          << name << " C" << channels << " trial " << i << " cell " << t.config.cellSize << " stride "
          << t.config.blockStride << " bins " << t.config.binCount << " border " << t.border << " roi "
          << t.roi.width << "x" << t.roi.height;
    }
}

TEST(Hog, OfBytesIsTheModels) { expectModels<Lum8u>("8u"); }
TEST(Hog, OfUnsignedWordsIsTheModels) { expectModels<Lum16u>("16u"); }
TEST(Hog, OfWordsIsTheModels) { expectModels<Lum16s>("16s"); }
TEST(Hog, OfFloatsIsTheModels) { expectModels<Lum32f>("32f"); }

// Whatever the votes are, they count in bins that are there.
TEST(Hog, OfNoNumbersStaysInItsMemory) {
  Random random(settings().seed);
  Source memory;
  Trial t = {{0, 4, 8, 4, 5, 2, 0.2F, 24, 16}, {24, 16}, 1, {{0, 0}}, true};
  ObjectSteps steps(random);
  ASSERT_EQ(steps.init(sizeOf(t.config), "size", initOf(t.config), "spec"), "");
  const Byte* const object = steps.object().at();
  const NamedCall query = NamedCall("lumiHOGGetBufferSize").pointer("spec", object).size("roi", t.roi);
  ASSERT_EQ(steps.makeScratch(query, "size"), "");
  const model::HogImage image = memory.place(random, t, 1, Lum32f());
  const float limits[] = {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(),
                          -std::numeric_limits<float>::infinity(), std::numeric_limits<float>::max(),
                          -std::numeric_limits<float>::max(),      std::numeric_limits<float>::denorm_min()};
  for (int y = 0; y < 16; ++y)
    for (int x = 0; x < 24; ++x) model::store(image.src.row(y), x, random.pick(limits));
  const GuardedBlock descriptors(15 * 20 * 4, 0, random);
  NamedCall call(runName<Lum32f>(1));
  call.image("src", image.src.first, image.src.step).size("roi", t.roi);
  call.number("locationCount", 1).pointer("descriptors", descriptors.at());
  call.number("border", lumiBorderReplicate);
  EXPECT_EQ(steps.run(call, "spec", "buffer"), "");
  EXPECT_TRUE(descriptors.staysInside());
}

// Descriptors of a square image of bytes, in one window, cells of four pixels.
std::vector<float> described(const std::vector<Lum8u>& image, int bins) {
  const LumiHOGConfig config = {0, 4, 8, 4, bins, 2, 0.2F, 8, 8};
  std::vector<Byte> object(kHeader + 16 * 64), buffer(12 * 64);
  std::vector<float> result(static_cast<size_t>(4 * bins), -1);
  auto* const spec = reinterpret_cast<LumiHOGSpec*>(object.data());
  EXPECT_EQ(lumiHOGInit(&config, spec), lumStatusOk);
  EXPECT_EQ(lumiHOG_8u32f_C1R(image.data(), 8, {8, 8}, nullptr, 1, result.data(), spec, lumiBorderReplicate,
                              0, buffer.data()),
            lumStatusOk);
  return result;
}

TEST(Hog, OfAFlatImageIsZero) {
  EXPECT_EQ(described(std::vector<Lum8u>(64, 200), 9), std::vector<float>(36));
}

TEST(Hog, CountsOppositeDirectionsInOneBin) {
  std::vector<Lum8u> up(64), down(64);
  for (size_t i = 0; i < 64; ++i)
    up[i] = static_cast<Lum8u>(i % 8 * 9), down[i] = static_cast<Lum8u>(99 - up[i]);
  const std::vector<float> rising = described(up, 9);
  for (size_t i = 0; i < rising.size(); ++i) {
    EXPECT_NEAR(rising[i], described(down, 9)[i], 1e-6F);
    // Between the last bin and the first.
    EXPECT_EQ(rising[i] > 0.1F, i % 9 == 0 || i % 9 == 8) << i;
  }
}

}  // namespace
}  // namespace test
