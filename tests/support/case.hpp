// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "support/member.hpp"
#include "support/random.hpp"

namespace test {

// Where an image lies in its arena.
struct Placement {
  enum Kind {
    End,    // its last byte is the last accessible one
    Start,  // its first byte is the first accessible one
    Phase   // the first pixel lies this many bytes past a 64-byte boundary, well inside
  };
  Kind kind = End;
  int phase = 0;
  int line = 0;  // for Phase: 64-byte lines that it is moved on, so that page offsets vary
};

enum class Overlap { Apart, SameImage, OtherChannel };
enum class MaskKind { Zero, Ones, AnyNonZero, HighBits, Dense, Half, Sparse, SinglePixel, Runs };
constexpr MaskKind kMaskKinds[] = {MaskKind::Zero,     MaskKind::Ones,        MaskKind::AnyNonZero,
                                   MaskKind::HighBits, MaskKind::Dense,       MaskKind::Half,
                                   MaskKind::Sparse,   MaskKind::SinglePixel, MaskKind::Runs};

// All that is chosen for a call besides the bytes of the images, which follow from the contents seed.
struct Case {
  int index = 0;
  uint64_t contents = 0;
  LumiSize roi{1, 1};
  int srcStep = 0, src2Step = 0, dstStep = 0, maskStep = 0;
  Placement src[kMaxPlanes], src2, dst[kMaxPlanes], mask;
  Overlap overlap = Overlap::Apart;
  int srcChannel = 0, dstChannel = 0;        // for OtherChannel
  bool srcIsDst = false, src2IsDst = false;  // for SameImage
  MaskKind maskKind = MaskKind::Ones;
  Contents inputs = Contents::Bytes;
  int numbers[kMaxNumbers]{};
  std::pair<Lum32f, Lum32f> bounds{};
  bool valuesInDst = false;  // the value array lies in the destination image
  int valuesPhase = 0;       // bytes between the value array and the end of accessible memory
  struct Block {
    int count = 0;  // of samples
    bool atEnd = true;
    int phase = 0;  // bytes to the end, or to the start, of accessible memory
  };
  std::vector<Block> blocks;
  std::vector<Value> chosen;
};

std::string describe(const Member& member, const Case& c);

// The case of this index: widths that cross every threshold of the kernels in turn, the rest by chance.
Case makeCase(const Member& member, uint64_t seed, int index);

// What the member chooses by name: lengths and places of arrays and results, and values.
void chooseNamed(const Member& member, Random& random, Case& c);

// As many cases show every small width.
int caseRound();

// The largest image of makeCase, in bytes; with ten rows more around it.
constexpr size_t kLargestCaseImage = 288 * 1024;

}  // namespace test
