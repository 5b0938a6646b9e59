// SPDX-License-Identifier: MIT
#include "bench/arithmetic/combine_bench.hpp"

namespace bench {
namespace {

struct Product {
  template <typename T>
  auto operator()(T a, T b) const {
    if constexpr (std::is_same_v<T, Lum16u>)
      return uint32_t{a} * b;
    else
      return a * b;
  }
};

template <int C, typename T, typename... Rest>
Suite::Build products(OfImages<T, Rest...> lumi, Rest... rest) {
  return images<C>(lumi, opencv::multiply, Product(), rest...);
}
template <typename T, typename... Rest>
Suite::Build withConstant(WithConstant<T, Rest...> lumi, Rest... rest) {
  return constant(lumi, opencv::multiplyByConstant, Product(), rest...);
}
template <int C, typename T, typename... Rest>
Suite::Build withConstants(WithConstants<T, Rest...> lumi, Rest... rest) {
  return constants<C>(lumi, opencv::multiplyByConstant, Product(), rest...);
}

// Complex samples, as images of two channels.
template <typename Wide, typename T, typename C, typename... Rest>
Suite::Build complexProducts(OfImages<C, Rest...> lumi, Rest... rest) {
  return [=](Scene& s) {
    const auto a = s.input<T>(2), b = s.input<T>(2), dst = s.output<T>(2);
    s.ours([=] {
      const auto complex = [](const Image<T>& image) { return reinterpret_cast<C*>(image.data()); };
      lumi(complex(a), a.step, complex(b), b.step, complex(dst), dst.step, dst.roi, rest...);
    });
    s.peer(loop::rows(dst.roi, [=](int y, int width) {
      const T* __restrict p = a.row(y), * __restrict q = b.row(y);
      T* __restrict d = dst.row(y);
      for (int i = 0; i < 2 * width; i += 2) {
        const Wide ar = p[i], ai = p[i + 1], br = q[i], bi = q[i + 1];
        d[i] = limited<T>(ar * br - ai * bi);
        d[i + 1] = limited<T>(ar * bi + ai * br);
      }
    }));
  };
}

const Family family("mul", [](Suite& suite) {
  suite.row("mul 8u C1", kEverySize, products<1>(lumiMul_8u_C1RSfs, 0));
  suite.row("mul 8u C1 padded", kUpToHd, products<1>(lumiMul_8u_C1RSfs, 0), Placement::padded);
  suite.row("mul 8u C3", kUpToHd, products<3>(lumiMul_8u_C3RSfs, 0));
  suite.row("mul 16u C1", kUpToHd, products<1>(lumiMul_16u_C1RSfs, 0));
  suite.row("mul 16s C1", kUpToHd, products<1>(lumiMul_16s_C1RSfs, 0));
  suite.row("mul 32f C1", kEverySize, products<1>(lumiMul_32f_C1R));
  suite.row("mul 16sc C1", kUpToHd, complexProducts<int, Lum16s>(lumiMul_16sc_C1RSfs, 0));
  suite.row("mul 32sc C1", kUpToHd, complexProducts<int64_t, Lum32s>(lumiMul_32sc_C1RSfs, 0));
  suite.row("mul 32fc C1", kUpToHd, complexProducts<Lum32f, Lum32f>(lumiMul_32fc_C1R));
  for (int scale : {1, 8, -1}) {
    const std::string at = " scale " + std::to_string(scale);
    suite.row("mul 8u C1" + at, kUpToHd, scaledImages(lumiMul_8u_C1RSfs, Product(), scale));
    suite.row("mul 16u C1" + at, kUpToHd, scaledImages(lumiMul_16u_C1RSfs, Product(), scale));
    suite.row("mul 16s C1" + at, kUpToHd, scaledImages(lumiMul_16s_C1RSfs, Product(), scale));
  }
  suite.row("mulC 8u C1", kUpToHd, withConstant(lumiMulC_8u_C1RSfs, 0));
  suite.row("mulC 8u C3", kUpToHd, withConstants<3>(lumiMulC_8u_C3RSfs, 0));
  suite.row("mulC 8u C4", kUpToHd, withConstants<4>(lumiMulC_8u_C4RSfs, 0));
  suite.row("mulC 16s C1", kUpToHd, withConstant(lumiMulC_16s_C1RSfs, 0));
  suite.row("mulC 32f C1", kUpToHd, withConstant(lumiMulC_32f_C1R));
});

}  // namespace
}  // namespace bench
