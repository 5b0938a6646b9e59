// SPDX-License-Identifier: MIT
// Fourier transforms of images of any size.
#include "lumi/dft.h"

#include "transforms/dft_spec.hpp"
#include "transforms/spectrum_runs.hpp"

using namespace lumi;
#include "bind/dft.inc"
