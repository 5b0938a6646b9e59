// SPDX-License-Identifier: MIT
// Kernel filtering with border: sizes, and the statuses of every member in the order of its checks.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "filters/filter_border_calls.hpp"

namespace test {
namespace {

using filter::Byte;

// A fault of a call: what it changes in the arguments, and its status. Lists are in the order of the checks;
// faults of one check have one status.
template <typename Arguments>
struct Fault {
  const char* name;
  LumStatus status;
  std::function<void(Arguments&)> cause;
};

// Every fault alone and every two at once: the earlier check decides.
template <typename Arguments, typename Call>
void expectInOrder(const std::vector<Fault<Arguments>>& faults, const Call& call) {
  Arguments right;
  EXPECT_EQ(call(right), lumStatusOk);
  for (size_t i = 0; i < faults.size(); ++i)
    for (size_t j = i; j < faults.size(); ++j) {
      Arguments wrong;
      faults[j].cause(wrong);
      faults[i].cause(wrong);
      EXPECT_EQ(call(wrong), faults[i].status) << faults[i].name << " and " << faults[j].name;
      EXPECT_TRUE(wrong.isUntouched()) << faults[i].name << " and " << faults[j].name;
    }
}

struct Sizes {
  LumiSize kernel{3, 5}, roi{40, 30};
  LumiDataType type = lumiData8u, taps = lumiData16s;
  int channels = 1;
  int spec = -77, buffer = -77;
  bool nullSpec = false, nullBuffer = false;

