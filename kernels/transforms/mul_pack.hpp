// SPDX-License-Identifier: MIT
// Products of packed spectra. Complex numbers are pairs of pixels side by side in every row, from column 1
// on; in the first column, and in the last one of an even width, they are pairs one below the other, from row
// 1 on. What is left at the ends of these columns is real.
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// Of samples T of `stored` channels, the first `used` of which are made. dst may be either source or both.
// Integers are multiplied by 2^-scaleFactor, rounded down, and limited to the type; floats have no factor.
template <typename T, int stored, int used>
void multiplyPacks(SourceRows a, SourceRows b, TargetRows dst, Extent pixels, int scaleFactor);

// The same of floats, by the conjugates of b.
template <int stored, int used>
void multiplyPacksConjugate(SourceRows a, SourceRows b, TargetRows dst, Extent pixels);

}  // namespace lumi
