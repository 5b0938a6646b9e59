// SPDX-License-Identifier: MIT
#pragma once

namespace lumi {

// std::pow, which may want an aligned stack, for families, which may have none.
double power(double base, double exponent);

}  // namespace lumi
