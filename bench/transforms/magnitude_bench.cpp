// SPDX-License-Identifier: MIT
#include "bench/transforms/complex_rows.hpp"
#include "lumi/magnitude.h"

namespace bench {
namespace {

const auto ofFloats = [](float re, float im) { return std::sqrt(re * re + im * im); };
const auto ofIntegers = [](double re, double im) { return std::sqrt(re * re + im * im); };

const Family family("magnitude", [](Suite& suite) {
  const auto floats =
      complexRow<1, Lum32fc, Lum32f>(lumiMagnitude_32fc32f_C1R, ofFloats, "", opencv::magnitude);
  suite.row("magnitude 32f C1", kEverySize, floats);
  suite.row("magnitude 32f C1 padded", kUpToHd, floats, Placement::padded);
  suite.row("magnitude 32f C3", kCachedAndHd,
            complexRow<3, Lum32fc, Lum32f>(lumiMagnitude_32fc32f_C3R, ofFloats, "", nullptr));
  suite.row("magnitude 16s C1", kUpToHd,
            scaledComplexRow<1, Lum16sc, Lum16s>(lumiMagnitude_16sc16s_C1RSfs, 0, ofIntegers, ""));
  suite.row("magnitude 16s C1 padded", kUpToHd,
            scaledComplexRow<1, Lum16sc, Lum16s>(lumiMagnitude_16sc16s_C1RSfs, 0, ofIntegers, ""),
            Placement::padded);
  suite.row("magnitude 16s C1 scale 1", kCachedAndHd,
            scaledComplexRow<1, Lum16sc, Lum16s>(lumiMagnitude_16sc16s_C1RSfs, 1, ofIntegers, ""));
  suite.row("magnitude 16u C1", kUpToHd,
            scaledComplexRow<1, Lum16uc, Lum16u>(lumiMagnitude_16uc16u_C1RSfs, 0, ofIntegers, ""));
  suite.row("magnitude 32s C1", kUpToHd,
            scaledComplexRow<1, Lum32sc, Lum32s>(lumiMagnitude_32sc32s_C1RSfs, 0, ofIntegers, ""));
});

}  // namespace
}  // namespace bench
