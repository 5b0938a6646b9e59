// SPDX-License-Identifier: MIT
#include <type_traits>

#include "bench/peers/opencv.hpp"
#include "bench/statistics/results.hpp"
#include "lumi/dot_prod.h"

namespace bench {
namespace {

template <int C, typename T, typename... Hint>
Suite::Build products(LumStatus (*lumi)(const T*, int, const T*, int, LumiSize, Lum64f*, Hint...),
                      Hint... hint) {
  return [=](Scene& s) {
    const auto a = s.input<T>(C), b = s.input<T>(C);
    const auto results = resultsOf(s, C);
    s.ours([=] { lumi(a.data(), a.step, b.data(), b.step, a.roi, doublesAt(results), hint...); });
    const auto add = [&](Peer peer) {
      if (sizeof(T) == 4) peer.differs = "adds up in another order";
      s.peer(std::move(peer));
    };
    if (C == 1 && opencv::dotProduct != nullptr) add(opencv::dotProduct(a, b, results));
    using Total = std::conditional_t<sizeof(T) == 4, double, Lum64s>;
    add(loopTotals<C, Total>(
        a, b, results,
        [](Total total, T x, T y) { return total + static_cast<Total>(x) * static_cast<Total>(y); },
        [](Total total) { return static_cast<double>(total); }));
  };
}

void weightedRows(Scene& s) {
  const auto src = s.input<Lum32f>(1);
  const auto dst = s.outputOf<Lum32f>(1, {src.roi.width, 1});
  std::vector<const Lum32f*> rows;
  std::vector<Lum32f> weights;
  for (int y = 0; y < src.roi.height; ++y) {
    rows.push_back(src.row(y));
    weights.push_back(static_cast<Lum32f>(y) * 0.01f);
  }
  s.ours(
      [=] { lumiDotProdCol_32f_L2(rows.data(), weights.data(), src.roi.height, dst.data(), src.roi.width); });
  s.peer(peer("loop", [=] {
    Lum32f* __restrict d = dst.data();
    const int width = src.roi.width;
    for (int x = 0; x < width; ++x) d[x] = rows[0][x] * weights[0];
    for (std::size_t k = 1; k < rows.size(); ++k) {
      const Lum32f* __restrict row = rows[k];
      const Lum32f weight = weights[k];
      for (int x = 0; x < width; ++x) d[x] += row[x] * weight;
    }
  }));
}

const Family family("dot_prod", [](Suite& suite) {
  suite.row("dot product 8u C1", kUpToHd, products<1>(lumiDotProd_8u64f_C1R));
  suite.row("dot product 8u C3", kUpToHd, products<3>(lumiDotProd_8u64f_C3R));
  suite.row("dot product 8u C4", kUpToHd, products<4>(lumiDotProd_8u64f_C4R));
  suite.row("dot product 16u C1", kUpToHd, products<1>(lumiDotProd_16u64f_C1R));
  suite.row("dot product 16s C1", kUpToHd, products<1>(lumiDotProd_16s64f_C1R));
  suite.row("dot product 16s C3", kUpToHd, products<3>(lumiDotProd_16s64f_C3R));
  suite.row("dot product 32s C1", kUpToHd, products<1>(lumiDotProd_32s64f_C1R));
  suite.row("dot product 32f C1", kUpToHd, products<1>(lumiDotProd_32f64f_C1R, 1));
  suite.row("dot product 32f C1 doubles", kUpToHd, products<1>(lumiDotProd_32f64f_C1R, 2));
  suite.row("dot product 32f C3", kUpToHd, products<3>(lumiDotProd_32f64f_C3R, 1));
  suite.row("weighted rows 32f", kUpToHd, weightedRows);
});

}  // namespace
}  // namespace bench
