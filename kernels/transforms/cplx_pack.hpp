// SPDX-License-Identifier: MIT
// Between complex spectra and packed ones (mul_pack.hpp says how they are packed). Only the numbers move, so
// that kernels count bytes; images must not overlap.
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// Of real samples of so many bytes, two of which are a complex one.
template <int sample, int channels>
void packRows(SourceRows src, TargetRows dst, Extent pixels);

// Of one channel of T samples, which says how a number is negated.
template <typename T>
void extendPackedRows(SourceRows src, TargetRows dst, Extent pixels);

}  // namespace lumi
