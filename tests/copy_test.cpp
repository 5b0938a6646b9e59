// SPDX-License-Identifier: MIT
// Copy within one layout, against the model.
#include "lumi/copy.h"

#include "model/copy.hpp"
#include "support/member.hpp"

namespace test {
namespace {

template <typename T, typename Function>
Member copy(const char* name, Function* function, model::Channels channels) {
  Member member;
  member.name = name;
  member.sampleBytes = sizeof(T);
  const bool chosen = channels.moved == 1 && channels.dst > 1;
  member.dst =
      chosen ? Operand::chosenChannel(sizeof(T), channels.dst) : Operand::pixels(sizeof(T), channels.dst);
  member.src = member.dst;
  member.aliasing = chosen ? Aliasing::OtherChannel : Aliasing::SameImage;
  member.run = invoke::of(function);
  member.model = [=](const Call& c) { model::copy<T>(c.srcImage(), c.dstImage(), c.roi, channels); };
  return member;
}

template <typename T, typename Function>
Member copyMasked(const char* name, Function* function, model::Channels channels) {
  Member member = copy<T>(name, function, channels);
  member.masked = true;
  member.model = [=](const Call& c) {
    model::copyMasked<T>(c.srcImage(), c.dstImage(), c.roi, c.maskImage(), channels);
  };
  return member;
}

template <typename T, typename Function>
Member copyManaged(const char* name, Function* function, model::Channels channels) {
  Member member = copy<T>(name, function, channels);
  member.aliasing = Aliasing::None;
  member.flagBits = 2;
  return member;
}

constexpr model::Channels kC1{1, 1, 1}, kC3{3, 3, 3}, kC4{4, 4, 4}, kAC4{4, 4, 3}, kC3C{3, 3, 1},
    kC4C{4, 4, 1};

#define COPY_MEMBERS(type, T)                                                                               \
  copy<T>(LUMI_NAMED(lumiCopy_##type##_C1R), kC1), copy<T>(LUMI_NAMED(lumiCopy_##type##_C3R), kC3),         \
      copy<T>(LUMI_NAMED(lumiCopy_##type##_C4R), kC4), copy<T>(LUMI_NAMED(lumiCopy_##type##_AC4R), kAC4),   \
      copy<T>(LUMI_NAMED(lumiCopy_##type##_C3CR), kC3C), copy<T>(LUMI_NAMED(lumiCopy_##type##_C4CR), kC4C), \
      copyMasked<T>(LUMI_NAMED(lumiCopy_##type##_C1MR), kC1),                                               \
      copyMasked<T>(LUMI_NAMED(lumiCopy_##type##_C3MR), kC3),                                               \
      copyMasked<T>(LUMI_NAMED(lumiCopy_##type##_C4MR), kC4),                                               \
      copyMasked<T>(LUMI_NAMED(lumiCopy_##type##_AC4MR), kAC4)

const bool added = addModelTests(
    {COPY_MEMBERS(8u, Lum8u), COPY_MEMBERS(16s, Lum16s), COPY_MEMBERS(16u, Lum16u), COPY_MEMBERS(32s, Lum32s),
     COPY_MEMBERS(32f, Lum32f), copyManaged<Lum8u>(LUMI_NAMED(lumiCopyManaged_8u_C1R), kC1)});

}  // namespace
}  // namespace test
