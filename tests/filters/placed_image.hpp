// SPDX-License-Identifier: MIT
// Sources with exactly the pixels around them that a call reads.
#pragma once

#include <cstring>

#include "model/access.hpp"
#include "support/arena.hpp"
#include "support/member.hpp"
#include "support/random.hpp"

namespace test {

// An image with so many pixels on each side, at either end of its memory; `sample()` makes what is in it.
template <typename T, typename Sample>
model::Image placed(Random& random, const Arena& arena, LumiSize roi, int channels,
                    const Member::Surroundings& around, const Sample& sample) {
  constexpr int kBytes = static_cast<int>(sizeof(T));
  const int row = (around.left + roi.width + around.right) * channels * kBytes;
  const int step = row + kBytes * random.below(3);
  const ptrdiff_t bytes = ptrdiff_t{step} * (around.top + roi.height + around.bottom - 1) + row;
  Byte* const first = random.oneIn(2) ? arena.begin() : arena.end() - bytes;
  for (ptrdiff_t i = 0; i < bytes; i += kBytes) {
    const T x = sample();
    std::memcpy(first + i, &x, sizeof x);
  }
  return {first + ptrdiff_t{step} * around.top + around.left * channels * kBytes, step};
}

}  // namespace test
