// SPDX-License-Identifier: MIT
// Sums of floats, of which windows are made: each is of at most as many roundings as the window has rows and
// binary digits in its width, and nothing but the window's own samples ever enters it.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumi {

// sums(i) = a(i) + b(i), from the first to the last. The sums may be stored over a, while b is further on in
// the same array. F: float, double; arrays may lie at any address.
template <typename F>
void addFloats(const uint8_t* a, const uint8_t* b, uint8_t* sums, size_t count);

template <typename F>
void scaleFloats(const uint8_t* src, F factor, uint8_t* dst, size_t count);

}  // namespace lumi
