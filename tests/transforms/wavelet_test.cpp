// SPDX-License-Identifier: MIT
#include "model/transforms/wavelet.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "lumi/wavelet.h"
#include "support/arena.hpp"
#include "support/core_guard.hpp"
#include "support/member.hpp"
#include "support/named_call.hpp"
#include "support/object_memory.hpp"
#include "support/random.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

using model::Image;
using model::WaveletFilter;

std::string nameOf(const std::string& direction, const std::string& what, int channels) {
  const std::string type = what == "GetBufSize" ? "_C" : "_32f_C";
  return "lumiWT" + direction + what + type + std::to_string(channels) + "R";
}

const bool covered = [] {
  for (const char* direction : {"Fwd", "Inv"})
    for (const char* what : {"InitAlloc", "Free", "GetBufSize", ""})
      for (const int channels : {1, 3}) addCovered({nameOf(direction, what, channels)});
  return true;
}();

const std::vector<std::string> kBands = {"approx", "detail1", "detail2", "detail3"};

NamedCall initOf(const std::string& direction, int channels, const WaveletFilter& low,
                 const WaveletFilter& high) {
  NamedCall call(nameOf(direction, "InitAlloc", channels));
  call.pointer("lowTaps", low.taps.data()).number("lowLength", low.length()).number("lowAnchor", low.anchor);
  return call.pointer("highTaps", high.taps.data())
      .number("highLength", high.length())
      .number("highAnchor", high.anchor);
}

// An object, whose taps the caller has changed since it was made.
class Spec {
 public:
  Spec(const std::string& direction, int channels, WaveletFilter low, WaveletFilter high)
      : free_(nameOf(direction, "Free", channels)) {
    EXPECT_EQ(initOf(direction, channels, low, high).pointer("spec", &made_).run(), lumStatusOk);
    std::fill(low.taps.begin(), low.taps.end(), 1e30F);
    std::fill(high.taps.begin(), high.taps.end(), 1e30F);
    EXPECT_EQ(NamedCall(nameOf(direction, "GetBufSize", channels))
                  .pointer("spec", made_)
                  .pointer("size", &bytes_)
                  .run(),
              lumStatusOk);
  }
  ~Spec() { EXPECT_EQ(free_.pointer("spec", made_).run(), lumStatusOk); }
  Spec(const Spec&) = delete;
  Spec& operator=(const Spec&) = delete;

  void* at() const { return made_; }
  int scratchBytes() const { return bytes_; }

 private:
  NamedCall free_;
  void* made_ = nullptr;
  int bytes_ = 0;
};

// How far an image reaches beyond its size.
struct Margins {
  int left = 0, top = 0, right = 0, bottom = 0;
};

// An image of which just these pixels are there: at the end or the beginning of its memory.
class Placed {
 public:
  Placed(Random& random, LumiSize size, int channels, Margins margins = {})
      : channels_(channels),
        rowBytes_((size.width + margins.left + margins.right) * pixel()),
        rows_(size.height + margins.top + margins.bottom) {
    image.step = rowBytes_ + (random.oneIn(2) ? 0 : random.below(40));
    const size_t bytes =
        static_cast<size_t>(image.step) * static_cast<size_t>(rows_ - 1) + static_cast<size_t>(rowBytes_);
    const size_t phase = random.oneIn(2) ? 0 : static_cast<size_t>(random.below(64));
    arena_ = std::make_unique<Arena>(bytes + phase);
    first_ = random.oneIn(2) ? arena_->end() - bytes - phase : arena_->begin() + phase;
    image.first = first_ + margins.top * image.step + margins.left * pixel();
    for (int y = 0; y < rows_; ++y)
      for (int i = 0; i < rowBytes_ / 4; ++i)
        model::store(first_ + y * image.step, i,
                     static_cast<float>(random.between(-1000000, 1000000)) / 1021);
    arena_->copyToTwin(arena_->begin(), arena_->end());
  }