  bool isUntouched() const { return spec == -77 && buffer == -77; }
};

LumStatus call(Sizes& s) {
  return lumiFilterBorderGetSize(s.kernel, s.roi, s.type, s.taps, s.channels, s.nullSpec ? nullptr : &s.spec,
                                 s.nullBuffer ? nullptr : &s.buffer);
}

TEST(FilterBorderStatus, SizesTestTheirPointersLast) {
  std::vector<Fault<Sizes>> faults;
  for (const int bad : {0, -1, -5000}) {
    faults.push_back({"kernel width", lumStatusBadSize, [=](Sizes& s) { s.kernel.width = bad; }});
    faults.push_back({"kernel height", lumStatusBadSize, [=](Sizes& s) { s.kernel.height = bad; }});
    faults.push_back({"width", lumStatusBadSize, [=](Sizes& s) { s.roi.width = bad; }});
    faults.push_back({"height", lumStatusBadSize, [=](Sizes& s) { s.roi.height = bad; }});
  }
  for (const int bad : {-1, 0, 2, 3, 4, 6, 8, 11, 12, 14, 19})
    faults.push_back({"data type", lumStatusBadDataType, [=](Sizes& s) { s.type = bad; }});
  for (const int bad : {-7, 0, 1, 5, 6, 8, 11, 12, 14, 19})
    faults.push_back({"kernel type", lumStatusBadDataType, [=](Sizes& s) { s.taps = bad; }});
  for (const int bad : {-1, 0, 5, 100})
    faults.push_back({"channels", lumStatusBadChannel, [=](Sizes& s) { s.channels = bad; }});
  faults.push_back({"object size", lumStatusNullPointer, [](Sizes& s) { s.nullSpec = true; }});
  faults.push_back({"buffer size", lumStatusNullPointer, [](Sizes& s) { s.nullBuffer = true; }});
  expectInOrder(faults, [](Sizes& s) { return call(s); });
}

TEST(FilterBorderStatus, SizesTakeEveryOtherCombination) {
  for (const int type : {1, 5, 7, 13})
    for (const int taps : {7, 13})
      for (const int channels : {1, 2, 3, 4}) {
        Sizes s;
        s.type = type, s.taps = taps, s.channels = channels;
        EXPECT_EQ(call(s), lumStatusOk);
        EXPECT_GT(s.spec, 191);
        EXPECT_GT(s.buffer, 63);
      }
}

struct Expected {
  LumiSize kernel, roi;
  int type, taps, channels, spec, buffer;
};

// Worked by hand: padded(16 * pairs of columns * rows) + padded(taps) + 191, and 63 + scratch + border image.
TEST(FilterBorderStatus, SizesAreTheFormulas) {
  const Expected list[] = {
      // 96 -> 128, 18 -> 64; 32 * floor((72 + 40 + 7) / 8) = 448; 4 * padded(42) = 256, padded(7) * 30 = 1920
      {{3, 3}, {40, 30}, lumiData8u, lumiData16s, 1, 128 + 64 + 191, 63 + 448 + 1920},
      // 16 * floor((36 + 120 + 3) / 4) = 624 -> 640; 4 * padded(126) = 512, padded(21) * 2 = 128
      {{3, 3}, {40, 2}, lumiData8u, lumiData16s, 3, 128 + 64 + 191, 63 + 640 + 512},
      // 16 * (9 + 40) = 784 -> 832; 4 * padded(168) = 768, padded(28) * 30
      {{3, 3}, {40, 30}, lumiData8u, lumiData16s, 4, 128 + 64 + 191, 63 + 832 + 1920},
      // two channels have no scratch: 4 * padded(84) = 512, 64 * 30
      {{3, 3}, {40, 30}, lumiData8u, lumiData16s, 2, 128 + 64 + 191, 63 + 1920},
      // 16 * floor((36 + 40 + 3) / 4) = 304 -> 320; padded(14) * 30
      {{3, 3}, {40, 30}, lumiData16s, lumiData16s, 1, 128 + 64 + 191, 63 + 320 + 1920},
      // integer taps of two channels stay integers, 5 x 7 of them: 3 * 16 * 7 = 336 -> 384, 70 -> 128 where
      // floats
      // would take 140 -> 192; no scratch; 12 * padded(176) = 2304, padded(13 * 4) * 30 = 1920
      {{5, 7}, {40, 30}, lumiData16s, lumiData16s, 2, 384 + 128 + 191, 63 + 2304},
      // of three and four they become floats: 140 -> 192; 16 * floor((140 + 240 + 10) / 4) = 1552 -> 1600;
      // 12 * padded(264) = 3840, padded(78) * 30
      {{5, 7}, {40, 30}, lumiData16s, lumiData16s, 3, 384 + 192 + 191, 63 + 1600 + 3840},
      // 4 * (140 + 320) = 1840 -> 1856; 12 * padded(352) = 4608, padded(104) * 30
      {{5, 7}, {40, 30}, lumiData16s, lumiData16s, 4, 384 + 192 + 191, 63 + 1856 + 4608},
      // as for float taps: 36 -> 64; 16 * floor((36 + 240 + 10) / 4) = 1136 -> 1152; padded(42) * 30
      {{3, 3}, {40, 30}, lumiData16s, lumiData16s, 3, 128 + 64 + 191, 63 + 1152 + 1920},
      // 5 x 5 taps: 240 -> 256, 100 -> 128; 16 * floor(50 / 4) = 192; 8 * padded(88) = 1024
      {{5, 5}, {40, 3}, lumiData16u, lumiData16s, 1, 256 + 128 + 191, 63 + 192 + 1024},
      // 16 * floor((100 + 80 + 10) / 4) = 752 -> 768; 8 * padded(44) = 512, padded(13) * 30
      {{5, 5}, {40, 30}, lumiData8u, lumiData32f, 1, 256 + 128 + 191, 63 + 768 + 1920},
      // 4 * (100 + 320) = 1680 -> 1728; 8 * padded(352) = 3072, padded(104) * 3
      {{5, 5}, {40, 3}, lumiData16u, lumiData32f, 4, 256 + 128 + 191, 63 + 1728 + 3072},
      // 32 * 25 = 800 -> 832; 8 * padded(176) = 1536, padded(52) * 30
      {{5, 5}, {40, 30}, lumiData32f, lumiData32f, 1, 256 + 128 + 191, 63 + 832 + 1920},
      // 16 * 25 = 400 -> 448; padded(208) * 30
      {{5, 5}, {40, 30}, lumiData32f, lumiData32f, 4, 256 + 128 + 191, 63 + 448 + 7680},
      // integer taps of float images: 50 -> 64, and no scratch
      {{5, 5}, {40, 30}, lumiData32f, lumiData16s, 1, 256 + 64 + 191, 63 + 1920}};
  for (const Expected& e : list) {
    Sizes s;
    s.kernel = e.kernel, s.roi = e.roi, s.type = e.type, s.taps = e.taps, s.channels = e.channels;
    EXPECT_EQ(call(s), lumStatusOk);
    EXPECT_EQ(s.spec, e.spec) << e.type << " " << e.taps << " " << e.channels;
    EXPECT_EQ(s.buffer, e.buffer) << e.type << " " << e.taps << " " << e.channels;
  }
}

constexpr size_t kSpecBytes = 4096;

template <typename T>
struct Init {
  Lum16s integers[15] = {};
  Lum32f floats[15] = {};
  LumiSize size{3, 5};
  int divisor = 7;
  LumiDataType type = lumiData8u;
  int channels = 1;
  LumRoundMode mode = lumRoundNearestEven;
  bool nullKernel = false, nullSpec = false;
  std::vector<Byte> spec = std::vector<Byte>(kSpecBytes, 0x5a);

