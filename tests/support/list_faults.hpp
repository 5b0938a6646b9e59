// SPDX-License-Identifier: MIT
// Statuses of calls that have a list for each channel, which the fault matrix does not look into.
#pragma once

#include <gtest/gtest.h>

#include "support/arena.hpp"
#include "support/fault.hpp"
#include "support/invoke.hpp"

namespace test {

// Memory that no access survives.
inline void* forbiddenMemory() {
  static const Arena arena(1);
  static const bool done = (arena.setAccessible(arena.begin(), arena.end(), false), true);
  return done ? arena.begin() : nullptr;
}

// Each fault alone, and with each that comes after it: the status is that of the first. ListCall is made of a
// row; its faults() stand in the order in which they are told, and exclude one another where they have the
// same number that is not 0.
template <typename ListCall>
void expectFaultsInOrder(const ExportRow& row) {
  const auto faults = ListCall(row).faults();
  for (size_t i = 0; i < faults.size(); ++i)
    for (size_t k = i; k < faults.size(); ++k) {
      if (k > i && faults[i].exclusive == faults[k].exclusive && faults[i].exclusive != 0) continue;
      ListCall call(row);
      faults[i].apply(call);
      faults[k].apply(call);
      LumStatus status = lumStatusOk;
      ASSERT_FALSE(faultOf([&] { status = call.run(); })) << row.name << " " << i << " " << k;
      ASSERT_EQ(status, faults[i].status) << row.name << " " << i << " " << k;
    }
}

}  // namespace test