  float at(int x, int y, int c) const { return model::load<float>(image.row(y), x * channels_ + c); }
  void give(NamedCall& call, const std::string& name) const { call.image(name, image.first, image.step); }
  bool isUnchanged() const { return !arena_->firstDifference(arena_->begin(), arena_->end()); }
  // Of a destination: but for its own pixels.
  bool keptAround() const {
    for (int y = 0; y < rows_; ++y) {
      const Byte* const row = first_ + y * image.step;
      std::copy_n(row, rowBytes_, arena_->twin(row));
    }
    return isUnchanged();
  }

  Image image{};

 private:
  int pixel() const { return 4 * channels_; }

  int channels_, rowBytes_, rows_;
  std::unique_ptr<Arena> arena_;
  Byte* first_;
};

class Wavelet : public testing::Test {
 protected:
  WaveletFilter anyFilter(int most) {
    WaveletFilter filter;
    filter.taps.resize(static_cast<size_t>(random.between(2, most)));
    for (float& tap : filter.taps) tap = static_cast<float>(random.between(-1000, 1000)) / 777;
    filter.anchor = random.below(filter.length());
    return filter;
  }

  // Bit for bit what the model stores, with images and scratch of no byte more than is told.
  void expectForward(const WaveletFilter& low, const WaveletFilter& high, LumiSize size, int channels) {
    const int left = std::max(low.reach(), high.reach()), right = std::max(low.anchor, high.anchor) - 1;
    const LumiSize whole{2 * size.width, 2 * size.height};
    const Placed src(random, whole, channels, {left, left, right, right});
    const Spec spec("Fwd", channels, low, high);
    const int row = 4 * (left + right + 512);
    ASSERT_EQ(spec.scratchBytes(), channels * (row + (row + 31) / 32 * 32));
    const GuardedBlock scratch(spec.scratchBytes(), random.below(64), random);
    std::vector<std::unique_ptr<Placed>> bands;
    NamedCall call(nameOf("Fwd", "", channels));
    call.size("dstSize", size).pointer("spec", spec.at()).pointer("buffer", scratch.at());
    src.give(call, "src");
    for (const std::string& name : kBands) {
      bands.push_back(std::make_unique<Placed>(random, size, channels));
      bands.back()->give(call, name);
    }
    ASSERT_EQ(call.run(), lumStatusOk);
    EXPECT_TRUE(scratch.staysInside());
    EXPECT_TRUE(src.isUnchanged());
    for (size_t b = 0; b < 4; ++b) {
      EXPECT_TRUE(bands[b]->keptAround()) << kBands[b];
      for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x)
          for (int c = 0; c < channels; ++c)
            ASSERT_EQ(bands[b]->at(x, y, c), model::waveletBand(src.image, x, y, c, channels,
                                                                b % 2 == 0 ? low : high, b < 2 ? low : high))
                << kBands[b] << " " << x << " " << y << " of " << size.width << "x" << size.height;
    }
  }

  void expectInverse(const WaveletFilter& low, const WaveletFilter& high, LumiSize size, int channels) {
    std::vector<std::unique_ptr<Placed>> bands;
    NamedCall call(nameOf("Inv", "", channels));
    for (size_t b = 0; b < 4; ++b) {
      const WaveletFilter &vertical = b % 2 == 0 ? low : high, &along = b < 2 ? low : high;
      const Margins margins{along.before(), vertical.before(), along.behind(), vertical.behind()};
      // The last rows and columns that even samples alone would reach may not be needed, but are promised.
      bands.push_back(std::make_unique<Placed>(random, size, channels, margins));
      bands.back()->give(call, kBands[b]);
    }
    const Spec spec("Inv", channels, low, high);
    const auto row = [](const WaveletFilter& f) {
      return (4 * (f.before() + f.behind() + 256) + 31) / 32 * 32;
    };
    ASSERT_EQ(spec.scratchBytes(), channels * 2 * (row(low) + row(high)));
    const GuardedBlock scratch(spec.scratchBytes(), random.below(64), random);
    const LumiSize whole{2 * size.width, 2 * size.height};
    const Placed dst(random, whole, channels);
    dst.give(call, "dst");
    ASSERT_EQ(call.size("srcSize", size).pointer("spec", spec.at()).pointer("buffer", scratch.at()).run(),
              lumStatusOk);
    EXPECT_TRUE(scratch.staysInside());
    EXPECT_TRUE(dst.keptAround());
    for (const auto& band : bands) EXPECT_TRUE(band->isUnchanged());
    const Image images[] = {bands[0]->image, bands[1]->image, bands[2]->image, bands[3]->image};
    for (int y = 0; y < whole.height; ++y)
      for (int x = 0; x < whole.width; ++x)
        for (int c = 0; c < channels; ++c)
          ASSERT_EQ(dst.at(x, y, c), model::waveletSample(images, x, y, c, channels, low, high))
              << x << " " << y << " of " << whole.width << "x" << whole.height;
  }

  Random random{mixSeed(settings().seed, "wavelet", 0)};
};