  bool isUntouched() const {
    return std::all_of(spec.begin(), spec.end(), [](Byte b) { return b == 0x5a; });
  }
  LumiFilterBorderSpec* object() {
    return nullSpec ? nullptr : reinterpret_cast<LumiFilterBorderSpec*>(spec.data());
  }
};

LumStatus call(Init<Lum16s>& i) {
  return lumiFilterBorderInit_16s(i.nullKernel ? nullptr : i.integers, i.size, i.divisor, i.type, i.channels,
                                  i.mode, i.object());
}
LumStatus call(Init<Lum32f>& i) {
  return lumiFilterBorderInit_32f(i.nullKernel ? nullptr : i.floats, i.size, i.type, i.channels, i.mode,
                                  i.object());
}

template <typename T>
void expectInitFaults(const std::vector<int>& badTypes) {
  using Arguments = Init<T>;
  std::vector<Fault<Arguments>> faults = {
      {"kernel", lumStatusNullPointer, [](Arguments& i) { i.nullKernel = true; }},
      {"object", lumStatusNullPointer, [](Arguments& i) { i.nullSpec = true; }}};
  for (const int bad : {0, -1, -5000}) {
    faults.push_back({"width", lumStatusBadSize, [=](Arguments& i) { i.size.width = bad; }});
    faults.push_back({"height", lumStatusBadSize, [=](Arguments& i) { i.size.height = bad; }});
  }
  for (const int bad : badTypes)
    faults.push_back({"type", lumStatusBadDataType, [=](Arguments& i) { i.type = bad; }});
  for (const int bad : {-1, 0, 5, 100})
    faults.push_back({"channels", lumStatusBadChannel, [=](Arguments& i) { i.channels = bad; }});
  for (const int bad : {-1, 3, 100})
    faults.push_back({"mode", lumStatusBadRoundMode, [=](Arguments& i) { i.mode = bad; }});
  if (std::is_same_v<T, Lum16s>)
    faults.push_back({"divisor", lumStatusZeroDivisor, [](Arguments& i) { i.divisor = 0; }});
  expectInOrder(faults, [](Arguments& i) { return call(i); });
}

TEST(FilterBorderStatus, InitialisersInOrder) {
  expectInitFaults<Lum16s>({-1, 0, 2, 3, 4, 6, 8, 11, 12, 13, 14, 19});
  expectInitFaults<Lum32f>({-1, 0, 2, 3, 4, 6, 8, 11, 12, 14, 19});
  Init<Lum32f> floats;
  floats.type = lumiData32f;
  EXPECT_EQ(call(floats), lumStatusOk);
}

template <typename T>
struct Arguments {
  static constexpr LumiSize kRoi{5, 3};
  static constexpr int kStep = kRoi.width * 4 * static_cast<int>(sizeof(T));  // of four channels
  std::vector<T> src = std::vector<T>(60, T{1}), dst = std::vector<T>(60, T{2});
  T value[4] = {};
  LumiSize roi = kRoi;
  int srcStep = kStep, dstStep = kStep;
  LumiBorderType border = lumiBorderReplicate;
  std::vector<Byte> spec = std::vector<Byte>(kSpecBytes), buffer = std::vector<Byte>(65536, 0x5a);
  bool nullSrc = false, nullDst = false, nullValue = false, nullSpec = false, nullBuffer = false;

