// SPDX-License-Identifier: MIT
// Copies within a layout, against the model, under a mask too.
#include "data/copy_members.hpp"

namespace test {
namespace {

const bool added = addModelTests(membersOf("Copy", [](Member& m, auto, auto dst) {
  m.model = copyModelOf<decltype(dst)>(m);
  if (m.layouts.size() == 1)
    m.aliasing = m.channels.moved == 1 && m.channels.dst > 1 ? Aliasing::OtherChannel : Aliasing::SameImage;
}));

const bool managedAdded = addModelTests(
    membersOf("CopyManaged", [](Member& m, auto, auto dst) { m.model = copyModelOf<decltype(dst)>(m); }));

}  // namespace
}  // namespace test
