// SPDX-License-Identifier: MIT
// Statuses of calls by name, where their order depends on what the arguments point to.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "support/named_call.hpp"

namespace test {

// A fault of a call: what it changes in the arguments, and its status. Faults with one number exclude one
// another.
struct NamedFault {
  std::function<void(NamedCall&)> cause;
  LumStatus status;
  int exclusive = 0;
};

inline NamedFault nullFault(const char* name) {
  return {[=](NamedCall& c) { c.pointer(name, nullptr); }, lumStatusNullPointer};
}

// Every fault alone and every two at once: the one that comes first in the list decides.
inline void expectInOrder(const NamedCall& right, const std::vector<NamedFault>& faults,
                          const std::function<void(LumStatus)>& afterwards) {
  for (size_t i = 0; i < faults.size(); ++i)
    for (size_t k = i; k < faults.size(); ++k) {
      if (k > i && faults[i].exclusive != 0 && faults[i].exclusive == faults[k].exclusive) continue;
      NamedCall call = right;
      faults[k].cause(call);
      faults[i].cause(call);
      ASSERT_EQ(call.run(), faults[i].status) << i << " and " << k;
      ASSERT_NO_FATAL_FAILURE(afterwards(faults[i].status)) << i << " and " << k;
    }
}

}  // namespace test
