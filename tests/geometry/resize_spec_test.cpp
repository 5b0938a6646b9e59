// SPDX-License-Identifier: MIT
// Plans of a resize: sizes, what they tell, and every status in its order, two faults at once included.
#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "geometry/resize_calls.hpp"
#include "model/geometry/resize.hpp"
#include "support/core_guard.hpp"
#include "support/member.hpp"
#include "support/random.hpp"
#include "support/settings.hpp"

namespace test::resize {
namespace {

constexpr int kUnset = -12345;

const bool covered = [] {
  for (const std::string& type : kTypes) {
    for (const char* query :
         {"GetSize", "GetBufferSize", "GetBorderSize", "GetSrcOffset", "GetSrcRoi", "LinearInit"})
      addCovered({std::string("lumiResize") + query + "_" + type});
    for (int channels : kChannels) addCovered({runName("Linear", type, channels)});
  }
  for (const std::string& type : kNearestTypes) {
    addCovered({"lumiResizeNearestInit_" + type});
    for (int channels : kChannels) addCovered({runName("Nearest", type, channels)});
  }
  return true;
}();

// What GetSize has to answer.
LumStatus expectedStatus(LumiSize src, LumiSize dst, int interpolation, bool antialiasing, bool is64f) {
  const auto anyIs = [&](auto test) {
    return test(src.width) || test(src.height) || test(dst.width) || test(dst.height);
  };
  if (anyIs([](int n) { return n == 0; })) return lumStatusNothingToDo;
  if (anyIs([](int n) { return n < 1; })) return lumStatusBadSize;
  const std::map<int, int> least = {{0, 0}, {1, 1}, {2, 2}, {6, 4}, {8, 0}, {16, 4}};
  if (!least.count(interpolation)) return lumStatusBadInterpolation;
  if (antialiasing && (interpolation == 1 || interpolation == 8)) return lumStatusUnsupportedMode;
  const bool grows = src.width < dst.width || src.height < dst.height;
  if (interpolation == 8) {
    if (grows) return lumStatusBadSize;
    if (is64f) return lumStatusUnsupportedMode;
  }
  if (interpolation == 0 || (is64f && interpolation != 2)) return lumStatusUnsupportedMode;
  const int smallest = least.at(interpolation);
  if (src.width < smallest || src.height < smallest) return lumStatusBadSize;
  const model::resize::Sizes sizes = model::resize::sizes(src, dst, interpolation, antialiasing, is64f);
  return std::max(sizes.object, sizes.init) > INT32_MAX ? lumStatusBadSize : lumStatusOk;
}

void checkSize(const std::string& type, LumiSize src, LumiSize dst, int interpolation, int antialiasing) {
  const bool is64f = type == "64f";
  const LumStatus expected = expectedStatus(src, dst, interpolation, antialiasing != 0, is64f);
  Lum32s object = kUnset, init = kUnset;
  const LumStatus status = getSize(type, src, dst, interpolation, antialiasing, &object, &init).run();
  const auto what = [&] {
    return type + " " + std::to_string(src.width) + "x" + std::to_string(src.height) + " to " +
           std::to_string(dst.width) + "x" + std::to_string(dst.height) + " by " +
           std::to_string(interpolation) + " antialiasing " + std::to_string(antialiasing);
  };
  ASSERT_EQ(status, expected) << what();
  if (status != lumStatusOk) {
    ASSERT_EQ(object, kUnset) << what();
    ASSERT_EQ(init, kUnset) << what();
    return;
  }
  const model::resize::Sizes sizes = model::resize::sizes(src, dst, interpolation, antialiasing != 0, is64f);
  ASSERT_EQ(object, sizes.object) << what();
  ASSERT_EQ(init, sizes.init) << what();
}

const std::vector<int> kInterpolations = {0, 1, 2, 6, 8, 16};

TEST(ResizeSpec, SizesFollowFromTheImages) {
  Random random(mixSeed(settings().seed, "resize sizes", 0));
  const std::vector<int> limits = {7, 40, 300, 5000, 1 << 20, INT32_MAX};
  const auto length = [&] { return random.between(1, random.pick(limits)); };
  for (const std::string& type : kTypes)
    for (int i = 0; i < settings().scaled(4000); ++i) {
      const LumiSize src{length(), length()}, dst{length(), length()};
      checkSize(type, src, dst, random.pick(kInterpolations), random.oneIn(3) ? random.between(1, 3) : 0);
      if (HasFatalFailure()) return;
    }
}

TEST(ResizeSpec, SizesOfWorkedExamples) {
  struct Example {
    const char* type;
    LumiSize src, dst;
    int interpolation, antialiasing, object, init;
  };
  const Example examples[] = {
      {"8u", {1, 1}, {1, 1}, 1, 0, 4 * 64 + 244, 64},
      {"16u", {1920, 1080}, {1280, 720}, 2, 0, 8 * (1280 + 736) + 244, 64},
      {"32f", {64, 64}, {33, 31}, 6, 0, 4 * 96 + 4 * (256 + 224) + 244, 4 * 96 + 64},
      {"16s", {64, 64}, {32, 32}, 16, 0, 4 * 64 + 4 * (352 + 352) + 244, 4 * 64 + 64},
      {"8u", {6, 4}, {4, 4}, 8, 0, 4 * (4 + 1 + 32 + 32) + 244, 64},
      {"8u", {40, 40}, {20, 40}, 2, 1, 4 * (32 + 64) + 4 * 20 * 8 + 4 * 40 * 2 + 244, 8 * 96 + 64},
      {"8u", {40, 40}, {40, 20}, 2, 1, 4 * (64 + 32) + 4 * 40 * 2 + 4 * 20 * 8 + 160 + 244, 8 * 96 + 64},
      {"64f", {5, 5}, {33, 32}, 2, 0, 12 * 96 + 192, 64},
  };
  for (const Example& e : examples) {
    Lum32s object = 0, init = 0;
    EXPECT_EQ(getSize(e.type, e.src, e.dst, e.interpolation, e.antialiasing, &object, &init).run(),
              lumStatusOk);
    EXPECT_EQ(object, e.object) << e.type << " " << e.interpolation;
    EXPECT_EQ(init, e.init) << e.type << " " << e.interpolation;
  }
}

// Each argument takes a good value and bad ones, all combined: any two faults meet.
TEST(ResizeSpec, SizeQueryTestsInOrder) {
  const std::vector<int> lengths = {9, 3, 1, 0, -1, INT32_MIN};
  for (const std::string& type : kTypes) {
    for (int interpolation : {-1, 0, 1, 2, 3, 4, 6, 8, 16, 17})
      for (int antialiasing : {0, 1})
        for (int sw : lengths)
          for (int sh : lengths)
            for (int dw : {4, 0, -7})
              for (int dh : {5, 0, -7}) {
                checkSize(type, {sw, sh}, {dw, dh}, interpolation, antialiasing);
                if (HasFatalFailure()) return;
              }
    Lum32s result = kUnset;
    EXPECT_EQ(getSize(type, {0, 0}, {0, 0}, 5, 1, nullptr, &result).run(), lumStatusNullPointer);
    EXPECT_EQ(getSize(type, {0, 0}, {0, 0}, 5, 1, &result, nullptr).run(), lumStatusNullPointer);
    EXPECT_EQ(result, kUnset);
  }
}

TEST(ResizeSpec, InitTestsInOrderAndWritesNothing) {
  const std::vector<int> lengths = {5, 2, 1, 0, -1, INT32_MIN};
  for (const std::string kind : {"Nearest", "Linear"})
    for (const std::string& type : kind == "Linear" ? kTypes : kNearestTypes)
      for (int sw : lengths)
        for (int sh : lengths)
          for (int dw : {4, 1, 0, -7})
            for (int dh : {5, 1, 0, -7}) {
              const bool zero = sw == 0 || sh == 0 || dw == 0 || dh == 0;
              const bool negative = sw < 0 || sh < 0 || dw < 0 || dh < 0;
              const bool small = kind == "Linear" && (sw < 2 || sh < 2);
              const LumStatus expected = zero                ? lumStatusNothingToDo
                                         : negative || small ? lumStatusBadSize
                                                             : lumStatusOk;
              Byte object[1200];
              std::memset(object, 0x3C, sizeof object);
              ASSERT_EQ(init(kind, type, {sw, sh}, {dw, dh}, object).run(), expected);
              const bool written =
                  std::any_of(object, object + sizeof object, [](Byte b) { return b != 0x3C; });
              ASSERT_EQ(written, expected == lumStatusOk);
              ASSERT_EQ(init(kind, type, {sw, sh}, {dw, dh}, nullptr).run(), lumStatusNullPointer);
            }
}

// The plan has exactly the bytes that were reported, with its page's end behind or a few bytes before it.
TEST(ResizeSpec, PlansFitTheirSizeAtEveryPhase) {
  Random random(mixSeed(settings().seed, "resize phases", 0));
  for (const std::string kind : {"Nearest", "Linear"})
    for (const std::string& type : kind == "Linear" ? kTypes : kNearestTypes)
      for (size_t phase = 0; phase < 64; ++phase) {
        const LumiSize src{random.between(2, 90), random.between(2, 90)};
        const LumiSize dst{random.between(1, 90), random.between(1, 90)};
        const PlanMemory plan(kind, type, src, dst, phase);
        ASSERT_EQ(plan.status, lumStatusOk);
        ASSERT_TRUE(plan.staysInside());
        LumiBorderSize border{9, 9, 9, 9};
        ASSERT_EQ(getBorderSize(type, plan.at, &border).run(), lumStatusOk);
        const Lum32u each = kind == "Linear" ? 1 : 0;
        ASSERT_TRUE(border.left == each && border.top == each && border.right == each &&
                    border.bottom == each);
      }
}

TEST(ResizeSpec, ScratchFollowsFromTheTile) {
  Random random(mixSeed(settings().seed, "resize scratch", 0));
  for (const std::string kind : {"Nearest", "Linear"})
    for (const std::string& type : kind == "Linear" ? kTypes : kNearestTypes) {
      const LumiSize dst{301, 77};
      const PlanMemory plan(kind, type, {50, 60}, dst);
      for (int i = 0; i < 2000; ++i) {
        const LumiSize tile{random.between(1, 400), random.between(1, 100)};
        const int channels = random.pick(kChannels);
        Lum32s bytes = kUnset;
        const bool above = tile.width > dst.width || tile.height > dst.height;
        ASSERT_EQ(getBufferSize(type, plan.at, tile, channels, &bytes).run(),
                  above ? lumStatusSizeAboveSpec : lumStatusOk);
        const LumiSize clipped{std::min(tile.width, dst.width), std::min(tile.height, dst.height)};
        ASSERT_EQ(bytes, model::resize::scratch(clipped, channels, kind == "Linear", type == "64f"));
      }
    }
}

// Two rows of four channels and 2^26 columns are 2^31 bytes; the plan of so wide a destination is made from a
// small one by another destination width.
TEST(ResizeSpec, ScratchBeyond31BitsIsRefused) {
  constexpr int32_t kWidth = 12347;
  for (const std::string& type : kTypes)
    for (int width : {1 << 20, 1 << 26}) {
      const PlanMemory plan("Linear", type, {2, 2}, {kWidth, 1});
      auto* const words = reinterpret_cast<int32_t*>((reinterpret_cast<uintptr_t>(plan.at) + 63) / 64 * 64);
      int changed = 0;
      for (int i = 0; i < 29; ++i)
        if (words[i] == kWidth) {
          words[i] = width;
          ++changed;
        }
      ASSERT_GE(changed, 1);
      Lum32s bytes = kUnset;
      const bool fits = width == 1 << 20;
      EXPECT_EQ(getBufferSize(type, plan.at, {width, 1}, 4, &bytes).run(),
                fits ? lumStatusOk : lumStatusBadSize);
      EXPECT_EQ(bytes == kUnset, !fits);
    }
}

TEST(ResizeSpec, OffsetsAndRoisFollowFromTheSizes) {
  Random random(mixSeed(settings().seed, "resize rois", 0));
  for (int i = 0; i < settings().scaled(3000); ++i) {
    const std::string kind = random.oneIn(2) ? "Nearest" : "Linear";
    const std::string type = random.pick(kind == "Linear" ? kTypes : kNearestTypes);
    const int limit = random.oneIn(3) ? 8 : 200;
    const LumiSize src{random.between(2, limit), random.between(2, limit)};
    const LumiSize dst{random.between(1, limit), random.between(1, limit)};
    const PlanMemory plan(kind, type, src, dst);
    ASSERT_EQ(plan.status, lumStatusOk);
    const model::resize::Tile tile{src,
                                   dst,
                                   {random.below(dst.width), random.below(dst.height)},
                                   {random.between(1, limit), random.between(1, limit)},
                                   1};
    const model::resize::Axis h = tile.horizontal(), v = tile.vertical();
    LumiPoint offset{};
    ASSERT_EQ(getSrcOffset(type, plan.at, tile.offset, &offset).run(), lumStatusOk);
    ASSERT_EQ(offset.x, h.start(tile.offset.x));
    ASSERT_EQ(offset.y, v.start(tile.offset.y));
    LumiSize size{};
    const bool above = tile.size.width > dst.width || tile.size.height > dst.height;
    ASSERT_EQ(getSrcRoi(type, plan.at, tile.offset, tile.size, &offset, &size).run(),
              above ? lumStatusSizeAboveSpec : lumStatusOk);
    const int lastX = tile.offset.x + tile.width() - 1, lastY = tile.offset.y + tile.height() - 1;
    const bool linear = kind == "Linear";
    ASSERT_EQ(offset.x, h.start(tile.offset.x));
    ASSERT_EQ(offset.y, v.start(tile.offset.y));
    ASSERT_EQ(size.width, (linear ? h.index(lastX) : h.nearest(lastX)) - offset.x + 1);
    ASSERT_EQ(size.height, (linear ? v.index(lastY) : v.nearest(lastY)) - offset.y + 1);
  }
}

// An argument in a good state or in a bad one with the status that it gives; the first bad one in the order
// counts. A fault that another argument also has is listed once for each.
struct Fault {
  LumStatus status;
  std::function<void(NamedCall&)> apply;
};

// All single faults, and all pairs; `faults` stand in the order of the tests.
void checkFaults(const std::function<NamedCall()>& good, const std::vector<Fault>& faults,
                 const std::string& what) {
  for (size_t first = 0; first < faults.size(); ++first)
    for (size_t second = first; second < faults.size(); ++second) {
      NamedCall call = good();
      // The first fault's change comes last: where both change one argument, it wins.
      faults[second].apply(call);
      faults[first].apply(call);
      ASSERT_EQ(call.run(), faults[first].status) << what << ": faults " << first << " and " << second;
    }
}

struct Plans {
  Plans(const std::string& type, LumiSize src, LumiSize dst)
      : linear("Linear", type, src, dst),
        other(type == "64f" ? "Linear" : "Nearest", type == "64f" ? "8u" : type, src, dst),
        otherWeights("Linear", type == "8u" ? "16u" : "8u", src, dst),
        foreign(4096, 0) {}
  PlanMemory linear, other;  // of 64f the other one carries another identifier
  PlanMemory otherWeights;
  std::vector<Byte> foreign;  // no plan at all
};

TEST(ResizeSpec, QueriesTestInOrder) {
  for (const std::string& type : kTypes) {
    const Plans plans(type, {20, 20}, {30, 30});
    const void* object = plans.linear.at;
    const auto null = [](const char* name) {
      return Fault{lumStatusNullPointer, [=](NamedCall& c) { c.pointer(name, nullptr); }};
    };
    const Fault context{lumStatusBadContext,
                        [&](NamedCall& c) { c.pointer("object", plans.foreign.data()); }};
    const auto tile = [](LumStatus status, LumiSize size) {
      return Fault{status, [=](NamedCall& c) { c.size("dstSize", size); }};
    };
    const auto offset = [](LumiPoint at) {
      return Fault{lumStatusOutOfRange, [=](NamedCall& c) { c.point("dstOffset", at); }};
    };
    const auto channels = [](int n) {
      return Fault{lumStatusBadChannelCount, [=](NamedCall& c) { c.number("channels", n); }};
    };
    Lum32s bytes = kUnset;
    checkFaults(
        [&] {
          return getBufferSize(type, object, {4, 4}, 3, &bytes);
        },
        {null("object"), null("bufferSize"), tile(lumStatusNothingToDo, {0, -1}),
         tile(lumStatusNothingToDo, {-1, 0}), context, channels(0), channels(2), channels(5), channels(-1),
         tile(lumStatusBadSize, {-1, 5}), tile(lumStatusBadSize, {5, -1})},
        "buffer " + type);
    EXPECT_EQ(bytes, kUnset);

    LumiBorderSize border{7, 7, 7, 7};
    checkFaults([&] { return getBorderSize(type, object, &border); },
                {null("object"), null("borderSize"), context}, "border " + type);
    EXPECT_EQ(border.left, 7u);

    LumiPoint point{kUnset, kUnset};
    const std::vector<LumiPoint> outside = {{-1, 0}, {0, -1},        {30, 0},
                                            {0, 30}, {INT32_MIN, 0}, {0, INT32_MAX}};
    std::vector<Fault> faults = {null("object"), null("srcOffset"), context};
    for (LumiPoint at : outside) faults.push_back(offset(at));
    checkFaults([&] { return getSrcOffset(type, object, {3, 3}, &point); }, faults, "offset " + type);
    EXPECT_EQ(point.x, kUnset);

    LumiSize size{kUnset, kUnset};
    faults = {null("object"),
              null("srcOffset"),
              null("srcSize"),
              tile(lumStatusBadSize, {0, 4}),
              tile(lumStatusBadSize, {4, 0}),
              tile(lumStatusBadSize, {-1, 40}),
              context};
    for (LumiPoint at : outside) faults.push_back(offset(at));
    checkFaults(
        [&] {
          return getSrcRoi(type, object, {3, 3}, {4, 4}, &point, &size);
        },
        faults, "roi " + type);
    EXPECT_EQ(point.x, kUnset);
    EXPECT_EQ(size.width, kUnset);
  }
}

// Plans of bytes, words and floats carry one identifier; that of 64f differs.
TEST(ResizeSpec, PlansAreToldApart) {
  const Plans plans("64f", {20, 20}, {30, 30});
  LumiBorderSize border{};
  EXPECT_EQ(getBorderSize("64f", plans.other.at, &border).run(), lumStatusBadContext);
  EXPECT_EQ(getBorderSize("8u", plans.linear.at, &border).run(), lumStatusBadContext);
  for (const char* type : {"8u", "16u", "16s", "32f"})
    EXPECT_EQ(getBorderSize(type, plans.other.at, &border).run(), lumStatusOk);
}

// Nothing of the images is touched by a refused call: they are inaccessible.
TEST(ResizeSpec, RunsTestInOrder) {
  const CoreGuard guard;
  Arena images(4096);
  images.setAccessible(images.begin(), images.end(), false);
  for (const std::string kind : {"Nearest", "Linear"})
    for (const std::string& type : kind == "Linear" ? kTypes : kNearestTypes)
      for (int channels : kChannels) {
        const Plans plans(type, {20, 20}, {30, 30});
        const bool isLinear = kind == "Linear";
        const void* object = isLinear ? plans.linear.at : plans.other.at;
        const auto good = [&] {
          NamedCall call = apply(kind, type, channels, {3, 3}, {4, 4}, object, images.begin());
          return call.image("src", images.begin(), 512).image("dst", images.begin(), 512);
        };
        std::vector<Fault> faults;
        for (const char* name : {"src", "dst", "object", "buffer"})
          faults.push_back({lumStatusNullPointer, [=](NamedCall& c) { c.pointer(name, nullptr); }});
        faults.push_back({lumStatusNothingToDo, [](NamedCall& c) { c.size("dstSize", {0, -1}); }});
        faults.push_back({lumStatusNothingToDo, [](NamedCall& c) { c.size("dstSize", {-1, 0}); }});
        faults.push_back(
            {lumStatusBadContext, [&](NamedCall& c) { c.pointer("object", plans.foreign.data()); }});
        faults.push_back({lumStatusBadSize, [](NamedCall& c) { c.size("dstSize", {-1, 4}); }});
        faults.push_back({lumStatusBadSize, [](NamedCall& c) { c.size("dstSize", {4, INT32_MIN}); }});
        const int bytes = sampleBytes(type);
        for (int step : {bytes / 2, -bytes / 2, 512 + bytes / 2})
          for (const char* name : {"srcStep", "dstStep"})
            if (bytes > 1) faults.push_back({lumStatusBadStep, [=](NamedCall& c) { c.number(name, step); }});
        for (LumiPoint at : {LumiPoint{-1, 0}, {0, -1}, {30, 0}, {0, 30}})
          faults.push_back({lumStatusOutOfRange, [=](NamedCall& c) { c.point("dstOffset", at); }});
        if (type != "64f") {
          const void* otherKind = isLinear ? plans.other.at : plans.linear.at;
          faults.push_back({lumStatusUnsupportedMode, [=](NamedCall& c) { c.pointer("object", otherKind); }});
          const void* weights = plans.otherWeights.at;
          faults.push_back({lumStatusUnsupportedMode, [=](NamedCall& c) { c.pointer("object", weights); }});
        }
        if (isLinear) {
          for (int border : {1 | 8, 6 | 8, 8, 1 | 256, 6 | INT32_MIN})
            faults.push_back({lumStatusBadBorder, [=](NamedCall& c) { c.number("border", border); }});
          for (int border : {0, 2, 3, 4, 5, 7, 240, 242})
            faults.push_back({lumStatusUnsupportedMode, [=](NamedCall& c) { c.number("border", border); }});
        }
        checkFaults(good, faults, runName(kind, type, channels));
        if (HasFatalFailure()) return;
      }
  EXPECT_EQ(testcore::counts().allocations, 0);
}

// A plan serves every sample type that it has weights for: runs by it make what runs by the type's own make.
TEST(ResizeSpec, PlansServeTypesOfTheSameWeights) {
  const std::vector<std::string> all = {"8u", "16u", "16s", "32f"};
  const LumiSize src{9, 7}, dst{13, 5};
  for (const std::string kind : {"Nearest", "Linear"})
    for (const std::string& planned : all)
      for (const std::string& type : all) {
        const bool mixes = kind == "Nearest" || (planned == "8u") == (type == "8u");
        const PlanMemory own(kind, type, src, dst), other(kind, planned, src, dst);
        std::vector<Byte> image(9 * 7 * 4), scratch(4096), first(13 * 5 * 4), second(first.size());
        for (size_t i = 0; i < image.size(); ++i) image[i] = static_cast<Byte>(i % 60);
        const auto run = [&](const void* plan, std::vector<Byte>& result) {
          NamedCall call = apply(kind, type, 1, {0, 0}, dst, plan, scratch.data());
          return call.image("src", image.data(), 36).image("dst", result.data(), 52).run();
        };
        ASSERT_EQ(run(own.at, first), lumStatusOk);
        ASSERT_EQ(run(other.at, second), mixes ? lumStatusOk : lumStatusUnsupportedMode)
            << kind << " " << type << " by a plan of " << planned;
        if (mixes)
          ASSERT_TRUE(first == second) << kind << " " << type << " by a plan of " << planned;
        else
          ASSERT_TRUE(second == std::vector<Byte>(second.size()));
      }
}

// What an antialiasing Init makes is for other runs: word 4 of a plan.
TEST(ResizeSpec, AntialiasingPlansAreRefused) {
  for (const std::string& type : kTypes) {
    const PlanMemory plan("Linear", type, {20, 20}, {30, 30});
    auto* const words = reinterpret_cast<int32_t*>((reinterpret_cast<uintptr_t>(plan.at) + 63) / 64 * 64);
    int32_t& antialiasing = words[type == "64f" ? 3 : 4];
    ASSERT_EQ(antialiasing, 0);
    antialiasing = 1;
    Byte image[64] = {};
    NamedCall call = apply("Linear", type, 1, {0, 0}, {1, 1}, plan.at, image);
    EXPECT_EQ(call.image("src", image, 8).image("dst", image, 8).run(), lumStatusUnsupportedMode);
  }
}

}  // namespace
}  // namespace test::resize
