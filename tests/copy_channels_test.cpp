// SPDX-License-Identifier: MIT
// Copy between layouts, against the model.
#include "lumi/copy_channels.h"

#include "model/copy.hpp"
#include "support/member.hpp"

namespace test {
namespace {

Operand interleaved(int sampleBytes, int stored, int moved) {
  const bool chosen = moved == 1 && stored > 1;
  return chosen ? Operand::chosenChannel(sampleBytes, stored) : Operand::pixels(sampleBytes, stored);
}

template <typename T, typename Function>
Member between(const char* name, Function* function, model::Channels channels) {
  Member member;
  member.name = name;
  member.sampleBytes = sizeof(T);
  member.src = interleaved(sizeof(T), channels.src, channels.moved);
  member.dst = interleaved(sizeof(T), channels.dst, channels.moved);
  member.run = invoke::of(function);
  member.model = [=](const Call& c) { model::copy<T>(c.srcImage(), c.dstImage(), c.roi, channels); };
  return member;
}

template <typename T, typename Function>
Member split(const char* name, Function* function, int channels) {
  Member member = between<T>(name, function, {channels, channels, channels});
  member.dst = Operand::planar(sizeof(T), channels);
  member.model = [=](const Call& c) { model::split<T>(c.srcImage(), c.dst, c.dstStep, c.roi, channels); };
  return member;
}

template <typename T, typename Function>
Member merge(const char* name, Function* function, int channels) {
  Member member = between<T>(name, function, {channels, channels, channels});
  member.src = Operand::planar(sizeof(T), channels);
  member.model = [=](const Call& c) { model::merge<T>(c.src, c.srcStep, c.dstImage(), c.roi, channels); };
  return member;
}

template <typename T, typename Function>
Member duplicate(const char* name, Function* function, int channels) {
  Member member = between<T>(name, function, {1, channels, channels});
  member.model = [=](const Call& c) { model::duplicate<T>(c.srcImage(), c.dstImage(), c.roi, channels); };
  return member;
}

constexpr model::Channels kC3AC4{3, 4, 3}, kAC4C3{4, 3, 3}, kC1C3{1, 3, 1}, kC1C4{1, 4, 1}, kC3C1{3, 1, 1},
    kC4C1{4, 1, 1};

#define BETWEEN_MEMBERS(type, T)                                                                          \
  between<T>(LUMI_NAMED(lumiCopy_##type##_C3AC4R), kC3AC4),                                               \
      between<T>(LUMI_NAMED(lumiCopy_##type##_AC4C3R), kAC4C3),                                           \
      between<T>(LUMI_NAMED(lumiCopy_##type##_C1C3R), kC1C3),                                             \
      between<T>(LUMI_NAMED(lumiCopy_##type##_C1C4R), kC1C4),                                             \
      between<T>(LUMI_NAMED(lumiCopy_##type##_C3C1R), kC3C1),                                             \
      between<T>(LUMI_NAMED(lumiCopy_##type##_C4C1R), kC4C1),                                             \
      split<T>(LUMI_NAMED(lumiCopy_##type##_C3P3R), 3), split<T>(LUMI_NAMED(lumiCopy_##type##_C4P4R), 4), \
      merge<T>(LUMI_NAMED(lumiCopy_##type##_P3C3R), 3), merge<T>(LUMI_NAMED(lumiCopy_##type##_P4C4R), 4)

const bool added = addModelTests(
    {BETWEEN_MEMBERS(8u, Lum8u), BETWEEN_MEMBERS(16s, Lum16s), BETWEEN_MEMBERS(16u, Lum16u),
     BETWEEN_MEMBERS(32s, Lum32s), BETWEEN_MEMBERS(32f, Lum32f),
     duplicate<Lum8u>(LUMI_NAMED(lumiDup_8u_C1C3R), 3), duplicate<Lum8u>(LUMI_NAMED(lumiDup_8u_C1C4R), 4)});

}  // namespace
}  // namespace test
