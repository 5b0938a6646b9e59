// SPDX-License-Identifier: MIT
// Process attach: the only start-up work of the library.
#include <cstdint>

#include "lumcore.h"

namespace lumi {
namespace {

// 1 where the core library reports both feature bits 4 and 5. Kept for debuggers; no code reads it.
volatile int32_t attachedLevel;

__attribute__((constructor)) void attach() {
  constexpr uint64_t level = 16 | 32;
  attachedLevel = (lumGetEnabledCpuFeatures() & level) == level;
}

}  // namespace
}  // namespace lumi
