// SPDX-License-Identifier: MIT
#include "lumi/deinterlace.h"

#include <cstring>

#include "frame/check.hpp"
#include "frame/rows.hpp"
#include "kernels/filters/deinterlace.hpp"

namespace lumi {
namespace {

using namespace check;

LumStatus fieldSize(LumiSize roi) {
  return roi.width < 1 || roi.height < 8 || roi.height % 2 != 0 ? lumStatusBadSize : lumStatusOk;
}

// The nearest row of the same parity.
int rowOf(int y, int height) { return y < 0 ? y & 1 : y < height ? y : height - 2 + (y & 1); }

// Strictly from the first row to the last: in place, odd rows are made from those above as they are by then.
template <typename T, typename Layout>
LumStatus deinterlace(const T* src, int srcStep, T* dst, int dstStep, Lum16u threshold, LumiSize roi) {
  if (LumStatus fault = firstFault(pointers(src, dst), fieldSize(roi))) return fault;
  const Rows<const Byte> from = rows(src, srcStep);
  const Rows<Byte> to = rows(dst, dstStep);
  const auto width = static_cast<size_t>(roi.width);
  const auto copy = [&](int y) {
    if (y < roi.height && from.row(y) != to.row(y)) std::memcpy(to.row(y), from.row(y), width);
  };
  copy(0);
  for (int y = 1; y < roi.height; y += 2) {
    const Byte* around[7];
    for (int i = 0; i < 7; ++i) around[i] = from.row(rowOf(y - 3 + i, roi.height));
    deinterlaceRow(around, threshold, to.row(y), width);
    copy(y + 1);
  }
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/deinterlace.inc"
