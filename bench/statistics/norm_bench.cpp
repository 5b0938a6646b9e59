// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>
#include <type_traits>

#include "bench/peers/opencv.hpp"
#include "bench/statistics/results.hpp"
#include "lumi/norm.h"
#include "lumi/sum.h"

namespace bench {
namespace {

using opencv::Norm;

template <typename T, typename... Hint>
using OfImage = LumStatus (*)(const T*, int, LumiSize, Lum64f*, Hint...);
template <typename T, typename... Hint>
using OfTwo = LumStatus (*)(const T*, int, const T*, int, LumiSize, Lum64f*, Hint...);

template <typename T>
using TotalOf = std::conditional_t<std::is_same_v<T, Lum32f>, double, Lum64s>;

template <Norm kind, typename Total>
Total added(Total total, Total x) {
  if constexpr (kind == Norm::infinity) return std::max(total, std::abs(x));
  if constexpr (kind == Norm::sum) return total + std::abs(x);
  if constexpr (kind == Norm::squares) return total + x * x;
}
template <Norm kind, typename Total>
double finished(Total total) {
  const auto x = static_cast<double>(total);
  return kind == Norm::squares ? std::sqrt(x) : x;
}

template <typename T>
void addPeer(Scene& s, Peer peer) {
  if (std::is_same_v<T, Lum32f>) peer.differs = "adds up in another order";
  s.peer(std::move(peer));
}

template <int C, Norm kind, typename T, typename... Hint>
Suite::Build ofImage(OfImage<T, Hint...> lumi, Hint... hint) {
  return [=](Scene& s) {
    const auto src = s.input<T>(C);
    const auto results = resultsOf(s, C);
    s.ours([=] { lumi(src.data(), src.step, src.roi, doublesAt(results), hint...); });
    if (C == 1 && opencv::norm != nullptr) addPeer<T>(s, opencv::norm(src, results, kind));
    using Total = TotalOf<T>;
    const auto add = [](Total total, T x, T) { return added<kind>(total, static_cast<Total>(x)); };
    addPeer<T>(s, loopTotals<C, Total>(src, src, results, add, finished<kind, Total>));
  };
}

template <int C, Norm kind, typename T, typename... Hint>
Suite::Build ofDifference(OfTwo<T, Hint...> lumi, Hint... hint) {
  return [=](Scene& s) {
    const auto a = s.input<T>(C), b = s.input<T>(C);
    const auto results = resultsOf(s, C);
    s.ours([=] { lumi(a.data(), a.step, b.data(), b.step, a.roi, doublesAt(results), hint...); });
    if (C == 1 && opencv::normOfDifference != nullptr)
      addPeer<T>(s, opencv::normOfDifference(a, b, results, kind));
    using Total = TotalOf<T>;
    const auto add = [](Total total, T x, T y) {
      return added<kind>(total, static_cast<Total>(x) - static_cast<Total>(y));
    };
    addPeer<T>(s, loopTotals<C, Total>(a, b, results, add, finished<kind, Total>));
  };
}

template <Norm kind, typename T, typename... Hint>
Suite::Build relative(OfTwo<T, Hint...> lumi, Hint... hint) {
  return [=](Scene& s) {
    const auto a = s.input<T>(1), b = s.input<T>(1);
    const auto results = resultsOf(s, 1);
    s.ours([=] { lumi(a.data(), a.step, b.data(), b.step, a.roi, doublesAt(results), hint...); });
    if (opencv::relativeNorm == nullptr) return;
    Peer peer = opencv::relativeNorm(a, b, results, kind);
    peer.differs = "rounds another quotient";
    s.peer(std::move(peer));
  };
}

void meanAndNorm(Scene& s) {
  const auto src = s.input<Lum8u>(1);
  const auto results = resultsOf(s, 2);
  s.ours([=] {
    lumiMean_8u_C1R(src.data(), src.step, src.roi, doublesAt(results));
    lumiNorm_L2_8u_C1R(src.data(), src.step, src.roi, doublesAt(results) + 1);
  });
  if (opencv::meanAndDeviation == nullptr) return;
  Peer peer = opencv::meanAndDeviation(src);
  peer.differs = "finds the deviation";
  s.peer(std::move(peer));
}

const Family family("norm", [](Suite& suite) {
  constexpr Norm inf = Norm::infinity, l1 = Norm::sum, l2 = Norm::squares;
  suite.row("norm diff L2 8u C1", kUpToHd, ofDifference<1, l2>(lumiNormDiff_L2_8u_C1R));
  suite.row("norm diff L2 8u C3", kUpToHd, ofDifference<3, l2>(lumiNormDiff_L2_8u_C3R));
  suite.row("norm diff L2 16s C1", kUpToHd, ofDifference<1, l2>(lumiNormDiff_L2_16s_C1R));
  suite.row("norm diff L2 32f C1", kUpToHd, ofDifference<1, l2>(lumiNormDiff_L2_32f_C1R, 1));
  suite.row("norm diff L2 32f C1 doubles", kUpToHd, ofDifference<1, l2>(lumiNormDiff_L2_32f_C1R, 2));
  suite.row("norm diff L1 8u C1", kUpToHd, ofDifference<1, l1>(lumiNormDiff_L1_8u_C1R));
  suite.row("norm diff L1 8u C3", kUpToHd, ofDifference<3, l1>(lumiNormDiff_L1_8u_C3R));
  suite.row("norm diff L1 16u C1", kUpToHd, ofDifference<1, l1>(lumiNormDiff_L1_16u_C1R));
  suite.row("norm diff L1 32f C1", kUpToHd, ofDifference<1, l1>(lumiNormDiff_L1_32f_C1R, 1));
  suite.row("norm diff inf 8u C1", kUpToHd, ofDifference<1, inf>(lumiNormDiff_Inf_8u_C1R));
  suite.row("norm diff inf 32f C1", kUpToHd, ofDifference<1, inf>(lumiNormDiff_Inf_32f_C1R));
  suite.row("norm L2 8u C1", kUpToHd, ofImage<1, l2>(lumiNorm_L2_8u_C1R));
  suite.row("norm L2 8u C3", kUpToHd, ofImage<3, l2>(lumiNorm_L2_8u_C3R));
  suite.row("norm L2 8u C4", kUpToHd, ofImage<4, l2>(lumiNorm_L2_8u_C4R));
  suite.row("norm L2 16u C1", kUpToHd, ofImage<1, l2>(lumiNorm_L2_16u_C1R));
  suite.row("norm L2 32f C1", kUpToHd, ofImage<1, l2>(lumiNorm_L2_32f_C1R, 1));
  suite.row("norm L1 16s C1", kUpToHd, ofImage<1, l1>(lumiNorm_L1_16s_C1R));
  suite.row("norm L1 32f C1", kUpToHd, ofImage<1, l1>(lumiNorm_L1_32f_C1R, 1));
  suite.row("norm inf 16s C1", kUpToHd, ofImage<1, inf>(lumiNorm_Inf_16s_C1R));
  suite.row("norm inf 32f C1", kUpToHd, ofImage<1, inf>(lumiNorm_Inf_32f_C1R));
  suite.row("norm rel inf 8u C1", kUpToHd, relative<inf>(lumiNormRel_Inf_8u_C1R));
  suite.row("norm rel L1 8u C1", kUpToHd, relative<l1>(lumiNormRel_L1_8u_C1R));
  suite.row("norm rel L2 8u C1", kUpToHd, relative<l2>(lumiNormRel_L2_8u_C1R));
  suite.row("norm rel L2 32f C1", kUpToHd, relative<l2>(lumiNormRel_L2_32f_C1R, 1));
  suite.row("mean and L2 8u C1", kUpToHd, meanAndNorm);
});

}  // namespace
}  // namespace bench
