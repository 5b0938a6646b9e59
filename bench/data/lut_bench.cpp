// SPDX-License-Identifier: MIT
// Our calls make the table, or the pieces, each time; the peers have theirs.
#include <array>
#include <cmath>
#include <vector>

#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "bench/peers/opencv.hpp"
#include "lumi/lut.h"

namespace bench {
namespace {

template <typename T>
using LevelOf = std::conditional_t<std::is_floating_point_v<T>, Lum32f, Lum32s>;

// Five levels of each channel over the range of samples, floats in 0 to 1.
template <typename T>
struct Lists {
  using L = LevelOf<T>;
  std::array<std::array<L, 5>, 4> levels, values;

  Lists() {
    const double range = std::is_floating_point_v<T> ? 1 : sizeof(T) == 1 ? 256 : 65536;
    const double at[] = {0, 0.2, 0.45, 0.7, 1}, to[] = {0.1, 0.5, 0.3, 0.8, 0.9};
    for (std::size_t c = 0; c < 4; ++c)
      for (std::size_t k = 0; k < 5; ++k) {
        levels[c][k] =
            static_cast<L>(range * (k == 0 || k == 4 ? at[k] : at[k] + 0.02 * static_cast<double>(c)));
        values[c][k] = static_cast<L>(range * (to[k] + 0.01 * static_cast<double>(c)));
      }
  }
  // What the function of a channel stores, from one call in one channel.
  std::vector<T> table(LumStatus (*lumi)(const T*, int, T*, int, LumiSize, const L*, const L*, int),
                       std::size_t c) const {
    constexpr int count = sizeof(T) == 1 ? 256 : 65536;
    std::vector<T> all(count);
    for (int i = 0; i < count; ++i) all[static_cast<std::size_t>(i)] = static_cast<T>(i);
    lumi(all.data(), count * static_cast<int>(sizeof(T)), all.data(), count * static_cast<int>(sizeof(T)),
         {count, 1}, values[c].data(), levels[c].data(), 5);
    return all;
  }
};

template <int C, int used, typename T>
Peer loopOfTables(Image<T> src, Image<T> dst, std::vector<std::vector<T>> tables) {
  return loop::rows(src.roi, [=](int y, int width) {
    const T* __restrict s = src.row(y);
    T* __restrict d = dst.row(y);
    const T* t[used];
    for (std::size_t c = 0; c < used; ++c) t[c] = tables[c].data();
    for (int x = 0; x < width; ++x)
      for (int c = 0; c < used; ++c) d[x * C + c] = t[c][s[x * C + c]];
  });
}

template <typename T>
using One = LumStatus (*)(const T*, int, T*, int, LumiSize, const LevelOf<T>*, const LevelOf<T>*, int);
template <typename T>
using Several = LumStatus (*)(const T*, int, T*, int, LumiSize, const LevelOf<T>* const*,
                              const LevelOf<T>* const*, const int*);

template <typename T>
Suite::Build plane(One<T> lumi) {
  return [=](Scene& s) {
    const auto src = s.input<T>(1), dst = s.output<T>(1);
    const Lists<T> lists;
    s.ours([=] {
      lumi(src.data(), src.step, dst.data(), dst.step, src.roi, lists.values[0].data(),
           lists.levels[0].data(), 5);
    });
    const auto table = lists.table(lumi, 0);
    if constexpr (sizeof(T) == 1) s.peer(opencv::lookUp, src, dst, table);
    s.peer(loopOfTables<1, 1, T>(src, dst, {table}));
  };
}

template <int C, int used, typename T>
Suite::Build pixels(Several<T> lumi, One<T> one) {
  return [=](Scene& s) {
    const auto src = s.input<T>(C), dst = s.output<T>(C);
    const Lists<T> lists;
    s.ours([=] {
      const LevelOf<T>*values[4], *levels[4];
      for (std::size_t c = 0; c < 4; ++c)
        values[c] = lists.values[c].data(), levels[c] = lists.levels[c].data();
      const int counts[] = {5, 5, 5, 5};
      lumi(src.data(), src.step, dst.data(), dst.step, src.roi, values, levels, counts);
    });
    std::vector<std::vector<T>> tables;
    for (std::size_t c = 0; c < used; ++c) tables.push_back(lists.table(one, c));
    if constexpr (sizeof(T) == 1 && C == used) {
      std::vector<Lum8u> all;
      for (const auto& table : tables) all.insert(all.end(), table.begin(), table.end());
      s.peer(opencv::lookUp, src, dst, all);
    }
    s.peer(loopOfTables<C, used, T>(src, dst, tables));
  };
}

// Pieces of floats, searched from the first on.
struct Stay {
  float operator()(const Lists<float>& lists, std::size_t c, std::size_t k, float) const {
    return lists.values[c][k];
  }
};
struct Line {
  float operator()(const Lists<float>& lists, std::size_t c, std::size_t k, float x) const {
    const auto &l = lists.levels[c], &v = lists.values[c];
    const float slope = (v[k + 1] - v[k]) / (l[k + 1] - l[k]);
    return static_cast<float>(static_cast<double>(x - l[k]) * static_cast<double>(slope) +
                              static_cast<double>(v[k]));
  }
};

// Of one channel, with the curves at hand: through the origin and three points t, d by Newton's differences.
struct Curve {
  struct Piece {
    std::size_t origin;
    double a, b, c;
  };
  std::array<Piece, 4> pieces;

