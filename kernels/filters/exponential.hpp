// SPDX-License-Identifier: MIT
// Weights of Gaussians, which are the same in every build.
#pragma once

namespace lumi {

// exp(x) for x <= 0, with an error below 2 units of the last place; 0 below -700.
double exponentialOfNegative(double x);

// ln(x) for finite x from 1 on, with an error below 2^-48 of it.
double naturalLogarithm(double x);

}  // namespace lumi
