// SPDX-License-Identifier: MIT
// Sums over windows, as pairs of doubles: of samples and of their squares; and what follows from them. Those
// of integers are exact up to 2^53.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumi {

// The pixels of rows: so many samples, of which the first are used. Pairs of the used ones lie side by side.
struct PixelSamples {
  int stored, used;
};

// A row enters windows of so many columns, and another one leaves them: null where none does. The rows begin
// with the first column of the first window.
template <typename T>
void moveWindows(const uint8_t* entering, const uint8_t* leaving, PixelSamples pixel, int window,
                 uint8_t* pairs, size_t pixels);

// Values of channels over and over: as many places as are a multiple of 1, 3 and 4.
inline constexpr size_t kPhases = 12;

// n * n * variance of windows of n samples, added up in order: place i of `totals` has samples i, i + 12 and
// so on. Pairs are read up to a multiple of 4.
void addVariances(const uint8_t* pairs, double n, double (&totals)[kPhases], size_t samples);

// With the noise N, n * n times that of a sample, and the variance V = max(n * squares - sum * sum, N):
// dst = src + (sum - n * src) * (N / n) / V, or src where V is 0. Pairs are read up to a multiple of 4.
struct WienerNoise {
  double n;
  double noise[kPhases], share[kPhases];  // N and N / n
};
template <typename T>
void wienerRow(const uint8_t* src, const uint8_t* pairs, const WienerNoise& noise, uint8_t* dst,
               size_t samples);

}  // namespace lumi
