// SPDX-License-Identifier: MIT
// What magnitudes and phases of packed spectra need besides those of complex numbers. Vectors may reach past
// the ends of rows of complex numbers and of results, by kPolarPadding bytes at the most.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumi {

inline constexpr size_t kPolarPadding = 32;

// Pairs of pixels of so many samples, each of so many bytes, as pixels of complex samples.
template <int sample, int channels>
void joinParts(const uint8_t* pairs, uint8_t* numbers, size_t count);

// Complex numbers with integer parts T, with -|im| as their imaginary parts: every T has that, but not every
// T its negative.
template <typename T>
void lowerNumbers(const uint8_t* numbers, uint8_t* lowered, size_t count);

// The phases of numbers and of their conjugates. Of floats the latter are the negative ones of those given;
// of integers those given are of lowered numbers, and the others the negative ones, limited to T. Where an
// integer imaginary part is 0 both are the same. `own` may be `phases`.
template <typename T>
void bothPhases(const uint8_t* phases, const uint8_t* numbers, uint8_t* own, uint8_t* conjugate,
                size_t count);

}  // namespace lumi
