// SPDX-License-Identifier: MIT
// The rounding of the calling thread's vector unit, for operations that convert floats by it.
#pragma once

#include <xmmintrin.h>

namespace lumi {

enum class Rounding : unsigned { Nearest = 0, Truncate = 0x6000 };

inline bool roundsToNearest() { return (_mm_getcsr() & 0x6000) == 0; }

// Changes the rounding field alone, and writes the register only if it is not already right: a write is dear.
// Returns the register as it was.
inline unsigned setRounding(Rounding rounding) {
  constexpr unsigned field = 0x6000;
  const unsigned before = _mm_getcsr(), after = (before & ~field) | static_cast<unsigned>(rounding);
  if (after != before) _mm_setcsr(after);
  return before;
}

// Puts the field back; exceptions that were flagged meanwhile stay flagged.
inline void restoreRounding(unsigned before) {
  constexpr unsigned field = 0x6000;
  setRounding(static_cast<Rounding>(before & field));
}

}  // namespace lumi
