// SPDX-License-Identifier: MIT
// Images of sizes of their own, for calls that the driver of members does not make.
#pragma once

#include <string>

#include "model/access.hpp"
#include "support/arena.hpp"
#include "support/contents.hpp"

namespace test {

// An image in an arena of its own, its last or its first byte beside an inaccessible page. Steps are those of
// tight rows, and up to four units more.
class PlacedImage {
 public:
  PlacedImage(const Arena& arena, LumiSize size, int sampleBytes, int stepUnit, Random& random)
      : arena_(arena) {
    const int step = size.width * sampleBytes + stepUnit * random.below(5);
    const int bytes = step * (size.height - 1) + size.width * sampleBytes;
    image_ = {random.oneIn(3) ? arena.begin() : arena.end() - bytes, step};
  }

  model::Image image() const { return image_; }
  model::Image twin() const { return {arena_.twin(image_.first), image_.step}; }
  void fill(const std::string& type, Contents contents, Random& random) const {
    fillSamples(type, arena_.begin(), static_cast<int>(arena_.end() - arena_.begin()), contents, random);
    arena_.copyToTwin(arena_.begin(), arena_.end());
  }
  // Whether the whole arena is as the model left it.
  bool agrees() const { return !arena_.firstDifference(arena_.begin(), arena_.end()); }

 private:
  const Arena& arena_;
  model::Image image_;
};

}  // namespace test
