// SPDX-License-Identifier: MIT
// Bitwise logic, against the model; overlap; widths that wrap.
#include "lumi/logic.h"

#include <gtest/gtest.h>

#include "model/arithmetic/logic.hpp"
#include "support/member.hpp"

namespace test {
namespace {

using LogicTypes = Types<Lum8u, Lum16u, Lum32s>;

template <typename T>
void describe(Member& m, const model::TruthTable& table) {
  const model::Channels channels = m.channels;
  m.mayStream = false;
  m.aliasing = m.inPlace ? Aliasing::None : Aliasing::SameImage;
  if (m.values)
    m.model = [=](const Call& c) {
      model::combineConstant<T>(c.values, c.srcImage(), c.dstImage(), c.roi, channels, table);
    };
  else
    m.model = [=](const Call& c) {
      model::combineImages<T>(c.srcImage(), c.src2Image(), c.dstImage(), c.roi, channels, table);
    };
}

bool addAll() {
  const std::pair<const char*, model::TruthTable> operations[] = {
      {"And", model::kAnd}, {"Or", model::kOr}, {"Xor", model::kXor}};
  for (const auto& [name, table] : operations)
    for (const char* form : {"", "C"})
      addModelTests(membersOfOneType(
          std::string(name) + form,
          [&, t = table](Member& m, auto sample) { describe<decltype(sample)>(m, t); }, LogicTypes()));
  addModelTests(membersOfOneType(
      "Not",
      [](Member& m, Lum8u) {
        const model::Channels channels = m.channels;
        m.mayStream = false;
        m.aliasing = m.inPlace ? Aliasing::None : Aliasing::SameImage;
        m.model = [=](const Call& c) {
          static constexpr Byte ones[] = {0xFF, 0xFF, 0xFF, 0xFF};
          model::combineConstant<Lum8u>(ones, c.srcImage(), c.dstImage(), c.roi, channels, model::kXor);
        };
      },
      Types<Lum8u>()));
  return true;
}
const bool added = addAll();

// By hand.
TEST(Logic, KnownResults) {
  const Lum8u a = 0x0F, b = 0x55;
  Lum8u d = 0;
  EXPECT_EQ(lumiAnd_8u_C1R(&a, 1, &b, 1, &d, 1, {1, 1}), lumStatusOk);
  EXPECT_EQ(d, 0x05);
  EXPECT_EQ(lumiOr_8u_C1R(&a, 1, &b, 1, &d, 1, {1, 1}), lumStatusOk);
  EXPECT_EQ(d, 0x5F);
  EXPECT_EQ(lumiXor_8u_C1R(&a, 1, &b, 1, &d, 1, {1, 1}), lumStatusOk);
  EXPECT_EQ(d, 0x5A);
  EXPECT_EQ(lumiNot_8u_C1R(&a, 1, &d, 1, {1, 1}), lumStatusOk);
  EXPECT_EQ(d, 0xF0);
  const Lum32s one = 1;
  Lum32s wide = 0;
  EXPECT_EQ(lumiXorC_32s_C1R(&one, 4, -1, &wide, 4, {1, 1}), lumStatusOk);
  EXPECT_EQ(wide, -2);
  EXPECT_EQ(lumiOrC_32s_C1R(&one, 4, INT32_MIN, &wide, 4, {1, 1}), lumStatusOk);
  EXPECT_EQ(wide, INT32_MIN + 1);
}

TEST(Logic, InversionLeavesAlpha) {
  Lum8u pixels[] = {0, 1, 2, 3, 0xF0, 0xFF, 0x80, 0x81};
  EXPECT_EQ(lumiNot_8u_AC4IR(pixels, 8, {2, 1}), lumStatusOk);
  const Lum8u expected[] = {0xFF, 0xFE, 0xFD, 3, 0x0F, 0, 0x7F, 0x81};
  EXPECT_TRUE(std::equal(std::begin(pixels), std::end(pixels), expected));
}

// Three equal constants take another path than three that differ.
TEST(Logic, EqualConstantsAreOne) {
  constexpr int width = 101;
  Random random(3);
  std::vector<Lum16u> src(width * 3), ofThree(src.size()), ofOne(src.size());
  random.fill(reinterpret_cast<Byte*>(src.data()), src.size() * 2);
  const Lum16u value = 0x6A39, values[] = {value, value, value};
  constexpr int step = width * 6;
  ASSERT_EQ(lumiAndC_16u_C3R(src.data(), step, values, ofThree.data(), step, {width, 1}), lumStatusOk);
  ASSERT_EQ(lumiAndC_16u_C1R(src.data(), step, value, ofOne.data(), step, {width * 3, 1}), lumStatusOk);
  EXPECT_EQ(ofThree, ofOne);
  for (size_t i = 0; i < src.size(); ++i)
    ASSERT_EQ(ofThree[i], model::combineBits(src[i], value, model::kAnd)) << i;
}

// A destination that lies a few bytes before or behind a source: each byte as if the ones before it were
// stored already, whatever the sample.
TEST(Logic, OverlappingRowsAreDoneInOrder) {
  for (int samples = 1; samples <= 40; ++samples)
    for (int offset = -70; offset <= 70; ++offset) {
      Random random(static_cast<uint64_t>(samples * 1000 + offset));
      const int bytes = 2 * samples;
      std::vector<Byte> image(300), other(static_cast<size_t>(bytes));
      random.fill(image.data(), image.size());
      random.fill(other.data(), other.size());
      std::vector<Byte> expected = image;
      for (int i = 0; i < bytes; ++i)
        expected[static_cast<size_t>(100 + offset + i)] =
            expected[static_cast<size_t>(100 + i)] ^ other[static_cast<size_t>(i)];
      Byte* const src = image.data() + 100;
      const auto samplesAt = [](Byte* at) { return reinterpret_cast<Lum16u*>(at); };
      const bool isFirst = random.oneIn(2);
      ASSERT_EQ(
          lumiXor_16u_C1R(samplesAt(isFirst ? src : other.data()), 2, samplesAt(isFirst ? other.data() : src),
                          2, samplesAt(src + offset), 2, {samples, 1}),
          lumStatusOk);
      ASSERT_EQ(image, expected) << samples << " samples, destination " << offset << " bytes on";
    }
}

// A row of samples is checked after its width is multiplied, and the product wraps; pixels whose constants
// differ are not multiplied, but their width is checked like any.
TEST(Logic, WidthsThatWrapAreBadSizes) {
  Lum8u sample = 7;
  const Lum8u equal[] = {1, 1, 1};
  EXPECT_EQ(lumiAndC_8u_C3R(&sample, 1, equal, &sample, 1, {1 << 30, 1}), lumStatusBadSize);
  EXPECT_EQ(lumiOrC_8u_C3IR(equal, &sample, 1, {1 << 30, 1}), lumStatusBadSize);
  EXPECT_EQ(lumiNot_8u_C3R(&sample, 1, &sample, 1, {1 << 30, 1}), lumStatusBadSize);
  EXPECT_EQ(sample, 7);
}

// Null pointers come before steps, steps before sizes.
TEST(Logic, OrderOfChecks) {
  Lum8u sample = 7;
  EXPECT_EQ(lumiAnd_8u_C3R(nullptr, 0, &sample, 0, &sample, 0, {0, 0}), lumStatusNullPointer);
  EXPECT_EQ(lumiAnd_8u_C3R(&sample, 1, &sample, 0, &sample, 1, {0, 1}), lumStatusBadStep);
  EXPECT_EQ(lumiNot_8u_C1IR(&sample, 0, {1, 1}), lumStatusBadStep);
  EXPECT_EQ(lumiNot_8u_C4IR(&sample, 1, {1, 0}), lumStatusBadSize);
  EXPECT_EQ(sample, 7);
}

}  // namespace
}  // namespace test
