// SPDX-License-Identifier: MIT
// Masks and small pictures made with fills and copies.
#pragma once

#include <array>

#include "image.hpp"

using Rgb = std::array<Lum8u, 3>;

constexpr Lum8u kChosen = 255;  // any mask sample but zero chooses its pixel

// A mask of one value.
Grey plainMask(LumiSize size, Lum8u value);

// Sets the samples of a disc, as far as it lies in the mask.
void addDisc(Grey& mask, LumiPoint centre, int radius, Lum8u value = kChosen);

void fill(Colour& image, const Rgb& colour);
void fillRect(Colour& image, LumiRect rect, const Rgb& colour);
void fillMasked(Colour& image, const Grey& mask, const Rgb& colour);

// Copies a whole picture into another one, its corner at (x, y).
void place(const Colour& picture, Colour& on, int x, int y);

Colour copyOf(const Colour& picture);

// Every n-th pixel of every n-th row.
Colour everyNth(const Colour& picture, int n);

// Any image as it looks on a screen: transparent pixels show a chequerboard.
Colour shown(const AnyImage& image);
