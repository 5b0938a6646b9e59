// SPDX-License-Identifier: MIT
#include <algorithm>
#include <limits>
#include <type_traits>

#include "bench/harness.hpp"
#include "bench/peers/opencv.hpp"
#include "lumi/filter_fixed.h"

namespace bench {
namespace {

constexpr int kReach = 2;  // pixels that there are on every side

template <typename T>
Image<T> inside(Image<T> around, LumiSize roi) {
  around.bytes += kReach * around.step + kReach * around.pixelBytes();
  around.roi = roi;
  return around;
}

// Weights of a window, row after row, which the loop's compiler knows.
template <int n>
struct Weights {
  int side;
  int of[n];
};
constexpr Weights<9> kSobelX{3, {1, 0, -1, 2, 0, -2, 1, 0, -1}}, kSobelY{3, {-1, -2, -1, 0, 0, 0, 1, 2, 1}},
    kLaplace{3, {-1, -1, -1, -1, 8, -1, -1, -1, -1}}, kSmooth{3, {1, 2, 1, 2, 4, 2, 1, 2, 1}},
    kBox{3, {1, 1, 1, 1, 1, 1, 1, 1, 1}}, kSharpen{3, {-1, -1, -1, -1, 16, -1, -1, -1, -1}},
    kPrewittX{3, {1, 0, -1, 1, 0, -1, 1, 0, -1}}, kScharrX{3, {-3, 0, 3, -10, 0, 10, -3, 0, 3}};
constexpr Weights<25> kSobelX5{
    5, {1, 2, 0, -2, -1, 4, 8, 0, -8, -4, 6, 12, 0, -12, -6, 4, 8, 0, -8, -4, 1, 2, 0, -2, -1}},
    kHill5{5, {2, 7, 12, 7, 2, 7, 31, 52, 31, 7, 12, 52, 127, 52, 12, 7, 31, 52, 31, 7, 2, 7, 12, 7, 2}},
    kBox5{5, {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}};

// Sums in ints or floats, divided by a constant, to nearest with ties upward.
template <const auto& weights, int divisor, int C, typename S, typename D>
Peer loop(Image<S> src, Image<D> dst) {
  return peer("loop", [=] {
    using Sum = std::conditional_t<std::is_same_v<S, float>, float, int>;
    constexpr int side = weights.side, reach = side / 2;
    for (int y = 0; y < dst.roi.height; ++y) {
      const S* rows[side];
      for (int r = 0; r < side; ++r) rows[r] = src.row(y + r - reach);
      D* __restrict d = dst.row(y);
      for (int i = 0; i < dst.roi.width * C; ++i) {
        Sum sum = 0;
        for (int r = 0; r < side; ++r)
          for (int c = 0; c < side; ++c)
            sum += static_cast<Sum>(weights.of[r * side + c]) * rows[r][i + (c - reach) * C];
        if constexpr (std::is_same_v<D, float>) {
          d[i] = sum / divisor;
        } else {
          using Limits = std::numeric_limits<D>;
          if (divisor > 1) sum = (sum + divisor / 2) / divisor;
          d[i] = static_cast<D>(std::clamp<int>(sum, Limits::min(), Limits::max()));
        }
      }
    }
  });
}

Peer allowed(Peer peer, const char* differs) {
  if (peer.run) peer.differs = differs;
  return peer;
}

enum class Kind { sobelX, sobelY, scharrX, laplace, gauss, mean, none };

template <typename S, typename D>
Peer opencvs(Kind kind, Image<S> around, Image<D> dst, int side) {
  using opencv::Gradient;
  if (kind == Kind::none) return {};
  if (kind == Kind::gauss)
    return opencv::gauss ? allowed(opencv::gauss(around, dst, kReach, side), "other weights, or ties upward")
                         : Peer();
  if (kind == Kind::mean)
    return opencv::box ? allowed(opencv::box(around, dst, kReach, side), "rounded otherwise") : Peer();
  const Gradient gradient = kind == Kind::sobelX    ? Gradient::sobelX
                            : kind == Kind::sobelY  ? Gradient::sobelY
                            : kind == Kind::scharrX ? Gradient::scharrX
                                                    : Gradient::laplace;
  return opencv::gradient
             ? allowed(opencv::gradient(around, dst, kReach, gradient, side), "other signs, or weights")
             : Peer();
}

// run(source, its step, destination, its step, ROI).
template <const auto& weights, int divisor, int C, typename S, typename D, typename Run>
Suite::Build whole(Kind kind, Run run) {
  return [=](Scene& scene) {
    const LumiSize roi = scene.roi();
    const auto larger = scene.inputOf<S>(C, {roi.width + 2 * kReach, roi.height + 2 * kReach});
    const auto src = inside(larger, roi);
    const auto dst = scene.output<D>(C);
    scene.ours([=] { run(src.data(), src.step, dst.data(), dst.step, roi); });
    scene.peer(opencvs(kind, larger, dst, weights.side));
    scene.peer(allowed(loop<weights, divisor, C>(src, dst), "ties, or sums of floats in another order"));
  };
}

// A member with a mask.
template <typename Operation>
auto masked(Operation operation, LumiMaskSize mask) {
  return [=](auto... arguments) { operation(arguments..., mask); };
}

const Family family("filter_fixed", [](Suite& suite) {
  suite.row("sobel x 8u16s 3x3", kEverySize,
            whole<kSobelX, 1, 1, Lum8u, Lum16s>(Kind::sobelX, masked(lumiFilterSobelVert_8u16s_C1R, 33)));
  suite.row("sobel y 8u16s 3x3", kUpToHd,
            whole<kSobelY, 1, 1, Lum8u, Lum16s>(Kind::sobelY, masked(lumiFilterSobelHoriz_8u16s_C1R, 33)));
  suite.row("sobel x 8u16s 5x5", kUpToHd,
            whole<kSobelX5, 1, 1, Lum8u, Lum16s>(Kind::sobelX, masked(lumiFilterSobelVert_8u16s_C1R, 55)));
  suite.row("sobel x 8u C1 3x3", kUpToHd,
            whole<kSobelX, 1, 1, Lum8u, Lum8u>(Kind::none, lumiFilterSobelVert_8u_C1R));
  suite.row("sobel x 16s C1 3x3", kUpToHd,
            whole<kSobelX, 1, 1, Lum16s, Lum16s>(Kind::sobelX, lumiFilterSobelVert_16s_C1R));
  suite.row("sobel x 32f 3x3", kEverySize,
            whole<kSobelX, 1, 1, Lum32f, Lum32f>(Kind::sobelX, lumiFilterSobelVert_32f_C1R));
  suite.row("sobel x 32f 5x5", kUpToHd,
            whole<kSobelX5, 1, 1, Lum32f, Lum32f>(Kind::sobelX, masked(lumiFilterSobelVertMask_32f_C1R, 55)));
  suite.row("prewitt x 8u C3", kUpToHd,
            whole<kPrewittX, 1, 3, Lum8u, Lum8u>(Kind::none, lumiFilterPrewittVert_8u_C3R));
  suite.row("scharr x 8u16s", kUpToHd,
            whole<kScharrX, 1, 1, Lum8u, Lum16s>(Kind::scharrX, lumiFilterScharrVert_8u16s_C1R));
  suite.row("laplace 8u16s 3x3", kUpToHd,
            whole<kLaplace, 1, 1, Lum8u, Lum16s>(Kind::laplace, masked(lumiFilterLaplace_8u16s_C1R, 33)));
  suite.row("gauss 8u C1 3x3", kEverySize,
            whole<kSmooth, 16, 1, Lum8u, Lum8u>(Kind::gauss, masked(lumiFilterGauss_8u_C1R, 33)));
  suite.row("gauss 8u C3 3x3", kUpToHd,
            whole<kSmooth, 16, 3, Lum8u, Lum8u>(Kind::gauss, masked(lumiFilterGauss_8u_C3R, 33)));
  suite.row("gauss 8u AC4 3x3", kUpToHd,
            whole<kSmooth, 16, 4, Lum8u, Lum8u>(Kind::gauss, masked(lumiFilterGauss_8u_AC4R, 33)));
  suite.row("gauss 16u C1 3x3", kUpToHd,
            whole<kSmooth, 16, 1, Lum16u, Lum16u>(Kind::gauss, masked(lumiFilterGauss_16u_C1R, 33)));
  suite.row("gauss 32f C1 3x3", kUpToHd,
            whole<kSmooth, 16, 1, Lum32f, Lum32f>(Kind::gauss, masked(lumiFilterGauss_32f_C1R, 33)));
  suite.row("gauss 8u C1 5x5", kUpToHd,
            whole<kHill5, 571, 1, Lum8u, Lum8u>(Kind::gauss, masked(lumiFilterGauss_8u_C1R, 55)));
  suite.row("gauss 16u C1 5x5", kUpToHd,
            whole<kHill5, 571, 1, Lum16u, Lum16u>(Kind::gauss, masked(lumiFilterGauss_16u_C1R, 55)));
  suite.row("gauss 32f C1 5x5", kUpToHd,
            whole<kHill5, 571, 1, Lum32f, Lum32f>(Kind::gauss, masked(lumiFilterGauss_32f_C1R, 55)));
  suite.row("lowpass 8u C1 3x3", kUpToHd,
            whole<kBox, 9, 1, Lum8u, Lum8u>(Kind::mean, masked(lumiFilterLowpass_8u_C1R, 33)));
  suite.row("lowpass 8u C1 5x5", kUpToHd,
            whole<kBox5, 25, 1, Lum8u, Lum8u>(Kind::mean, masked(lumiFilterLowpass_8u_C1R, 55)));
  suite.row("lowpass 16s C1 5x5", kUpToHd,
            whole<kBox5, 25, 1, Lum16s, Lum16s>(Kind::mean, masked(lumiFilterLowpass_16s_C1R, 55)));
  suite.row("sharpen 8u C3", kUpToHd,
            whole<kSharpen, 8, 3, Lum8u, Lum8u>(Kind::none, lumiFilterSharpen_8u_C3R));
});

}  // namespace
}  // namespace bench