// Widths about vectors, pieces and strips; the channels in turn.
const std::vector<int> kWidths = {1,  2,  3,  4,  5,  7,  8,  9,   12,  15,  16,  17,  23,  31,
                                  32, 33, 47, 64, 95, 97, 96, 130, 192, 255, 256, 257, 300, 513};

TEST_F(Wavelet, ForwardIsTheModels) {
  for (int i = 0; i < settings().scaled(2 * static_cast<int>(kWidths.size())); ++i) {
    const LumiSize size{kWidths[static_cast<size_t>(i / 2) % kWidths.size()], random.between(1, 3)};
    const int most = size.width < 40 && random.oneIn(3) ? 40 : 9;
    ASSERT_NO_FATAL_FAILURE(expectForward(anyFilter(most), anyFilter(most), size, i % 2 == 0 ? 1 : 3));
  }
}

TEST_F(Wavelet, InverseIsTheModels) {
  for (int i = 0; i < settings().scaled(2 * static_cast<int>(kWidths.size())); ++i) {
    const LumiSize size{kWidths[static_cast<size_t>(i / 2) % kWidths.size()], random.between(1, 3)};
    const int most = size.width < 40 && random.oneIn(3) ? 40 : 9;
    ASSERT_NO_FATAL_FAILURE(expectInverse(anyFilter(most), anyFilter(most), size, i % 2 == 0 ? 1 : 3));
  }
}

TEST_F(Wavelet, ShortestFiltersHaveEveryAnchor) {
  for (const int lowAnchor : {0, 1})
    for (const int highAnchor : {0, 1})
      for (const int channels : {1, 3}) {
        const WaveletFilter low{{0.5F, 0.25F}, lowAnchor}, high{{1, -3}, highAnchor};
        ASSERT_NO_FATAL_FAILURE(expectForward(low, high, {19, 2}, channels));
        ASSERT_NO_FATAL_FAILURE(expectInverse(low, high, {19, 2}, channels));
      }
}

// A zero of either sign times a tap of either sign: the first product begins the sum.
TEST_F(Wavelet, NegativeZerosStay) {
  const WaveletFilter filter{{1, 1}, 1};
  const Spec spec("Fwd", 1, filter, filter);
  std::vector<float> src(32, -0.0F), band(8, 1);
  std::vector<Byte> buffer(static_cast<size_t>(spec.scratchBytes()));
  NamedCall call("lumiWTFwd_32f_C1R");
  call.image("src", src.data(), 64).size("dstSize", {8, 1}).pointer("spec", spec.at());
  call.pointer("buffer", buffer.data());
  for (const std::string& name : kBands) call.image(name, band.data(), 32);
  ASSERT_EQ(call.run(), lumStatusOk);
  for (const float value : band) EXPECT_TRUE(value == 0 && std::signbit(value));
}

