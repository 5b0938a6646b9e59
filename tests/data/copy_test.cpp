// SPDX-License-Identifier: MIT
// Copies within a layout, against the model, under a mask too.
#include "data/copy_members.hpp"

namespace test {
namespace {

const bool added = addModelTests(membersOfOneType("Copy", [](Member& m, auto sample) {
  m.model = copyModelOf<decltype(sample)>(m);
  if (m.layouts.size() == 1)
    m.aliasing = m.channels.moved == 1 && m.channels.dst > 1 ? Aliasing::OtherChannel : Aliasing::SameImage;
}));

const bool managedAdded = addModelTests(membersOfOneType(
    "CopyManaged", [](Member& m, auto sample) { m.model = copyModelOf<decltype(sample)>(m); }));

}  // namespace
}  // namespace test
