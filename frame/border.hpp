// SPDX-License-Identifier: MIT
// Borders: what a border type asks for, and the margins between an image and a larger one around it.
#pragma once

#include "lumi/types.h"

namespace lumi {

// A border type taken apart. Families differ in the types they take and in what they make of others, so
// nothing is refused here: a family says `mode.isOneOf(lumiBorderConst, lumiBorderReplicate)`.
class BorderMode {
 public:
  static constexpr LumiBorderType kAllSides =
      lumiBorderInMemoryTop | lumiBorderInMemoryBottom | lumiBorderInMemoryLeft | lumiBorderInMemoryRight;

  explicit constexpr BorderMode(LumiBorderType value) : value_(value) {}

  // The value with nothing taken away, flags included.
  constexpr LumiBorderType value() const { return value_; }
  constexpr LumiBorderType type() const { return value_ & 0xF; }

  template <typename... Type>
  constexpr bool isOneOf(Type... types) const {
    return ((type() == types) || ...);
  }

  // Whether nothing has to be made up: two ways to say so.
  constexpr bool isAllInMemory() const {
    return type() == lumiBorderInMemory || (value_ & kAllSides) == kAllSides;
  }
  // Whether the samples beyond one side, given by its flag, are in memory.
  constexpr bool isInMemory(LumiBorderType side) const {
    return type() == lumiBorderInMemory || (value_ & side) != 0;
  }

 private:
  LumiBorderType value_;
};

// How far a larger image reaches beyond the one inside it, in pixels.
struct Margins {
  int left, top, right, bottom;

  // For sizes that check::inside has passed: no difference is negative, so none overflows.
  static constexpr Margins around(LumiSize image, LumiSize larger, int top, int left) {
    return {left, top, larger.width - image.width - left, larger.height - image.height - top};
  }
};

namespace check {

// Whether an image of positive size lies inside the larger one at this place.
constexpr LumStatus inside(LumiSize image, LumiSize larger, int top, int left) {
  const bool fits = top >= 0 && left >= 0 && larger.width >= int64_t{image.width} + left &&
                    larger.height >= int64_t{image.height} + top;
  return fits ? lumStatusOk : lumStatusBadSize;
}

}  // namespace check
}  // namespace lumi
