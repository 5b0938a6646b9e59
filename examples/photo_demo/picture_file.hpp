// SPDX-License-Identifier: MIT
// Pictures in files. What goes wrong is thrown as std::runtime_error, in words for the user.
#pragma once

#include <string>

#include "image.hpp"

Colour readPicture(const std::string& path);
void writePicture(const std::string& path, const AnyImage& picture);
