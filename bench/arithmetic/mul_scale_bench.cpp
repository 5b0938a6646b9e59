// SPDX-License-Identifier: MIT
#include "bench/arithmetic/combine_bench.hpp"

namespace bench {
namespace {

// As compilers divide best: by a product.
struct Fraction {
  template <typename T>
  uint32_t operator()(T a, T b) const {
    return uint32_t{a} * b / std::numeric_limits<T>::max();
  }
};

const Family family("mul_scale", [](Suite& suite) {
  suite.row("mulScale 8u C1", kUpToHd, images<1>(lumiMulScale_8u_C1R, nullptr, Fraction()));
  suite.row("mulScale 8u C1 padded", kUpToHd, images<1>(lumiMulScale_8u_C1R, nullptr, Fraction()),
            Placement::padded);
  suite.row("mulScale 16u C1", kUpToHd, images<1>(lumiMulScale_16u_C1R, nullptr, Fraction()));
  suite.row("mulCScale 8u C1", kUpToHd, constant(lumiMulCScale_8u_C1R, nullptr, Fraction()));
  suite.row("mulCScale 8u C3", kUpToHd, constants<3>(lumiMulCScale_8u_C3R, nullptr, Fraction()));
});

}  // namespace
}  // namespace bench
