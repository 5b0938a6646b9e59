// SPDX-License-Identifier: MIT
// What the demo does with a photo: one panel for each picture that it makes. The panels of a family lie in
// panels/<home>/<family>.cpp, which is built when it is there and makes them known by an object of its own:
//
//   const Panels panels("data", "set", {{"ring", "Ring painted by mask", ringPainted}});
#pragma once

#include <map>
#include <string>
#include <vector>

#include "calls.hpp"
#include "image.hpp"

struct Panel {
  const char* file;   // name of the written picture, without family and ending
  const char* title;  // label on the sheet
  AnyImage (*make)(const Colour& photo, Calls& calls);
};

// The panels of a family. The index may show the first one.
struct Panels {
  Panels(const char* home, const char* family, const std::vector<Panel>& panels);
};

using Families = std::map<std::string, std::vector<Panel>>;

// All panels, by home and family.
const std::map<std::string, Families>& homes();