// Low-pass filters that are orthonormal with what follows from them: taps backwards, every other sign turned.
std::vector<float> highPass(const std::vector<float>& low) {
  std::vector<float> high(low.rbegin(), low.rend());
  for (size_t k = 1; k < high.size(); k += 2) high[k] = -high[k];
  return high;
}

// An image that is split with margins for the inverse comes back.
TEST_F(Wavelet, OrthonormalFiltersUndoThemselves) {
  const float root = std::sqrt(0.5F);
  const auto four = [](int a, int b) {
    return static_cast<float>((a + b * std::sqrt(3.0)) / (4 * std::sqrt(2.0)));
  };
  const std::vector<std::vector<float>> banks = {
      {root, root},
      {four(1, 1), four(3, 1), four(3, -1), four(1, -1)},
      {0.2303778133F, 0.7148465706F, 0.6308807679F, -0.0279837694F, -0.1870348117F, 0.0308413818F,
       0.0328830117F, -0.0105974018F}};
  constexpr LumiSize kBand{21, 5};
  for (const auto& taps : banks) {
    const int length = static_cast<int>(taps.size()), around = length / 2;
    const LumiSize wider{kBand.width + 2 * around, kBand.height + 2 * around};
    // Anchors that differ by an odd number make filters that are not orthonormal to each other.
    for (int lowAnchor = 0; lowAnchor < length; ++lowAnchor)
      for (int highAnchor = lowAnchor % 2; highAnchor < length; highAnchor += 2)
        for (const int channels : {1, 3}) {
          const WaveletFilter low{taps, lowAnchor}, high{highPass(taps), highAnchor};
          const Placed src(random, {2 * wider.width, 2 * wider.height}, channels,
                           {length, length, length, length});
          const Placed dst(random, {2 * kBand.width, 2 * kBand.height}, channels);
          const Spec there("Fwd", channels, low, high), back("Inv", channels, low, high);
          std::vector<Byte> buffer(static_cast<size_t>(std::max(there.scratchBytes(), back.scratchBytes())));
          NamedCall split(nameOf("Fwd", "", channels)), join(nameOf("Inv", "", channels));
          src.give(split, "src");
          std::vector<std::unique_ptr<Placed>> bands;
          for (const std::string& name : kBands) {
            bands.push_back(std::make_unique<Placed>(random, wider, channels));
            const Image& band = bands.back()->image;
            bands.back()->give(split, name);
            join.image(name, band.row(around) + around * channels * 4, band.step);
          }
          split.size("dstSize", wider).pointer("spec", there.at()).pointer("buffer", buffer.data());
          ASSERT_EQ(split.run(), lumStatusOk);
          dst.give(join, "dst");
          join.size("srcSize", kBand).pointer("spec", back.at()).pointer("buffer", buffer.data());
          ASSERT_EQ(join.run(), lumStatusOk);
          for (int y = 0; y < 2 * kBand.height; ++y)
            for (int x = 0; x < 2 * kBand.width; ++x)
              for (int c = 0; c < channels; ++c)
                ASSERT_NEAR(dst.at(x, y, c), src.at(x + 2 * around, y + 2 * around, c), 2e-3)
                    << length << " taps, anchors " << lowAnchor << " " << highAnchor << " at " << x << " "
                    << y;
        }
  }
}

TEST_F(Wavelet, ObjectsLiveFromInitToFree) {
  const WaveletFilter low = anyFilter(9), high = anyFilter(9);
  for (const char* direction : {"Fwd", "Inv"})
    for (const int channels : {1, 3})
      EXPECT_EQ(expectAllocatedLife(initOf(direction, channels, low, high), "spec",
                                    NamedCall(nameOf(direction, "Free", channels)), "spec",
                                    [](void* spec) { EXPECT_NE(spec, nullptr); }),
                "");
}

