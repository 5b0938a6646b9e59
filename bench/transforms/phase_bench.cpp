// SPDX-License-Identifier: MIT
#include "bench/transforms/complex_rows.hpp"
#include "lumi/phase.h"

namespace bench {
namespace {

constexpr const char* kOtherSteps = "computes it in other steps";

const auto ofFloats = [](float re, float im) { return std::atan2(im, re); };
const auto ofIntegers = [](double re, double im) { return std::atan2(im, re); };

const Family family("phase", [](Suite& suite) {
  const auto floats =
      complexRow<1, Lum32fc, Lum32f>(lumiPhase_32fc32f_C1R, ofFloats, kOtherSteps, opencv::phase);
  suite.row("phase 32f C1", kEverySize, floats);
  suite.row("phase 32f C1 padded", kUpToHd, floats, Placement::padded);
  suite.row("phase 32f C3", kCachedAndHd,
            complexRow<3, Lum32fc, Lum32f>(lumiPhase_32fc32f_C3R, ofFloats, kOtherSteps, nullptr));
  suite.row("phase 16s C1", kUpToHd,
            scaledComplexRow<1, Lum16sc, Lum16s>(lumiPhase_16sc16s_C1RSfs, -13, ofIntegers, ""));
  suite.row("phase 16s C1 padded", kUpToHd,
            scaledComplexRow<1, Lum16sc, Lum16s>(lumiPhase_16sc16s_C1RSfs, -13, ofIntegers, ""),
            Placement::padded);
  suite.row("phase 16u C1", kUpToHd,
            scaledComplexRow<1, Lum16uc, Lum16u>(lumiPhase_16uc16u_C1RSfs, -15, ofIntegers, ""));
  suite.row("phase 32s C1", kUpToHd,
            scaledComplexRow<1, Lum32sc, Lum32s>(lumiPhase_32sc32s_C1RSfs, -29, ofIntegers, kOtherSteps));
});

}  // namespace
}  // namespace bench
