// SPDX-License-Identifier: MIT
// Copies between layouts, planes and pixels, against the model.
#include "data/copy_members.hpp"

namespace test {
namespace {

const bool added = addModelTests(membersOfOneType("Copy", [](Member& m, auto sample) {
  m.model = copyModelOf<decltype(sample)>(m);
  m.streamsFrom = 6 << 20;  // beyond the limits of planes
  // Of a plane and pixels one channel takes part: the pixels' image ends with its last sample.
  if (m.channels.moved == 1 && !m.planar()) m.src.lastPixelBytes = m.dst.lastPixelBytes = m.sampleBytes;
}));

const bool spreadAdded = addModelTests(membersOfOneType("Dup", [](Member& m, auto sample) {
  const int channels = m.channels.dst;
  m.model = [=](const Call& c) {
    model::duplicate<decltype(sample)>(c.srcImage(), c.dstImage(), c.roi, channels);
  };
}));

}  // namespace
}  // namespace test
