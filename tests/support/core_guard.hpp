// SPDX-License-Identifier: MIT
#pragma once

#include "testcore/testcore.h"

namespace test {

// The stand-in core library is a proper one at both ends of a test's scope, whatever happens between.
struct CoreGuard {
  CoreGuard() { testcore::reset(); }
  ~CoreGuard() { testcore::reset(); }
  CoreGuard(const CoreGuard&) = delete;
  CoreGuard& operator=(const CoreGuard&) = delete;
};

}  // namespace test
