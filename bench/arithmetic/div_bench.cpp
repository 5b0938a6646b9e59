// SPDX-License-Identifier: MIT
#include <cmath>

#include "bench/arithmetic/combine_bench.hpp"

namespace bench {
namespace {

// As a loop would divide: 0 by 0 gives 0, the rest is limited to the type.
struct Quotient {
  template <typename T>
  auto operator()(T d, T n) const {
    if constexpr (std::is_floating_point_v<T>) {
      return n / d;
    } else {
      using Real = std::conditional_t<sizeof(T) == 1, float, double>;
      const Real q = static_cast<Real>(n) / static_cast<Real>(d);
      return std::nearbyint(d == 0 ? (n == 0 ? Real{0} : n < 0 ? Real{-32768} : Real{65535}) : q);
    }
  }
};
struct QuotientByConstant {
  template <typename T>
  auto operator()(T n, T d) const {
    return std::nearbyint(static_cast<float>(n) / static_cast<float>(d));
  }
};

template <int C, typename T, typename... Rest>
Suite::Build quotients(OfImages<T, Rest...> lumi, Rest... rest) {
  return images<C>(lumi, opencv::divide, Quotient(), rest...);
}
template <typename T, typename... Rest>
Suite::Build byConstant(WithConstant<T, Rest...> lumi, Rest... rest) {
  return constant(lumi, opencv::divideByConstant, QuotientByConstant(), rest...);
}
template <int C, typename T, typename... Rest>
Suite::Build byConstants(WithConstants<T, Rest...> lumi, Rest... rest) {
  return constants<C>(lumi, opencv::divideByConstant, QuotientByConstant(), rest...);
}

// Complex floats, as images of two channels.
Suite::Build complexQuotients() {
  return [](Scene& s) {
    const auto a = s.input<Lum32f>(2), b = s.input<Lum32f>(2), dst = s.output<Lum32f>(2);
    s.ours([=] {
      const auto complex = [](const Image<Lum32f>& image) {
        return reinterpret_cast<Lum32fc*>(image.data());
      };
      lumiDiv_32fc_C1R(complex(a), a.step, complex(b), b.step, complex(dst), dst.step, dst.roi);
    });
    s.peer(loop::rows(dst.roi, [=](int y, int width) {
      const Lum32f* __restrict p = a.row(y), * __restrict q = b.row(y);
      Lum32f* __restrict d = dst.row(y);
      for (int i = 0; i < 2 * width; i += 2) {
        const float norm = p[i] * p[i] + p[i + 1] * p[i + 1];
        d[i] = (q[i] * p[i] + q[i + 1] * p[i + 1]) / norm;
        d[i + 1] = (q[i + 1] * p[i] - q[i] * p[i + 1]) / norm;
      }
    }));
  };
}

const Family family("div", [](Suite& suite) {
  suite.row("div 8u C1", kEverySize, quotients<1>(lumiDiv_8u_C1RSfs, 0));
  suite.row("div 8u C1 padded", kUpToHd, quotients<1>(lumiDiv_8u_C1RSfs, 0), Placement::padded);
  suite.row("div 8u C3", kUpToHd, quotients<3>(lumiDiv_8u_C3RSfs, 0));
  suite.row("div 16u C1", kUpToHd, quotients<1>(lumiDiv_16u_C1RSfs, 0));
  suite.row("div 16s C1", kUpToHd, quotients<1>(lumiDiv_16s_C1RSfs, 0));
  suite.row("div 32f C1", kEverySize, quotients<1>(lumiDiv_32f_C1R));
  suite.row("div 32fc C1", kUpToHd, complexQuotients());
  suite.row("div_Round 8u C1 away", kUpToHd, quotients<1>(lumiDiv_Round_8u_C1RSfs, 2, 0));
  suite.row("div_Round 16s C1 cut", kUpToHd, quotients<1>(lumiDiv_Round_16s_C1RSfs, 0, 0));
  suite.row("divC 8u C1", kUpToHd, byConstant(lumiDivC_8u_C1RSfs, 0));
  suite.row("divC 8u C3", kUpToHd, byConstants<3>(lumiDivC_8u_C3RSfs, 0));
  suite.row("divC 16s C1", kUpToHd, byConstant(lumiDivC_16s_C1RSfs, 0));
});

}  // namespace
}  // namespace bench
