// SPDX-License-Identifier: MIT
// What the demo does with a photo: one panel for each operation that it shows.
#pragma once

#include <vector>

#include "calls.hpp"
#include "image.hpp"

struct Panel {
  const char* file;   // name of the written picture, without number and ending
  const char* title;  // label on the sheet
  AnyImage (*make)(const Colour& photo, Calls& calls);
};

const std::vector<Panel>& panels();

// Those of arithmetic and of other sample types.
std::vector<Panel> samplePanels();
// Those of resizing and filtering.
std::vector<Panel> geometryPanels();