TEST_F(Wavelet, BlocksOfTheCoreLibraryMayStartAnywhere) {
  const CoreGuard guard;
  for (const int offset : {1, 17, 63}) {
    testcore::setBlockOffset(offset);
    ASSERT_NO_FATAL_FAILURE(expectForward(anyFilter(9), anyFilter(9), {33, 2}, 1));
    ASSERT_NO_FATAL_FAILURE(expectInverse(anyFilter(9), anyFilter(9), {33, 2}, 1));
  }
}

// Faults of calls that have an object, in the order in which they are told.
struct Fault {
  LumStatus status;
  std::string argument;  // those of one argument exclude one another
  std::function<void(NamedCall&)> apply;
};

void expectInOrder(const std::function<NamedCall()>& valid, const std::vector<Fault>& faults) {
  for (size_t i = 0; i < faults.size(); ++i)
    for (size_t k = i; k < faults.size(); ++k) {
      if (k > i && faults[i].argument == faults[k].argument) continue;
      NamedCall call = valid();
      faults[i].apply(call);
      faults[k].apply(call);
      ASSERT_EQ(call.run(), faults[i].status) << faults[i].argument << " and " << faults[k].argument;
    }
}

Fault nullFault(const std::string& name) {
  return {lumStatusNullPointer, name, [=](NamedCall& call) { call.pointer(name, nullptr); }};
}

TEST_F(Wavelet, StatusesAreToldInOrder) {
  const WaveletFilter low = anyFilter(9), high = anyFilter(9);
  std::vector<float> image(4096, 7), band(4096, 7);
  std::vector<Byte> buffer(1 << 16);
  alignas(64) Lum32s other[64] = {45};                                  // another identifier
  alignas(64) Lum32s emptyForward[64] = {46}, emptyInverse[64] = {47};  // records without taps
  for (const std::string direction : {"Fwd", "Inv"}) {
    const bool isForward = direction == "Fwd";
    for (const int channels : {1, 3}) {
      const Spec spec(direction, channels, low, high), wrong(isForward ? "Inv" : "Fwd", channels, low, high);
      std::vector<Fault> objects = {nullFault("spec")};
      for (const void* bad : {static_cast<const void*>(other), static_cast<const void*>(emptyForward),
                              static_cast<const void*>(emptyInverse), static_cast<const void*>(wrong.at())})
        objects.push_back({lumStatusBadContext, "spec", [=](NamedCall& call) { call.pointer("spec", bad); }});

      std::vector<Fault> faults = objects;
      std::vector<std::string> images = kBands;
      images.push_back(isForward ? "src" : "dst");
      for (const std::string& name : images) faults.push_back(nullFault(name));
      faults.push_back(nullFault("buffer"));
      const std::string size = isForward ? "dstSize" : "srcSize";
      for (const LumiSize bad : {LumiSize{0, 3}, {3, 0}, {-1, 3}, {3, INT_MIN}})
        faults.push_back({lumStatusBadSize, size, [=](NamedCall& call) { call.size(size, bad); }});
      for (const std::string& name : images)
        for (const int bad : {0, -1, INT_MIN})
          faults.push_back(
              {lumStatusBadStep, name + "Step", [=](NamedCall& call) { call.number(name + "Step", bad); }});
      expectInOrder(
          [&] {
            NamedCall call(nameOf(direction, "", channels));
            for (const std::string& name : images) call.image(name, band.data() + 1024, 64);
            return call.size(size, {3, 3}).pointer("spec", spec.at()).pointer("buffer", buffer.data());
          },
          faults);

      std::vector<Fault> sizes = objects;
      sizes.push_back(nullFault("size"));
      int bytes = 77;
      expectInOrder(
          [&] {
            NamedCall call(nameOf(direction, "GetBufSize", channels));
            return call.pointer("spec", spec.at()).pointer("size", &bytes);
          },
          sizes);
      expectInOrder([&] { return NamedCall(nameOf(direction, "Free", channels)); }, objects);
      EXPECT_EQ(bytes, 77);
    }
  }
  EXPECT_EQ(band, image);
}

}  // namespace
}  // namespace test
