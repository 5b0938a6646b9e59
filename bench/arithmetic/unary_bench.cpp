// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <type_traits>

#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "bench/peers/opencv.hpp"

namespace bench {
namespace {

template <typename T, typename... Rest>
using Unary = LumStatus (*)(const T*, int, T*, int, LumiSize, Rest...);
using Adapter = Peer (*)(View, View);

// Applies f to each of C samples, or to the first three of four with alpha.
template <int C, bool alpha, typename T, typename F>
Peer loopOf(Image<T> src, Image<T> dst, F f) {
  return loop::rows(src.roi, [=](int y, int width) {
    const T* __restrict s = src.row(y);
    T* __restrict d = dst.row(y);
    const F local = f;
    for (int i = 0; i < width * C; i += alpha ? 4 : 1)
      for (int c = 0; c < (alpha ? 3 : 1); ++c) d[i + c] = local(s[i + c]);
  });
}

// Images without a sample that warns: noise is made positive.
template <typename T>
void makePositive(Image<T> image) {
  for (int y = 0; y < image.roi.height; ++y)
    for (int i = 0; i < image.roi.width * image.channels; ++i) {
      T& sample = image.row(y)[i];
      if constexpr (std::is_signed_v<T>) sample = static_cast<T>(sample < -32767 ? 32767 : std::abs(sample));
      if (sample == 0) sample = 1;
    }
}

// One sample in eight is zero, as black ones are.
template <typename T>
void makeSparse(Image<T> image) {
  makePositive(image);
  for (int y = 0; y < image.roi.height; ++y)
    for (int i = y % 8; i < image.roi.width * image.channels; i += 8) image.row(y)[i] = 0;
}

// Exponents whose powers are ordinary numbers: noise between -8 and 8.
template <typename T>
void makeModerate(Image<T> image) {
  for (int y = 0; y < image.roi.height; ++y)
    for (int i = 0; i < image.roi.width * image.channels; ++i)
      image.row(y)[i] = static_cast<T>(image.row(y)[i] / 16);
}

enum class Input { noise, positive, sparse, moderate };
struct With {
  Adapter opencv = nullptr;
  const char* differs = "";
  Input input = Input::noise;
};

template <int C, bool alpha, typename T, typename F, typename... Rest>
Suite::Build unary(Unary<T, Rest...> lumi, With with, F f, Rest... rest) {
  return [=](Scene& s) {
    const auto src = s.input<T>(C), dst = s.output<T>(C);
    if (with.input == Input::positive) makePositive(src);
    if (with.input == Input::sparse) makeSparse(src);
    if (with.input == Input::moderate) makeModerate(src);
    s.ours([=] { lumi(src.data(), src.step, dst.data(), dst.step, dst.roi, rest...); });
    if (!alpha && with.opencv != nullptr) {
      Peer peer = with.opencv(src, dst);
      peer.differs = with.differs;
      s.peer(peer);
    }
    Peer peer = loopOf<C, alpha>(src, dst, f);
    peer.differs = with.differs;
    s.peer(peer);
  };
}

// The scale factor's rule, written out.
template <typename T>
T scaled(uint32_t x, int s) {
  if (s > 0) x = static_cast<uint32_t>((uint64_t{x} + (1u << (s - 1)) - 1 + ((x >> s) & 1)) >> s);
  return static_cast<T>(std::min<uint32_t>(x, std::numeric_limits<T>::max()));
}
template <typename T>
T limited(double x) {
  return static_cast<T>(std::min(std::max(x, 0.0), double{std::numeric_limits<T>::max()}));
}

template <int shift>
struct Square {
  template <typename T>
  T operator()(T x) const {
    if constexpr (std::is_floating_point_v<T>)
      return x * x;
    else
      return scaled<T>(static_cast<uint32_t>(x * x), shift);
  }
};

const auto absolute = [](auto x) {
  if constexpr (std::is_floating_point_v<decltype(x)>)
    return std::fabs(x);
  else
    return static_cast<decltype(x)>(x == -32768 ? 32767 : std::abs(x));
};
const auto root = [](auto x) {
  using T = decltype(x);
  if constexpr (std::is_floating_point_v<T>)
    return std::sqrt(x);
  else
    return static_cast<T>(std::nearbyint(std::sqrt(static_cast<float>(x))));
};
// Times 16 in integers.
const auto logarithm = [](auto x) {
  using T = decltype(x);
  if constexpr (std::is_floating_point_v<T>)
    return std::log(x);
  else
    return limited<T>(std::log(static_cast<double>(std::max<T>(x, 1))) * 16 + 0.5);
};
const auto exponential = [](auto x) {
  using T = decltype(x);
  if constexpr (std::is_floating_point_v<T>)
    return std::exp(x);
  else
    return limited<T>(std::nearbyint(std::exp(static_cast<double>(x))));
};

constexpr const char* kOtherSteps = "computes it in other steps";

const Family family("unary", [](Suite& suite) {
  const With sqrts{opencv::root, "", Input::positive}, logs{opencv::logarithm, kOtherSteps, Input::positive},
      exps{opencv::exponential, kOtherSteps, Input::moderate}, squares{opencv::square},
      magnitudes{opencv::absolute};
  suite.row("sqrt 32f C1", kEverySize, unary<1, false>(lumiSqrt_32f_C1R, sqrts, root));
  suite.row("ln 32f C1", kEverySize, unary<1, false>(lumiLn_32f_C1R, logs, logarithm));
  suite.row("exp 32f C1", kEverySize, unary<1, false>(lumiExp_32f_C1R, exps, exponential));
  suite.row("sqr 8u C1", kEverySize, unary<1, false>(lumiSqr_8u_C1RSfs, squares, Square<0>(), 0));
  suite.row("abs 16s C1", kEverySize, unary<1, false>(lumiAbs_16s_C1R, magnitudes, absolute));
  suite.row("sqrt 32f C1 padded", kCachedAndHd, unary<1, false>(lumiSqrt_32f_C1R, sqrts, root),
            Placement::padded);
  suite.row("ln 32f C1 padded", kCachedAndHd, unary<1, false>(lumiLn_32f_C1R, logs, logarithm),
            Placement::padded);
  suite.row("exp 32f C1 padded", kCachedAndHd, unary<1, false>(lumiExp_32f_C1R, exps, exponential),
            Placement::padded);
  suite.row("sqr 8u C1 padded", kCachedAndHd, unary<1, false>(lumiSqr_8u_C1RSfs, squares, Square<0>(), 0),
            Placement::padded);
  suite.row("sqr 8u C1 scale 3", kUpToHd, unary<1, false>(lumiSqr_8u_C1RSfs, {}, Square<3>(), 3));
  suite.row("sqr 16u C1 scale 16", kUpToHd, unary<1, false>(lumiSqr_16u_C1RSfs, {}, Square<16>(), 16));
  suite.row("sqr 16s C1", kUpToHd, unary<1, false>(lumiSqr_16s_C1RSfs, squares, Square<0>(), 0));
  suite.row("sqr 16s C1 scale 15", kUpToHd, unary<1, false>(lumiSqr_16s_C1RSfs, {}, Square<15>(), 15));
  suite.row("sqr 32f C1", kUpToHd, unary<1, false>(lumiSqr_32f_C1R, squares, Square<0>()));
  suite.row("sqr 8u AC4", kCachedAndHd, unary<4, true>(lumiSqr_8u_AC4RSfs, {}, Square<0>(), 0));
  suite.row("abs 32f C1", kUpToHd, unary<1, false>(lumiAbs_32f_C1R, magnitudes, absolute));
  suite.row("abs 16s AC4", kCachedAndHd, unary<4, true>(lumiAbs_16s_AC4R, {}, absolute));
  suite.row("sqrt 8u C1", kUpToHd, unary<1, false>(lumiSqrt_8u_C1RSfs, {}, root, 0));
  suite.row("sqrt 16u C1", kUpToHd, unary<1, false>(lumiSqrt_16u_C1RSfs, {}, root, 0));
  suite.row("sqrt 16s C1", kUpToHd,
            unary<1, false>(lumiSqrt_16s_C1RSfs, {nullptr, "", Input::positive}, root, 0));
  suite.row("sqrt 32f AC4", kCachedAndHd,
            unary<4, true>(lumiSqrt_32f_AC4R, {nullptr, "", Input::positive}, root));
  suite.row("ln 32f C1 zeros", kCachedAndHd,
            unary<1, false>(lumiLn_32f_C1R, {opencv::logarithm, kOtherSteps, Input::sparse}, logarithm));
  suite.row("ln 8u C1 scale -4", kUpToHd, unary<1, false>(lumiLn_8u_C1RSfs, {}, logarithm, -4));
  suite.row("ln 16u C1 scale -4", kUpToHd, unary<1, false>(lumiLn_16u_C1RSfs, {}, logarithm, -4));
  suite.row("exp 8u C1", kUpToHd, unary<1, false>(lumiExp_8u_C1RSfs, {}, exponential, 0));
  suite.row("exp 16s C1", kUpToHd, unary<1, false>(lumiExp_16s_C1RSfs, {}, exponential, 0));
});

}  // namespace
}  // namespace bench
