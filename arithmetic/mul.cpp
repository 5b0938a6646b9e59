// SPDX-License-Identifier: MIT
// Multiplication of images, and of an image and a constant.
#include "lumi/mul.h"

#include "arithmetic/mul.hpp"

using namespace lumi;
#include "bind/mul.inc"
