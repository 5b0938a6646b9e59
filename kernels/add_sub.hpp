// SPDX-License-Identifier: MIT
// Row kernels of addition and subtraction.
#pragma once

#include <cstddef>
#include <cstdint>

#include "kernels/pattern.hpp"

namespace lumi {

// a + b.
struct Add {};
// b - a: the first operand is subtracted from the second. Unsigned differences below zero count as zero
// before they are scaled.
struct Sub {};

// How the exact integer result x becomes a sample.
struct Scaling {
  enum Path {
    Saturate,  // x, limited to the type
    Halve,     // x / 2, to nearest, ties to even, limited to the type
    Divide,    // x / 2^bits likewise, 2 <= bits; one more than the type has bits at most (unsigned Add), its
               // bits otherwise
    Multiply   // x * 2^bits, limited to the type; as many bits as the largest sample has at most
  };
  Path path;
  int bits;
};

// dst = a op b for `samples` samples of type T; where alpha is not 0, it is the number of samples at the end
// of every pixel (of four times as many) that stay. Floats take no scaling. dst may be a or b; where it
// overlaps them otherwise, the samples are made one by one in order.
template <typename Op, typename T, int alpha>
void combineRows(const uint8_t* a, const uint8_t* b, uint8_t* dst, size_t samples, Scaling scaling);

// The same with a constant pixel as the first operand: of three samples, real or complex, or of a power of
// two. A streaming kernel's stores bypass the cache.
template <typename Op, typename T, int alpha, bool ofThree, bool streaming = false>
void combineConstant(const PixelPattern& a, const uint8_t* b, uint8_t* dst, size_t samples, Scaling scaling);

}  // namespace lumi
