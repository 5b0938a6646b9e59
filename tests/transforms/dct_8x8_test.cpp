// SPDX-License-Identifier: MIT
#include "model/transforms/dct_8x8.hpp"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "lumi/dct_8x8.h"
#include "support/settings.hpp"
#include "transforms/block_run.hpp"

namespace test {
namespace {

using model::ExactBlock;
using model::WordBlock;
using Call = std::function<void(NamedCall&)>;

const bool covered = [] {
  for (const std::string operation : {"Fwd", "Inv", "Inv_2x2", "Inv_4x4", "Inv_A10", "To2x2Inv", "To4x4Inv"})
    for (const char* layout : {"_16s_C1", "_16s_C1I"}) addCovered({"lumiDCT8x8" + operation + layout});
  for (const std::string member :
       {"Fwd_32f_C1", "Fwd_32f_C1I", "Inv_32f_C1", "Inv_32f_C1I", "Fwd_16s_C1R", "Fwd_8u16s_C1R",
        "FwdLS_8u16s_C1R", "Inv_16s_C1R", "Inv_16s8u_C1R", "InvLSClip_16s8u_C1R"})
    addCovered({"lumiDCT8x8" + member});
  return true;
}();

constexpr RowsShape kWords{1, 128}, kFloats{1, 256}, kWordRows{8, 16}, kByteRows{8, 8};

template <typename T>
std::vector<T> samplesOf(const std::vector<Byte>& bytes) {
  std::vector<T> samples(bytes.size() / sizeof(T));
  std::memcpy(samples.data(), bytes.data(), bytes.size());
  return samples;
}

template <typename List>
ExactBlock exact(const List& samples) {
  ExactBlock block{};
  std::copy(samples.begin(), samples.end(), block.begin());
  return block;
}

class Dct8x8 : public testing::Test {
 protected:
  template <typename T, typename List>
  std::vector<T> run(const std::string& name, const List& source, RowsShape from, RowsShape to,
                     const Call& more = {}, BlockRun::Where where = BlockRun::Where::Apart) {
    const ExportRow& row = rowNamed("lumiDCT8x8" + name);
    NamedCall call(row);
    if (more) more(call);
    return samplesOf<T>(blocks.run(call, row, reinterpret_cast<const Byte*>(source.data()), from, to, where));
  }
  // Of a C1 member: apart, in the same block, and in place, which store the same.
  template <typename T, typename List>
  std::vector<T> runBlock(const std::string& name, const List& source, RowsShape from, RowsShape to) {
    const std::string type = sizeof(T) == 4 ? "_32f" : "_16s";
    const auto result = run<T>(name + type + "_C1", source, from, to);
    EXPECT_EQ(run<T>(name + type + "_C1", source, from, to, {}, BlockRun::Where::Same), result) << name;
    EXPECT_EQ(run<T>(name + type + "_C1I", source, from, to), result) << name;
    return result;
  }

  // Blocks of samples up to a range: any, extreme ones, equal ones, rows and columns.
  WordBlock samples(int range) {
    WordBlock block{};
    const int kind = random.below(5);
    const auto any = [&] { return random.between(-range, range); };
    const auto extreme = [&] { return random.oneIn(2) ? range : -range; };
    const int one = any();
    std::array<int, 8> line{};
    for (int& each : line) each = random.oneIn(2) ? any() : extreme();
    for (size_t i = 0; i < 64; ++i) {
      const int values[] = {any(), extreme(), one, line[i % 8], line[i / 8]};
      block[i] = static_cast<Lum16s>(values[kind]);
    }
    return block;
  }
  // The coefficients of such blocks, to the nearest integer.
  WordBlock coefficients(int range) {
    const ExactBlock all = model::exactDct(exact(samples(range)));
    WordBlock block{};
    for (size_t i = 0; i < 64; ++i) block[i] = static_cast<Lum16s>(std::lrint(all[i]));
    return block;
  }
  int cases() const { return settings().scaled(60); }

