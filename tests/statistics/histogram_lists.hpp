// SPDX-License-Identifier: MIT
// Levels and histograms for the tests: alone, or an array of them behind its pointers.
#pragma once

#include <vector>

#include "data/lut_lists.hpp"
#include "model/statistics/histogram.hpp"
#include "support/member.hpp"

namespace test::histogram {

template <typename T>
using LevelOf = lut::LevelOf<T>;

// What a call of more channels has in one block: pointers, then a list for each channel, at odd addresses
// too.
constexpr int kMostLevels = lut::kMostLevels, kListBytes = 4 * kMostLevels + 1;
constexpr int kPointerBytes = 4 * static_cast<int>(sizeof(void*)),
              kBlockBytes = kPointerBytes + 4 * kListBytes;

inline Byte* listAt(Byte* block, int channel) { return block + kPointerBytes + channel * kListBytes; }

template <void fill(Random&, Byte*, int)>
void fillBlock(Random& random, Byte* block, int) {
  for (int c = 0; c < 4; ++c) {
    model::store<const void*>(block, c, listAt(block, c));
    fill(random, listAt(block, c), kMostLevels);
  }
}

inline void fillAny(Random& random, Byte* first, int count) {
  random.fill(first, 4 * static_cast<size_t>(count));
}

// Describes the argument of a member: 4-byte numbers that fill makes.
template <void fill(Random&, Byte*, int)>
void describeLists(Member& m, const std::string& argument, const std::string& type) {
  if (m.layouts[0] == "C1")
    m.array(argument, type, {kMostLevels}, fill);
  else
    m.array(argument, "8u", {kBlockBytes}, fillBlock<fill>);
}
// Describes numbers, one for each channel.
template <void fill(Random&, Byte*, int)>
void describeNumbers(Member& m, const std::string& argument, const std::vector<int>& choices) {
  if (m.layouts[0] == "C1")
    m.choose(argument, lut::valuesOf(choices));
  else
    m.array(argument, "32s", {m.channels.moved}, fill);
}

// The parts of a call that belong to a channel.
struct ChannelCall {
  const Call& call;
  bool isOne;
  int channel;

  Byte* list(const std::string& name) const {
    Byte* const block = call.block(name).data;
    return isOne ? block : listAt(block, channel);
  }
  int number(const std::string& name) const {
    return isOne ? static_cast<int>(call.number(name)) : model::load<Lum32s>(call.block(name).data, channel);
  }
};

template <typename L>
std::vector<double> levelsAt(const Byte* list, int count) {
  std::vector<double> levels;
  for (int k = 0; k < count; ++k) levels.push_back(static_cast<double>(model::load<L>(list, k)));
  return levels;
}

inline void storeAll(Byte* list, const std::vector<Lum32s>& numbers) {
  for (size_t k = 0; k < numbers.size(); ++k) model::store<Lum32s>(list, static_cast<int>(k), numbers[k]);
}

}  // namespace test::histogram
