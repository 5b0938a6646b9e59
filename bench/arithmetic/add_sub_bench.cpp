// SPDX-License-Identifier: MIT
#include "bench/arithmetic/combine_bench.hpp"

namespace bench {
namespace {

struct Sum {
  template <typename T>
  auto operator()(T a, T b) const {
    return a + b;
  }
};
struct Difference {
  template <typename T>
  auto operator()(T a, T b) const {
    return b - a;
  }
};

template <int C, typename T, typename... Rest>
Suite::Build sums(OfImages<T, Rest...> lumi, Rest... rest) {
  return images<C>(lumi, opencv::add, Sum(), rest...);
}
template <typename T, typename... Rest>
Suite::Build differences(OfImages<T, Rest...> lumi, Rest... rest) {
  return images<1>(lumi, opencv::subtract, Difference(), rest...);
}
template <typename T, typename... Rest>
Suite::Build withConstant(WithConstant<T, Rest...> lumi, Rest... rest) {
  return constant(lumi, opencv::addConstant, Sum(), rest...);
}
template <int C, typename T, typename... Rest>
Suite::Build withConstants(WithConstants<T, Rest...> lumi, Rest... rest) {
  return constants<C>(lumi, opencv::addConstant, Sum(), rest...);
}

const Family family("add_sub", [](Suite& suite) {
  suite.row("add 8u C1", kEverySize, sums<1>(lumiAdd_8u_C1RSfs, 0));
  suite.row("add 8u C1 padded", kCachedAndHd, sums<1>(lumiAdd_8u_C1RSfs, 0), Placement::padded);
  suite.row("add 8u C1 misaligned", kUpToHd, sums<1>(lumiAdd_8u_C1RSfs, 0), Placement::misaligned);
  suite.row("add 8u C3", kUpToHd, sums<3>(lumiAdd_8u_C3RSfs, 0));
  suite.row("add 16s C1", kEverySize, sums<1>(lumiAdd_16s_C1RSfs, 0));
  suite.row("add 16u C1", kUpToHd, sums<1>(lumiAdd_16u_C1RSfs, 0));
  suite.row("add 32f C1", kEverySize, sums<1>(lumiAdd_32f_C1R));
  suite.row("sub 8u C1", kEverySize, differences(lumiSub_8u_C1RSfs, 0));
  suite.row("sub 16s C1", kUpToHd, differences(lumiSub_16s_C1RSfs, 0));
  suite.row("sub 32f C1", kUpToHd, differences(lumiSub_32f_C1R));
  for (int scale : {1, 3, -2}) {
    const std::string at = " scale " + std::to_string(scale);
    suite.row("add 8u C1" + at, kUpToHd, scaledImages(lumiAdd_8u_C1RSfs, Sum(), scale));
    suite.row("add 16s C1" + at, kUpToHd, scaledImages(lumiAdd_16s_C1RSfs, Sum(), scale));
  }
  suite.row("addC 8u C1", kEverySize, withConstant(lumiAddC_8u_C1RSfs, 0));
  suite.row("addC 8u C3", kUpToHd, withConstants<3>(lumiAddC_8u_C3RSfs, 0));
  suite.row("addC 8u C4", kUpToHd, withConstants<4>(lumiAddC_8u_C4RSfs, 0));
  suite.row("addC 16s C1", kUpToHd, withConstant(lumiAddC_16s_C1RSfs, 0));
  suite.row("addC 32f C1", kUpToHd, withConstant(lumiAddC_32f_C1R));
  suite.row("addC 32f C3", kUpToHd, withConstants<3>(lumiAddC_32f_C3R));
});

}  // namespace
}  // namespace bench
