// SPDX-License-Identifier: MIT
// Fast Fourier transforms of images.
#include "lumi/fft.h"

#include "transforms/fft_spec.hpp"
#include "transforms/spectrum_runs.hpp"

using namespace lumi;
#include "bind/fft.inc"
