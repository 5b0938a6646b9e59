// SPDX-License-Identifier: MIT
// Look-up in palettes: against the model, tables of every size between unmapped pages, steps about a row.
#include "lumi/lut_palette.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model/data/lut_palette.hpp"
#include "support/arena.hpp"
#include "support/fault.hpp"
#include "support/member.hpp"
#include "support/named_call.hpp"
#include "support/random.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

using Samples = Types<Lum8u, Lum16u, Lum32u>;

std::vector<Value> valuesOf(const std::vector<int>& numbers) {
  std::vector<Value> all;
  for (const int n : numbers) all.push_back({{static_cast<double>(n)}});
  return all;
}

// Larger tables than these take the tests' time, and have one of their own.
constexpr int kMostBits = 10;

template <typename S>
std::vector<int> bitSizes() {
  return sizeof(S) == 1 ? std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 8}
                        : std::vector<int>{1, 2, 7, 8, 9, kMostBits};
}

// Tables of a thread, one for each channel.
template <typename T>
void pointAtTables(Random& random, Byte* first, int tables) {
  constexpr int entries = sizeof(T) == 1 ? 256 : 1 << kMostBits;
  thread_local T all[4][entries];
  for (int c = 0; c < tables; ++c) {
    random.fill(reinterpret_cast<Byte*>(all[c]), sizeof all[c]);
    model::store<const void*>(first, c, all[c]);
  }
}

// The place of channel c, and that of alpha.
int placeOf(const Member& m, int c) {
  if (m.layouts.size() == 1) return c;
  return m.row->operation == std::string("LUTPaletteSwap") ? (c == 3 ? 3 : 2 - c) : (c == 3 ? 0 : c + 1);
}

template <typename S>
void describeOne(Member& m) {
  const int entryBytes = m.dst.pixelBytes;
  m.array("table", m.types.back(), {sizeof(S) == 1 ? 256 : 1 << kMostBits});
  m.model = [=](const Call& c) {
    model::palette<S>(c.srcImage(), c.dstImage(), c.roi, c.block("table").data, entryBytes,
                      static_cast<int>(c.number("bitSize")));
  };
}

template <typename T>
void describeSeveral(Member& m) {
  const bool hasAlpha = m.layouts.size() == 2;
  const model::Channels channels{m.channels.src, m.channels.dst, m.layouts[0] == "C4" ? 4 : 3};
  int places[4];
  for (int c = 0; c < 4; ++c) places[c] = placeOf(m, c);
  m.array("table", sizeof(void*) == 8 ? "64s" : "32s", {channels.moved}, pointAtTables<T>);
  if (hasAlpha) m.choose("alpha", valuesOf({-1, 0, 1, 200, 255, 256, 65535, 65536, INT32_MIN, INT32_MAX}));
  m.model = [=](const Call& c) {
    const auto table = [&](int channel) { return model::load<const Byte*>(c.block("table").data, channel); };
    model::palettes<T>(
        c.srcImage(), c.dstImage(), c.roi, channels, table, [&](int channel) { return places[channel]; },
        static_cast<int>(c.number("bitSize")));
    if (hasAlpha) model::storeAlpha<T>(c.dstImage(), c.roi, places[3], static_cast<int>(c.number("alpha")));
  };
}

const auto describe = [](Member& m, auto src, auto) {
  using S = decltype(src);
  m.choose("bitSize", valuesOf(bitSizes<S>()));
  m.mayStream = false;
  const bool isSameImage = m.types.size() == 1 && m.layouts.size() == 1;
  m.aliasing = isSameImage ? Aliasing::SameImage : Aliasing::None;
  if constexpr (sizeof(S) <= 2) m.layouts[0] == "C1" ? describeOne<S>(m) : describeSeveral<S>(m);
};
const bool added = addModelTests(membersOf("LUTPalette", describe, Samples()));
const bool swapped = addModelTests(membersOf("LUTPaletteSwap", describe, Samples()));

int bytesOf(const std::string& type) { return sampleBytes(type); }

// A call with tables that end where memory does.
struct PaletteCall {
  const ExportRow& row;
  int srcBytes, dstBytes, pixelBytes, dstPixelBytes, tables;
  bool isOne;

  explicit PaletteCall(const ExportRow& of)
      : row(of),
        srcBytes(bytesOf(of.types.front())),
        dstBytes(bytesOf(of.types.back())),
        isOne(of.layouts.front() == std::string("C1")) {
    const Operand src = operandOf(of.types.front(), of.layouts.front()),
                  dst = operandOf(of.types.back(), of.layouts.back());
    pixelBytes = src.pixelBytes;
    dstPixelBytes = dst.pixelBytes;
    tables = isOne ? 1 : of.layouts.front() == std::string("C4") ? 4 : 3;
  }
};

std::vector<PaletteCall> allCalls() {
  std::vector<PaletteCall> all;
  for (const ExportRow& row : exportRows())
    if (row.family == std::string("lut_palette")) all.emplace_back(row);
  return all;
}

