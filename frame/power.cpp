// SPDX-License-Identifier: MIT
#include "frame/power.hpp"

#include <cmath>

namespace lumi {

double power(double base, double exponent) { return std::pow(base, exponent); }

}  // namespace lumi
