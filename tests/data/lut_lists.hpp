// SPDX-License-Identifier: MIT
// Levels and values for the tests of look-ups.
#pragma once

#include <algorithm>
#include <array>
#include <limits>
#include <string>
#include <type_traits>
#include <vector>

#include "lumi/types.h"
#include "model/data/lut.hpp"
#include "support/member.hpp"
#include "support/random.hpp"

namespace test::lut {

// Of 32-bit integers or floats, for samples T.
template <typename T>
using LevelOf = std::conditional_t<std::is_floating_point_v<T>, Lum32f, Lum32s>;

// What calls choose from: some lists have more levels than vectors of steps are made for.
inline const std::vector<int> kCounts = {2, 3, 4, 5, 6, 9, 33, 34, 40};
constexpr int kMostLevels = 40;

template <typename T>
LevelOf<T> anyLevel(Random& random, bool narrow) {
  if constexpr (std::is_floating_point_v<T>) {
    if (narrow || !random.oneIn(3)) return static_cast<float>(random.between(-40, 40)) * 0.25f;
    constexpr float all[] = {std::numeric_limits<float>::infinity(),
                             -std::numeric_limits<float>::infinity(),
                             -1e30f,
                             1e30f,
                             255.5f,
                             -32768.0f,
                             0.0f,
                             -0.0f};
    return random.pick(all);
  } else {
    constexpr int low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
    if (narrow) return random.between(-12, 12);
    if (random.oneIn(8))
      return random.between(0, 1) ? random.between(high - 2, high + 3) : random.between(low - 3, low + 2);
    if (random.oneIn(16)) return static_cast<int>(random.next());
    return random.between(low, high);
  }
}

// The first so many levels ascend; two in a row may be equal, and rarely two have changed places.
template <typename T>
void fillLevels(Random& random, Byte* first, int count) {
  std::array<LevelOf<T>, kMostLevels> levels;
  const bool narrow = random.oneIn(3);
  for (auto& level : levels) level = anyLevel<T>(random, narrow);
  std::sort(levels.begin(), levels.begin() + std::min(random.pick(kCounts), count));
  if (random.oneIn(3)) levels[1] = levels[2];
  if (random.oneIn(6)) std::swap(levels[0], levels[static_cast<size_t>(random.between(1, 4))]);
  if constexpr (std::is_floating_point_v<T>)
    if (random.oneIn(16))
      levels[static_cast<size_t>(random.below(4))] = std::numeric_limits<float>::quiet_NaN();
  std::memcpy(first, levels.data(), static_cast<size_t>(count) * sizeof levels[0]);
}

template <typename T>
void fillValues(Random& random, Byte* first, int count) {
  for (int k = 0; k < count; ++k) model::store<LevelOf<T>>(first, k, anyLevel<T>(random, random.oneIn(4)));
}

// Lists of a thread, one for each channel: an array of pointers to them is what calls take.
template <typename T, void fill(Random&, Byte*, int)>
void pointAtLists(Random& random, Byte* first, int channels) {
  thread_local LevelOf<T> lists[2][4][kMostLevels];
  auto& mine = lists[fill == fillValues<T>];
  for (int c = 0; c < channels; ++c) {
    fill(random, reinterpret_cast<Byte*>(mine[c]), kMostLevels);
    model::store<const void*>(first, c, mine[c]);
  }
}

// The name of an integer type that has a pointer's size.
inline const std::string kPointerType = sizeof(void*) == 8 ? "64s" : "32s";

inline std::vector<Value> valuesOf(const std::vector<int>& numbers) {
  std::vector<Value> all;
  for (const int n : numbers) all.push_back({{static_cast<double>(n)}});
  return all;
}

// What a call has for channel c, of one or of more.
template <typename T>
model::Levels<LevelOf<T>> levelsOf(const Call& call, bool isOne, int c) {
  const Byte *values = call.block("values").data, *levels = call.block("levels").data;
  if (isOne) return {values, levels, static_cast<int>(call.number("count"))};
  return {model::load<const Byte*>(values, c), model::load<const Byte*>(levels, c),
          model::load<Lum32s>(call.block("count").data, c)};
}

template <typename T>
void describe(Member& m, model::Form form) {
  const bool isOne = m.layouts[0] == "C1", isFloat = std::is_floating_point_v<T>;
  const model::Channels channels = m.channels;
  const std::string type = isFloat ? "32f" : "32s";
  if (isOne) {
    m.array("values", type, {kMostLevels}, fillValues<T>);
    m.array("levels", type, {kMostLevels}, fillLevels<T>);
    m.choose("count", valuesOf(kCounts));
  } else {
    m.array("values", kPointerType, {channels.moved}, pointAtLists<T, fillValues<T>>);
    m.array("levels", kPointerType, {channels.moved}, pointAtLists<T, fillLevels<T>>);
    m.array("count", "32s", {channels.moved}, [](Random& random, Byte* first, int count) {
      for (int c = 0; c < count; ++c) model::store<Lum32s>(first, c, random.pick(kCounts));
    });
  }
  m.contents = kAnyContents;
  m.mayStream = false;
  m.checksSteps = true;
  m.floatResults = isFloat && form != model::Form::Constant;
  m.aliasing = m.inPlace ? Aliasing::None : Aliasing::SameImage;
  m.allocates = isFloat ? form != model::Form::Constant : sizeof(T) == 2;
  m.rounds = sizeof(T) == 2 ? 3 : 12;  // words have large tables
  m.model = [=](const Call& c) {
    model::lut<T, LevelOf<T>>(form, c.srcImage(), c.dstImage(), c.roi, channels,
                              [&](int channel) { return levelsOf<T>(c, isOne, channel); });
  };
}

}  // namespace test::lut
