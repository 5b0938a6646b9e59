// SPDX-License-Identifier: MIT
// A call of any export with the registers that must survive it watched.
#pragma once

#include <cstdint>

#include "support/invoke.hpp"

namespace test {

// Laid out for call_checked.S: every member is one word.
struct CheckedCall {
  AnyFunction function;
  uintptr_t wordCount;
  const uintptr_t* words;
  uintptr_t misalignment;  // of the stack, below a 64-byte boundary; 32 bits only
  uintptr_t broken;        // a bit for each callee-saved register, stack pointer and direction flag
  uintptr_t statesInUse;   // of the processor's extended state; bit 2 are the upper vector halves
  const double* doubles;
};

extern "C" int32_t lumiCallChecked(CheckedCall* call);

}  // namespace test
