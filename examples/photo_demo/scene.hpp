// SPDX-License-Identifier: MIT
#pragma once

#include "image.hpp"

// A colourful picture, for demos without a photo.
Colour testScene();