  Curve() {
    const Lists<float> lists;
    const auto &l = lists.levels[0], &v = lists.values[0];
    for (std::size_t k = 0; k < 4; ++k) {
      const std::size_t j = k < 2 ? 0 : 1, origin = j + 1, at[] = {j, j + 2, j + 3};
      double t[3], d[3];
      for (std::size_t i = 0; i < 3; ++i) {
        t[i] = static_cast<double>(l[at[i]] - l[origin]);
        d[i] = static_cast<double>(v[at[i]] - v[origin]) / t[i];
      }
      const double first = (d[1] - d[0]) / (t[1] - t[0]), second = (d[2] - d[1]) / (t[2] - t[1]);
      const double a = (second - first) / (t[2] - t[0]), b = first - a * (t[0] + t[1]);
      pieces[k] = {origin, a, b, d[0] - t[0] * (b + a * t[0])};
    }
  }
  float operator()(const Lists<float>& lists, std::size_t, std::size_t k, float x) const {
    const Piece& p = pieces[k];
    const double t = static_cast<double>(x - lists.levels[0][p.origin]);
    return static_cast<float>((t * t * p.a + p.c) * t +
                              (static_cast<double>(lists.values[0][p.origin]) + t * t * p.b));
  }
};

template <int C, int used, typename F>
Peer loopOfPieces(Image<float> src, Image<float> dst, Lists<float> lists, F f) {
  return loop::rows(src.roi, [=](int y, int width) {
    const float* __restrict s = src.row(y);
    float* __restrict d = dst.row(y);
    for (int x = 0; x < width; ++x)
      for (std::size_t c = 0; c < used; ++c) {
        const std::size_t at = static_cast<std::size_t>(x * C) + c;
        float result = s[at];
        for (std::size_t k = 0; k < 4; ++k)
          if (lists.levels[c][k] <= s[at] && lists.levels[c][k + 1] > s[at]) {
            result = f(lists, c, k, s[at]);
            break;
          }
        d[at] = result;
      }
  });
}

template <typename F>
Suite::Build floats(One<float> lumi, F f, const char* differs = "") {
  return [=](Scene& s) {
    const auto src = s.input<float>(1), dst = s.output<float>(1);
    const Lists<float> lists;
    s.ours([=] {
      lumi(src.data(), src.step, dst.data(), dst.step, src.roi, lists.values[0].data(),
           lists.levels[0].data(), 5);
    });
    Peer peer = loopOfPieces<1, 1>(src, dst, lists, f);
    peer.differs = differs;
    s.peer(peer);
  };
}
template <int C, int used, typename F>
Suite::Build floatPixels(Several<float> lumi, F f) {
  return [=](Scene& s) {
    const auto src = s.input<float>(C), dst = s.output<float>(C);
    const Lists<float> lists;
    s.ours([=] {
      const float *values[4], *levels[4];
      for (std::size_t c = 0; c < 4; ++c)
        values[c] = lists.values[c].data(), levels[c] = lists.levels[c].data();
      const int counts[] = {5, 5, 5, 5};
      lumi(src.data(), src.step, dst.data(), dst.step, src.roi, values, levels, counts);
    });
    s.peer(loopOfPieces<C, used>(src, dst, lists, f));
  };
}

const Family family("lut", [](Suite& suite) {
  suite.row("lut 8u C1", kEverySize, plane<Lum8u>(lumiLUT_8u_C1R));
  suite.row("lut 8u C3", kUpToHd, pixels<3, 3, Lum8u>(lumiLUT_8u_C3R, lumiLUT_8u_C1R));
  suite.row("lut 8u C4", kUpToHd, pixels<4, 4, Lum8u>(lumiLUT_8u_C4R, lumiLUT_8u_C1R));
  suite.row("lut 8u AC4", kUpToHd, pixels<4, 3, Lum8u>(lumiLUT_8u_AC4R, lumiLUT_8u_C1R));
  suite.row("lut 16u C1", kUpToHd, plane<Lum16u>(lumiLUT_16u_C1R));
  suite.row("lut 16u C3", kUpToHd, pixels<3, 3, Lum16u>(lumiLUT_16u_C3R, lumiLUT_16u_C1R));
  suite.row("lut 16u AC4", kCachedAndHd, pixels<4, 3, Lum16u>(lumiLUT_16u_AC4R, lumiLUT_16u_C1R));
  suite.row("lut 32f C1", kUpToHd, floats(lumiLUT_32f_C1R, Stay()));
  suite.row("lut 32f C3", kUpToHd, floatPixels<3, 3>(lumiLUT_32f_C3R, Stay()));
  suite.row("lut 32f AC4", kUpToHd, floatPixels<4, 3>(lumiLUT_32f_AC4R, Stay()));
  suite.row("lut linear 8u C1", kUpToHd, plane<Lum8u>(lumiLUT_Linear_8u_C1R));
  // The table, which the peers have already, takes most of the time of smaller images.
  suite.row("lut linear 16u C1", kCachedAndHd, plane<Lum16u>(lumiLUT_Linear_16u_C1R));
  suite.row("lut linear 32f C1", kUpToHd, floats(lumiLUT_Linear_32f_C1R, Line()));
  suite.row("lut linear 32f C3", kUpToHd, floatPixels<3, 3>(lumiLUT_Linear_32f_C3R, Line()));
  suite.row("lut cubic 8u C1", kUpToHd, plane<Lum8u>(lumiLUT_Cubic_8u_C1R));
  suite.row("lut cubic 16u C1", kCachedAndHd, plane<Lum16u>(lumiLUT_Cubic_16u_C1R));
  suite.row("lut cubic 32f C1", kUpToHd,
            floats(lumiLUT_Cubic_32f_C1R, Curve(), "solves for the curves in other steps"));
});

}  // namespace
}  // namespace bench
