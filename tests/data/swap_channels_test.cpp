// SPDX-License-Identifier: MIT
#include "lumi/swap_channels.h"

#include <gtest/gtest.h>

#include <climits>

#include "model/data/swap_channels.hpp"
#include "support/member.hpp"
#include "support/named_call.hpp"

namespace test {
namespace {

using Moved = Types<Lum8u, Lum16u, Lum16s, Lum32s, Lum32f>;

bool inserts(const model::Channels& c) { return c.src == 3 && c.dst == 4; }

// Entries of the order, and how many source channels they may name.
int entriesOf(const model::Channels& c) { return inserts(c) ? 4 : c.moved; }
int namedBy(const model::Channels& c) { return c.dst == 4 ? c.moved : c.src; }

void fillOrder(Random& random, Byte* data, const model::Channels& channels) {
  constexpr Lum32s special[] = {3, 3, 4, 5, 255, 256, INT_MAX};
  for (int c = 0; c < entriesOf(channels); ++c) {
    const bool isSpecial = inserts(channels) && random.oneIn(3);
    const int named = inserts(channels) ? 3 : namedBy(channels);
    model::store<Lum32s>(data, c, isSpecial ? random.pick(special) : random.below(named));
  }
}

template <typename T>
Value valueOf(T sample) {
  return {{static_cast<double>(sample)}};
}

const bool added = addModelTests(membersOfOneType(
    "SwapChannels",
    [](Member& m, auto sample) {
      using T = decltype(sample);
      m.mayStream = false;
      model::Channels channels = m.channels;
      channels.moved = entriesOf(channels);
      // Of three bytes the images may be one, given twice: then its rows are those of the destination.
      if (m.name == "lumiSwapChannels_8u_C3R") m.aliasing = Aliasing::SameImage;
      m.separateRows = m.inPlace || m.aliasing == Aliasing::SameImage;
      const model::Channels named = m.channels;
      m.array("order", "32s", {channels.moved},
              [named](Random& random, Byte* data, int) { fillOrder(random, data, named); });
      const bool hasValue = inserts(m.channels);
      if (hasValue)
        m.choose("value", {valueOf<T>(T{0}), valueOf<T>(T{1}), valueOf<T>(std::numeric_limits<T>::max())});
      m.model = [=](const Call& c) {
        Lum32s order[4] = {};
        std::memcpy(order, c.block("order").data, sizeof(Lum32s) * static_cast<size_t>(channels.moved));
        const T value = hasValue ? static_cast<T>(c.number("value")) : T{};
        model::swapChannels<T>(c.srcImage(), c.dstImage(), c.roi, channels, order, value);
      };
    },
    Moved()));

TEST(SwapChannelsCalls, KnownPixels) {
  const Lum8u src[6] = {1, 2, 3, 4, 5, 6};
  Lum8u dst[8] = {};
  const Lum32s backwards[] = {2, 1, 0}, first[] = {0, 0, 0}, opaque[] = {0, 1, 2, 3}, kept[] = {0, 1, 2, 4};
  ASSERT_EQ(lumiSwapChannels_8u_C3R(src, 6, dst, 6, {2, 1}, backwards), lumStatusOk);
  EXPECT_EQ(std::vector<Lum8u>(dst, dst + 6), (std::vector<Lum8u>{3, 2, 1, 6, 5, 4}));
  ASSERT_EQ(lumiSwapChannels_8u_C3R(src, 6, dst, 6, {2, 1}, first), lumStatusOk);
  EXPECT_EQ(std::vector<Lum8u>(dst, dst + 6), (std::vector<Lum8u>{1, 1, 1, 4, 4, 4}));
  ASSERT_EQ(lumiSwapChannels_8u_C3C4R(src, 6, dst, 8, {2, 1}, opaque, 255), lumStatusOk);
  EXPECT_EQ(std::vector<Lum8u>(dst, dst + 8), (std::vector<Lum8u>{1, 2, 3, 255, 4, 5, 6, 255}));
  dst[3] = 7;
  ASSERT_EQ(lumiSwapChannels_8u_C3C4R(src, 6, dst, 8, {2, 1}, kept, 9), lumStatusOk);
  EXPECT_EQ(std::vector<Lum8u>(dst, dst + 8), (std::vector<Lum8u>{1, 2, 3, 7, 4, 5, 6, 255}));
}

// Equal pointers mean the image in place, whatever the source's step.
TEST(SwapChannelsCalls, ThreeBytesInPlaceByEqualPointers) {
  std::vector<Lum8u> image(2 * 64, 9);
  for (int i = 0; i < 60; ++i) image[i] = image[64 + i] = static_cast<Lum8u>(i);
  const Lum32s order[] = {1, 2, 0};
  ASSERT_EQ(lumiSwapChannels_8u_C3R(image.data(), 5, image.data(), 64, {20, 2}, order), lumStatusOk);
  for (int y : {0, 64})
    for (int i = 0; i < 60; ++i) EXPECT_EQ(image[y + i], i / 3 * 3 + order[i % 3]) << i;
}

// Every entry that is wrong, at every place; nothing is written.
TEST(SwapChannelsCalls, EntriesOfTheOrder) {
  std::vector<Byte> src(256, 1), dst(256, 2);
  int rows = 0;
  for (const ExportRow& row : exportRows()) {
    if (row.operation != std::string("SwapChannels")) continue;
    const Member m = memberOf(row);
    const int entries = entriesOf(m.channels);
    std::vector<Lum32s> wrong = {-1, INT_MIN};
    if (!inserts(m.channels)) wrong.insert(wrong.end(), {namedBy(m.channels), INT_MAX});
    for (int at = 0; at < entries; ++at)
      for (const Lum32s entry : wrong) {
        Lum32s order[4] = {0, 0, 0, 0};
        order[at] = entry;
        NamedCall call(row);
        if (m.inPlace)
          call.image("srcDst", dst.data(), 64);
        else
          call.image("src", src.data(), 64).image("dst", dst.data(), 64);
        call.pointer("order", order).size("roi", {2, 2});
        if (inserts(m.channels)) call.number("value", 5);
        EXPECT_EQ(call.run(), lumStatusBadChannelOrder) << row.name << " " << entry << " at " << at;
        EXPECT_EQ(dst, std::vector<Byte>(256, 2));
      }
    ++rows;
  }
  EXPECT_EQ(rows, 27);
}

}  // namespace
}  // namespace test