  Random random{mixSeed(settings().seed, "dct_8x8", 0)};
  BlockRun blocks{random};
};

// Whether results lie as near as the sum of all coefficients' magnitudes allows.
void expectNear(const std::vector<Lum16s>& results, const ExactBlock& right, const WordBlock& coefficients,
                double rounding) {
  double sum = 0;
  for (const Lum16s c : coefficients) sum += std::abs(c);
  for (size_t i = 0; i < results.size(); ++i)
    ASSERT_NEAR(results[i], right[i], rounding + sum / 45000) << "value " << i;
}

TEST_F(Dct8x8, WordsAreTransformedAsTheModelDoes) {
  for (const int range : {1, 255, 600, 5000, 32767}) {
    for (int i = 0; i < cases(); ++i) {
      const WordBlock source = samples(range), right = model::forwardDct(source);
      const std::vector<Lum16s> expected(right.begin(), right.end());
      ASSERT_EQ(runBlock<Lum16s>("Fwd", source, kWords, kWords), expected) << range;
      ASSERT_EQ(run<Lum16s>("Fwd_16s_C1R", source, kWordRows, kWords), expected) << range;
    }
  }
}

TEST_F(Dct8x8, BytesAreTransformedAsTheModelDoes) {
  for (int i = 0; i < cases(); ++i) {
    std::array<Lum8u, 64> source{};
    for (Lum8u& sample : source) sample = static_cast<Lum8u>(random.oneIn(3) ? 255 : random.below(256));
    for (const int shift : {0, -128, 127, 32767, -32768, 32640}) {
      WordBlock words{};
      for (size_t k = 0; k < 64; ++k) words[k] = static_cast<Lum16s>(source[k] + shift);
      const WordBlock right = model::forwardDct(words);
      const std::vector<Lum16s> expected(right.begin(), right.end());
      ASSERT_EQ(run<Lum16s>("FwdLS_8u16s_C1R", source, kByteRows, kWords,
                            [=](NamedCall& call) { call.number("levelShift", shift); }),
                expected)
          << shift;
      if (shift == 0) {
        ASSERT_EQ(run<Lum16s>("Fwd_8u16s_C1R", source, kByteRows, kWords), expected);
      }
    }
  }
}

// A table that were read otherwise would not be a cosine transform.
TEST_F(Dct8x8, IntegersLieWithinOneOfTheExactCoefficients) {
  for (int i = 0; i < 10 * cases(); ++i) {
    const WordBlock source = samples(255), near = model::forwardDct(source);
    const ExactBlock right = model::exactDct(exact(source));
    for (size_t k = 0; k < 64; ++k) ASSERT_NEAR(near[k], right[k], 1) << "coefficient " << k;
  }
}

TEST_F(Dct8x8, EqualBytesHaveOneCoefficient) {
  for (int v = 0; v < 256; ++v) {
    std::array<Lum8u, 64> source{};
    source.fill(static_cast<Lum8u>(v));
    std::vector<Lum16s> expected(64, 0);
    expected[0] = static_cast<Lum16s>(8 * (v - 128));
    ASSERT_EQ(run<Lum16s>("FwdLS_8u16s_C1R", source, kByteRows, kWords,
                          [](NamedCall& call) { call.number("levelShift", -128); }),
              expected);
  }
}

// 30000 + 30000 becomes 32767, and -8 when it is shifted; modulo 2^16 it would be -5536, and 21248.
TEST_F(Dct8x8, FirstSumsSaturate) {
  WordBlock source{};
  for (size_t x = 0; x < 8; ++x) source[x] = source[56 + x] = 30000;
  EXPECT_EQ(run<Lum16s>("Fwd_16s_C1", source, kWords, kWords)[0], -1);
}

TEST_F(Dct8x8, FloatsLieWithinTheStatedBound) {
  for (int i = 0; i < cases(); ++i) {
    std::array<Lum32f, 64> source{};
    double squares = 0;
    const double unit = std::ldexp(1, random.between(-60, 40));
    for (Lum32f& sample : source) {
      sample = static_cast<Lum32f>(random.between(-1000000, 1000000) * unit);
      squares += double{sample} * sample;
    }
    const double tolerance = std::ldexp(std::sqrt(squares), -20);
    const auto forward = runBlock<Lum32f>("Fwd", source, kFloats, kFloats);
    const auto inverse = runBlock<Lum32f>("Inv", source, kFloats, kFloats);
    const ExactBlock right = model::exactDct(exact(source)), back = model::exactInverseDct(exact(source));
    for (size_t k = 0; k < 64; ++k) {
      ASSERT_NEAR(forward[k], right[k], tolerance) << "coefficient " << k;
      ASSERT_NEAR(inverse[k], back[k], tolerance) << "sample " << k;
    }
  }
}

TEST_F(Dct8x8, InversesLieWithinTheStatedBounds) {
  for (int i = 0; i < cases(); ++i) {
    for (const int range : {20, 255, 500}) {
      const WordBlock source = coefficients(range);
      const ExactBlock right = model::exactInverseDct(exact(source));
      const auto result = runBlock<Lum16s>("Inv", source, kWords, kWords);
      ASSERT_NO_FATAL_FAILURE(expectNear(result, right, source, 0.56));
      ASSERT_EQ(run<Lum16s>("Inv_16s_C1R", source, kWords, kWordRows), result);
    }
    const WordBlock source = coefficients(1000);
    const ExactBlock right = model::exactInverseDct(exact(source));
    ASSERT_NO_FATAL_FAILURE(
        expectNear(runBlock<Lum16s>("Inv_A10", source, kWords, kWords), right, source, 0.62));
    const auto four = runBlock<Lum16s>("To2x2Inv", source, kWords, {1, 8});
    ASSERT_NO_FATAL_FAILURE(expectNear(four, model::means(right, 4), source, 0.62));
    const auto sixteen = runBlock<Lum16s>("To4x4Inv", source, kWords, {1, 32});
    ASSERT_NO_FATAL_FAILURE(expectNear(sixteen, model::means(right, 2), source, 0.62));
  }
}

TEST_F(Dct8x8, LargeCoefficientsSaturate) {
  WordBlock source{};
  for (const int value : {32767, -32768}) {
    source[0] = static_cast<Lum16s>(value);
    const Lum16s limit = value > 0 ? 512 : -512;
    EXPECT_EQ(run<Lum16s>("Inv_16s_C1", source, kWords, kWords), std::vector<Lum16s>(64, limit));
    const Lum16s wider = value > 0 ? 1024 : -1024;
    EXPECT_EQ(run<Lum16s>("Inv_A10_16s_C1", source, kWords, kWords), std::vector<Lum16s>(64, wider));
  }
}

// Whatever the other coefficients are, they count as zero.
TEST_F(Dct8x8, CornersAreAllThatCounts) {
  for (int i = 0; i < cases(); ++i) {
    for (const size_t side : {size_t{2}, size_t{4}}) {
      WordBlock corner = samples(random.oneIn(2) ? 300 : 32767), any = samples(32767);
      for (size_t k = 0; k < 64; ++k) (k % 8 < side && k / 8 < side ? any : corner)[k] = 0;
      for (size_t k = 0; k < 64; ++k) any[k] = static_cast<Lum16s>(any[k] + corner[k]);
      const std::string name = side == 2 ? "Inv_2x2" : "Inv_4x4";
      ASSERT_EQ(runBlock<Lum16s>(name, any, kWords, kWords),
                run<Lum16s>("Inv_16s_C1", corner, kWords, kWords));
    }
  }
}

TEST_F(Dct8x8, BytesAreShiftedAndLimited) {
  for (int i = 0; i < cases(); ++i) {
    const WordBlock source = random.oneIn(2) ? coefficients(300) : samples(32767);
    const auto words = run<Lum16s>("Inv_16s_C1", source, kWords, kWords);
    const std::array<int, 3> others = {random.between(-400, 400), random.below(256), random.below(256)};
    for (const auto& [shift, a, b] :
         {std::array<int, 3>{0, 0, 255}, {128, 0, 255}, {32767, 3, 250}, others}) {
      const int least = std::min(a, b), most = std::max(a, b);
      std::vector<Lum8u> expected;
      for (const Lum16s word : words)
        expected.push_back(static_cast<Lum8u>(std::clamp(word + shift, least, most)));
      ASSERT_EQ(
          run<Lum8u>("InvLSClip_16s8u_C1R", source, kWords, kByteRows,
                     [shift = shift, least, most](NamedCall& call) {
                       call.number("levelShift", shift).number("minimum", least).number("maximum", most);
                     }),
          expected);
      if (shift == 0 && most == 255) {
        ASSERT_EQ(run<Lum8u>("Inv_16s8u_C1R", source, kWords, kByteRows), expected);
      }
    }
  }
}

TEST_F(Dct8x8, InverseUndoesTheForwardTransform) {
  for (int i = 0; i < cases(); ++i) {
    const WordBlock source = samples(255);
    const auto there = run<Lum16s>("Fwd_16s_C1", source, kWords, kWords);
    const auto back = run<Lum16s>("Inv_16s_C1", there, kWords, kWords);
    for (size_t k = 0; k < 64; ++k) ASSERT_NEAR(back[k], source[k], 3);
  }
}

}  // namespace
}  // namespace test