// Every index of tables of every size: none is read beyond its entries.
TEST(Palette, TablesOfEverySizeEndWhereMemoryDoes) {
  static const Arena arenas[] = {Arena(1 << 18), Arena(1 << 18), Arena(1 << 18), Arena(1 << 18)};
  Random random(settings().seed);
  for (const Arena& arena : arenas) random.fill(arena.begin(), 1 << 18);
  for (const PaletteCall& p : allCalls())
    for (int bits = 1; bits <= 8 * p.srcBytes; ++bits) {
      const int entries = 1 << bits, width = p.srcBytes == 1 ? 256 : 4096;
      std::vector<Byte> src(static_cast<size_t>(width * p.pixelBytes)),
          dst(static_cast<size_t>(width * p.dstPixelBytes));
      random.fill(src.data(), src.size());
      const void* first[4];
      for (int c = 0; c < p.tables; ++c) first[c] = arenas[c].end() - entries * p.dstBytes;
      std::memset(src.data(), 0xFF, static_cast<size_t>(p.pixelBytes));  // the last entry
      NamedCall call(p.row);
      call.image("src", src.data(), static_cast<int>(src.size()))
          .image("dst", dst.data(), static_cast<int>(dst.size()));
      call.size("roi", {width, 1}).number("bitSize", bits).pointer("table", p.isOne ? first[0] : first);
      LumStatus status = lumStatusBadSize;
      ASSERT_FALSE(faultOf([&] { status = call.run(); })) << p.row.name << " " << bits;
      ASSERT_EQ(status, lumStatusOk) << p.row.name;
      if (!p.isOne) continue;
      for (int x = 0; x < width; ++x) {
        const int sample = p.srcBytes == 1 ? src[static_cast<size_t>(x)] : model::load<Lum16u>(src.data(), x);
        const Byte* const entry = static_cast<const Byte*>(first[0]) + (sample & (entries - 1)) * p.dstBytes;
        ASSERT_EQ(std::memcmp(dst.data() + x * p.dstBytes, entry, static_cast<size_t>(p.dstBytes)), 0)
            << p.row.name << " " << bits << " at " << x;
      }
    }
}

// A step may be a row's bytes, and not one less; rows of more bytes than 32 bits hold fit into no step.
TEST(Palette, StepsHoldARow) {
  const Byte table[1 << 4] = {};
  const void* const tables[] = {table, table, table, table};
  for (const PaletteCall& p : allCalls()) {
    Byte src[256] = {}, dst[256] = {};
    const auto status = [&](int width, int srcStep, int dstStep) {
      NamedCall call(p.row);
      call.image("src", src, srcStep).image("dst", dst, dstStep).size("roi", {width, 2});
      return call.number("bitSize", 1)
          .pointer("table", p.isOne ? table : static_cast<const void*>(tables))
          .run();
    };
    const int s = 5 * p.pixelBytes, d = 5 * p.dstPixelBytes;
    EXPECT_EQ(status(5, s, d), lumStatusOk) << p.row.name;
    EXPECT_EQ(status(5, s - 1, d), lumStatusBadStep) << p.row.name;
    EXPECT_EQ(status(5, s, d - 1), lumStatusBadStep) << p.row.name;
    for (const int wide : {INT32_MAX, 1 << 30, (1 << 30) + 1, 0x55555556, 0x2AAAAAAB})
      if (int64_t{wide} * std::max(p.pixelBytes, p.dstPixelBytes) > INT32_MAX) {
        EXPECT_EQ(status(wide, INT32_MAX, INT32_MAX), lumStatusBadStep) << p.row.name << " " << wide;
      }
  }
}

TEST(Palette, OnlyTheLowBitsCount) {
  Lum8u table[16], src[256], dst[256];
  for (int i = 0; i < 16; ++i) table[i] = static_cast<Lum8u>(200 - i);
  for (int i = 0; i < 256; ++i) src[i] = static_cast<Lum8u>(i);
  ASSERT_EQ(lumiLUTPalette_8u_C1R(src, 256, dst, 256, {256, 1}, table, 4), lumStatusOk);
  for (int i = 0; i < 256; ++i) ASSERT_EQ(dst[i], 200 - i % 16) << i;
}

TEST(Palette, AlphaIsStoredOrStays) {
  const Lum8u red[] = {10, 11}, green[] = {20, 21}, blue[] = {30, 31}, src[] = {0, 1, 0};
  const Lum8u* const tables[] = {red, green, blue};
  const auto expect = [&](auto function, int alpha, std::vector<Lum8u> expected) {
    Lum8u dst[] = {1, 2, 3, 4};
    ASSERT_EQ(function(src, 3, alpha, dst, 4, LumiSize{1, 1}, tables, 1), lumStatusOk);
    EXPECT_EQ(std::vector<Lum8u>(dst, dst + 4), expected) << alpha;
  };
  expect(lumiLUTPalette_8u_C3A0C4R, -1, {1, 10, 21, 30});
  expect(lumiLUTPalette_8u_C3A0C4R, 255, {255, 10, 21, 30});
  expect(lumiLUTPalette_8u_C3A0C4R, 256, {1, 10, 21, 30});
  expect(lumiLUTPaletteSwap_8u_C3A0C4R, -1, {30, 21, 10, 4});
  expect(lumiLUTPaletteSwap_8u_C3A0C4R, 0, {30, 21, 10, 0});
}

}  // namespace
}  // namespace test
