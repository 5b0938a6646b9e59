// SPDX-License-Identifier: MIT
// Fill with a value, against the model.
#include "lumi/set.h"

#include "model/set.hpp"
#include "support/member.hpp"

namespace test {
namespace {

template <typename T, typename Function>
Member fill(const char* name, Function* function, model::Channels channels) {
  Member member;
  member.name = name;
  member.sampleBytes = sizeof(T);
  const bool chosen = channels.moved == 1 && channels.dst > 1;
  member.dst =
      chosen ? Operand::chosenChannel(sizeof(T), channels.dst) : Operand::pixels(sizeof(T), channels.dst);
  member.values = channels.moved;
  member.run = invoke::of(function);
  member.model = [=](const Call& c) { model::set<T>(c.values, c.dstImage(), c.roi, channels); };
  return member;
}

template <typename T, typename Function>
Member fillMasked(const char* name, Function* function, model::Channels channels) {
  Member member = fill<T>(name, function, channels);
  member.masked = true;
  member.model = [=](const Call& c) {
    model::setMasked<T>(c.values, c.dstImage(), c.roi, c.maskImage(), channels);
  };
  return member;
}

constexpr model::Channels kC1{0, 1, 1}, kC3{0, 3, 3}, kC4{0, 4, 4}, kAC4{0, 4, 3}, kC3C{0, 3, 1},
    kC4C{0, 4, 1};

#define FILL_MEMBERS(type, T)                                                                             \
  fill<T>(LUMI_NAMED(lumiSet_##type##_C1R), kC1), fill<T>(LUMI_NAMED(lumiSet_##type##_C3R), kC3),         \
      fill<T>(LUMI_NAMED(lumiSet_##type##_C4R), kC4), fill<T>(LUMI_NAMED(lumiSet_##type##_AC4R), kAC4),   \
      fill<T>(LUMI_NAMED(lumiSet_##type##_C3CR), kC3C), fill<T>(LUMI_NAMED(lumiSet_##type##_C4CR), kC4C), \
      fillMasked<T>(LUMI_NAMED(lumiSet_##type##_C1MR), kC1),                                              \
      fillMasked<T>(LUMI_NAMED(lumiSet_##type##_C3MR), kC3),                                              \
      fillMasked<T>(LUMI_NAMED(lumiSet_##type##_C4MR), kC4),                                              \
      fillMasked<T>(LUMI_NAMED(lumiSet_##type##_AC4MR), kAC4)

const bool added =
    addModelTests({FILL_MEMBERS(8u, Lum8u), FILL_MEMBERS(16s, Lum16s), FILL_MEMBERS(16u, Lum16u),
                   FILL_MEMBERS(32s, Lum32s), FILL_MEMBERS(32f, Lum32f)});

}  // namespace
}  // namespace test
