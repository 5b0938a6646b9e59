// SPDX-License-Identifier: MIT
// Images made smaller by a fixed fraction.
#include "lumi/decimate_filter.h"

#include "frame/check.hpp"
#include "frame/rows.hpp"
#include "kernels/filters/decimate_filter.hpp"

namespace lumi {
namespace {

using namespace check;

struct AlongRows {
  static void run(int fraction, SourceRows s, TargetRows d, LumiSize roi) {
    const int groups = roi.width / decimationOf(fraction).samples;
    if (groups > 0) decimateRows(fraction, s, d, groups, roi.height);
  }
};
struct DownColumns {
  static void run(int fraction, SourceRows s, TargetRows d, LumiSize roi) {
    decimateColumns(fraction, s, d, static_cast<size_t>(roi.width),
                    roi.height / decimationOf(fraction).samples);
  }
};

template <typename Direction>
LumStatus decimate(const Lum8u* src, int srcStep, LumiSize roi, Lum8u* dst, int dstStep, int fraction) {
  const bool isKnown = fraction >= 0 && fraction < kDecimations;
  if (LumStatus fault = firstFault(pointers(src, dst), steps(srcStep, dstStep), size(roi),
                                   isKnown ? lumStatusOk : lumStatusBadDecimationFraction))
    return fault;
  Direction::run(fraction, rows(src, srcStep), rows(dst, dstStep), roi);
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/decimate_filter.inc"
