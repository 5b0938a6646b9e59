// SPDX-License-Identifier: MIT
// The contact sheet: pictures in a grid, each with a title and a line of detail.
#pragma once

#include <string>
#include <vector>

#include "image.hpp"

struct Card {
  std::string title, detail;
  Colour picture;
};

Colour makeSheet(const std::string& heading, const std::string& subheading, const std::vector<Card>& cards);
