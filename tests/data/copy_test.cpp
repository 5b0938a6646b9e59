// SPDX-License-Identifier: MIT
// Copies, against the model: within a layout, between layouts, under a mask; planes and pixels.
#include "model/data/copy.hpp"

#include "support/member.hpp"

namespace test {
namespace {

template <typename T>
std::function<void(const Call&)> modelOf(const Member& m) {
  const model::Channels channels = m.channels;
  const int planes = std::max(m.src.planes, m.dst.planes);
  if (m.dst.planes > 1)
    return [=](const Call& c) { model::split<T>(c.srcImage(), c.dst, c.dstStep, c.roi, planes); };
  if (m.src.planes > 1)
    return [=](const Call& c) { model::merge<T>(c.src, c.srcStep, c.dstImage(), c.roi, planes); };
  if (m.masked)
    return [=](const Call& c) {
      model::copyMasked<T>(c.srcImage(), c.dstImage(), c.roi, c.maskImage(), channels);
    };
  return [=](const Call& c) { model::copy<T>(c.srcImage(), c.dstImage(), c.roi, channels); };
}

const bool added = addModelTests(membersOf("Copy", [](Member& m, auto, auto dst) {
  m.model = modelOf<decltype(dst)>(m);
  // Of a plane and pixels one channel takes part: the pixels' image ends with its last sample.
  if (m.channels.moved == 1 && !m.planar()) m.src.lastPixelBytes = m.dst.lastPixelBytes = m.sampleBytes;
  if (m.layouts.size() == 1)
    m.aliasing = m.channels.moved == 1 && m.channels.dst > 1 ? Aliasing::OtherChannel : Aliasing::SameImage;
}));

const bool managedAdded = addModelTests(
    membersOf("CopyManaged", [](Member& m, auto, auto dst) { m.model = modelOf<decltype(dst)>(m); }));

const bool spreadAdded = addModelTests(membersOf("Dup", [](Member& m, auto, auto dst) {
  const int channels = m.channels.dst;
  m.model = [=](const Call& c) {
    model::duplicate<decltype(dst)>(c.srcImage(), c.dstImage(), c.roi, channels);
  };
}));

}  // namespace
}  // namespace test