  bool isUntouched() const {
    return dst == std::vector<T>(60, T{2}) &&
           std::all_of(buffer.begin(), buffer.end(), [](Byte b) { return b == 0x5a; });
  }
};

template <typename T>
LumStatus call(int channels, Arguments<T>& a) {
  const filter::FilterKernel same{{3, 3}, {}, {0, 0, 0, 0, 1, 0, 0, 0, 0}, 1, 0};
  EXPECT_EQ(filter::init(same, filter::dataType<T>(), channels, a.spec.data()), lumStatusOk);
  model::Image src = filter::imageOf(a.src, a.srcStep), dst = filter::imageOf(a.dst, a.dstStep);
  if (a.nullSrc) src.first = nullptr;
  if (a.nullDst) dst.first = nullptr;
  return filter::apply<T>(channels, src, dst, a.roi, a.border, a.nullValue ? nullptr : a.value,
                          a.nullSpec ? nullptr : a.spec.data(), a.nullBuffer ? nullptr : a.buffer.data())
      .run();
}

template <typename T>
void expectRunFaults(int channels) {
  using A = Arguments<T>;
  std::vector<Fault<A>> faults = {{"source", lumStatusNullPointer, [](A& a) { a.nullSrc = true; }},
                                  {"destination", lumStatusNullPointer, [](A& a) { a.nullDst = true; }},
                                  {"border value", lumStatusNullPointer, [](A& a) { a.nullValue = true; }},
                                  {"object", lumStatusNullPointer, [](A& a) { a.nullSpec = true; }},
                                  {"buffer", lumStatusNullPointer, [](A& a) { a.nullBuffer = true; }}};
  for (const int bad : {0, -1, -5000}) {
    faults.push_back({"width", lumStatusBadSize, [=](A& a) { a.roi.width = bad; }});
    faults.push_back({"height", lumStatusBadSize, [=](A& a) { a.roi.height = bad; }});
  }
  for (const int bad : {0, -1, -5000})
    faults.push_back({"source step", lumStatusBadStep, [=](A& a) { a.srcStep = bad; }});
  const int row = A::kRoi.width * static_cast<int>(sizeof(T));
  for (const int bad : {0, -1, -5000, row - 1})
    faults.push_back({"destination step", lumStatusBadStep, [=](A& a) { a.dstStep = bad; }});
  for (const int bad : {2, 3, 4})
    faults.push_back({"border", lumStatusBadBorder, [=](A& a) { a.border = bad; }});
  expectInOrder(faults, [=](A& a) { return call(channels, a); });
  for (const int border : {0, 1, 5, 7, 8, 15, 16 | 2, 32 | 3, 64 | 4, 256 | 2}) {
    A a;
    a.border = border;
    EXPECT_EQ(call(channels, a), lumStatusOk) << border;
  }
  // The destination's rows may lie over one another as long as a row of one channel fits.
  A overlapping;
  overlapping.dstStep = row;
  EXPECT_EQ(call(channels, overlapping), lumStatusOk);
  A oneRow;
  oneRow.srcStep = 1;
  oneRow.roi.height = 1;
  EXPECT_EQ(call(channels, oneRow), lumStatusOk);
}

TEST(FilterBorderStatus, RunsInOrder) {
  for (const int channels : filter::kChannels) {
    expectRunFaults<Lum8u>(channels);
    expectRunFaults<Lum16s>(channels);
    expectRunFaults<Lum16u>(channels);
    expectRunFaults<Lum32f>(channels);
  }
}

}  // namespace
}  // namespace test
