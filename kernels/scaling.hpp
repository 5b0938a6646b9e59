// SPDX-License-Identifier: MIT
#pragma once

namespace lumi {

// How an exact integer result x becomes a sample.
struct Scaling {
  enum Path {
    Saturate,  // x, limited to the type
    Halve,     // x / 2, to nearest, ties to even, limited to the type
    Divide,    // x / 2^bits likewise, 2 <= bits
    Multiply   // x * 2^bits, limited to the type; bits are at most those of the largest sample
  };
  Path path = Saturate;
  int bits = 0;
};

}  // namespace lumi
