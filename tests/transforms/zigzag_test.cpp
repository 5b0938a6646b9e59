// SPDX-License-Identifier: MIT
#include "model/transforms/zigzag.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <string>
#include <vector>

#include "support/settings.hpp"
#include "transforms/block_run.hpp"

namespace test {
namespace {

const bool covered = addCovered({"lumiZigzagFwd8x8_16s_C1", "lumiZigzagInv8x8_16s_C1"});

class Zigzag : public testing::Test {
 protected:
  // Apart, and in the same block.
  std::vector<Byte> run(const std::string& name, const std::array<Lum16s, 64>& source) {
    const ExportRow& row = rowNamed(name);
    const auto* const bytes = reinterpret_cast<const Byte*>(source.data());
    const auto result = blocks.run(NamedCall(row), row, bytes, kBlock, kBlock);
    EXPECT_EQ(blocks.run(NamedCall(row), row, bytes, kBlock, kBlock, BlockRun::Where::Same), result) << name;
    return result;
  }

  static constexpr RowsShape kBlock{1, 128};
  Random random{mixSeed(settings().seed, "zigzag", 0)};
  BlockRun blocks{random};
};

TEST_F(Zigzag, OrdersAreThoseOfTheModel) {
  for (int i = 0; i < settings().scaled(200); ++i) {
    std::array<Lum16s, 64> source{}, forward{}, inverse{};
    for (size_t k = 0; k < 64; ++k) source[k] = static_cast<Lum16s>(i == 0 ? int(k) : random.below(65536));
    for (size_t k = 0; k < 64; ++k) {
      const auto z = static_cast<size_t>(model::kZigzag[k]);
      forward[k] = source[z];
      inverse[z] = source[k];
    }
    ASSERT_EQ(std::memcmp(run("lumiZigzagFwd8x8_16s_C1", source).data(), forward.data(), 128), 0);
    ASSERT_EQ(std::memcmp(run("lumiZigzagInv8x8_16s_C1", source).data(), inverse.data(), 128), 0);
  }
}

}  // namespace
}  // namespace test
