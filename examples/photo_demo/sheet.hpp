// SPDX-License-Identifier: MIT
// The contact sheet: pictures in a grid, each with a title and a line of detail.
#pragma once

#include <string>
#include <vector>

#include "image.hpp"

struct Card {
  std::string title, detail;
  Colour picture;
  int place;  // in its family, from 0
};

// Cards that begin on a row of their own, under a title where there is one.
struct Section {
  std::string title;
  std::vector<Card> cards;
};

constexpr int kColumns = 4;  // cards in a row

Colour makeSheet(const std::string& heading, const std::string& subheading,
                 const std::vector<Section>& sections);
