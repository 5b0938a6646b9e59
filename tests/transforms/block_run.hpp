// SPDX-License-Identifier: MIT
// Operations on single blocks, called by name: blocks and rows lie at any address, also at the ends of
// memory, and what surrounds them is watched.
#pragma once

#include <string>
#include <vector>

#include "support/arena.hpp"
#include "support/member.hpp"
#include "support/named_call.hpp"
#include "support/random.hpp"

namespace test {

// Rows of an image, or the one row that is a block.
struct RowsShape {
  int count, bytes;
};

class BlockRun {
 public:
  explicit BlockRun(Random& random) : random_(random), src_(4096), dst_(4096) {}

  enum class Where { Apart, Same };

  // Runs the operation on the rows of a source, and gives back those of the destination. Images are found by
  // their names: src and dst have steps, blocks have none. In place, or in the same block, the source's rows
  // lie in the destination.
  std::vector<Byte> run(NamedCall call, const ExportRow& row, const Byte* source, RowsShape from,
                        RowsShape to, Where where = Where::Apart) {
    const bool inPlace = has(row, "block"), same = inPlace || where == Where::Same;
    const RowsShape all = same && from.bytes > to.bytes ? from : to;
    const Rows src = place(src_, from), dst = place(dst_, all);
    random_.fill(src_.begin(), bytesOf(src_));
    random_.fill(dst_.begin(), bytesOf(dst_));
    for (int y = 0; y < from.count; ++y)
      std::memcpy((same ? dst : src).row(y), source + y * from.bytes, static_cast<size_t>(from.bytes));
    src_.copyToTwin(src_.begin(), src_.end());
    dst_.copyToTwin(dst_.begin(), dst_.end());

    const Byte* const read = same ? dst.first : src.first;
    if (inPlace) call.pointer("block", dst.first);
    if (has(row, "srcBlock")) call.pointer("srcBlock", read);
    if (has(row, "src")) call.image("src", read, src.step);
    if (has(row, "dstBlock")) call.pointer("dstBlock", dst.first);
    if (has(row, "dst")) call.image("dst", dst.first, dst.step);
    EXPECT_EQ(call.run(), lumStatusOk) << row.name;

    std::vector<Byte> result;
    for (int y = 0; y < to.count; ++y) {
      result.insert(result.end(), dst.row(y), dst.row(y) + to.bytes);
      std::memcpy(dst_.twin(dst.row(y)), dst.row(y), static_cast<size_t>(to.bytes));
    }
    EXPECT_EQ(src_.firstDifference(src_.begin(), src_.end()), nullptr) << row.name << " wrote in its source";
    EXPECT_EQ(dst_.firstDifference(dst_.begin(), dst_.end()), nullptr)
        << row.name << " wrote beside its rows";
    return result;
  }

 private:
  struct Rows {
    Byte* first;
    int step;
    Byte* row(int y) const { return first + y * step; }
  };

  static bool has(const ExportRow& row, const std::string& name) {
    for (const Argument& argument : row.arguments)
      if (name == argument.name) return true;
    return false;
  }
  static size_t bytesOf(const Arena& arena) { return static_cast<size_t>(arena.end() - arena.begin()); }

  Rows place(const Arena& arena, RowsShape shape) {
    const int step = shape.bytes + (random_.oneIn(2) ? 0 : random_.below(70));
    const int phase = random_.oneIn(3) ? 0 : random_.below(70), size = step * (shape.count - 1) + shape.bytes;
    return {random_.oneIn(2) ? arena.end() - size - phase : arena.begin() + phase, step};
  }

  Random& random_;
  Arena src_, dst_;
};

}  // namespace test
