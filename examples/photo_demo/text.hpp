// SPDX-License-Identifier: MIT
// Text in a small built-in font, drawn by masked fills. Letters outside the font show as a space.
#pragma once

#include <string>

#include "shapes.hpp"

class Font {
 public:
  // Each dot of a letter becomes a square of scale by scale pixels.
  explicit Font(int scale);

  int width(const std::string& text) const { return static_cast<int>(text.size()) * advance_; }
  int height() const { return height_; }

  // Draws from (x, y), the upper left corner, as far as the letters fit into the image.
  void draw(const std::string& text, Colour& on, int x, int y, const Rgb& colour) const;

 private:
  int advance_, height_;
  Grey letters_;  // all of them side by side, as one mask
};
