// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>

namespace test {

struct Fault {
  const void* address;  // null where the processor does not tell it, as for a misaligned vector access
};

// Runs a call; a memory fault in it comes back as a value and does not end the program.
std::optional<Fault> faultOf(const std::function<void()>& call);

}  // namespace test
