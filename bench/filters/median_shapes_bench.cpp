// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cmath>
#include <type_traits>

#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "lumi/median_shapes.h"

namespace bench {
namespace {

constexpr int kReach = 2;  // pixels that there are on every side

// The compiler makes vectors of these exchanges.
template <typename T>
T middle(T a, T b, T c) {
  return std::max(std::min(a, b), std::min(std::max(a, b), c));
}
template <typename T>
T middle(T a, T b, T c, T d, T e) {
  return middle(std::max(std::min(a, b), std::min(c, d)), std::min(std::max(a, b), std::max(c, d)), e);
}
template <typename T>
T least(T a, T b, T c) {
  return std::min(std::min(a, b), c);
}
template <typename T>
T greatest(T a, T b, T c) {
  return std::max(std::max(a, b), c);
}
// Of three triples.
template <typename T>
T middle(const T (&x)[9]) {
  return middle(greatest(least(x[0], x[1], x[2]), least(x[3], x[4], x[5]), least(x[6], x[7], x[8])),
                middle(middle(x[0], x[1], x[2]), middle(x[3], x[4], x[5]), middle(x[6], x[7], x[8])),
                least(greatest(x[0], x[1], x[2]), greatest(x[3], x[4], x[5]), greatest(x[6], x[7], x[8])));
}

// of(at) makes a sample of those about it: at(row, pixel).
template <int C, typename T, typename Of>
Peer loopOf(Image<T> src, Image<T> dst, Of of) {
  return peer("loop", [=] {
    const int width = dst.roi.width * C;
    for (int y = 0; y < dst.roi.height; ++y) {
      std::array<const T*, 2 * kReach + 1> rows;
      for (int r = 0; r <= 2 * kReach; ++r) rows[static_cast<size_t>(r)] = src.row(y + r - kReach);
      T* __restrict d = dst.row(y);
      for (int i = 0; i < width; ++i)
        d[i] = of([=](int row, int pixel) { return rows[static_cast<size_t>(row + kReach)][i + pixel * C]; });
    }
  });
}

constexpr auto row3 = [](auto at) { return middle(at(0, -1), at(0, 0), at(0, 1)); };
constexpr auto row5 = [](auto at) { return middle(at(0, -2), at(0, -1), at(0, 1), at(0, 2), at(0, 0)); };
constexpr auto column3 = [](auto at) { return middle(at(-1, 0), at(0, 0), at(1, 0)); };
constexpr auto column5 = [](auto at) { return middle(at(-2, 0), at(-1, 0), at(1, 0), at(2, 0), at(0, 0)); };
constexpr auto cross3 = [](auto at) { return middle(at(-1, 0), at(0, -1), at(0, 1), at(1, 0), at(0, 0)); };
constexpr auto cross5 = [](auto at) {
  using T = decltype(at(0, 0));
  const T x[] = {at(-2, 0), at(-1, 0), at(1, 0), at(2, 0), at(0, -2),
                 at(0, 2),  at(0, -1), at(0, 0), at(0, 1)};
  return middle(x);
};

template <typename T>
Image<T> inside(Image<T> around, LumiSize roi) {
  around.bytes += kReach * around.step + kReach * around.pixelBytes();
  around.roi = roi;
  return around;
}

// run(source, its step, destination, its step, ROI, more).
template <int C, typename T, typename Run, typename More, typename MakePeer>
Suite::Build whole(Run run, More more, MakePeer makePeer) {
  return [=](Scene& scene) {
    const LumiSize roi = scene.roi();
    const auto src = inside(scene.inputOf<T>(C, {roi.width + 2 * kReach, roi.height + 2 * kReach}), roi);
    const auto dst = scene.output<T>(C);
    scene.ours([=] { run(src.data(), src.step, dst.data(), dst.step, roi, more); });
    scene.peer(makePeer(src, dst));
  };
}
template <int C, typename T, typename Run, typename Of>
Suite::Build shape(Run run, LumiMaskSize mask, Of of) {
  return whole<C, T>(run, mask, [=](Image<T> src, Image<T> dst) { return loopOf<C>(src, dst, of); });
}

// The centre lies between the third and the sixth of the eight others: those are where three of both sides of
// a sorted list begin.
Peer loopOfWeights(Image<Lum8u> src, Image<Lum8u> dst) {
  return peer("loop", [=] {
    for (int y = 0; y < dst.roi.height; ++y)
      for (int x = 0; x < dst.roi.width; ++x) {
        Lum8u others[8], *next = others;
        for (int r = -1; r <= 1; ++r)
          for (int c = -1; c <= 1; ++c)
            if (r != 0 || c != 0) *next++ = src.row(y + r)[x + c];
        std::sort(others, others + 8);
        dst.row(y)[x] = std::clamp(src.row(y)[x], others[2], others[5]);
      }
  });
}

template <int side, typename T>
Peer loopOfColours(Image<T> src, Image<T> dst) {
  using Sum = std::conditional_t<std::is_floating_point_v<T>, float, int>;
  return peer("loop", [=] {
    constexpr int count = side * side, reach = side / 2;
    for (int y = 0; y < dst.roi.height; ++y)
      for (int x = 0; x < dst.roi.width; ++x) {
        Sum window[count][3];
        const T* colours[count];
        for (int i = 0; i < count; ++i) {
          colours[i] = src.row(y + i / side - reach) + 3 * (x + i % side - reach);
          for (int c = 0; c < 3; ++c) window[i][c] = colours[i][c];
        }
        Sum sums[count] = {};
        for (int i = 0; i < count; ++i)
          for (int k = 0; k < count; ++k)
            if (k != i)
              sums[i] += std::abs(window[i][0] - window[k][0]) + std::abs(window[i][1] - window[k][1]) +
                         std::abs(window[i][2] - window[k][2]);
        const auto best = std::min_element(sums, sums + count) - sums;
        std::copy_n(colours[best], 3, dst.row(y) + 3 * x);
      }
  });
}
template <int side, typename T, typename Run>
Suite::Build colours(Run run) {
  return whole<3, T>(run, side == 3 ? lumiMask3x3 : lumiMask5x5, loopOfColours<side, T>);
}

void planes(Scene& scene) {
  const auto src = scene.inputPlanes<Lum8u>(3);
  const auto dst = scene.output<Lum8u>(1);
  scene.ours([=] { lumiMedian_8u_P3C1R(src.data, src.step, dst.data(), dst.step, dst.roi); });
  scene.peer(loop::rows(dst.roi, [=](int y, int width) {
    const Lum8u *a = src.data[0] + y * src.step, *b = src.data[1] + y * src.step,
                *c = src.data[2] + y * src.step;
    Lum8u* __restrict d = dst.row(y);
    for (int x = 0; x < width; ++x) d[x] = middle(a[x], b[x], c[x]);
  }));
}

const Family family("median_shapes", [](Suite& suite) {
  suite.row("median row 3 8u C1", kEverySize, shape<1, Lum8u>(lumiFilterMedianHoriz_8u_C1R, 31, row3));
  suite.row("median row 5 8u C1", kUpToHd, shape<1, Lum8u>(lumiFilterMedianHoriz_8u_C1R, 51, row5));
  suite.row("median row 5 16s C3", kUpToHd, shape<3, Lum16s>(lumiFilterMedianHoriz_16s_C3R, 51, row5));
  suite.row("median column 3 8u C1", kUpToHd, shape<1, Lum8u>(lumiFilterMedianVert_8u_C1R, 13, column3));
  suite.row("median column 5 8u C1", kUpToHd, shape<1, Lum8u>(lumiFilterMedianVert_8u_C1R, 15, column5));
  suite.row("median column 5 16u C4", kUpToHd, shape<4, Lum16u>(lumiFilterMedianVert_16u_C4R, 15, column5));
  suite.row("median cross 3 8u C1", kUpToHd, shape<1, Lum8u>(lumiFilterMedianCross_8u_C1R, 33, cross3));
  suite.row("median cross 5 8u C1", kUpToHd, shape<1, Lum8u>(lumiFilterMedianCross_8u_C1R, 55, cross5));
  suite.row("median cross 5 16s C3", kUpToHd, shape<3, Lum16s>(lumiFilterMedianCross_16s_C3R, 55, cross5));
  suite.row("median weighted 8u", kUpToHd,
            whole<1, Lum8u>(lumiFilterMedianWeightedCenter3x3_8u_C1R, 3, loopOfWeights));
  suite.row("median colour 8u 3x3", kUpToHd, colours<3, Lum8u>(lumiFilterMedianColor_8u_C3R));
  suite.row("median colour 8u 5x5", kUpToHd, colours<5, Lum8u>(lumiFilterMedianColor_8u_C3R));
  suite.row("median colour 32f 3x3", kUpToHd, colours<3, Lum32f>(lumiFilterMedianColor_32f_C3R));
  suite.row("median planes 8u", kEverySize, planes);
});

}  // namespace
}  // namespace bench
