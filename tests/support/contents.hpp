// SPDX-License-Identifier: MIT
// What images hold: random bytes, which rarely hit a limit, or samples about the limits of types.
#pragma once

#include <string>
#include <vector>

#include "support/random.hpp"

namespace test {

enum class Contents { Bytes, Edges, Small };
inline const std::vector<Contents> kAnyContents = {Contents::Bytes, Contents::Edges, Contents::Small};

// Fills samples of a type, complex ones by components. Floats are never NaNs of many kinds: which of two NaNs
// an operation keeps is the compiler's choice.
void fillSamples(const std::string& type, unsigned char* first, int bytes, Contents contents, Random& random);

}  // namespace test
