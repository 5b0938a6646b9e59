// SPDX-License-Identifier: MIT
// Fill with a value, against the model.
#include "model/data/set.hpp"

#include "support/member.hpp"

namespace test {
namespace {

const bool added = addModelTests(membersOfOneType("Set", [](Member& m, auto sample) {
  using T = decltype(sample);
  const model::Channels channels = m.channels;
  if (m.masked)
    m.model = [=](const Call& c) {
      model::setMasked<T>(c.values, c.dstImage(), c.roi, c.maskImage(), channels);
    };
  else
    m.model = [=](const Call& c) { model::set<T>(c.values, c.dstImage(), c.roi, channels); };
}));

}  // namespace
}  // namespace test
